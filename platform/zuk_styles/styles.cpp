// The plain functions of scales: sizes, boundaries, texts, rows and look-ups.

#include <cmath>
#include <new>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/scales.h"

using zu::platform::class_at;
using zu::platform::guarded;
using zu::platform::range_class;
using zu::platform::value_class;
using zu::platform::whole;

// --- Range scale

void zu_rng_scale_assign(Tzu_rng_scale* scale, const Tzu_rng_scale* from) {
  if (from != nullptr) guarded(scale, [&](Tzu_rng_scale& s) { whole(s) = whole(*from); });
}
uint64_t zu_rng_scale_get_size(const Tzu_rng_scale* scale) {
  return scale != nullptr ? whole(*scale).classes.size() : 0;
}
void zu_rng_scale_set_size(Tzu_rng_scale* scale, uint64_t size) {
  guarded(scale, [&](Tzu_rng_scale& s) { whole(s).resize(size); });
}
double zu_rng_scale_get_min(const Tzu_rng_scale* scale, uint64_t index) {
  return index < zu_rng_scale_get_size(scale) ? whole(*scale).classes[index].minimum : NAN;
}
double zu_rng_scale_get_max(const Tzu_rng_scale* scale, uint64_t index) {
  return index < zu_rng_scale_get_size(scale) ? whole(*scale).classes[index].maximum : NAN;
}
void zu_rng_scale_set_min(Tzu_rng_scale* scale, uint64_t index, double value) {
  range_class* c = class_at(scale, index);
  if (c == nullptr) return;
  whole(*scale).forget();
  c->minimum = value;
}
void zu_rng_scale_set_max(Tzu_rng_scale* scale, uint64_t index, double value) {
  range_class* c = class_at(scale, index);
  if (c == nullptr) return;
  whole(*scale).forget();
  c->maximum = value;
}
double zu_rng_scale_get_min_value(const Tzu_rng_scale* scale) {
  return scale != nullptr ? whole(*scale).minimum : NAN;
}
double zu_rng_scale_get_max_value(const Tzu_rng_scale* scale) {
  return scale != nullptr ? whole(*scale).maximum : NAN;
}
void zu_rng_scale_set_min_value(Tzu_rng_scale* scale, double value) {
  if (scale == nullptr) return;
  whole(*scale).forget();
  whole(*scale).minimum = value;
}
void zu_rng_scale_set_max_value(Tzu_rng_scale* scale, double value) {
  if (scale == nullptr) return;
  whole(*scale).forget();
  whole(*scale).maximum = value;
}
Tzu_scale_prm* zu_rng_scale_get_scale_prm_ptr(Tzu_rng_scale* scale, uint64_t index) {
  range_class* c = class_at(scale, index);
  return c != nullptr ? c->row.get() : nullptr;
}
Tzu_scale_prm* zu_rng_scale_get_min_prm_ptr(Tzu_rng_scale* scale) {
  return scale != nullptr ? &whole(*scale).lower : nullptr;
}
Tzu_scale_prm* zu_rng_scale_get_max_prm_ptr(Tzu_rng_scale* scale) {
  return scale != nullptr ? &whole(*scale).upper : nullptr;
}
Tzu_scale_prm* zu_rng_scale_get_other_prm_ptr(Tzu_rng_scale* scale) {
  return scale != nullptr ? &whole(*scale).other : nullptr;
}
void zu_rng_scale_beg_find(Tzu_rng_scale* scale) {
  guarded(scale, [](Tzu_rng_scale& s) { whole(s).begin_find(); });
}
void zu_rng_scale_end_find(Tzu_rng_scale* scale) {
  guarded(scale, [](Tzu_rng_scale& s) { whole(s).end_find(); });
}

// --- Value scale

void zu_val_scale_assign(Tzu_val_scale* scale, const Tzu_val_scale* from) {
  if (from != nullptr) guarded(scale, [&](Tzu_val_scale& s) { whole(s) = whole(*from); });
}
uint64_t zu_val_scale_get_size(const Tzu_val_scale* scale) {
  return scale != nullptr ? whole(*scale).classes.size() : 0;
}
void zu_val_scale_set_size(Tzu_val_scale* scale, uint64_t size) {
  guarded(scale, [&](Tzu_val_scale& s) { whole(s).resize(size); });
}
uint64_t zu_val_scale_add(Tzu_val_scale* scale) {
  zu_val_scale_set_size(scale, zu_val_scale_get_size(scale) + 1);
  return zu_val_scale_get_size(scale);
}
void zu_val_scale_get_text_w(const Tzu_val_scale* scale, uint64_t index, Tzu_string_adp* adapter) {
  if (index < zu_val_scale_get_size(scale))
    zu_string_adp_feed(adapter, whole(*scale).classes[index].text.c_str());
}
void zu_val_scale_set_text_w(Tzu_val_scale* scale, uint64_t index, const wchar_t* text) {
  guarded(class_at(scale, index), [&](value_class& c) {
    whole(*scale).forget();
    c.text = text != nullptr ? text : L"";
  });
}
bool zu_val_scale_find_item_no_w(const Tzu_val_scale* scale, const wchar_t* text, uint64_t* index) {
  if (text == nullptr || index == nullptr) return false;
  uint64_t size = zu_val_scale_get_size(scale);
  for (uint64_t i = 0; i < size; ++i)
    if (whole(*scale).classes[i].text == text) {
      *index = i;
      return true;
    }
  return false;
}
Tzu_scale_prm* zu_val_scale_get_scale_prm_ptr(Tzu_val_scale* scale, uint64_t index) {
  value_class* c = class_at(scale, index);
  return c != nullptr ? c->row.get() : nullptr;
}
Tzu_scale_prm* zu_val_scale_get_other_prm_ptr(Tzu_val_scale* scale) {
  return scale != nullptr ? &whole(*scale).other : nullptr;
}
void zu_val_scale_beg_find(Tzu_val_scale* scale) {
  guarded(scale, [](Tzu_val_scale& s) { whole(s).begin_find(); });
}
void zu_val_scale_end_find(Tzu_val_scale* scale) {
  guarded(scale, [](Tzu_val_scale& s) { whole(s).end_find(); });
}

// Keep the library's own copies of what the header defines.
[[gnu::used]] static const auto exported_visible = &zu_scale_prm_get_visible;
[[gnu::used]] static const auto exported_style = &zu_scale_prm_get_stl_prm_ptr;
[[gnu::used]] static const auto exported_color = &zu_stl_prm_get_clr_style_ptr;
[[gnu::used]] static const auto exported_find_range = &zu_rng_scale_find_scale_prm_ptr;
[[gnu::used]] static const auto exported_find_value = &zu_val_scale_find_scale_prm_ptr_d;
