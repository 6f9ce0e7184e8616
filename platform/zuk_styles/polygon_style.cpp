#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/fields.h"
#include "platform/zuk_styles/symbols.h"

using zu::platform::got;
using zu::platform::guarded;
using zu::platform::inner;
using zu::platform::put;

void zu_bpgn_style_assign(Tzu_bpgn_style* style, const Tzu_bpgn_style* from) {
  if (from != nullptr) guarded(style, [&](Tzu_bpgn_style& s) { s = Tzu_bpgn_style(*from); });
}
Tzu_color zu_bpgn_style_get_color(const Tzu_bpgn_style* style) {
  return got(style, &Tzu_bpgn_style::color);
}
void zu_bpgn_style_set_color(Tzu_bpgn_style* style, Tzu_color color) {
  put(style, &Tzu_bpgn_style::color, color);
}
bool zu_bpgn_style_get_use_complex(const Tzu_bpgn_style* style) {
  return got(style, &Tzu_bpgn_style::use_complex);
}
void zu_bpgn_style_set_use_complex(Tzu_bpgn_style* style, bool complex) {
  put(style, &Tzu_bpgn_style::use_complex, complex);
}
Tzu_cpx_style* zu_bpgn_style_get_complex_style(Tzu_bpgn_style* style) {
  return guarded(style, static_cast<Tzu_cpx_style*>(nullptr),
                 [](Tzu_bpgn_style& s) { return s.complex.made(); });
}

Tzu_pgn_style* zu_pgn_style_create() { return new (std::nothrow) Tzu_pgn_style; }
void zu_pgn_style_destroy(Tzu_pgn_style* style) { delete style; }
void zu_pgn_style_assign(Tzu_pgn_style* style, const Tzu_pgn_style* from) {
  if (from != nullptr) guarded(style, [&](Tzu_pgn_style& s) { s = Tzu_pgn_style(*from); });
}
Tzu_bpgn_style* zu_pgn_style_get_bpgn_style_ptr(Tzu_pgn_style* style) {
  return inner(style, &Tzu_pgn_style::fill);
}
Tzu_bpln_style* zu_pgn_style_get_bpln_style_ptr(Tzu_pgn_style* style) {
  return inner(style, &Tzu_pgn_style::contour);
}
Tzu_bpnt_style* zu_pgn_style_get_bpnt_style_ptr(Tzu_pgn_style* style) {
  return inner(style, &Tzu_pgn_style::vertex);
}
Tzu_bnum_style* zu_pgn_style_get_bnum_style_ptr(Tzu_pgn_style* style) {
  return inner(style, &Tzu_pgn_style::number);
}
bool zu_pgn_style_get_pgn_visible(const Tzu_pgn_style* style) {
  return got(style, &Tzu_pgn_style::fill_visible);
}
void zu_pgn_style_set_pgn_visible(Tzu_pgn_style* style, bool visible) {
  put(style, &Tzu_pgn_style::fill_visible, visible);
}
bool zu_pgn_style_get_pln_visible(const Tzu_pgn_style* style) {
  return got(style, &Tzu_pgn_style::contour_visible);
}
void zu_pgn_style_set_pln_visible(Tzu_pgn_style* style, bool visible) {
  put(style, &Tzu_pgn_style::contour_visible, visible);
}
bool zu_pgn_style_get_pnt_visible(const Tzu_pgn_style* style) {
  return got(style, &Tzu_pgn_style::vertex_visible);
}
void zu_pgn_style_set_pnt_visible(Tzu_pgn_style* style, bool visible) {
  put(style, &Tzu_pgn_style::vertex_visible, visible);
}
bool zu_pgn_style_get_num_visible(const Tzu_pgn_style* style) {
  return got(style, &Tzu_pgn_style::number_visible);
}
void zu_pgn_style_set_num_visible(Tzu_pgn_style* style, bool visible) {
  put(style, &Tzu_pgn_style::number_visible, visible);
}
