// What scales carry for people and for whoever makes their boundaries anew; no look-up needs it.

#include <string>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/scales.h"

using zu::platform::class_at;
using zu::platform::guarded;
using zu::platform::range_scale;
using zu::platform::value_scale;
using zu::platform::whole;

namespace {

template <class scale>
void give(const scale* s, uint64_t index, Tzu_string_adp* adapter, uint64_t (*size)(const scale*)) {
  if (index < size(s)) zu_string_adp_feed(adapter, whole(*s).classes[index].caption.c_str());
}

template <class holder, class head>
void give(const head* scale, std::wstring holder::*caption, Tzu_string_adp* adapter) {
  if (scale != nullptr) zu_string_adp_feed(adapter, (whole(*scale).*caption).c_str());
}

void take(std::wstring* caption, const wchar_t* text) {
  guarded(caption, [&](std::wstring& c) { c = text != nullptr ? text : L""; });
}

}  // namespace

void zu_rng_scale_get_caption_w(const Tzu_rng_scale* scale, uint64_t index,
                                Tzu_string_adp* adapter) {
  give(scale, index, adapter, &zu_rng_scale_get_size);
}
void zu_rng_scale_set_caption_w(Tzu_rng_scale* scale, uint64_t index, const wchar_t* text) {
  auto* c = class_at(scale, index);
  take(c != nullptr ? &c->caption : nullptr, text);
}
void zu_rng_scale_get_min_caption_w(const Tzu_rng_scale* scale, Tzu_string_adp* adapter) {
  give(scale, &range_scale::lower_caption, adapter);
}
void zu_rng_scale_set_min_caption_w(Tzu_rng_scale* scale, const wchar_t* text) {
  take(scale != nullptr ? &whole(*scale).lower_caption : nullptr, text);
}
void zu_rng_scale_get_max_caption_w(const Tzu_rng_scale* scale, Tzu_string_adp* adapter) {
  give(scale, &range_scale::upper_caption, adapter);
}
void zu_rng_scale_set_max_caption_w(Tzu_rng_scale* scale, const wchar_t* text) {
  take(scale != nullptr ? &whole(*scale).upper_caption : nullptr, text);
}
void zu_rng_scale_get_other_caption_w(const Tzu_rng_scale* scale, Tzu_string_adp* adapter) {
  give(scale, &range_scale::other_caption, adapter);
}
void zu_rng_scale_set_other_caption_w(Tzu_rng_scale* scale, const wchar_t* text) {
  take(scale != nullptr ? &whole(*scale).other_caption : nullptr, text);
}

int32_t zu_rng_scale_get_rng_type(const Tzu_rng_scale* scale) {
  return scale != nullptr ? whole(*scale).type : zu_range_equal;
}
void zu_rng_scale_set_rng_type(Tzu_rng_scale* scale, int32_t type) {
  if (scale != nullptr) whole(*scale).type = type;
}
int32_t zu_rng_scale_get_round_digits(const Tzu_rng_scale* scale) {
  return scale != nullptr ? whole(*scale).digits : zu_no_rounding;
}
void zu_rng_scale_set_round_digits(Tzu_rng_scale* scale, int32_t digits) {
  if (scale != nullptr) whole(*scale).digits = digits;
}
double zu_rng_scale_get_deviation_coeff(const Tzu_rng_scale* scale) {
  return scale != nullptr ? whole(*scale).deviation_coefficient : 1.0;
}
void zu_rng_scale_set_deviation_coeff(Tzu_rng_scale* scale, double coefficient) {
  if (scale != nullptr) whole(*scale).deviation_coefficient = coefficient;
}

void zu_val_scale_get_caption_w(const Tzu_val_scale* scale, uint64_t index,
                                Tzu_string_adp* adapter) {
  give(scale, index, adapter, &zu_val_scale_get_size);
}
void zu_val_scale_set_caption_w(Tzu_val_scale* scale, uint64_t index, const wchar_t* text) {
  auto* c = class_at(scale, index);
  take(c != nullptr ? &c->caption : nullptr, text);
}
void zu_val_scale_get_other_caption_w(const Tzu_val_scale* scale, Tzu_string_adp* adapter) {
  give(scale, &value_scale::other_caption, adapter);
}
void zu_val_scale_set_other_caption_w(Tzu_val_scale* scale, const wchar_t* text) {
  take(scale != nullptr ? &whole(*scale).other_caption : nullptr, text);
}
