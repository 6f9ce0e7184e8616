// Lines and the text of numbers.

#include <algorithm>
#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/fields.h"
#include "platform/zuk_styles/symbols.h"

using zu::platform::got;
using zu::platform::guarded;
using zu::platform::inner;
using zu::platform::put;
using zu::platform::shown;

/// Marks are arrows in the colour of the line.
Tzu_pln_style::Tzu_pln_style() {
  vertex.color = begin.color = end.color = line.color;
  begin.figure = end.figure = zu_figure_arrow;
}

void zu_bpln_style_assign(Tzu_bpln_style* style, const Tzu_bpln_style* from) {
  if (from != nullptr) guarded(style, [&](Tzu_bpln_style& s) { s = Tzu_bpln_style(*from); });
}
Tzu_color zu_bpln_style_get_color(const Tzu_bpln_style* style) {
  return got(style, &Tzu_bpln_style::color);
}
void zu_bpln_style_set_color(Tzu_bpln_style* style, Tzu_color color) {
  put(style, &Tzu_bpln_style::color, color);
}
double zu_bpln_style_get_width(const Tzu_bpln_style* style) {
  return got(style, &Tzu_bpln_style::width);
}
void zu_bpln_style_set_width(Tzu_bpln_style* style, double millimetres) {
  put(style, &Tzu_bpln_style::width, millimetres);
}
int32_t zu_bpln_style_get_cap_style(const Tzu_bpln_style* style) {
  return got(style, &Tzu_bpln_style::cap);
}
void zu_bpln_style_set_cap_style(Tzu_bpln_style* style, int32_t cap) {
  if (cap >= 0 && cap <= 2) put(style, &Tzu_bpln_style::cap, cap);
}
int32_t zu_bpln_style_get_join_style(const Tzu_bpln_style* style) {
  return got(style, &Tzu_bpln_style::join);
}
void zu_bpln_style_set_join_style(Tzu_bpln_style* style, int32_t join) {
  if (join >= 0 && join <= 2) put(style, &Tzu_bpln_style::join, join);
}
int32_t zu_bpln_style_get_dashes(const Tzu_bpln_style* style, double* lengths) {
  const std::vector<double>& dashes = shown(style).dashes;
  if (lengths != nullptr) std::copy(dashes.begin(), dashes.end(), lengths);
  return static_cast<int32_t>(dashes.size());
}
void zu_bpln_style_set_dashes(Tzu_bpln_style* style, int32_t count, const double* lengths) {
  guarded(style, [&](Tzu_bpln_style& s) {
    int32_t kept = lengths != nullptr ? std::clamp<int32_t>(count, 0, zu_line_dashes) : 0;
    s.dashes.assign(lengths, lengths + kept);
  });
}
bool zu_bpln_style_get_use_complex(const Tzu_bpln_style* style) {
  return got(style, &Tzu_bpln_style::use_complex);
}
void zu_bpln_style_set_use_complex(Tzu_bpln_style* style, bool complex) {
  put(style, &Tzu_bpln_style::use_complex, complex);
}
Tzu_cpx_style* zu_bpln_style_get_complex_style(Tzu_bpln_style* style) {
  return guarded(style, static_cast<Tzu_cpx_style*>(nullptr),
                 [](Tzu_bpln_style& s) { return s.complex.made(); });
}

Tzu_color zu_bnum_style_get_color(const Tzu_bnum_style* style) {
  return got(style, &Tzu_bnum_style::color);
}
void zu_bnum_style_set_color(Tzu_bnum_style* style, Tzu_color color) {
  put(style, &Tzu_bnum_style::color, color);
}
double zu_bnum_style_get_size(const Tzu_bnum_style* style) {
  return got(style, &Tzu_bnum_style::size);
}
void zu_bnum_style_set_size(Tzu_bnum_style* style, double millimetres) {
  put(style, &Tzu_bnum_style::size, millimetres);
}

Tzu_pln_style* zu_pln_style_create() { return new (std::nothrow) Tzu_pln_style; }
void zu_pln_style_destroy(Tzu_pln_style* style) { delete style; }
void zu_pln_style_assign(Tzu_pln_style* style, const Tzu_pln_style* from) {
  if (from != nullptr) guarded(style, [&](Tzu_pln_style& s) { s = Tzu_pln_style(*from); });
}
Tzu_bpln_style* zu_pln_style_get_bpln_style_ptr(Tzu_pln_style* style) {
  return inner(style, &Tzu_pln_style::line);
}
Tzu_bpnt_style* zu_pln_style_get_bpnt_style_ptr(Tzu_pln_style* style) {
  return inner(style, &Tzu_pln_style::vertex);
}
Tzu_bpnt_style* zu_pln_style_get_bbeg_style_ptr(Tzu_pln_style* style) {
  return inner(style, &Tzu_pln_style::begin);
}
Tzu_bpnt_style* zu_pln_style_get_bend_style_ptr(Tzu_pln_style* style) {
  return inner(style, &Tzu_pln_style::end);
}
Tzu_bnum_style* zu_pln_style_get_bnum_style_ptr(Tzu_pln_style* style) {
  return inner(style, &Tzu_pln_style::number);
}
bool zu_pln_style_get_pln_visible(const Tzu_pln_style* style) {
  return got(style, &Tzu_pln_style::line_visible);
}
void zu_pln_style_set_pln_visible(Tzu_pln_style* style, bool visible) {
  put(style, &Tzu_pln_style::line_visible, visible);
}
bool zu_pln_style_get_pnt_visible(const Tzu_pln_style* style) {
  return got(style, &Tzu_pln_style::vertex_visible);
}
void zu_pln_style_set_pnt_visible(Tzu_pln_style* style, bool visible) {
  put(style, &Tzu_pln_style::vertex_visible, visible);
}
bool zu_pln_style_get_beg_visible(const Tzu_pln_style* style) {
  return got(style, &Tzu_pln_style::begin_visible);
}
void zu_pln_style_set_beg_visible(Tzu_pln_style* style, bool visible) {
  put(style, &Tzu_pln_style::begin_visible, visible);
}
bool zu_pln_style_get_end_visible(const Tzu_pln_style* style) {
  return got(style, &Tzu_pln_style::end_visible);
}
void zu_pln_style_set_end_visible(Tzu_pln_style* style, bool visible) {
  put(style, &Tzu_pln_style::end_visible, visible);
}
bool zu_pln_style_get_num_visible(const Tzu_pln_style* style) {
  return got(style, &Tzu_pln_style::number_visible);
}
void zu_pln_style_set_num_visible(Tzu_pln_style* style, bool visible) {
  put(style, &Tzu_pln_style::number_visible, visible);
}
bool zu_pln_style_get_beg_use_line_dir(const Tzu_pln_style* style) {
  return got(style, &Tzu_pln_style::begin_turns);
}
void zu_pln_style_set_beg_use_line_dir(Tzu_pln_style* style, bool turn) {
  put(style, &Tzu_pln_style::begin_turns, turn);
}
bool zu_pln_style_get_end_use_line_dir(const Tzu_pln_style* style) {
  return got(style, &Tzu_pln_style::end_turns);
}
void zu_pln_style_set_end_use_line_dir(Tzu_pln_style* style, bool turn) {
  put(style, &Tzu_pln_style::end_turns, turn);
}
