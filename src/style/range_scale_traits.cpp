#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/style/classes/builders.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/style/number_text.h"
#include "src/style/scale_traits.h"
#include "src/style/style_traits.h"
#include "zu/platform/zuk_xml_data.h"

#include <algorithm>

namespace zu::style {
namespace {

constexpr wchar_t below_all[] = L"-\u221e", above_all[] = L"+\u221e";

enum class place { lower_tail, entry, upper_tail };
/// Where a row that is not negative lies, and its class.
struct placed_row {
  place where;
  std::uint64_t entry;
};
placed_row placed(const Tzu_rng_scale* scale, std::int64_t row) {
  if (row == 0) return {place::lower_tail, 0};
  std::uint64_t entry = static_cast<std::uint64_t>(row) - 1;
  return {entry < zu_rng_scale_get_size(scale) ? place::entry : place::upper_tail, entry};
}

std::wstring number(const Tzu_rng_scale* scale, double value) {
  std::int32_t digits = zu_rng_scale_get_round_digits(scale);
  return text_of([&](Tzu_string_adp* a) { zu_round_digits_format_number(digits, value, a); });
}

/// What a row is called that has been given no other name.
std::wstring made_caption(const Tzu_rng_scale* scale, std::int64_t row) {
  placed_row at = placed(scale, row);
  if (at.where == place::lower_tail) return lower_caption(scale);
  if (at.where == place::upper_tail) return upper_caption(scale);
  return class_caption(scale, at.entry);
}

/// A caption that is made of the limits follows them; one of a person's own stays.
template <class change> void with_made_caption(Tzu_rng_scale* scale, std::int64_t row, change set) {
  const bool is_made = range_scale_traits::caption(scale, row) == made_caption(scale, row);
  set();
  if (is_made) range_scale_traits::set_caption(scale, row, made_caption(scale, row));
}

/// A class that was put between its neighbours, which may be tails, takes what lies between them in
/// colour, hue, transparency and size.
void style_between_neighbours(Tzu_rng_scale* scale, std::uint64_t index) {
  using traits = range_scale_traits;
  owned<zu_stl_mngr_destroy> three(zu_clr_stl_mngr_create());
  Tzu_rng_scale* rows = zu_stl_mngr_get_rng_scale_ptr(three.get());
  zu_rng_scale_set_size(rows, 3);
  for (std::uint64_t i = 0; i < 3; ++i) {
    Tzu_scale_prm* row = traits::row(scale, static_cast<std::int64_t>(index + i));
    zu_rng_scale_set_stl_prm(rows, i, zu_scale_prm_get_stl_prm_ptr(row), primary);
  }
  for (auto* spread : {&zu_rng_scale_clr_gradient, &zu_rng_scale_hue_gradient,
                       &zu_rng_scale_transparency_gradient, &zu_rng_scale_size_gradient})
    spread(rows, 0, 2, primary);
  Tzu_scale_prm* middle = zu_rng_scale_get_scale_prm_ptr(rows, 1);
  zu_rng_scale_set_stl_prm(scale, index, zu_scale_prm_get_stl_prm_ptr(middle), primary);
}

/// Bounds of a class that was put between its neighbours; where they leave no room, the one before,
/// at the end of the scale, or the one behind is halved.
void set_bounds_between_neighbours(Tzu_rng_scale* scale, std::uint64_t index) {
  std::uint64_t size = zu_rng_scale_get_size(scale);
  bool is_last = index + 1 >= size;
  double lower =
      index == 0 ? zu_rng_scale_get_min_value(scale) : zu_rng_scale_get_max(scale, index - 1);
  double upper =
      is_last ? zu_rng_scale_get_max_value(scale) : zu_rng_scale_get_min(scale, index + 1);
  if (lower == upper && size > 1) {
    if (is_last) {
      lower = zu_halfway(zu_rng_scale_get_min(scale, index - 1), lower);
      zu_rng_scale_set_max(scale, index - 1, lower);
    } else {
      upper = zu_halfway(upper, zu_rng_scale_get_max(scale, index + 1));
      zu_rng_scale_set_min(scale, index + 1, upper);
    }
  }
  zu_rng_scale_set_min(scale, index, lower);
  zu_rng_scale_set_max(scale, index, upper);
}

}  // namespace

std::wstring range_scale_traits::field(const Tzu_stl_mngr* manager) {
  return text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_rng_prop_name_w(manager, a); });
}
void range_scale_traits::set_field(Tzu_stl_mngr* manager, const std::wstring& name) {
  zu_stl_mngr_set_rng_prop_name_w(manager, name.c_str());
}

