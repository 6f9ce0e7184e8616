#include "platform/zuk_styles/render_levels.h"

#include <utility>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/fields.h"

namespace zu::platform {
namespace {

void add_part(const with_complex& part, bool shows, level_set& levels) {
  if (!shows) return;
  const Tzu_cpx_style* layers = part.drawn_complex();
  if (layers == nullptr)
    levels.insert(part.render_level);
  else
    for (const style_layer& layer : layers->layers)
      levels.insert(zu_style_lr_get_render_level(&layer));
}

/// Hides a part, or the layers of its complex style, that is of another level. True if it shows.
bool keep_level(with_complex& part, bool& shows, int32_t level) {
  if (!shows) return false;
  if (part.drawn_complex() == nullptr) return shows = part.render_level == level;
  auto& layers = part.complex.made()->layers;
  std::erase_if(layers, [&](auto& layer) { return zu_style_lr_get_render_level(&layer) != level; });
  return shows = !layers.empty();
}

bool keep_level(Tzu_pnt_style& s, int32_t level) { return keep_level(s.point, s.visible, level); }

bool keep_level(Tzu_pln_style& s, int32_t level) {
  bool line = keep_level(s.line, s.line_visible, level);
  bool vertex = keep_level(s.vertex, s.vertex_visible, level);
  bool begin = keep_level(s.begin, s.begin_visible, level);
  bool end = keep_level(s.end, s.end_visible, level);
  return line || vertex || begin || end;
}

bool keep_level(Tzu_pgn_style& s, int32_t level) {
  bool fill = keep_level(s.fill, s.fill_visible, level);
  bool contour = keep_level(s.contour, s.contour_visible, level);
  bool vertex = keep_level(s.vertex, s.vertex_visible, level);
  return fill || contour || vertex;
}

template <class style> bool assign_level(style* to, const style* from, int32_t level) {
  if (from == nullptr) return false;
  return guarded(to, false, [&](style& s) {
    style copy(*from);
    if (!keep_level(copy, level)) return false;
    s = std::move(copy);
    return true;
  });
}

}  // namespace

void add_levels(const Tzu_pnt_style& s, level_set& levels) { add_part(s.point, s.visible, levels); }
void add_levels(const Tzu_pln_style& s, level_set& levels) {
  add_part(s.line, s.line_visible, levels);
  add_part(s.vertex, s.vertex_visible, levels);
  add_part(s.begin, s.begin_visible, levels);
  add_part(s.end, s.end_visible, levels);
}
void add_levels(const Tzu_pgn_style& s, level_set& levels) {
  add_part(s.fill, s.fill_visible, levels);
  add_part(s.contour, s.contour_visible, levels);
  add_part(s.vertex, s.vertex_visible, levels);
}

}  // namespace zu::platform

using zu::platform::got;
using zu::platform::put;

int32_t zu_bpnt_style_get_render_level(const Tzu_bpnt_style* style) {
  return got(style, &Tzu_bpnt_style::render_level);
}
void zu_bpnt_style_set_render_level(Tzu_bpnt_style* style, int32_t level) {
  put(style, &Tzu_bpnt_style::render_level, level);
}
int32_t zu_bpln_style_get_render_level(const Tzu_bpln_style* style) {
  return got(style, &Tzu_bpln_style::render_level);
}
void zu_bpln_style_set_render_level(Tzu_bpln_style* style, int32_t level) {
  put(style, &Tzu_bpln_style::render_level, level);
}
int32_t zu_bpgn_style_get_render_level(const Tzu_bpgn_style* style) {
  return got(style, &Tzu_bpgn_style::render_level);
}
void zu_bpgn_style_set_render_level(Tzu_bpgn_style* style, int32_t level) {
  put(style, &Tzu_bpgn_style::render_level, level);
}
int32_t zu_bnum_style_get_render_level(const Tzu_bnum_style* style) {
  return got(style, &Tzu_bnum_style::render_level);
}
void zu_bnum_style_set_render_level(Tzu_bnum_style* style, int32_t level) {
  put(style, &Tzu_bnum_style::render_level, level);
}

bool zu_pnt_style_assign_level(Tzu_pnt_style* style, const Tzu_pnt_style* from, int32_t level) {
  return zu::platform::assign_level(style, from, level);
}
bool zu_pln_style_assign_level(Tzu_pln_style* style, const Tzu_pln_style* from, int32_t level) {
  return zu::platform::assign_level(style, from, level);
}
bool zu_pgn_style_assign_level(Tzu_pgn_style* style, const Tzu_pgn_style* from, int32_t level) {
  return zu::platform::assign_level(style, from, level);
}
