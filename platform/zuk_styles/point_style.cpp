// Fonts and points.

#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/fields.h"
#include "platform/zuk_styles/symbols.h"

using zu::platform::got;
using zu::platform::guarded;
using zu::platform::inner;
using zu::platform::put;
using zu::platform::shown;

Tzu_fnt_type* zu_fnt_type_create() { return new (std::nothrow) Tzu_fnt_type; }
void zu_fnt_type_destroy(Tzu_fnt_type* font) { delete font; }
void zu_fnt_type_assign(Tzu_fnt_type* font, const Tzu_fnt_type* from) {
  if (from != nullptr) guarded(font, [&](Tzu_fnt_type& f) { f = *from; });
}
bool zu_fnt_type_equal(const Tzu_fnt_type* a, const Tzu_fnt_type* b) {
  return shown(a) == shown(b);
}
void zu_fnt_type_get_wname(const Tzu_fnt_type* font, Tzu_string_adp* adapter) {
  zu_string_adp_feed(adapter, shown(font).family.c_str());
}
void zu_fnt_type_set_wname(Tzu_fnt_type* font, const wchar_t* family) {
  guarded(font, [&](Tzu_fnt_type& f) { f.family = family != nullptr ? family : L""; });
}

void zu_bpnt_style_assign(Tzu_bpnt_style* style, const Tzu_bpnt_style* from) {
  if (from != nullptr) guarded(style, [&](Tzu_bpnt_style& s) { s = Tzu_bpnt_style(*from); });
}
bool zu_bpnt_style_get_use_figure(const Tzu_bpnt_style* style) {
  return got(style, &Tzu_bpnt_style::use_figure);
}
void zu_bpnt_style_set_use_figure(Tzu_bpnt_style* style, bool figure) {
  put(style, &Tzu_bpnt_style::use_figure, figure);
}
int32_t zu_bpnt_style_get_figure(const Tzu_bpnt_style* style) {
  return got(style, &Tzu_bpnt_style::figure);
}
void zu_bpnt_style_set_figure(Tzu_bpnt_style* style, int32_t figure) {
  if (figure >= 0 && figure < zu_figure_count) put(style, &Tzu_bpnt_style::figure, figure);
}
uint32_t zu_bpnt_style_get_symbol(const Tzu_bpnt_style* style) {
  return got(style, &Tzu_bpnt_style::symbol);
}
void zu_bpnt_style_set_symbol(Tzu_bpnt_style* style, uint32_t character) {
  put(style, &Tzu_bpnt_style::symbol, character);
}
const Tzu_fnt_type* zu_bpnt_style_get_fnt_type(const Tzu_bpnt_style* style) {
  return &shown(style).font;
}
void zu_bpnt_style_set_fnt_type(Tzu_bpnt_style* style, const Tzu_fnt_type* font) {
  if (style != nullptr) zu_fnt_type_assign(&style->font, font);
}
Tzu_color zu_bpnt_style_get_color(const Tzu_bpnt_style* style) {
  return got(style, &Tzu_bpnt_style::color);
}
void zu_bpnt_style_set_color(Tzu_bpnt_style* style, Tzu_color color) {
  put(style, &Tzu_bpnt_style::color, color);
}
double zu_bpnt_style_get_size(const Tzu_bpnt_style* style) {
  return got(style, &Tzu_bpnt_style::size);
}
void zu_bpnt_style_set_size(Tzu_bpnt_style* style, double millimetres) {
  put(style, &Tzu_bpnt_style::size, millimetres);
}
double zu_bpnt_style_get_dx(const Tzu_bpnt_style* style) { return got(style, &Tzu_bpnt_style::dx); }
void zu_bpnt_style_set_dx(Tzu_bpnt_style* style, double millimetres) {
  put(style, &Tzu_bpnt_style::dx, millimetres);
}
double zu_bpnt_style_get_dy(const Tzu_bpnt_style* style) { return got(style, &Tzu_bpnt_style::dy); }
void zu_bpnt_style_set_dy(Tzu_bpnt_style* style, double millimetres) {
  put(style, &Tzu_bpnt_style::dy, millimetres);
}
double zu_bpnt_style_get_angle(const Tzu_bpnt_style* style) {
  return got(style, &Tzu_bpnt_style::angle);
}
void zu_bpnt_style_set_angle(Tzu_bpnt_style* style, double degrees) {
  put(style, &Tzu_bpnt_style::angle, degrees);
}
bool zu_bpnt_style_get_use_complex(const Tzu_bpnt_style* style) {
  return got(style, &Tzu_bpnt_style::use_complex);
}
void zu_bpnt_style_set_use_complex(Tzu_bpnt_style* style, bool complex) {
  put(style, &Tzu_bpnt_style::use_complex, complex);
}
Tzu_cpx_style* zu_bpnt_style_get_complex_style(Tzu_bpnt_style* style) {
  return guarded(style, static_cast<Tzu_cpx_style*>(nullptr),
                 [](Tzu_bpnt_style& s) { return s.complex.made(); });
}

Tzu_pnt_style* zu_pnt_style_create() { return new (std::nothrow) Tzu_pnt_style; }
void zu_pnt_style_destroy(Tzu_pnt_style* style) { delete style; }
void zu_pnt_style_assign(Tzu_pnt_style* style, const Tzu_pnt_style* from) {
  if (from != nullptr) guarded(style, [&](Tzu_pnt_style& s) { s = Tzu_pnt_style(*from); });
}
Tzu_bpnt_style* zu_pnt_style_get_bpnt_style_ptr(Tzu_pnt_style* style) {
  return inner(style, &Tzu_pnt_style::point);
}
bool zu_pnt_style_get_pnt_visible(const Tzu_pnt_style* style) {
  return got(style, &Tzu_pnt_style::visible);
}
void zu_pnt_style_set_pnt_visible(Tzu_pnt_style* style, bool visible) {
  put(style, &Tzu_pnt_style::visible, visible);
}