std::int64_t range_scale_traits::entry_count(const Tzu_rng_scale* scale) {
  return static_cast<std::int64_t>(zu_rng_scale_get_size(scale));
}
std::int64_t range_scale_traits::row_count(const Tzu_rng_scale* scale) {
  return entry_count(scale) + 2;
}
Tzu_scale_prm* range_scale_traits::row(Tzu_rng_scale* scale, std::int64_t row) {
  placed_row at = placed(scale, row);
  if (at.where == place::lower_tail) return zu_rng_scale_get_min_prm_ptr(scale);
  if (at.where == place::upper_tail) return zu_rng_scale_get_max_prm_ptr(scale);
  return zu_rng_scale_get_scale_prm_ptr(scale, at.entry);
}
Tzu_scale_prm* range_scale_traits::other(Tzu_rng_scale* scale) {
  return zu_rng_scale_get_other_prm_ptr(scale);
}
void range_scale_traits::set_style(Tzu_rng_scale* scale, std::int64_t row, const Tzu_stl_prm* from,
                                   std::int32_t kind) {
  placed_row at = placed(scale, row);
  if (at.where == place::lower_tail) return zu_rng_scale_set_min_style_prm(scale, from, kind);
  if (at.where == place::upper_tail) return zu_rng_scale_set_max_style_prm(scale, from, kind);
  zu_rng_scale_set_stl_prm(scale, at.entry, from, kind);
}
bool range_scale_traits::is_marked(const Tzu_rng_scale* scale, std::int64_t row) {
  placed_row at = placed(scale, row);
  if (at.where == place::lower_tail) return zu_rng_scale_get_min_marked(scale);
  if (at.where == place::upper_tail) return zu_rng_scale_get_max_marked(scale);
  return zu_rng_scale_get_marked(scale, at.entry);
}
void range_scale_traits::set_marked(Tzu_rng_scale* scale, std::int64_t row, bool marked) {
  placed_row at = placed(scale, row);
  if (at.where == place::lower_tail) return zu_rng_scale_set_min_marked(scale, marked);
  if (at.where == place::upper_tail) return zu_rng_scale_set_max_marked(scale, marked);
  zu_rng_scale_set_marked(scale, at.entry, marked);
}
void range_scale_traits::remove_marked(Tzu_rng_scale* scale) { zu_rng_scale_del_marked(scale); }
void range_scale_traits::move_marked(Tzu_rng_scale* scale, std::int64_t row) {
  if (row != 0 && row <= entry_count(scale) + 1)
    zu_rng_scale_move_marked(scale, static_cast<std::uint64_t>(row) - 1);
}
void range_scale_traits::set_order(Tzu_rng_scale* scale, const Tzu_ints* order) {
  zu_rng_scale_set_order(scale, order);
}
std::int64_t range_scale_traits::active_row(const Tzu_rng_scale* scale) {
  return zu_rng_scale_get_active_idx(scale);
}
void range_scale_traits::set_active_row(Tzu_rng_scale* scale, std::int64_t row) {
  zu_rng_scale_set_active_idx(scale, static_cast<std::int32_t>(row));
}
std::int64_t range_scale_traits::append(Tzu_rng_scale* scale) {
  std::int64_t active = std::max<std::int64_t>(active_row(scale), 0);
  std::int64_t size = entry_count(scale);
  zu_rng_scale_ins(scale, static_cast<std::uint64_t>(std::min(active, size + 1)));
  auto index = static_cast<std::uint64_t>(std::min(active, size));
  style_between_neighbours(scale, index);
  set_bounds_between_neighbours(scale, index);
  zu_rng_scale_set_default_caption(scale, index);
  return static_cast<std::int64_t>(index) + first_entry;
}

std::wstring range_scale_traits::key_text(const Tzu_rng_scale* scale, std::int64_t row) {
  return minimum(scale, row) + L".." + maximum(scale, row);
}
std::wstring range_scale_traits::caption(const Tzu_rng_scale* scale, std::int64_t row) {
  placed_row at = placed(scale, row);
  return text_of([&](Tzu_string_adp* a) {
    if (at.where == place::lower_tail) return zu_rng_scale_get_min_caption_w(scale, a);
    if (at.where == place::upper_tail) return zu_rng_scale_get_max_caption_w(scale, a);
    zu_rng_scale_get_caption_w(scale, at.entry, a);
  });
}
void range_scale_traits::set_caption(Tzu_rng_scale* scale, std::int64_t row,
                                     const std::wstring& text) {
  placed_row at = placed(scale, row);
  if (at.where == place::lower_tail) return zu_rng_scale_set_min_caption_w(scale, text.c_str());
  if (at.where == place::upper_tail) return zu_rng_scale_set_max_caption_w(scale, text.c_str());
  zu_rng_scale_set_caption_w(scale, at.entry, text.c_str());
}
std::wstring range_scale_traits::other_caption(const Tzu_rng_scale* scale) {
  return text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_other_caption_w(scale, a); });
}
void range_scale_traits::set_other_caption(Tzu_rng_scale* scale, const std::wstring& text) {
  zu_rng_scale_set_other_caption_w(scale, text.c_str());
}
std::wstring range_scale_traits::minimum(const Tzu_rng_scale* scale, std::int64_t row) {
  placed_row at = placed(scale, row);
  if (at.where == place::lower_tail) return below_all;
  return number(scale, at.where == place::upper_tail ? zu_rng_scale_get_max_value(scale)
                                                     : zu_rng_scale_get_min(scale, at.entry));
}
std::wstring range_scale_traits::maximum(const Tzu_rng_scale* scale, std::int64_t row) {
  placed_row at = placed(scale, row);
  if (at.where == place::upper_tail) return above_all;
  return number(scale, at.where == place::lower_tail ? zu_rng_scale_get_min_value(scale)
                                                     : zu_rng_scale_get_max(scale, at.entry));
}
void range_scale_traits::set_minimum(Tzu_rng_scale* scale, std::int64_t row, double value) {
  placed_row at = placed(scale, row);
  if (at.where == place::entry)
    with_made_caption(scale, row, [&] { zu_rng_scale_set_min(scale, at.entry, value); });
  else
    with_made_caption(scale, row_count(scale) - 1,
                      [&] { zu_rng_scale_set_max_value(scale, value); });
}
void range_scale_traits::set_maximum(Tzu_rng_scale* scale, std::int64_t row, double value) {
  placed_row at = placed(scale, row);
  if (at.where == place::upper_tail) return;
  with_made_caption(scale, row, [&] {
    if (at.where == place::lower_tail) return zu_rng_scale_set_min_value(scale, value);
    zu_rng_scale_set_max(scale, at.entry, value);
  });
}
std::wstring range_scale_traits::row_text(const Tzu_rng_scale* scale, std::int64_t row) {
  return key_text(scale, row) + L" : " + caption(scale, row);
}

