#pragma once
// One layer of a scene: the platform's entity, the bundle's object behind it if its type has one,
// and the source that it shows.

#include <memory>
#include <optional>
#include <string>

#include "host/core/bundle.h"
#include "host/core/source.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_render.h"

namespace zu::host {

struct node_closed {
  void operator()(Tzu_xnode* node) const { zu_xnode_close(node); }
};
using node_ptr = std::unique_ptr<Tzu_xnode, node_closed>;

/// Numbers of the grid layer's draw types.
enum class draw_type { scale = 0, image = 1, gray = 2, rgb = 3 };

struct ended {
  void operator()(Tzu_rgb_channels* channels) const { zu_rgb_channels_destroy(channels); }
};
using channels_ptr = std::unique_ptr<Tzu_rgb_channels, ended>;

/// How a layer is coloured, besides its styles.
struct draw_settings {
  draw_type draw = draw_type::scale;
  channels_ptr channels;
  int transparency = 0;  ///< percent
  bool interpolate = false;
};

class layer final : layer_2d_visitor_impl {
 public:
  /// Whether there are layers of a type: the bundle's, or the platform's own.
  static bool has_type(const bundle& services, const std::string& type);
  /// A layer of a type that the bundle or the platform knows, on a source that may be missing.
  /// Throws `failure` for an unknown type.
  layer(const bundle& services, const std::string& type, const std::string& source);
  ~layer();
  layer(const layer&) = delete;
  layer& operator=(const layer&) = delete;

  Izu_layer* entity() const { return entity_; }
  std::string type() const;
  std::string source_name() const;
  /// Leads it to another source, that may be missing; its look stays, but for what the source
  /// itself says of being an image.
  void set_source(const std::string& source);
  std::string subtype() const;
  void set_subtype(const std::string& subtype);
  std::string caption() const;
  void set_caption(const std::string& caption);
  /// The source, opened when it is first asked for. Throws `failure` if it will not open.
  const source& data() const;
  bool is_missing() const { return zu_lr2d_is_missing(entity_); }
  /// Whether it is drawn, as a person wants it.
  bool is_visible() const { return zu_lr2d_is_visible(entity_); }
  void set_visible(bool visible) { zu_lr2d_set_visible(entity_, visible); }
  std::string projection() const;
  void set_projection(const std::string& text);
  /// In scene coordinates; nothing if it cannot be brought there.
  std::optional<Tzu_box_d2> box() const;

  /// The bundle's object; empty for a layer that the platform keeps itself.
  layer_2d object() const { return object_; }
  // Styles; null if the type has none.
  Tzu_stl_mngr* style_manager() const { return zu_lr_get_style_mngr_ptr(entity_); }
  Tzu_hillshade_style* hillshade_style() const { return zu_lr2d_get_hillshade_style(entity_); }
  Tzu_isoline_style* isoline_style() const { return zu_lr2d_get_isoline_style(entity_); }

  draw_settings settings() const;
  void set_settings(const draw_settings& settings);
  /// The layer's own state under a node of a tree, and back.
  void save(Tzu_xnode* node) const;
  void load(Tzu_xnode* node);
  /// The state as a text, and back. Equal texts are equal states.
  std::string state() const;
  void load_state(const std::string& state);

  /// After a change of the scene's projection.
  void update() { zu_lr2d_update_box(entity_); }
  void draw(Izu_render* render) const;

 private:
  void visit(layer_2d made) override { object_ = made; }
  void read_tree(draw_settings& found) const;
  void write_tree(const draw_settings& settings);

  const bundle& services_;
  Izu_layer* entity_ = nullptr;
  layer_2d object_;
  mutable std::unique_ptr<source> data_;
};

}  // namespace zu::host
