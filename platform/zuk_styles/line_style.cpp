#include <new>

#include "zu/platform/zuk_styles.h"

namespace {

Tzu_color color_of(uint32_t word) {
  auto byte = [&](int n) { return static_cast<uint8_t>(word >> (8 * n)); };
  return {byte(0), byte(1), byte(2), byte(3)};
}

}  // namespace

Tzu_pln_style* zu_pln_style_create() {
  auto* made = new (std::nothrow) Tzu_pln_style;
  zu_pln_style_init(made);
  return made;
}
void zu_pln_style_destroy(Tzu_pln_style* style) { delete style; }
void zu_pln_style_assign(Tzu_pln_style* style, const Tzu_pln_style* from) {
  if (style != nullptr && from != nullptr) *style = *from;
}
void zu_pln_style_init(Tzu_pln_style* style) {
  if (style == nullptr) return;
  *style = {};
  style->width = 0.2;
  style->cap = zu_cap_round;
  style->join = zu_join_round;
  style->visible = true;
}
void zu_bpln_style_set_color(Tzu_pln_style* style, uint32_t color) {
  if (style != nullptr) style->color = color_of(color);
}
void zu_bpln_style_set_width(Tzu_pln_style* style, double millimetres) {
  if (style != nullptr) style->width = millimetres;
}

Tzu_pgn_style* zu_pgn_style_create() {
  constexpr uint8_t half = 128;
  auto* made = new (std::nothrow) Tzu_pgn_style{{0, 0, 0, half}, {}};
  if (made != nullptr) zu_pln_style_init(&made->contour);
  return made;
}
void zu_pgn_style_destroy(Tzu_pgn_style* style) { delete style; }
void zu_bpgn_style_set_color(Tzu_pgn_style* style, uint32_t color) {
  if (style != nullptr) style->fill = color_of(color);
}
Tzu_pln_style* zu_pgn_style_get_bpln_ptr(Tzu_pgn_style* style) {
  return style != nullptr ? &style->contour : nullptr;
}
