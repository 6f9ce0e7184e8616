#include "src/style/style_kinds.h"

#include "zu/platform/zuk_bmp_dc.h"

namespace zu::style::detail {

bool color_kind::preview(Tzu_color color, std::uint64_t width, std::uint64_t height,
                         double dots_per_mm, Tzu_dib* out) {
  return zu_preview_color(color, width, height, dots_per_mm, out);
}
bool point_kind::preview(const Tzu_pnt_style* shown, std::uint64_t width, std::uint64_t height,
                         double dots_per_mm, Tzu_dib* out) {
  return zu_preview_pnt(shown, width, height, dots_per_mm, out);
}
bool line_kind::preview(const Tzu_pln_style* shown, std::uint64_t width, std::uint64_t height,
                        double dots_per_mm, Tzu_dib* out) {
  return zu_preview_pln(shown, width, height, dots_per_mm, out);
}
bool polygon_kind::preview(const Tzu_pgn_style* shown, std::uint64_t width, std::uint64_t height,
                           double dots_per_mm, Tzu_dib* out) {
  return zu_preview_pgn(shown, width, height, dots_per_mm, out);
}

}  // namespace zu::style::detail
