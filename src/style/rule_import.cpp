// Rules that say the same as a value scale or a range scale.

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/style/number_text.h"
#include "src/style/scale_operations.h"
#include "zu/platform/zuk_calculator.h"

namespace zu::style {
namespace {

struct condition {
  std::int32_t comparison;
  std::wstring text;
  std::int32_t kind;
};

/// The stored text of a rule on one field.
std::wstring rule(const std::wstring& field, const std::vector<condition>& conditions) {
  owned<zu_calc_filter_destroy> filter(zu_calc_filter_create());
  for (const condition& c : conditions)
    zu_calc_filter_add(filter.get(), 1, field.c_str(), c.comparison, c.text.c_str(), c.kind, true);
  return text_of([&](Tzu_string_adp* a) { zu_calc_filter_to_str(filter.get(), a); });
}

void set_rule(Tzu_val_scale* rules, std::int64_t row, const std::wstring& text,
              const std::wstring& caption, const Tzu_scale_prm* prm) {
  using traits = rule_scale_traits;
  traits::set_value(rules, row, text);
  traits::set_caption(rules, row, caption);
  zu_scale_prm_assign(traits::row(rules, row), prm);
}

}  // namespace

bool import_value_rules(Tzu_stl_mngr* mngr) {
  using traits = value_scale_traits;
  Tzu_val_scale* values = zu_stl_mngr_get_val_scale_ptr(mngr);
  Tzu_val_scale* rules = zu_stl_mngr_get_rule_scale_ptr(mngr);
  if (values == nullptr || rules == nullptr || traits::field(mngr).empty()) return false;
  std::wstring field = traits::field(mngr);
  zu_val_scale_set_size(rules, zu_val_scale_get_size(values));
  for (std::int64_t row = 0, count = traits::row_count(values); row < count; ++row) {
    std::wstring text = traits::value(values, row);
    std::int32_t kind = parse_number(text) ? zu_calc_number : zu_calc_text;
    set_rule(rules, row, rule(field, {{zu_calc_equal, text, kind}}), traits::caption(values, row),
             traits::row(values, row));
  }
  traits::set_other_caption(rules, traits::other_caption(values));
  zu_scale_prm_assign(traits::other(rules), traits::other(values));
  return true;
}

bool import_range_rules(Tzu_stl_mngr* mngr) {
  using traits = range_scale_traits;
  Tzu_rng_scale* ranges = zu_stl_mngr_get_rng_scale_ptr(mngr);
  Tzu_val_scale* rules = zu_stl_mngr_get_rule_scale_ptr(mngr);
  if (ranges == nullptr || rules == nullptr) return false;
  std::wstring field = traits::field(mngr);
  std::int64_t last = traits::row_count(ranges) - 1;
  zu_val_scale_set_size(rules, static_cast<std::uint64_t>(last) + 1);
  for (std::int64_t row = 0; row <= last; ++row) {
    std::vector<condition> conditions;
    if (row > 0)
      conditions.push_back({zu_calc_greater, traits::minimum(ranges, row), zu_calc_number});
    if (row < last)
      conditions.push_back({zu_calc_less_equal, traits::maximum(ranges, row), zu_calc_number});
    set_rule(rules, row, rule(field, conditions), traits::caption(ranges, row),
             traits::row(ranges, row));
  }
  rule_scale_traits::set_other_caption(rules, traits::other_caption(ranges));
  zu_scale_prm_assign(rule_scale_traits::other(rules), traits::other(ranges));
  return true;
}

}  // namespace zu::style
