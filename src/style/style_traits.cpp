#include "src/style/style_traits.h"

#include "src/style/edit_style.h"
#include "zu/platform/zuk_bmp_dc.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::style {
namespace {

/// The entry of a number in a list; null if there is none.
Tzu_idx_style* entry_of(Tzu_style_list* list, std::int32_t number) {
  std::int64_t place = zu_style_list_find_idx(list, number);
  return place >= 0 ? zu_style_list_get_idx_style(list, static_cast<std::uint64_t>(place))
                    : nullptr;
}

}  // namespace

Tzu_color* color_style_traits::get(Tzu_stl_prm* prm, std::int32_t kind) {
  return prm != nullptr ? zu_stl_prm_get_clr_style_ptr(prm, kind) : nullptr;
}
bool color_style_traits::edit(Tzu_stl_prm* prm, std::int32_t kind) {
  Tzu_color* color = get(prm, kind);
  return color != nullptr && zu_ask_color(color);
}
bool color_style_traits::draw(Tzu_stl_prm* prm, std::int32_t kind, std::uint64_t width,
                              std::uint64_t height, double dots_per_mm, Tzu_dib* out) {
  const Tzu_color* color = get(prm, kind);
  return color != nullptr && zu_preview_color(*color, width, height, dots_per_mm, out);
}
void color_style_traits::take_from_library(Tzu_stl_prm*, Tzu_style_lib*, std::int32_t) {
  // A library has symbols, lines and polygons.
}

Tzu_pnt_style* point_style_traits::get(Tzu_stl_prm* prm, std::int32_t kind) {
  return zu_stl_prm_get_pnt_style_ptr(prm, kind);
}
bool point_style_traits::edit(Tzu_stl_prm* prm, std::int32_t kind) {
  Tzu_pnt_style* symbol = get(prm, kind);
  return symbol != nullptr && edit_point_style(symbol);
}
bool point_style_traits::draw(Tzu_stl_prm* prm, std::int32_t kind, std::uint64_t width,
                              std::uint64_t height, double dots_per_mm, Tzu_dib* out) {
  return zu_preview_pnt(get(prm, kind), width, height, dots_per_mm, out);
}
void point_style_traits::take_from_library(Tzu_stl_prm* prm, Tzu_style_lib* library,
                                           std::int32_t number) {
  if (Tzu_idx_style* entry = entry_of(zu_style_lib_get_pnt_list_ptr(library), number))
    zu_pnt_style_assign(get(prm, primary), zu_idx_pnt_style_get_pnt_style_ptr(entry));
}

Tzu_pln_style* line_style_traits::get(Tzu_stl_prm* prm, std::int32_t kind) {
  return zu_stl_prm_get_pln_style_ptr(prm, kind);
}
bool line_style_traits::edit(Tzu_stl_prm* prm, std::int32_t kind) {
  Tzu_pln_style* line = get(prm, kind);
  return line != nullptr && edit_line_style(line);
}
bool line_style_traits::draw(Tzu_stl_prm* prm, std::int32_t kind, std::uint64_t width,
                             std::uint64_t height, double dots_per_mm, Tzu_dib* out) {
  return zu_preview_pln(get(prm, kind), width, height, dots_per_mm, out);
}
void line_style_traits::take_from_library(Tzu_stl_prm* prm, Tzu_style_lib* library,
                                          std::int32_t number) {
  if (Tzu_idx_style* entry = entry_of(zu_style_lib_get_pln_list_ptr(library), number))
    zu_pln_style_assign(get(prm, primary), zu_idx_pln_style_get_pln_style_ptr(entry));
}

}  // namespace zu::style
