#include <new>
#include <string>
#include <string_view>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/scales.h"

using zu::platform::guarded;

struct Tzu_rotate_params {};

static constexpr const char* types[] = {"clr_mngr_style", "pnt_mngr_style", "pln_mngr_style",
                                        "pgn_mngr_style"};

struct Tzu_stl_mngr {
  const char* type = types[0];
  int32_t mode = zu_style_simple;
  zu::platform::style_parameters simple;
  std::wstring value_field, range_field;
  zu::platform::value_scale values, rules;
  zu::platform::range_scale ranges;
  bool just_loaded = false;
};

namespace {

void give(const Tzu_stl_mngr* manager, std::wstring Tzu_stl_mngr::*name, Tzu_string_adp* adapter) {
  guarded(manager, [&](const Tzu_stl_mngr& m) { zu_string_adp_feed(adapter, (m.*name).c_str()); });
}

void take(Tzu_stl_mngr* manager, std::wstring Tzu_stl_mngr::*name, const wchar_t* text) {
  guarded(manager, [&](Tzu_stl_mngr& m) { m.*name = text != nullptr ? text : L""; });
}

}  // namespace

Tzu_stl_mngr* zu_clr_stl_mngr_create() { return zu_stl_mngr_create("clr_mngr_style"); }
Tzu_stl_mngr* zu_pgn_stl_mngr_create() { return zu_stl_mngr_create("pgn_mngr_style"); }
Tzu_stl_mngr* zu_stl_mngr_create(const char* type) {
  std::string_view name = type != nullptr ? type : "";
  for (const char* known : types) {
    if (name != known) continue;
    auto* made = new (std::nothrow) Tzu_stl_mngr;
    if (made != nullptr) made->type = known;
    return made;
  }
  return nullptr;
}
const char* zu_stl_mngr_get_style_type(const Tzu_stl_mngr* manager) {
  return manager != nullptr ? manager->type : "";
}
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
Tzu_val_scale* zu_stl_mngr_get_rule_scale_ptr(Tzu_stl_mngr* manager) {
  return manager != nullptr ? &manager->rules : nullptr;
}
bool zu_stl_mngr_get_just_loaded(const Tzu_stl_mngr* manager) {
  return manager != nullptr && manager->just_loaded;
}
void zu_stl_mngr_set_just_loaded(Tzu_stl_mngr* manager, bool loaded) {
  if (manager != nullptr) manager->just_loaded = loaded;
}

// Colours do not turn: a manager of them has no rotation.
bool zu_stl_mngr_get_rotate_flag(const Tzu_stl_mngr*) { return false; }
bool zu_stl_mngr_get_rotate_hatch_flag(const Tzu_stl_mngr*) { return false; }
bool zu_stl_mngr_get_rotate_spot_flag(const Tzu_stl_mngr*) { return false; }
const Tzu_rotate_params* zu_stl_mngr_get_rotate_params(const Tzu_stl_mngr*) { return nullptr; }