std::wstring range_scale_traits::sort_text(const Tzu_rng_scale* scale, std::int64_t row,
                                           sort_key key) {
  switch (key) {
    case sort_key::minimum:
      return minimum(scale, row);
    case sort_key::maximum:
      return maximum(scale, row);
    case sort_key::caption:
      return caption(scale, row);
    case sort_key::value:
      break;
  }
  return {};
}
std::optional<double> range_scale_traits::sort_number(const Tzu_rng_scale* scale, std::int64_t row,
                                                      sort_key key) {
  std::uint64_t entry = placed(scale, row).entry;
  if (key == sort_key::minimum) return zu_rng_scale_get_min(scale, entry);
  if (key == sort_key::maximum) return zu_rng_scale_get_max(scale, entry);
  return parse_number(sort_text(scale, row, key));
}

void range_scale_traits::gradient(Tzu_rng_scale* scale, gradient_kind which, bool only_marked,
                                  std::int32_t kind) {
  struct functions {
    void (*between)(Tzu_rng_scale*, std::uint64_t, std::uint64_t, std::int32_t);
    void (*marked)(Tzu_rng_scale*, std::int32_t);
  };
  static constexpr functions all[] = {
      {&zu_rng_scale_clr_gradient, &zu_rng_scale_clr_gradient_marked},
      {&zu_rng_scale_size_gradient, &zu_rng_scale_size_gradient_marked},
      {&zu_rng_scale_transparency_gradient, &zu_rng_scale_transparency_gradient_marked}};
  const functions& f = all[static_cast<int>(which)];
  std::uint64_t size = zu_rng_scale_get_size(scale);
  if (only_marked)
    f.marked(scale, kind);
  else if (size != 1)
    f.between(scale, 0, size - 1, kind);
}

bool range_scale_traits::rescale(Tzu_rng_scale* scale, const data::open_reference& source,
                                 const std::wstring& field) {
  data::generic_datasource data;
  if (!data.open(source, data::open_read_only)) return false;
  std::int64_t index = data.find_field(field);
  if (index < 0) return false;
  auto [low, high] = std::minmax({data.field_minimum(index), data.field_maximum(index)});
  auto count = static_cast<std::uint32_t>(zu_rng_scale_get_size(scale));
  std::int32_t digits = zu_rng_scale_get_round_digits(scale);
  switch (zu_rng_scale_get_rng_type(scale)) {
    case zu_range_equal:
      set_equal_intervals(scale, equal_params{count, low, high, digits});
      return true;
    case zu_range_natural:
      set_natural_breaks(scale, source, natural_params{field, count, low, high, digits});
      return true;
    case zu_range_geometrical:
      set_geometrical(scale, geometrical_params{count, low, high, digits});
      return true;
    default:
      return false;
  }
}
bool range_scale_traits::fill(Tzu_rng_scale* scale, const data::open_reference& source,
                              const std::wstring& field) {
  return fill_from_data(scale, source, field);
}

bool range_scale_traits::save(const std::wstring& path, const Tzu_stl_mngr* manager,
                              const char* key, std::wstring* reason) {
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  if (zu_xml_data_save_rng_scale_w(xml.get(), path.c_str(), manager, key)) return true;
  if (reason != nullptr)
    *reason = text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml.get(), a); });
  return false;
}
bool range_scale_traits::load(const std::wstring& path, Tzu_stl_mngr* manager, const char* key) {
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  return zu_xml_data_load_rng_scale_w(xml.get(), path.c_str(), manager, key);
}

}  // namespace zu::style
