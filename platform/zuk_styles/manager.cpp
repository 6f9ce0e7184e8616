#include <new>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/scales.h"

using zu::platform::guarded;

struct Tzu_rotate_params {};

struct Tzu_stl_mngr {
  int32_t mode = zu_style_simple;
  Tzu_stl_prm simple = zu::platform::new_row().style;
  std::wstring value_field, range_field;
  zu::platform::value_scale values;
  zu::platform::range_scale ranges;
};

struct Tzu_hillshade_style {
  bool use = false;
};
struct Tzu_isoline_style {
  bool use = false;
};

namespace {

void give(const Tzu_stl_mngr* manager, std::wstring Tzu_stl_mngr::*name, Tzu_string_adp* adapter) {
  guarded(manager, [&](const Tzu_stl_mngr& m) { zu_string_adp_feed(adapter, (m.*name).c_str()); });
}

void take(Tzu_stl_mngr* manager, std::wstring Tzu_stl_mngr::*name, const wchar_t* text) {
  guarded(manager, [&](Tzu_stl_mngr& m) { m.*name = text != nullptr ? text : L""; });
}

}  // namespace

Tzu_stl_mngr* zu_clr_stl_mngr_create() { return new (std::nothrow) Tzu_stl_mngr; }
void zu_stl_mngr_destroy(Tzu_stl_mngr* manager) { delete manager; }
void zu_stl_mngr_assign(Tzu_stl_mngr* manager, const Tzu_stl_mngr* from) {
  if (from != nullptr) guarded(manager, [&](Tzu_stl_mngr& m) { m = *from; });
}
int32_t zu_stl_mngr_get_mode(const Tzu_stl_mngr* manager) {
  return manager != nullptr ? manager->mode : zu_style_simple;
}
void zu_stl_mngr_set_mode(Tzu_stl_mngr* manager, int32_t mode) {
  if (manager != nullptr) manager->mode = mode;
}
void zu_stl_mngr_get_prop_name_w(const Tzu_stl_mngr* manager, Tzu_string_adp* adapter) {
  int32_t mode = zu_stl_mngr_get_mode(manager);
  if (mode == zu_style_value) zu_stl_mngr_get_val_prop_name_w(manager, adapter);
  if (mode == zu_style_range) zu_stl_mngr_get_rng_prop_name_w(manager, adapter);
}
void zu_stl_mngr_get_val_prop_name_w(const Tzu_stl_mngr* manager, Tzu_string_adp* adapter) {
  give(manager, &Tzu_stl_mngr::value_field, adapter);
}
void zu_stl_mngr_set_val_prop_name_w(Tzu_stl_mngr* manager, const wchar_t* name) {
  take(manager, &Tzu_stl_mngr::value_field, name);
}
void zu_stl_mngr_get_rng_prop_name_w(const Tzu_stl_mngr* manager, Tzu_string_adp* adapter) {
  give(manager, &Tzu_stl_mngr::range_field, adapter);
}
void zu_stl_mngr_set_rng_prop_name_w(Tzu_stl_mngr* manager, const wchar_t* name) {
  take(manager, &Tzu_stl_mngr::range_field, name);
}
Tzu_stl_prm* zu_stl_mngr_get_simple_sp_ptr(Tzu_stl_mngr* manager) {
  return manager != nullptr ? &manager->simple : nullptr;
}
Tzu_val_scale* zu_stl_mngr_get_val_scale_ptr(Tzu_stl_mngr* manager) {
  return manager != nullptr ? &manager->values : nullptr;
}
Tzu_rng_scale* zu_stl_mngr_get_rng_scale_ptr(Tzu_stl_mngr* manager) {
  return manager != nullptr ? &manager->ranges : nullptr;
}

// Colours do not turn: a manager of them has no rotation.
bool zu_stl_mngr_get_rotate_flag(const Tzu_stl_mngr*) { return false; }
bool zu_stl_mngr_get_rotate_hatch_flag(const Tzu_stl_mngr*) { return false; }
bool zu_stl_mngr_get_rotate_spot_flag(const Tzu_stl_mngr*) { return false; }
const Tzu_rotate_params* zu_stl_mngr_get_rotate_params(const Tzu_stl_mngr*) { return nullptr; }

Tzu_hillshade_style* zu_hillshade_style_create() { return new (std::nothrow) Tzu_hillshade_style; }
void zu_hillshade_style_destroy(Tzu_hillshade_style* style) { delete style; }
void zu_hillshade_style_assign(Tzu_hillshade_style* style, const Tzu_hillshade_style* from) {
  if (style != nullptr && from != nullptr) *style = *from;
}
bool zu_hillshade_style_get_use(const Tzu_hillshade_style* style) {
  return style != nullptr && style->use;
}

Tzu_isoline_style* zu_isoline_style_create() { return new (std::nothrow) Tzu_isoline_style; }
void zu_isoline_style_destroy(Tzu_isoline_style* style) { delete style; }
void zu_isoline_style_assign(Tzu_isoline_style* style, const Tzu_isoline_style* from) {
  if (style != nullptr && from != nullptr) *style = *from;
}
bool zu_isoline_style_get_use(const Tzu_isoline_style* style) {
  return style != nullptr && style->use;
}
