#include "platform/zuk_styles/parameters.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "platform/zuk_basic/guarded.h"

namespace zu::platform {
namespace {

constexpr Tzu_color drawn{128, 128, 128, 0}, selected{255, 255, 0, 0};

void set_default(Tzu_stl_prm& style) {
  style.colors[0] = drawn;
  style.colors[1] = selected;
}

template <class style>
void copy_part(std::unique_ptr<style>& to, const std::unique_ptr<style>& from) {
  to = from ? std::make_unique<style>(*from) : nullptr;
}

// What a colour means to the kinds.
Tzu_color& main_color(Tzu_pnt_style& s) { return s.point.color; }
Tzu_color& main_color(Tzu_pln_style& s) { return s.line.color; }
Tzu_color& main_color(Tzu_pgn_style& s) { return s.fill.color; }

Tzu_bpln_style& stroked(Tzu_stl_prm& style, int index, sized kind) {
  if (kind == sized::line) return zu_stl_prm_get_pln_style_ptr(&style, index)->line;
  return zu_stl_prm_get_pgn_style_ptr(&style, index)->contour;
}

}  // namespace

style_parameters::style_parameters() : Tzu_stl_prm{} { set_default(*this); }
style_parameters::style_parameters(const Tzu_stl_prm& from) : style_parameters() {
  assign(*this, from);
}
style_parameters& style_parameters::operator=(const style_parameters& from) {
  assign(*this, from);
  return *this;
}

scale_row::scale_row() : Tzu_scale_prm{} {
  set_default(style);
  visible = true;
}
scale_row::scale_row(const scale_row& from) : scale_row() { *this = from; }
scale_row& scale_row::operator=(const scale_row& from) {
  assign(style, from.style);
  visible = from.visible;
  return *this;
}

void assign(Tzu_stl_prm& style, const Tzu_stl_prm& from) {
  if (&style == &from) return;
  std::unique_ptr<Tzu_stl_prm_more> more;
  if (from.more != nullptr) more = std::make_unique<Tzu_stl_prm_more>(*from.more);
  delete std::exchange(style.more, more.release());
  std::copy_n(from.colors, 2, style.colors);
}

void assign_one(Tzu_stl_prm& style, const Tzu_stl_prm& from, int index) {
  if (&style == &from) return;
  if (from.more != nullptr && style.more == nullptr) style.more = new Tzu_stl_prm_more;
  if (style.more != nullptr) {
    static const Tzu_stl_prm_more none;
    const Tzu_stl_prm_more& source = from.more != nullptr ? *from.more : none;
    copy_part(style.more->points[index], source.points[index]);
    copy_part(style.more->lines[index], source.lines[index]);
    copy_part(style.more->polygons[index], source.polygons[index]);
  }
  style.colors[index] = from.colors[index];
}

Tzu_color color_of(const Tzu_stl_prm& style, int index) {
  if (style.more != nullptr) {
    if (auto& points = style.more->points[index]) return main_color(*points);
    if (auto& lines = style.more->lines[index]) return main_color(*lines);
    if (auto& polygons = style.more->polygons[index]) return main_color(*polygons);
  }
  return style.colors[index];
}

void set_color(Tzu_stl_prm& style, int index, Tzu_color color) {
  style.colors[index] = color;
  if (style.more == nullptr) return;
  if (auto& points = style.more->points[index]) main_color(*points) = color;
  if (auto& lines = style.more->lines[index]) main_color(*lines) = color;
  if (auto& polygons = style.more->polygons[index]) main_color(*polygons) = color;
}

bool is_made(const Tzu_stl_prm& style, int index, sized kind) {
  if (style.more == nullptr) return false;
  if (kind == sized::symbol) return style.more->points[index] != nullptr;
  if (kind == sized::line) return style.more->lines[index] != nullptr;
  return style.more->polygons[index] != nullptr;
}

double size_of(Tzu_stl_prm& style, int index, sized kind) {
  if (kind == sized::symbol) {
    const Tzu_bpnt_style& point = zu_stl_prm_get_pnt_style_ptr(&style, index)->point;
    const Tzu_cpx_style* layers = point.drawn_complex();
    return layers != nullptr ? zu_cpx_pnt_style_get_point_size(layers) : point.size;
  }
  const Tzu_bpln_style& line = stroked(style, index, kind);
  const Tzu_cpx_style* layers = line.drawn_complex();
  return layers != nullptr ? zu_cpx_pln_style_get_line_width(layers) : line.width;
}

void set_size(Tzu_stl_prm& style, int index, sized kind, double millimetres) {
  if (kind == sized::symbol) {
    Tzu_bpnt_style& point = zu_stl_prm_get_pnt_style_ptr(&style, index)->point;
    point.size = millimetres;
    if (point.drawn_complex() != nullptr)
      zu_cpx_pnt_style_set_point_size(point.complex.made(), millimetres);
    return;
  }
  Tzu_bpln_style& line = stroked(style, index, kind);
  line.width = millimetres;
  if (line.drawn_complex() != nullptr)
    zu_cpx_pln_style_set_line_width(line.complex.made(), millimetres);
}

}  // namespace zu::platform

