// Samples of styles.

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "platform/zuk_basic/owned.h"
#include "zu/platform/zuk_bmp_dc.h"
#include "zu/platform/zuk_render.h"

using zu::platform::owned;

namespace {

/// An area of pixels in millimetres.
struct sample_page {
  sample_page(uint64_t width_px, uint64_t height_px, double dots_per_mm)
      : dc(zu_bmp_dc_create(width_px, height_px, dots_per_mm)) {
    Tzu_box_d2 box{};
    zu_drwc_get_page(zu_bmp_dc_get_drwc(dc.get()), &box);
    width = box.x1, height = box.y1;
    margin = std::min(width, height) / 8;
    render.reset(zu_render_create(zu_bmp_dc_get_drwc(dc.get()), &box));
  }
  explicit operator bool() const { return dc && render; }
  bool finish(Tzu_dib* out) {
    if (out == nullptr || !zu_bmp_dc_bmp_to_dib(dc.get(), out)) return false;
    zu_dib_premultiply_alpha(out);
    return true;
  }

  owned<zu_bmp_dc_destroy> dc;
  owned<zu_render_destroy> render;
  double width, height, margin;
};

owned<zu_ov_d2_destroy> one_line(std::initializer_list<Tzu_vtx_d2> vertices) {
  owned<zu_ov_d2_destroy> set(zu_ov_d2_create());
  Tzu_pv_d2* line = zu_ov_d2_add(set.get());
  for (const Tzu_vtx_d2& v : vertices) zu_pv_d2_add_vtx(line, &v);
  return set;
}

/// Makes a symbol no larger than `most` millimetres.
void limit(Tzu_bpnt_style* point, double most) {
  zu_bpnt_style_set_size(point, std::min(zu_bpnt_style_get_size(point), most));
  if (!zu_bpnt_style_get_use_complex(point)) return;
  Tzu_cpx_style* layers = zu_bpnt_style_get_complex_style(point);
  if (zu_cpx_pnt_style_get_point_size(layers) > most) zu_cpx_pnt_style_set_point_size(layers, most);
}

void limit(Tzu_bpln_style* line, double most) {
  zu_bpln_style_set_width(line, std::min(zu_bpln_style_get_width(line), most));
  if (!zu_bpln_style_get_use_complex(line)) return;
  Tzu_cpx_style* layers = zu_bpln_style_get_complex_style(line);
  if (zu_cpx_pln_style_get_line_width(layers) > most) zu_cpx_pln_style_set_line_width(layers, most);
}

}  // namespace

bool zu_preview_color(Tzu_color color, uint64_t width_px, uint64_t height_px, double dots_per_mm,
                      Tzu_dib* out) {
  constexpr uint8_t light = 255, dark = 204;
  if (out == nullptr || width_px == 0 || height_px == 0 || !(dots_per_mm > 0)) return false;
  zu_dib_set_nxy(out, width_px, height_px);
  if (zu_dib_get_arr(out) == nullptr) return false;
  auto side = static_cast<uint64_t>(std::clamp(std::round(dots_per_mm), 2.0, 100.0));
  for (uint64_t y = 0; y < height_px; ++y)
    for (uint64_t x = 0; x < width_px; ++x) {
      int ground = (x / side + y / side) % 2 == 0 ? light : dark;
      auto mixed = [&](int value) {
        return static_cast<uint8_t>((value * (255 - color.a) + ground * color.a + 127) / 255);
      };
      zu_dib_set_rgba(out, x, y, mixed(color.r), mixed(color.g), mixed(color.b), 255);
    }
  return true;
}

bool zu_preview_pnt(const Tzu_pnt_style* style, uint64_t width_px, uint64_t height_px,
                    double dots_per_mm, Tzu_dib* out) {
  if (style == nullptr || !zu_pnt_style_get_pnt_visible(style)) return false;
  sample_page page(width_px, height_px, dots_per_mm);
  owned<zu_pnt_style_destroy> shown(zu_pnt_style_create());
  if (!page || !shown) return false;
  zu_pnt_style_assign(shown.get(), style);
  Tzu_bpnt_style* point = zu_pnt_style_get_bpnt_style_ptr(shown.get());
  limit(point, std::min(page.width, page.height) - page.margin);
  zu_bpnt_style_set_dx(point, 0);
  zu_bpnt_style_set_dy(point, 0);
  auto middle = one_line({{page.width / 2, page.height / 2}});
  zu_render_cr_pnt(page.render.get(), middle.get(), shown.get());
  return page.finish(out);
}

bool zu_preview_pln(const Tzu_pln_style* style, uint64_t width_px, uint64_t height_px,
                    double dots_per_mm, Tzu_dib* out) {
  if (style == nullptr || !zu_pln_style_get_pln_visible(style)) return false;
  sample_page page(width_px, height_px, dots_per_mm);
  owned<zu_pln_style_destroy> shown(zu_pln_style_create());
  if (!page || !shown) return false;
  zu_pln_style_assign(shown.get(), style);
  double most = page.height - page.margin;
  limit(zu_pln_style_get_bpln_style_ptr(shown.get()), most);
  for (auto part : {zu_pln_style_get_bpnt_style_ptr, zu_pln_style_get_bbeg_style_ptr,
                    zu_pln_style_get_bend_style_ptr})
    limit(part(shown.get()), most);
  // Marks at the ends show whole.
  bool marked =
      zu_pln_style_get_beg_visible(shown.get()) || zu_pln_style_get_end_visible(shown.get());
  double inset = std::min(page.width / 3, marked ? page.height / 2 : page.margin);
  double middle = page.height / 2;
  auto line = one_line({{inset, middle}, {page.width / 2, middle}, {page.width - inset, middle}});
  zu_render_cr_pln(page.render.get(), line.get(), shown.get());
  return page.finish(out);
}

bool zu_preview_pgn(const Tzu_pgn_style* style, uint64_t width_px, uint64_t height_px,
                    double dots_per_mm, Tzu_dib* out) {
  if (style == nullptr || !zu_pgn_style_get_pgn_visible(style)) return false;
  sample_page page(width_px, height_px, dots_per_mm);
  owned<zu_pgn_style_destroy> shown(zu_pgn_style_create());
  if (!page || !shown) return false;
  zu_pgn_style_assign(shown.get(), style);
  limit(zu_pgn_style_get_bpln_style_ptr(shown.get()), page.margin);
  limit(zu_pgn_style_get_bpnt_style_ptr(shown.get()), 2 * page.margin);
  double x0 = page.margin, y0 = page.margin;
  double x1 = page.width - page.margin, y1 = page.height - page.margin;
  auto box = one_line({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}, {x0, y0}});
  zu_render_cr_pgn(page.render.get(), box.get(), shown.get());
  return page.finish(out);
}
