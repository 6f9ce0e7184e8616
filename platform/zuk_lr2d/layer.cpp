#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/open_dataset.h"
#include "platform/zuk_lr2d/scene.h"
#include "zu/layer2d.h"

using zu::platform::guarded;

namespace {

class adapter_visitor final : public zu::string_visitor_impl {
 public:
  explicit adapter_visitor(Tzu_string_adp* adapter) : adapter_(adapter) {}
  void visit(const wchar_t* text) override { zu_string_adp_feed(adapter_, text); }

 private:
  Tzu_string_adp* adapter_;
};

/// The file on disk that a source lives in; the source itself if that leads to none.
std::wstring file_of_source(const std::wstring& source) {
  if (source.empty() || source.front() == L'*') return source;
  std::string file = zu::platform::local_file_of(zu::platform::to_utf8(source));
  return file.empty() ? source : zu::platform::from_utf8(file);
}

void forget_box(Tzu_scn_2d* scene) {
  if (scene != nullptr) scene->box_is_known = false;
}

std::wstring text_or_empty(const wchar_t* text) { return text != nullptr ? text : L""; }

}  // namespace

Izu_layer* zu_lr2d_create(const char* type) {
  auto* layer = new (std::nothrow) Izu_layer;
  guarded(layer, [&](Izu_layer& l) {
    l.type = type != nullptr ? type : "";
    l.own = zu::platform::make_state(l.type);
  });
  return layer;
}

void zu_lr2d_destroy(Izu_layer* layer) {
  if (layer != nullptr) zu_scn_2d_remove_layer(layer->scene, layer);
  delete layer;
}

