#include "src/render/draw_grid.h"

#include <optional>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/render/clip.h"
#include "src/render/fill_dibs.h"
#include "src/render/isolines.h"
#include "zu/platform/zuk_datasource.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_render.h"

namespace zu {
namespace {

/// A tile of an accurate context stays below this many pixels a side.
constexpr std::uint64_t tile_side = 5000;

void set_up_reprojection(grid_render_context& context) {
  rpj_binding& binding = context.reprojection;
  std::wstring target =
      text_of([&](Tzu_string_adp* a) { zu_render_get_pj4wstr(context.render, a); });
  std::wstring source = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_pj4wstr(context.layer, a); });
  bool affine = zu_render_has_affine_transform(context.render);
  zu_rpj_fb_d2_set_use_affine_after(binding.rpj, affine);
  if (affine)
    zu_rpj_fb_d2_set_affine_after(binding.rpj, zu_render_get_affine_matrix(context.render));
  // Projections that cannot be brought together count as the same one.
  bool projected = zu_rpj_fb_d2_init_w(binding.rpj, source.c_str(), target.c_str()) &&
                   zu_rpj_fb_d2_rpj_is_needed(binding.rpj);
  binding.needed = affine || projected;
}

/// Only the two corners are transformed: a turned render gives the box between them.
Tzu_box_d2 to_millimetres(const grid_render_context& context, const Tzu_box_d2& box) {
  const Tzu_matrix3x3* matrix = zu_render_get_matrix_cr2mm(context.render);
  Tzu_vtx_d2 low, high;
  zu_vtx_d2_init_xy(&low, box.x0, box.y0);
  zu_vtx_d2_init_xy(&high, box.x1, box.y1);
  zu_vtx_d2_apply_matrix3x3(&low, matrix);
  zu_vtx_d2_apply_matrix3x3(&high, matrix);
  Tzu_box_d2 mm;
  zu_box_d2_make_xy(&mm, low.x, low.y, high.x, high.y);
  return mm;
}

owned<zu_dib_destroy> make_dib(std::uint64_t nx, std::uint64_t ny) {
  owned<zu_dib_destroy> dib(zu_dib_create());
  zu_dib_set_nxy(dib.get(), nx, ny);
  return dib;
}

void draw_dib(const grid_render_context& context, const Tzu_box_d2& mm, std::uint32_t kind,
              std::uint8_t alpha, const Tzu_dib* dib) {
  Tzu_dib_draw_record record{mm, kind, alpha, {0, 0, 0}};
  zu_drwc_draw_dib(context.drwc, &record, dib);
}

void draw_dib_pass(const grid_render_context& context, data::grid_datasource& source,
                   const Tzu_box_d2& box, const Tzu_box_d2& mm, std::uint64_t nx, std::uint64_t ny,
                   bool selection_only) {
  owned<zu_dib_destroy> main, selection;
  if (!selection_only) {
    main = make_dib(nx, ny);
    if (zu_dib_get_arr(main.get()) == nullptr) return;
  }
  if (context.params.selected_color.is_set && context.selection != nullptr &&
      zu_table_data_has_selected_ids(context.selection)) {
    selection = make_dib(nx, ny);
    if (zu_dib_get_arr(selection.get()) == nullptr) return;
  }
  if (!main && !selection) return;
  if (!fill_dibs({context, source, main.get(), selection.get(), box, nx, ny})) return;

  layer_clip clip(context);
  if (main) draw_dib(context, mm, 0, static_cast<std::uint8_t>(context.params.alpha), main.get());
  if (selection) draw_dib(context, mm, 1, 255, selection.get());
}

void draw_piece(const grid_render_context& context, data::grid_datasource& source,
                const Tzu_box_d2& box, bool selection_only) {
  Tzu_box_d2 mm = to_millimetres(context, box);
  std::uint64_t nx = 0, ny = 0;
  zu_drwc_get_dib_size(context.drwc, &mm, &nx, &ny);
  if (nx == 0 || ny == 0) return;
  std::optional<isoline_pass> isolines;  // traced while the DIBs are filled
  if (!selection_only) isolines.emplace(context, box, nx, ny, source);
  draw_dib_pass(context, source, box, mm, nx, ny, selection_only);
  if (isolines) isolines->draw();
}

void draw_tiles(const grid_render_context& context, data::grid_datasource& source,
                const Tzu_box_d2& box, bool selection_only) {
  Tzu_box_d2 mm = to_millimetres(context, box);
  std::uint64_t nx = 0, ny = 0;
  zu_drwc_get_dib_size(context.drwc, &mm, &nx, &ny);
  bool sized = nx != 0 && ny != 0;
  std::uint64_t columns = sized ? nx / tile_side + 1 : 1;
  std::uint64_t rows = sized ? ny / tile_side + 1 : 1;
  double width = (box.x1 - box.x0) / static_cast<double>(columns);
  double height = (box.y1 - box.y0) / static_cast<double>(rows);
  double y = box.y0;
  for (std::uint64_t row = 0; row < rows; ++row, y += height) {
    double x = box.x0;
    for (std::uint64_t column = 0; column < columns; ++column, x += width) {
      Tzu_box_d2 tile;
      zu_box_d2_init_xy(&tile, x, y, x + width, y + height);
      draw_piece(context, source, tile, selection_only);
    }
  }
}

}  // namespace

void draw_layer(Izu_render* render, Izu_layer* layer, const Tzu_table_data* table,
                const grid_render_params& params, bool selection_only) {
  owned<zu_rpj_fb_d2_destroy> rpj(zu_rpj_fb_d2_create());
  grid_render_context context;
  context.reprojection.rpj = rpj.get();
  context.selection = table;
  context.render = render;
  context.drwc = zu_render_get_drwc(render);
  context.layer = layer;
  set_up_reprojection(context);
  draw_grid(context, params, selection_only);
}

void draw_grid(grid_render_context& context, const grid_render_params& params,
               bool selection_only) {
  context.params = params;
  data::open_reference reference;
  reference.name = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(context.layer, a); });
  reference.opener = &zu_datasource_open;
  data::grid_datasource source;
  if (!source.open(reference, 0)) return;

  Tzu_box_d2 extent, drawn;
  if (!source.extent(extent, true)) return;
  if (context.reprojection.needed &&
      !zu_rpj_fb_d2_apply_box_approx(context.reprojection.rpj, &extent, 1))
    return;
  if (!zu_box_d2_cross(&extent, zu_render_get_map_box_cr(context.render), &drawn)) return;

  if (zu_drwc_is_accurate(context.drwc))
    draw_tiles(context, source, drawn, selection_only);
  else
    draw_piece(context, source, drawn, selection_only);
}

}  // namespace zu
