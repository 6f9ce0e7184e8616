#include <new>

#include "zu/platform/zuk_styles.h"

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
