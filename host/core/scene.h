#pragma once
// A scene and its layers.

#include <memory>
#include <string>
#include <vector>

#include "host/core/layer.h"

namespace zu::host {

/// As what a source opens: what the bundle's filters find it to be, where a picture is a grid too
/// and so can be styled; or what a person says it is.
enum class open_as { found, grid, picture };

class scene {
 public:
  explicit scene(const bundle& services);
  ~scene();
  scene(const scene&) = delete;
  scene& operator=(const scene&) = delete;

  /// Opens a source as a layer on top, by the bundle's filter that takes it or, where none does, as
  /// a grid; or as the kind that is wanted. Throws `failure` if no layer came of it, `declined` if
  /// a person did not want it.
  layer& add(const std::string& source, open_as wanted = open_as::found);
  /// Adds a layer of a type on top, whether its source is there or not.
  layer& add_layer(const std::string& type, const std::string& source);
  void remove(const layer& removed);
  /// Puts the layers into another order, the lowest first: all of them, each once.
  void arrange(const std::vector<layer*>& order);
  const std::vector<std::unique_ptr<layer>>& layers() const { return layers_; }
  /// EPSG:n, PROJ text or WKT; the first layer's own until it is set.
  void set_projection(const std::string& text);
  std::string projection() const;
  /// The box of all visible layers whose sources are there; throws `failure` if there is none.
  Tzu_box_d2 box() const;
  Tzu_scn_2d* get() const { return scene_; }

 private:
  struct construction;

  const bundle& services_;
  Tzu_scn_2d* scene_;
  std::vector<std::unique_ptr<layer>> layers_;
};

}  // namespace zu::host
