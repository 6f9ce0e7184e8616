#include <new>
#include <string>
#include <string_view>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/render_levels.h"
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
  bool use_render_levels = false;
};

namespace {

void give(const Tzu_stl_mngr* manager, std::wstring Tzu_stl_mngr::*name, Tzu_string_adp* adapter) {
  guarded(manager, [&](const Tzu_stl_mngr& m) { zu_string_adp_feed(adapter, (m.*name).c_str()); });
}

void take(Tzu_stl_mngr* manager, std::wstring Tzu_stl_mngr::*name, const wchar_t* text) {
  guarded(manager, [&](Tzu_stl_mngr& m) { m.*name = text != nullptr ? text : L""; });
}

// Those of both styles of a parameter, of the kind that its manager draws.
void add_levels(const Tzu_stl_prm& prm, std::string_view type, zu::platform::level_set& levels) {
  zu::platform::style_parameters copy(prm);  // of which symbols may be made
  for (int i = 0; i < 2; ++i) {
    if (type == types[1]) zu::platform::add_levels(*zu_stl_prm_get_pnt_style_ptr(&copy, i), levels);
    if (type == types[2]) zu::platform::add_levels(*zu_stl_prm_get_pln_style_ptr(&copy, i), levels);
    if (type == types[3]) zu::platform::add_levels(*zu_stl_prm_get_pgn_style_ptr(&copy, i), levels);
  }
}

/// Calls `use(style)` for each style that the mode in use draws with.
template <class function> void for_each_style(const Tzu_stl_mngr& m, const function& use) {
  auto rows = [&](auto& scale) {
    for (auto& each : scale.classes) use(each.row.get()->style);
    use(scale.other.style);
  };
  if (m.mode == zu_style_simple) use(m.simple);
  if (m.mode == zu_style_value) rows(m.values);
  if (m.mode == zu_style_rule) rows(m.rules);
  if (m.mode != zu_style_range) return;
  rows(m.ranges);
  use(m.ranges.lower.style);
  use(m.ranges.upper.style);
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
bool zu_stl_mngr_get_use_render_levels(const Tzu_stl_mngr* manager) {
  return manager != nullptr && manager->use_render_levels;
}
void zu_stl_mngr_set_use_render_levels(Tzu_stl_mngr* manager, bool use) {
  if (manager != nullptr) manager->use_render_levels = use;
}
void zu_stl_mngr_get_render_levels(const Tzu_stl_mngr* manager, Tzu_ints* levels) {
  if (!zu_stl_mngr_get_use_render_levels(manager)) return;
  guarded(manager, [&](const Tzu_stl_mngr& m) {
    zu::platform::level_set found{0};
    for_each_style(m, [&](const Tzu_stl_prm& prm) { add_levels(prm, m.type, found); });
    for (int32_t level : found) zu_ints_add(levels, level);
  });
}

// Colours do not turn: a manager of them has no rotation.
bool zu_stl_mngr_get_rotate_flag(const Tzu_stl_mngr*) { return false; }
bool zu_stl_mngr_get_rotate_hatch_flag(const Tzu_stl_mngr*) { return false; }
bool zu_stl_mngr_get_rotate_spot_flag(const Tzu_stl_mngr*) { return false; }
const Tzu_rotate_params* zu_stl_mngr_get_rotate_params(const Tzu_stl_mngr*) { return nullptr; }
