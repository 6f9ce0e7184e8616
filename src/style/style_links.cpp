#include "src/style/style_kinds.h"

#include "src/style/page/pixels.h"
#include "src/style/style_links.h"
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

template <class kind>
void visit_sample(typename kind::argument style, std::uint32_t width, std::uint32_t height,
                  bitmap_visitor visitor) {
  constexpr double dots_per_mm = 96 / 25.4;  // of an ordinary screen
  owned<zu_dib_destroy> pixels(zu_dib_create());
  if (kind::preview(style, width, height, dots_per_mm, pixels.get()))
    visit_pixels(pixels.get(), visitor);
}

template <class kind> void style_sample<kind>::picture(bitmap_visitor visitor) {
  visit_sample<kind>(value(), width_, height_, visitor);
}

template class style_sample<color_kind>;
template class style_sample<point_kind>;
template class style_sample<line_kind>;
template class style_sample<polygon_kind>;

}  // namespace zu::style::detail
