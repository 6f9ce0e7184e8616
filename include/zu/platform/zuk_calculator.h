#pragma once
// Filters: conditions on fields, and their texts.

#include "zu/platform/zuk_basic.h"

/// What a condition compares by.
enum Tzu_calc_operator {
  zu_calc_equal = 0,
  zu_calc_not_equal = 1,
  zu_calc_less = 2,
  zu_calc_less_equal = 3,
  zu_calc_greater = 4,
  zu_calc_greater_equal = 5,
};
/// How the text of a condition is meant.
enum Tzu_calc_kind { zu_calc_text = 0, zu_calc_number = 1 };

typedef struct Tzu_calc_filter Tzu_calc_filter;
ZU_API Tzu_calc_filter* zu_calc_filter_create(void);  ///< without conditions; null if out of memory
ZU_API void zu_calc_filter_destroy(Tzu_calc_filter* filter);
ZU_API void zu_calc_filter_clear(Tzu_calc_filter* filter);
/// Adds a condition; `join` 1 demands it together with those before it, 0 as an alternative;
/// `enabled` false keeps it without effect. Ignored for a comparison or a kind that there is not.
ZU_API void zu_calc_filter_add(Tzu_calc_filter* filter, int32_t join, const wchar_t* field,
                               int32_t comparison, const wchar_t* text, int32_t kind, bool enabled);
ZU_API uint64_t zu_calc_filter_get_size(const Tzu_calc_filter* filter);
/// A text from which `zu_calc_filter_from_str` makes the same filter; an empty one without
/// conditions.
ZU_API void zu_calc_filter_to_str(const Tzu_calc_filter* filter, Tzu_string_adp* adapter);
/// False, and the filter as it was, for a text of another form.
ZU_API bool zu_calc_filter_from_str(Tzu_calc_filter* filter, const wchar_t* text);
/// The enabled conditions for people: "z > 10 and z <= 20". Texts are in quotes, and "and" and "or"
/// are the same in every language.
ZU_API void zu_calc_filter_pretty_print(const Tzu_calc_filter* filter, Tzu_string_adp* adapter);
