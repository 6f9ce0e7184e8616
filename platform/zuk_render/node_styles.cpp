#include "platform/zuk_render/node_styles.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_basic/utf8.h"

namespace zu::platform {
namespace {

std::int64_t number_of(data_source source, const std::wstring& field) {
  std::int64_t index = -1;
  bool found = call<&data_source_impl::find_field>(source, field.c_str(), &index);
  return found ? index : -1;
}

std::wstring field_of(const Tzu_stl_mngr* manager) {
  return text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_prop_name_w(manager, a); });
}

/// NaN for a text that is not wholly a number.
double number_in(const std::wstring& text) {
  std::string narrow = to_utf8(text);
  double value = NAN;
  auto [end, error] = std::from_chars(narrow.data(), narrow.data() + narrow.size(), value);
  return error == std::errc() && end == narrow.data() + narrow.size() ? value : NAN;
}

/// As value scales write numbers.
std::wstring text_of_number(double value) {
  constexpr int digits = 15;
  char text[32];
  auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, digits).ptr;
  return std::wstring(text, end);
}

template <class value> bool compare(Tzu_calc_operator by, const value& a, const value& b) {
  switch (by) {
    case zu_calc_equal:
      return a == b;
    case zu_calc_not_equal:
      return a != b;
    case zu_calc_less:
      return a < b;
    case zu_calc_less_equal:
      return a <= b;
    case zu_calc_greater:
      return a > b;
    default:
      return a >= b;
  }
}

}  // namespace

named_columns::column::column(data_source source, const std::wstring& name)
    : field(name), values(source, number_of(source, name)) {}

std::size_t named_columns::add(const std::wstring& field) {
  auto known = std::find_if(columns_.begin(), columns_.end(),
                            [&](const column& c) { return c.field == field; });
  if (known == columns_.end()) {
    columns_.emplace_back(source_, field);
    return columns_.size() - 1;
  }
  return static_cast<std::size_t>(known - columns_.begin());
}

void named_columns::read(std::uint64_t start, std::size_t count) {
  for (column& c : columns_) {
    c.run.resize(count);
    if (!c.values || !c.values.read(start, c.run)) std::fill(c.run.begin(), c.run.end(), NAN);
  }
}

node_rule::node_rule(const calc_filter& filter, named_columns& columns) {
  for (const filter_condition& c : filter.conditions())
    if (c.enabled)
      comparisons_.push_back({c.with_those_before, c.comparison, columns.add(c.field), c.text,
                              c.kind == zu_calc_number ? number_in(c.text) : NAN});
}

bool node_rule::is_true(const comparison& c, double value) {
  if (std::isnan(value)) return false;
  if (!std::isnan(c.number)) return compare(c.by, value, c.number);
  return compare(c.by, text_of_number(value), c.text);
}

bool node_rule::holds(const named_columns& columns, std::size_t node) const {
  bool so_far = true;
  for (std::size_t i = 0; i < comparisons_.size(); ++i) {
    const comparison& c = comparisons_[i];
    bool now = is_true(c, columns.at(c.column, node));
    so_far = i == 0 ? now : c.with_those_before ? so_far && now : so_far || now;
  }
  return so_far;
}

node_styles::node_styles(Tzu_stl_mngr* manager, data_source source)
    : manager_(manager),
      mode_(zu_stl_mngr_get_mode(manager)),
      values_(source, number_of(source, field_of(manager))),
      columns_(source) {
  zu_rng_scale_beg_find(zu_stl_mngr_get_rng_scale_ptr(manager_));
  zu_val_scale_beg_find(zu_stl_mngr_get_val_scale_ptr(manager_));
  if (mode_ != zu_style_rule) return;
  Tzu_val_scale* scale = zu_stl_mngr_get_rule_scale_ptr(manager_);
  for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i) {
    auto filter = calc_filter::from_stored_text(
        text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, i, a); }));
    if (filter)
      rules_.push_back({node_rule(*filter, columns_), zu_val_scale_get_scale_prm_ptr(scale, i)});
  }
}

node_styles::~node_styles() {
  zu_rng_scale_end_find(zu_stl_mngr_get_rng_scale_ptr(manager_));
  zu_val_scale_end_find(zu_stl_mngr_get_val_scale_ptr(manager_));
}

bool node_styles::read(std::uint64_t start, std::size_t count) {
  if (mode_ == zu_style_simple) return true;
  if (mode_ == zu_style_rule) {
    columns_.read(start, count);
    return true;
  }
  if (mode_ != zu_style_range && mode_ != zu_style_value) return false;
  run_.resize(count);
  return values_ && values_.read(start, run_);
}

Tzu_scale_prm* node_styles::row_by_rule(std::size_t node) const {
  for (const rule_row& r : rules_)
    if (r.rule.holds(columns_, node)) return r.row;
  return zu_val_scale_get_other_prm_ptr(zu_stl_mngr_get_rule_scale_ptr(manager_));
}

Tzu_stl_prm* node_styles::at(std::size_t node) const {
  if (mode_ == zu_style_simple) return zu_stl_mngr_get_simple_sp_ptr(manager_);
  Tzu_scale_prm* row =
      mode_ == zu_style_rule ? row_by_rule(node)
      : mode_ == zu_style_range
          ? zu_rng_scale_find_scale_prm_ptr(zu_stl_mngr_get_rng_scale_ptr(manager_), run_[node])
          : zu_val_scale_find_scale_prm_ptr_d(zu_stl_mngr_get_val_scale_ptr(manager_), run_[node]);
  return zu_scale_prm_get_visible(row) ? zu_scale_prm_get_stl_prm_ptr(row) : nullptr;
}

}  // namespace zu::platform
