#include "platform/zuk_lr2d/own_state.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_lr2d/open_source.h"
#include "platform/zuk_lr2d/scene.h"
#include "zu/layer2d.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_proj4_d2.h"

using zu::platform::guarded;
using zu::platform::open_source;
using zu::platform::owned;
using zu::platform::text_of;

namespace zu::platform {
namespace {

std::map<std::string, state_maker>& kinds() {
  static std::map<std::string, state_maker> all;
  return all;
}

}  // namespace

layer_kind::layer_kind(const char* type, state_maker make) { kinds()[type] = make; }

std::unique_ptr<own_state> make_state(const std::string& type) {
  auto kind = kinds().find(type);
  return kind != kinds().end() ? kind->second() : nullptr;
}

own_state* state_of(const Izu_layer* layer) {
  return layer != nullptr ? layer->own.get() : nullptr;
}

bool own_state::box_of(const std::wstring& /*name*/, data_source source, Tzu_box_d2& box) {
  double four[4];
  if (!call<&data_source_impl::extent>(source, four, true)) return false;
  zu_box_d2_make_xy(&box, four[0], four[1], four[2], four[3]);
  return true;
}

void save_projection(Tzu_xnode* params, const own_state& state) {
  zu_xnode_set_attr_wstr(params, L"proj4", state.projection.c_str());
}

void load_projection(Tzu_xnode* params, own_state& state) {
  std::wstring text =
      text_of([&](Tzu_string_adp* a) { zu_xnode_get_attr_wstr(params, L"proj4", a); });
  if (!text.empty()) state.projection = text;
}

void set_opacity(double& opacity, double given) {
  if (!std::isnan(given)) opacity = std::clamp(given, 0.0, 1.0);
}

}  // namespace zu::platform

namespace {

bool own_box(const Izu_layer& layer, Tzu_box_d2& box) {
  open_source source(layer.source);
  if (!layer.own->box_of(layer.source, source.get(), box)) return false;
  if (!layer.own->reprojected()) return true;
  std::wstring target = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_dst_pj4wstr(&layer, a); });
  owned<zu_rpj_fb_d2_destroy> rpj(zu_rpj_fb_d2_create());
  zu_rpj_fb_d2_init_w(rpj.get(), layer.own->projection.c_str(), target.c_str());
  return !zu_rpj_fb_d2_rpj_is_needed(rpj.get()) || zu_rpj_fb_d2_apply_box(rpj.get(), &box, 1);
}

}  // namespace

void zu_lr2d_source_changed(Izu_layer* layer) {
  guarded(layer, [](Izu_layer& l) {
    zu::call<&zu::layer_2d_impl::source_changed>(l.plugin);
    if (l.own == nullptr) return;
    zu_table_data_set_wsource(l.own->table.get(), l.source.c_str());
    if (l.own->projection.empty()) l.own->projection = open_source(l.source).projection();
  });
}

void zu_lr2d_update_box(Izu_layer* layer) {
  guarded(layer, [](Izu_layer& l) {
    zu::call<&zu::layer_2d_impl::update_box>(l.plugin);
    if (l.own == nullptr) return;
    Tzu_box_d2 box{};
    zu_lr2d_set_box(&l, own_box(l, box), &box);
  });
}

void zu_lr2d_update_validity(Izu_layer* layer) {
  guarded(layer, [](Izu_layer& l) {
    zu::call<&zu::layer_2d_impl::update_validity>(l.plugin);
    if (l.own == nullptr) return;
    std::wstring file = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wfilename(&l, a); });
    bool in_memory = !file.empty() && file.front() == L'*';
    l.missing = !in_memory && !zu_os_file_exists(file.c_str());
  });
}

Tzu_stl_mngr* zu_lr_get_style_mngr_ptr(const Izu_layer* layer) {
  return guarded(layer, static_cast<Tzu_stl_mngr*>(nullptr), [](const Izu_layer& l) {
    return l.own ? l.own->style_manager()
                 : zu::call<&zu::layer_2d_impl::get_style_manager>(l.plugin);
  });
}
Tzu_hillshade_style* zu_lr2d_get_hillshade_style(const Izu_layer* layer) {
  return guarded(layer, static_cast<Tzu_hillshade_style*>(nullptr), [](const Izu_layer& l) {
    return l.own ? l.own->hillshade_style()
                 : zu::call<&zu::layer_2d_impl::get_hillshade_style>(l.plugin);
  });
}
Tzu_isoline_style* zu_lr2d_get_isoline_style(const Izu_layer* layer) {
  return guarded(layer, static_cast<Tzu_isoline_style*>(nullptr), [](const Izu_layer& l) {
    return l.own ? l.own->isoline_style()
                 : zu::call<&zu::layer_2d_impl::get_isoline_style>(l.plugin);
  });
}

void zu_lr2d_save_state(const Izu_layer* layer, Tzu_xnode* node, void* context) {
  if (node == nullptr) return;
  guarded(layer, [&](const Izu_layer& l) {
    if (l.own != nullptr) l.own->save(node, context);
  });
}
void zu_lr2d_load_state(Izu_layer* layer, Tzu_xnode* node, void* context) {
  if (node == nullptr) return;
  guarded(layer, [&](Izu_layer& l) {
    if (l.own != nullptr) l.own->load(node, context);
  });
}
