#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/style/number_text.h"
#include "src/style/scale_traits.h"
#include "src/style/style_traits.h"
#include "zu/platform/zuk_calculator.h"
#include "zu/platform/zuk_xml_data.h"

#include <cmath>

namespace zu::style {
namespace {

std::uint64_t index_of(std::int64_t row) { return static_cast<std::uint64_t>(row); }

}  // namespace

namespace detail {

std::int64_t text_scale_traits::entry_count(const Tzu_val_scale* scale) {
  return static_cast<std::int64_t>(zu_val_scale_get_size(scale));
}
std::int64_t text_scale_traits::row_count(const Tzu_val_scale* scale) { return entry_count(scale); }
Tzu_scale_prm* text_scale_traits::row(Tzu_val_scale* scale, std::int64_t row) {
  return zu_val_scale_get_scale_prm_ptr(scale, index_of(row));
}
Tzu_scale_prm* text_scale_traits::other(Tzu_val_scale* scale) {
  return zu_val_scale_get_other_prm_ptr(scale);
}
void text_scale_traits::set_style(Tzu_val_scale* scale, std::int64_t row, const Tzu_stl_prm* from,
                                  std::int32_t kind) {
  zu_val_scale_set_stl_prm(scale, index_of(row), from, kind);
}
bool text_scale_traits::is_marked(const Tzu_val_scale* scale, std::int64_t row) {
  return zu_val_scale_get_marked(scale, index_of(row));
}
void text_scale_traits::set_marked(Tzu_val_scale* scale, std::int64_t row, bool marked) {
  zu_val_scale_set_marked(scale, index_of(row), marked);
}
void text_scale_traits::remove_marked(Tzu_val_scale* scale) { zu_val_scale_del_marked(scale); }
void text_scale_traits::move_marked(Tzu_val_scale* scale, std::int64_t row) {
  if (row <= entry_count(scale)) zu_val_scale_move_marked(scale, index_of(row));
}
void text_scale_traits::set_order(Tzu_val_scale* scale, const Tzu_ints* order) {
  zu_val_scale_set_order(scale, order);
}
std::int64_t text_scale_traits::active_row(const Tzu_val_scale* scale) {
  return zu_val_scale_get_active_idx(scale);
}
void text_scale_traits::set_active_row(Tzu_val_scale* scale, std::int64_t row) {
  zu_val_scale_set_active_idx(scale, static_cast<std::int32_t>(row));
}
std::int64_t text_scale_traits::append(Tzu_val_scale* scale) {
  std::int64_t active = active_row(scale);
  if (active >= 0 && active < entry_count(scale))
    return static_cast<std::int64_t>(zu_val_scale_ins(scale, index_of(active + 1)));
  return static_cast<std::int64_t>(zu_val_scale_add(scale)) - 1;
}

std::wstring text_scale_traits::value(const Tzu_val_scale* scale, std::int64_t row) {
  return text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, index_of(row), a); });
}
void text_scale_traits::set_value(Tzu_val_scale* scale, std::int64_t row,
                                  const std::wstring& text) {
  zu_val_scale_set_text_w(scale, index_of(row), text.c_str());
}
std::wstring text_scale_traits::caption(const Tzu_val_scale* scale, std::int64_t row) {
  return text_of([&](Tzu_string_adp* a) { zu_val_scale_get_caption_w(scale, index_of(row), a); });
}
void text_scale_traits::set_caption(Tzu_val_scale* scale, std::int64_t row,
                                    const std::wstring& text) {
  zu_val_scale_set_caption_w(scale, index_of(row), text.c_str());
}
std::wstring text_scale_traits::other_caption(const Tzu_val_scale* scale) {
  return text_of([&](Tzu_string_adp* a) { zu_val_scale_get_other_caption_w(scale, a); });
}
void text_scale_traits::set_other_caption(Tzu_val_scale* scale, const std::wstring& text) {
  zu_val_scale_set_other_caption_w(scale, text.c_str());
}

std::wstring text_scale_traits::sort_text(const Tzu_val_scale* scale, std::int64_t row,
                                          sort_key key) {
  return key == sort_key::caption ? caption(scale, row) : value(scale, row);
}
std::optional<double> text_scale_traits::sort_number(const Tzu_val_scale* scale, std::int64_t row,
                                                     sort_key key) {
  return parse_number(sort_text(scale, row, key));
}

void text_scale_traits::gradient(Tzu_val_scale* scale, gradient_kind which, bool only_marked,
                                 std::int32_t kind) {
  struct functions {
    void (*between)(Tzu_val_scale*, std::uint64_t, std::uint64_t, std::int32_t);
    void (*marked)(Tzu_val_scale*, std::int32_t);
  };
  static constexpr functions all[] = {
      {&zu_val_scale_clr_gradient, &zu_val_scale_clr_gradient_marked},
      {&zu_val_scale_size_gradient, &zu_val_scale_size_gradient_marked},
      {&zu_val_scale_transparency_gradient, &zu_val_scale_transparency_gradient_marked}};
  const functions& f = all[static_cast<int>(which)];
  std::uint64_t size = zu_val_scale_get_size(scale);
  if (only_marked)
    f.marked(scale, kind);
  else if (size != 1)
    f.between(scale, 0, size - 1, kind);
}

void text_scale_traits::style_by_legend(Tzu_val_scale* scale, Tzu_mapleg* legend,
                                        bool only_marked) {
  zu_val_scale_style_by_mapleg(scale, legend, only_marked, primary);
}

std::optional<std::int32_t> text_scale_traits::library_number(const Tzu_val_scale* scale,
                                                              std::int64_t row) {
  std::optional<double> number = parse_number(value(scale, row));
  if (!number) return {};
  double whole = std::trunc(*number);
  if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) return {};
  return static_cast<std::int32_t>(whole);
}

bool text_scale_traits::save(const std::wstring& path, const Tzu_stl_mngr* manager, const char* key,
                             std::wstring* reason) {
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  if (zu_xml_data_save_val_scale_w(xml.get(), path.c_str(), manager, key)) return true;
  if (reason != nullptr)
    *reason = text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml.get(), a); });
  return false;
}
bool text_scale_traits::load(const std::wstring& path, Tzu_stl_mngr* manager, const char* key) {
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  return zu_xml_data_load_val_scale_w(xml.get(), path.c_str(), manager, key);
}

}  // namespace detail

std::wstring value_scale_traits::field(const Tzu_stl_mngr* manager) {
  return text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_val_prop_name_w(manager, a); });
}
void value_scale_traits::set_field(Tzu_stl_mngr* manager, const std::wstring& name) {
  zu_stl_mngr_set_val_prop_name_w(manager, name.c_str());
}
std::wstring value_scale_traits::row_text(const Tzu_val_scale* scale, std::int64_t row) {
  return value(scale, row) + L" : " + caption(scale, row);
}
bool value_scale_traits::fill(Tzu_val_scale* scale, const data::open_reference& source,
                              const std::wstring& field) {
  return fill_from_data(scale, source, field);
}

std::wstring rule_scale_traits::key_text(const Tzu_val_scale* scale, std::int64_t row) {
  std::wstring stored = value(scale, row);
  owned<zu_calc_filter_destroy> filter(zu_calc_filter_create());
  if (!zu_calc_filter_from_str(filter.get(), stored.c_str())) return stored;
  return text_of([&](Tzu_string_adp* a) { zu_calc_filter_pretty_print(filter.get(), a); });
}
std::wstring rule_scale_traits::row_text(const Tzu_val_scale* scale, std::int64_t row) {
  return key_text(scale, row) + L" : " + caption(scale, row);
}

}  // namespace zu::style
