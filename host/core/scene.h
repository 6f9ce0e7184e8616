#pragma once
// A scene and its layers, drawn into a picture.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/core/bundle.h"
#include "host/core/layer_look.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_render.h"

namespace zu::host {

/// One grid of a scene.
class layer final : layer_2d_visitor_impl {
 public:
  /// Opens a source as a layer of type "grid_lr2d". Throws `failure`.
  layer(const bundle& services, const std::string& source);
  ~layer();
  layer(const layer&) = delete;
  layer& operator=(const layer&) = delete;

  const source& data() const { return data_; }
  Izu_layer* entity() const { return entity_; }
  std::string projection() const;
  /// In scene coordinates; nothing if it cannot be brought there.
  std::optional<Tzu_box_d2> box() const;

  void take_look(const layer_look& look);
  /// After a change of the scene's projection.
  void update();
  void draw(Izu_render* render) const;

 private:
  void visit(layer_2d made) override { object_ = made; }

  const bundle& services_;
  source data_;
  Izu_layer* entity_;
  layer_2d object_;
};

class scene {
 public:
  explicit scene(const bundle& services);
  ~scene();
  scene(const scene&) = delete;
  scene& operator=(const scene&) = delete;

  /// Adds a layer on top.
  layer& add(const std::string& source);
  const std::vector<std::unique_ptr<layer>>& layers() const { return layers_; }
  /// EPSG:n, PROJ text or WKT; the first layer's own until it is set.
  void set_projection(const std::string& text);
  std::string projection() const;
  /// The box of all layers; throws `failure` if there is none.
  Tzu_box_d2 box() const;

 private:
  const bundle& services_;
  Tzu_scn_2d* scene_;
  std::vector<std::unique_ptr<layer>> layers_;
};

/// What a picture shows.
struct picture_request {
  std::uint64_t nx = 1024, ny = 768;
  std::optional<Tzu_box_d2> extent;  ///< none: all layers
  std::optional<Tzu_color> background;
  double dots_per_inch = 96;
};

struct drawn_picture {
  struct ended {
    void operator()(Tzu_drwc* page) const { zu_drwc_destroy(page); }
  };
  std::unique_ptr<Tzu_drwc, ended> page;
  Tzu_box_d2 box;                       ///< what it shows
  std::vector<std::string> shortfalls;  ///< what could not be read, a line each; the rest is drawn
  std::vector<std::string> unplaced;    ///< sources without a projection in a scene that has one
  bool empty = false;                   ///< no layer left anything on it
};

/// The box widened about its centre to the shape of nx by ny.
Tzu_box_d2 widened(const Tzu_box_d2& box, std::uint64_t nx, std::uint64_t ny);

/// Draws all layers, the lowest first. Throws `failure` if one of them cannot be drawn.
drawn_picture draw(const scene& shown, const picture_request& request);

}  // namespace zu::host