const char* zu_lr2d_get_lr_type(const Izu_layer* layer) {
  return layer != nullptr ? layer->type.c_str() : "";
}
const char* zu_lr_get_lr_type(const Izu_layer* layer) { return zu_lr2d_get_lr_type(layer); }
void zu_lr_get_lr_subtype(const Izu_layer* layer, Tzu_string_adp* adapter) {
  guarded(layer, [&](const Izu_layer& l) { zu_string_adp_feed(adapter, l.subtype.c_str()); });
}
void zu_lr_set_lr_subtype(Izu_layer* layer, const wchar_t* subtype) {
  guarded(layer, [&](Izu_layer& l) { l.subtype = text_or_empty(subtype); });
}
const Tzu_handle* zu_lr2d_get_plugin_interface(const Izu_layer* layer) {
  return layer != nullptr && layer->plugin ? &layer->plugin : nullptr;
}
void zu_lr2d_set_plugin_interface(Izu_layer* layer, Tzu_handle plugin) {
  guarded(layer, [&](Izu_layer& l) { l.plugin = plugin; });
}
void zu_lr2d_get_wsource(const Izu_layer* layer, Tzu_string_adp* adapter) {
  guarded(layer, [&](const Izu_layer& l) { zu_string_adp_feed(adapter, l.source.c_str()); });
}
void zu_lr2d_set_wsource(Izu_layer* layer, const wchar_t* source) {
  guarded(layer, [&](Izu_layer& l) { l.source = text_or_empty(source); });
}
void zu_lr2d_get_wcaption(const Izu_layer* layer, Tzu_string_adp* adapter) {
  guarded(layer, [&](const Izu_layer& l) { zu_string_adp_feed(adapter, l.caption.c_str()); });
}
void zu_lr_set_wcaption(Izu_layer* layer, const wchar_t* caption) {
  guarded(layer, [&](Izu_layer& l) { l.caption = text_or_empty(caption); });
}
void zu_lr2d_get_wfilename(const Izu_layer* layer, Tzu_string_adp* adapter) {
  guarded(layer, [&](const Izu_layer& l) {
    zu_string_adp_feed(adapter, file_of_source(l.source).c_str());
  });
}
void zu_lr2d_set_valid(Izu_layer* layer, bool missing) {
  guarded(layer, [&](Izu_layer& l) { l.missing = missing; });
}
bool zu_lr2d_is_missing(const Izu_layer* layer) { return layer != nullptr && layer->missing; }
bool zu_lr2d_is_visible(const Izu_layer* layer) { return layer != nullptr && layer->visible; }
void zu_lr2d_set_visible(Izu_layer* layer, bool visible) {
  guarded(layer, [&](Izu_layer& l) {
    if (l.visible == visible) return;
    l.visible = visible;
    forget_box(l.scene);
    if (l.scene != nullptr) l.scene->channel.post(zu_update_layers);
  });
}
void zu_lr2d_data_changed(Izu_layer* layer) {
  guarded(layer, [](Izu_layer& l) {
    ++l.changes;
    l.channel.post(zu_update_data);
  });
}
Tzu_event_channel* zu_lr_get_update_event_channel(Izu_layer* layer) {
  return layer != nullptr ? &layer->channel : nullptr;
}
uint64_t zu_lr2d_get_change_count(const Izu_layer* layer) {
  return layer != nullptr ? layer->changes : 0;
}
void zu_lr2d_set_box(Izu_layer* layer, bool ok, const Tzu_box_d2* box) {
  guarded(layer, [&](Izu_layer& l) {
    l.box.reset();
    if (ok && box != nullptr) l.box = *box;
    forget_box(l.scene);
  });
}
bool zu_lr2d_get_box(const Izu_layer* layer, Tzu_box_d2* box) {
  if (layer == nullptr || !layer->box || box == nullptr) return false;
  *box = *layer->box;
  return true;
}
void zu_lr2d_get_pj4wstr(const Izu_layer* layer, Tzu_string_adp* adapter) {
  guarded(layer, [&](const Izu_layer& l) {
    if (l.own != nullptr) return zu_string_adp_feed(adapter, l.own->projection.c_str());
    if (!zu::call<&zu::layer_2d_impl::has_projection>(l.plugin)) return;
    adapter_visitor visitor(adapter);
    zu::call<&zu::layer_2d_impl::get_proj4>(
        l.plugin, zu::string_visitor(zu::handle_of<zu::string_visitor_impl>(visitor)));
  });
}
void zu_lr2d_set_pj4wstr(Izu_layer* layer, const wchar_t* projection) {
  guarded(layer, [&](Izu_layer& l) {
    if (l.own != nullptr)
      l.own->projection = text_or_empty(projection);
    else
      zu::call<&zu::layer_2d_impl::set_proj4>(l.plugin, projection);
  });
}
void zu_lr2d_get_dst_pj4wstr(const Izu_layer* layer, Tzu_string_adp* adapter) {
  if (layer != nullptr) zu_scn_2d_get_pj4wstr(layer->scene, adapter);
}
void zu_plugin_lr2d_bind_entity(Izu_layer* layer, Tzu_attr_data* data) {
  guarded(layer, [&](Izu_layer& l) { l.data = data; });
}
Tzu_table_data* zu_lr2d_get_data_ptr(const Izu_layer* layer) {
  // Tables are the only attribute data that entities are tied to.
  if (layer == nullptr) return nullptr;
  if (layer->data != nullptr) return reinterpret_cast<Tzu_table_data*>(layer->data);
  return layer->own ? layer->own->table.get() : nullptr;
}
Tzu_table_data* zu_lr_get_data_ptr(const Izu_layer* layer) { return zu_lr2d_get_data_ptr(layer); }
bool zu_lr_get_own_selected_style_flag(const Izu_layer* layer) {
  return layer != nullptr && layer->own_selected_style;
}
void zu_lr_set_own_selected_style_flag(Izu_layer* layer, bool own) {
  guarded(layer, [&](Izu_layer& l) { l.own_selected_style = own; });
}
Tzu_scn_2d* zu_lr_get_scene(const Izu_layer* layer) {
  return layer != nullptr ? layer->scene : nullptr;
}
Tzu_scn_2d* zu_lr2d_get_scn_2d(const Izu_layer* layer) { return zu_lr_get_scene(layer); }
