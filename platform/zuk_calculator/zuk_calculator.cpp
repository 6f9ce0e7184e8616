#include "zu/platform/zuk_calculator.h"

#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_calculator/filter.h"

using zu::platform::guarded;

struct Tzu_calc_filter : zu::platform::calc_filter {};

Tzu_calc_filter* zu_calc_filter_create() { return new (std::nothrow) Tzu_calc_filter; }
void zu_calc_filter_destroy(Tzu_calc_filter* filter) { delete filter; }
void zu_calc_filter_clear(Tzu_calc_filter* filter) {
  guarded(filter, [](Tzu_calc_filter& f) { f.clear(); });
}
void zu_calc_filter_add(Tzu_calc_filter* filter, int32_t join, const wchar_t* field,
                        int32_t comparison, const wchar_t* text, int32_t kind, bool enabled) {
  if (comparison < zu_calc_equal || comparison > zu_calc_greater_equal) return;
  if (kind != zu_calc_text && kind != zu_calc_number) return;
  guarded(filter, [&](Tzu_calc_filter& f) {
    f.add({join != 0, enabled, field != nullptr ? field : L"",
           static_cast<Tzu_calc_operator>(comparison), static_cast<Tzu_calc_kind>(kind),
           text != nullptr ? text : L""});
  });
}
uint64_t zu_calc_filter_get_size(const Tzu_calc_filter* filter) {
  return filter != nullptr ? filter->conditions().size() : 0;
}
void zu_calc_filter_to_str(const Tzu_calc_filter* filter, Tzu_string_adp* adapter) {
  guarded(filter,
          [&](const Tzu_calc_filter& f) { zu_string_adp_feed(adapter, f.stored_text().c_str()); });
}
bool zu_calc_filter_from_str(Tzu_calc_filter* filter, const wchar_t* text) {
  return guarded(filter, false, [&](Tzu_calc_filter& f) {
    auto made = zu::platform::calc_filter::from_stored_text(text != nullptr ? text : L"");
    if (made) static_cast<zu::platform::calc_filter&>(f) = std::move(*made);
    return made.has_value();
  });
}
void zu_calc_filter_pretty_print(const Tzu_calc_filter* filter, Tzu_string_adp* adapter) {
  guarded(filter, [&](const Tzu_calc_filter& f) {
    zu_string_adp_feed(adapter, f.readable_text().c_str());
  });
}
