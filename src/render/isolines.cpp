#include "src/render/isolines.h"

#include "src/bundle/strings.h"
#include "src/render/clip.h"
#include "zu/platform/zuk_render.h"

namespace zu {
namespace {

/// Contours are as fine as this many pixels.
constexpr std::uint64_t pixels_of_a_node = 5;

using owned_line = owned<zu_pln_style_destroy>;

}  // namespace

isoline_pass::isoline_pass(const grid_render_context& context, const Tzu_box_d2& box,
                           std::uint64_t nx, std::uint64_t ny, data::grid_datasource& source)
    : context_(context) {
  const Tzu_isoline_style* style = context.params.isoline_style;
  if (style == nullptr || !zu_isoline_style_get_use(style)) return;
  if (nx < pixels_of_a_node || ny < pixels_of_a_node) return;
  grid_ = make_node_grid(box, nx / pixels_of_a_node, ny / pixels_of_a_node);
  if (!grid_) return;
  std::wstring field = text_of([&](Tzu_string_adp* a) { zu_isoline_style_get_propname(style, a); });
  double minimum, maximum;
  if (!resample(context, source, box, field, grid_.get()) ||
      !zu_mgrid2d_min_max(grid_.get(), &minimum, &maximum) ||
      !zu_isoline_style_get_levels(style, minimum, maximum, levels_.get(), bold_.get()))
    return;
  traced_ =
      std::async([this] { return zu_mgrid2d_isolines(grid_.get(), levels_.get(), lines_.get()); });
}

void isoline_pass::draw() {
  if (!traced_.valid() || !traced_.get()) return;
  const Tzu_isoline_style* style = context_.params.isoline_style;
  owned_line thin(zu_pln_style_create()), bold(zu_pln_style_create());
  zu_isoline_style_get_thin_style(style, thin.get());
  zu_isoline_style_get_bold_style(style, bold.get());
  zu_render_set_plane(context_.render, 0);
  layer_clip clip(context_);
  for (std::uint64_t i = 0; i < zu_cv_d2_get_size(lines_.get()); ++i)
    zu_render_cr_pln(context_.render, zu_cv_d2_get_ov_ptr(lines_.get(), i),
                     zu_bits_get_bit(bold_.get(), i) ? bold.get() : thin.get());
}

}  // namespace zu