Tzu_stl_prm_more::Tzu_stl_prm_more(const Tzu_stl_prm_more& from) {
  for (int i = 0; i < 2; ++i) {
    zu::platform::copy_part(points[i], from.points[i]);
    zu::platform::copy_part(lines[i], from.lines[i]);
    zu::platform::copy_part(polygons[i], from.polygons[i]);
  }
}

using zu::platform::color_of;
using zu::platform::guarded;
using zu::platform::style_parameters;

namespace {

/// Style `index` of a kind, made in the colour of the parameters if there was none.
template <class style>
style* made(Tzu_stl_prm* prm, int32_t index, std::unique_ptr<style> (Tzu_stl_prm_more::*kind)[2]) {
  return guarded(prm, static_cast<style*>(nullptr), [&](Tzu_stl_prm& p) {
    int i = index != 0;
    if (p.more == nullptr) p.more = new Tzu_stl_prm_more;
    std::unique_ptr<style>& held = (p.more->*kind)[i];
    if (!held) {
      held = std::make_unique<style>();
      zu::platform::main_color(*held) = p.colors[i];
    }
    return held.get();
  });
}

}  // namespace

void zu_scale_prm_set_visible(Tzu_scale_prm* prm, bool visible) {
  if (prm != nullptr) prm->visible = visible;
}
void zu_scale_prm_assign(Tzu_scale_prm* prm, const Tzu_scale_prm* from) {
  if (from == nullptr) return;
  guarded(prm, [&](Tzu_scale_prm& p) {
    zu::platform::assign(p.style, from->style);
    p.visible = from->visible;
  });
}
void zu_stl_prm_clr_set_all(Tzu_stl_prm* prm, Tzu_color color, int32_t index) {
  if (prm != nullptr) zu::platform::set_color(*prm, index != 0, color);
}
Tzu_color zu_stl_prm_get_color(const Tzu_stl_prm* prm, int32_t index) {
  return prm != nullptr ? color_of(*prm, index != 0) : Tzu_color{0, 0, 0, 0};
}
Tzu_pln_style* zu_stl_prm_get_pln_style_ptr(Tzu_stl_prm* prm, int32_t index) {
  return made(prm, index, &Tzu_stl_prm_more::lines);
}
Tzu_pnt_style* zu_stl_prm_get_pnt_style_ptr(Tzu_stl_prm* prm, int32_t index) {
  return made(prm, index, &Tzu_stl_prm_more::points);
}
Tzu_pgn_style* zu_stl_prm_get_pgn_style_ptr(Tzu_stl_prm* prm, int32_t index) {
  return made(prm, index, &Tzu_stl_prm_more::polygons);
}
Tzu_stl_prm* zu_stl_prm_clone(const Tzu_stl_prm* prm) {
  return guarded(prm, static_cast<Tzu_stl_prm*>(nullptr),
                 [](const Tzu_stl_prm& p) { return new style_parameters(p); });
}
void zu_stl_prm_destroy(Tzu_stl_prm* prm) { delete static_cast<style_parameters*>(prm); }
