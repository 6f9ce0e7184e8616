#include "src/render/isolines.h"

#include "src/bundle/strings.h"
#include "src/render/clip.h"
#include "src/render/node_grid.h"
#include "zu/platform/zuk_render.h"

namespace zu {
namespace {

/// Contours are as fine as this many pixels.
constexpr std::uint64_t pixels_of_a_node = 5;

using owned_line = owned<zu_pln_style_destroy>;

/// The contours of a tile, and of each whether it is bold.
struct contours {
  owned<zu_cv_d2_destroy> lines{zu_cv_d2_create()};
  owned<zu_bits_destroy> bold{zu_bits_create()};
};

bool trace(const Tzu_isoline_style* style, const Tzu_mgrid2d* grid, const contours& out) {
  double minimum, maximum;
  if (!zu_mgrid2d_min_max(grid, &minimum, &maximum)) return false;
  owned<zu_dbls_destroy> levels(zu_dbls_create());
  return zu_isoline_style_get_levels(style, minimum, maximum, levels.get(), out.bold.get()) &&
         zu_mgrid2d_isolines(grid, levels.get(), out.lines.get());
}

void draw_contours(const grid_render_context& context, const contours& traced) {
  const Tzu_isoline_style* style = context.params.isoline_style;
  owned_line thin(zu_pln_style_create()), bold(zu_pln_style_create());
  zu_isoline_style_get_thin_style(style, thin.get());
  zu_isoline_style_get_bold_style(style, bold.get());
  zu_render_set_plane(context.render, 0);
  layer_clip clip(context);
  for (std::uint64_t i = 0; i < zu_cv_d2_get_size(traced.lines.get()); ++i)
    zu_render_cr_pln(context.render, zu_cv_d2_get_ov_ptr(traced.lines.get(), i),
                     zu_bits_get_bit(traced.bold.get(), i) ? bold.get() : thin.get());
}

}  // namespace

void draw_isoline_pass(const grid_render_context& context, const Tzu_box_d2& box, std::uint64_t nx,
                       std::uint64_t ny, data::grid_datasource& source) {
  const Tzu_isoline_style* style = context.params.isoline_style;
  if (style == nullptr || !zu_isoline_style_get_use(style)) return;
  if (nx < pixels_of_a_node || ny < pixels_of_a_node) return;
  owned_grid grid = make_node_grid(box, nx / pixels_of_a_node, ny / pixels_of_a_node);
  if (!grid) return;
  std::wstring field = text_of([&](Tzu_string_adp* a) { zu_isoline_style_get_propname(style, a); });
  if (!resample(context, source, box, field, grid.get())) return;
  contours traced;
  if (trace(style, grid.get(), traced)) draw_contours(context, traced);
}

}  // namespace zu
