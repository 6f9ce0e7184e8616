#pragma once
// What the platform keeps of a layer that has no plug-in object. Libraries above fill it: each kind
// of layer registers a maker under its type.

#include <memory>
#include <string>

#include "platform/zuk_basic/owned.h"
#include "zu/data_source.h"
#include "zu/platform/zuk_attr_data.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_styles.h"
#include "zu/platform/zuk_xml_data.h"

namespace zu::platform {

class own_state {
 public:
  virtual ~own_state() = default;
  // Not owned; null for a kind that has none.
  virtual Tzu_stl_mngr* style_manager() { return nullptr; }
  virtual Tzu_hillshade_style* hillshade_style() { return nullptr; }
  virtual Tzu_isoline_style* isoline_style() { return nullptr; }
  /// Box of the open source of that name in source coordinates, the outer edge of its cells.
  virtual bool box_of(const std::wstring& name, data_source source, Tzu_box_d2& box);
  /// Whether its box goes through the projections of source and scene.
  virtual bool reprojected() const { return true; }
  // The kind's own settings in the project tree.
  virtual void save(Tzu_xnode* node, void* context) const = 0;
  virtual void load(Tzu_xnode* node, void* context) = 0;

  std::wstring projection;  // the source's, unless somebody has set another
  owned<zu_table_data_destroy> table{zu_table_data_create()};
};

using node_ptr = owned<zu_xnode_close>;
// Settings of more than one kind, as attributes of the kind's own node.
void save_projection(Tzu_xnode* params, const own_state& state);
void load_projection(Tzu_xnode* params, own_state& state);
/// Cut to 0..1; no number leaves it alone.
void set_opacity(double& opacity, double given);

using state_maker = std::unique_ptr<own_state> (*)();

/// Registers a kind of layer while the library is loaded; stands at namespace scope.
struct layer_kind {
  layer_kind(const char* type, state_maker make);
};

/// The state of a new layer; null for a type whose layers have plug-in objects.
std::unique_ptr<own_state> make_state(const std::string& type);
/// What the layer has, of whatever kind; null if it has none.
own_state* state_of(const Izu_layer* layer);
/// The same of one kind; null for a layer of another.
template <class kind> kind* state_as(const Izu_layer* layer) {
  return dynamic_cast<kind*>(state_of(layer));
}

}  // namespace zu::platform
