// What a person does to the rows of a scale: marks, insertion, removal, order, styles.

#include <string>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_styles/scales.h"
#include "zu/platform/zuk_os.h"

using zu::platform::class_at;
using zu::platform::guarded;
using zu::platform::range_scale;
using zu::platform::text_of;
using zu::platform::whole;

namespace {

/// False for null.
bool is_set(const Tzu_rng_scale* scale, bool range_scale::*flag) {
  return scale != nullptr && whole(*scale).*flag;
}

void assign_one(Tzu_scale_prm* row, const Tzu_stl_prm* from, int32_t selected) {
  if (from == nullptr) return;
  guarded(row, [&](Tzu_scale_prm& r) { zu::platform::assign_one(r.style, *from, selected != 0); });
}

template <class head> void reorder(head* scale, const Tzu_ints* order) {
  guarded(scale, [&](head& s) {
    std::vector<std::size_t> indexes(zu_ints_get_size(order));
    for (std::size_t i = 0; i < indexes.size(); ++i)
      indexes[i] = static_cast<std::size_t>(zu_ints_get(order, i));  // a negative one is too large
    whole(s).reorder(indexes);
  });
}

}  // namespace

// --- Range scale

void zu_rng_scale_set_default_caption(Tzu_rng_scale* scale, uint64_t index) {
  constexpr int32_t between = 623;  // "%ls – %ls"
  guarded(class_at(scale, index), [&](zu::platform::range_class& c) {
    std::wstring caption = zu_res_get_wstr(between);
    // From the end, so that a number's text is not searched.
    for (double bound : {c.maximum, c.minimum}) {
      std::size_t place = caption.rfind(L"%ls");
      if (place == std::wstring::npos) continue;
      caption.replace(place, 3, text_of([&](Tzu_string_adp* a) {
                        zu_round_digits_format_number(whole(*scale).digits, bound, a);
                      }));
    }
    c.caption = caption;
  });
}
uint64_t zu_rng_scale_ins(Tzu_rng_scale* scale, uint64_t index) {
  return guarded(scale, uint64_t{0}, [&](Tzu_rng_scale& s) { return whole(s).insert(index); });
}
bool zu_rng_scale_get_marked(const Tzu_rng_scale* scale, uint64_t index) {
  return index < zu_rng_scale_get_size(scale) && whole(*scale).classes[index].marked;
}
void zu_rng_scale_set_marked(Tzu_rng_scale* scale, uint64_t index, bool marked) {
  if (auto* c = class_at(scale, index)) c->marked = marked;
}
bool zu_rng_scale_get_min_marked(const Tzu_rng_scale* scale) {
  return is_set(scale, &range_scale::lower_marked);
}
void zu_rng_scale_set_min_marked(Tzu_rng_scale* scale, bool marked) {
  if (scale != nullptr) whole(*scale).lower_marked = marked;
}
bool zu_rng_scale_get_max_marked(const Tzu_rng_scale* scale) {
  return is_set(scale, &range_scale::upper_marked);
}
void zu_rng_scale_set_max_marked(Tzu_rng_scale* scale, bool marked) {
  if (scale != nullptr) whole(*scale).upper_marked = marked;
}
void zu_rng_scale_del_marked(Tzu_rng_scale* scale) {
  guarded(scale, [](Tzu_rng_scale& s) { whole(s).erase_marked(); });
}
void zu_rng_scale_move_marked(Tzu_rng_scale* scale, uint64_t index) {
  guarded(scale, [&](Tzu_rng_scale& s) { whole(s).move_marked(index); });
}
void zu_rng_scale_set_order(Tzu_rng_scale* scale, const Tzu_ints* order) { reorder(scale, order); }
int32_t zu_rng_scale_get_active_idx(const Tzu_rng_scale* scale) {
  return scale != nullptr ? whole(*scale).active : -1;
}
void zu_rng_scale_set_active_idx(Tzu_rng_scale* scale, int32_t index) {
  if (scale != nullptr) whole(*scale).active = index;
}
void zu_rng_scale_set_stl_prm(Tzu_rng_scale* scale, uint64_t index, const Tzu_stl_prm* prm,
                              int32_t selected) {
  assign_one(zu_rng_scale_get_scale_prm_ptr(scale, index), prm, selected);
}
void zu_rng_scale_set_min_style_prm(Tzu_rng_scale* scale, const Tzu_stl_prm* prm,
                                    int32_t selected) {
  assign_one(zu_rng_scale_get_min_prm_ptr(scale), prm, selected);
}
void zu_rng_scale_set_max_style_prm(Tzu_rng_scale* scale, const Tzu_stl_prm* prm,
                                    int32_t selected) {
  assign_one(zu_rng_scale_get_max_prm_ptr(scale), prm, selected);
}
void zu_rng_scale_init_opacity_pts(Tzu_rng_scale* scale) {
  if (scale == nullptr) return;
  range_scale& s = whole(*scale);
  s.keep_opacity(s.classes.empty() ? s.lower.style : s.classes.front().row.get()->style);
}

// --- Value scale

uint64_t zu_val_scale_ins(Tzu_val_scale* scale, uint64_t index) {
  return guarded(scale, uint64_t{0}, [&](Tzu_val_scale& s) { return whole(s).insert(index); });
}
void zu_val_scale_del(Tzu_val_scale* scale, uint64_t index) {
  if (class_at(scale, index) == nullptr) return;
  guarded(scale, [&](Tzu_val_scale& s) { whole(s).erase(index); });
}
bool zu_val_scale_get_marked(const Tzu_val_scale* scale, uint64_t index) {
  return index < zu_val_scale_get_size(scale) && whole(*scale).classes[index].marked;
}
void zu_val_scale_set_marked(Tzu_val_scale* scale, uint64_t index, bool marked) {
  if (auto* c = class_at(scale, index)) c->marked = marked;
}
void zu_val_scale_del_marked(Tzu_val_scale* scale) {
  guarded(scale, [](Tzu_val_scale& s) { whole(s).erase_marked(); });
}
void zu_val_scale_move_marked(Tzu_val_scale* scale, uint64_t index) {
  guarded(scale, [&](Tzu_val_scale& s) { whole(s).move_marked(index); });
}
void zu_val_scale_set_order(Tzu_val_scale* scale, const Tzu_ints* order) { reorder(scale, order); }
int32_t zu_val_scale_get_active_idx(const Tzu_val_scale* scale) {
  return scale != nullptr ? whole(*scale).active : -1;
}
void zu_val_scale_set_active_idx(Tzu_val_scale* scale, int32_t index) {
  if (scale != nullptr) whole(*scale).active = index;
}
void zu_val_scale_set_stl_prm(Tzu_val_scale* scale, uint64_t index, const Tzu_stl_prm* prm,
                              int32_t selected) {
  assign_one(zu_val_scale_get_scale_prm_ptr(scale, index), prm, selected);
}
void zu_val_scale_init_opacity_pts(Tzu_val_scale* scale) {
  if (scale == nullptr || whole(*scale).classes.empty()) return;
  whole(*scale).keep_opacity(whole(*scale).classes.front().row.get()->style);
}
