// One draw call on real files and a real drawing context.

#include "src/render/draw_grid.h"

#include <gtest/gtest.h>

#include "src/layer/grid_layer2d.h"
#include "src/layer/layer_services.h"
#include "tests/unit/src/made_grid.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_render.h"

namespace {

using namespace zu;
using tests::made_grid;

/// A layer of a grid whose cells have the value of their column, in a scene, on a page of its own.
struct scene_bench {
  owned<zu_lr2d_destroy> entity{zu_lr2d_create("grid_lr2d")};
  owned<zu_scn_2d_destroy> scene{zu_scn_2d_create()};
  toolkit::reattachable<grid_layer2d, Izu_layer*>* layer =
      new toolkit::reattachable<grid_layer2d, Izu_layer*>;
  owned<zu_drwc_destroy> page;
  owned<zu_render_destroy> render;

  explicit scene_bench(const std::wstring& source) {
    zu_lr2d_set_wsource(entity.get(), source.c_str());
    zu_lr2d_set_plugin_interface(entity.get(), handle_of<layer_2d_impl>(*layer));
    layer->bind_entity(entity.get());
    zu_scn_2d_add_layer(scene.get(), entity.get());
    layer->source_changed();
    zu_stl_mngr_set_mode(layer->get_style_manager(), zu_style_simple);
    zu_stl_prm_clr_set_all(zu_stl_mngr_get_simple_sp_ptr(layer->get_style_manager()),
                           {10, 20, 30, 0}, 0);
  }
  ~scene_bench() {
    zu_scn_2d_remove_layer(scene.get(), entity.get());
    layer->bind_entity(nullptr);
  }
  void open_page(std::uint64_t nx, std::uint64_t ny, Tzu_box_d2 box, bool accurate = false) {
    render.reset();
    page.reset(zu_drwc_create_image(nx, ny, 96, accurate));
    render.reset(zu_render_create(page.get(), &box));
  }
  /// Number of DIBs that a draw takes.
  std::uint64_t draw(bool selection = false) {
    std::uint64_t before = zu_dib_get_made_count();
    grid_layer2d::render(render.get(), entity.get(), selection);
    return zu_dib_get_made_count() - before;
  }
  std::vector<std::uint8_t> pixel(std::uint64_t x, std::uint64_t y, std::uint64_t nx,
                                  std::uint64_t ny) {
    std::vector<std::uint8_t> all(nx * ny * 4);
    zu_drwc_get_pixels(page.get(), all.data());
    auto at = all.begin() + static_cast<std::ptrdiff_t>((y * nx + x) * 4);
    return {at, at + 4};
  }
};

using rgba = std::vector<std::uint8_t>;

std::wstring flat_grid(const std::string& name, int nx, int ny) {
  made_grid file(name, nx, ny, GDT_Float32, 1);
  file.projection("EPSG:32637");
  file.transform({500000, 10, 0, 6000000.0 + ny * 10, 0, -10});
  return file.close();
}

TEST(draw_grid, draws_the_grid_where_it_lies_in_the_picture) {
  scene_bench b(flat_grid("lies.tif", 2, 2));
  b.open_page(4, 4, {499990, 5999990, 500030, 6000030});
  EXPECT_EQ(b.draw(), 1u);
  EXPECT_EQ(b.pixel(0, 0, 4, 4), (rgba{0, 0, 0, 0}));
  EXPECT_EQ(b.pixel(1, 1, 4, 4), (rgba{10, 20, 30, 255}));
  EXPECT_EQ(b.pixel(2, 2, 4, 4), (rgba{10, 20, 30, 255}));
  EXPECT_EQ(b.pixel(3, 2, 4, 4), (rgba{0, 0, 0, 0}));
}

TEST(draw_grid, a_layer_off_the_screen_opens_no_dib) {
  scene_bench b(flat_grid("off.tif", 2, 2));
  b.open_page(4, 4, {0, 0, 40, 40});
  EXPECT_EQ(b.draw(), 0u);
  EXPECT_FALSE(zu_drwc_has_ink(b.page.get()));
}

TEST(draw_grid, a_source_that_will_not_open_draws_nothing) {
  scene_bench b(L"/no/such/grid.tif");
  b.open_page(4, 4, {0, 0, 40, 40});
  EXPECT_EQ(b.draw(), 0u);
}

TEST(draw_grid, a_layer_of_another_type_or_the_selection_pass_draws_nothing) {
  scene_bench b(flat_grid("other.tif", 2, 2));
  b.open_page(4, 4, {500000, 6000000, 500020, 6000020});
  EXPECT_EQ(b.draw(true), 0u);
  owned<zu_lr2d_destroy> other(zu_lr2d_create("rtr_lr2d"));
  zu_lr2d_set_plugin_interface(other.get(), handle_of<layer_2d_impl>(*b.layer));
  grid_layer2d::render(b.render.get(), other.get(), false);
  EXPECT_FALSE(zu_drwc_has_ink(b.page.get()));
}

TEST(draw_grid, an_invisible_layer_is_still_filled_and_drawn_with_no_opacity) {
  scene_bench b(flat_grid("invisible.tif", 2, 2));
  b.layer->set_opacity(100);
  b.open_page(2, 2, {500000, 6000000, 500020, 6000020});
  EXPECT_EQ(b.draw(), 1u);
  EXPECT_FALSE(zu_drwc_has_ink(b.page.get()));
}

TEST(draw_grid, transparency_in_percent_becomes_an_opacity_in_255_truncated) {
  struct {
    std::uint32_t percent;
    int opacity;
  } const cases[] = {{0, 255}, {1, 252}, {50, 127}, {99, 2}};
  scene_bench b(flat_grid("opacity.tif", 2, 2));
  for (const auto& c : cases) {
    b.layer->set_opacity(c.percent);
    b.open_page(2, 2, {500000, 6000000, 500020, 6000020});
    b.draw();
    EXPECT_EQ(b.pixel(0, 0, 2, 2)[3], c.opacity) << c.percent;
  }
}

TEST(draw_grid, an_accurate_context_of_5000_pixels_takes_two_tiles_a_side_and_4999_one) {
  scene_bench b(flat_grid("tiles.tif", 50, 2));
  struct {
    std::uint64_t nx;
    bool accurate;
    std::uint64_t tiles;
  } const cases[] = {{4999, true, 1}, {5000, true, 2}, {10000, true, 3}, {5000, false, 1}};
  for (const auto& c : cases) {
    b.open_page(c.nx, 4, {500000, 6000000, 500500, 6000020}, c.accurate);
    EXPECT_EQ(b.draw(), c.tiles) << c.nx;
    EXPECT_EQ(b.pixel(c.nx - 1, 0, c.nx, 4), (rgba{10, 20, 30, 255}));
    EXPECT_EQ(b.pixel(c.nx / 2, 3, c.nx, 4), (rgba{10, 20, 30, 255}));
  }
}

TEST(draw_grid, the_selection_shows_above_and_is_not_dimmed) {
  scene_bench b(flat_grid("selected.tif", 2, 2));
  b.layer->set_opacity(100);
  zu_scn_2d_set_selected_style_clr(b.scene.get(), {{200, 100, 50, 0}, 0});
  b.open_page(2, 2, {500000, 6000000, 500020, 6000020});
  EXPECT_EQ(b.draw(), 1u) << "nothing is selected";
  zu_table_data_set_selected_id(b.layer->get_table_data(), 3, true);
  EXPECT_EQ(b.draw(), 2u) << "a colour whose flag is 0 turns the overlay on all the same";
  EXPECT_EQ(b.pixel(1, 0, 2, 2), (rgba{200, 100, 50, 255})) << "row ids run from the south-west";
  EXPECT_EQ(b.pixel(0, 0, 2, 2), (rgba{0, 0, 0, 0}));
}

TEST(draw_grid, the_selection_alone_with_nothing_selected_takes_no_dib) {
  scene_bench b(flat_grid("alone.tif", 2, 2));
  b.open_page(2, 2, {500000, 6000000, 500020, 6000020});
  grid_render_params params;
  params.stl_mngr = b.layer->get_style_manager();
  params.selected_color.is_set = 1;
  std::uint64_t before = zu_dib_get_made_count();
  draw_layer(b.render.get(), b.entity.get(), b.layer->get_table_data(), params, true);
  EXPECT_EQ(zu_dib_get_made_count(), before);
  zu_table_data_set_selected_id(b.layer->get_table_data(), 0, true);
  draw_layer(b.render.get(), b.entity.get(), b.layer->get_table_data(), params, true);
  EXPECT_EQ(zu_dib_get_made_count(), before + 1);
}

TEST(draw_grid, a_transparent_colour_of_the_layer_is_not_taken_by_its_drawing) {
  scene_bench b(flat_grid("transparent.tif", 2, 2));
  b.layer->set_transp_clr({10, 20, 30, 0});
  b.open_page(2, 2, {500000, 6000000, 500020, 6000020});
  b.draw();
  EXPECT_EQ(b.pixel(0, 0, 2, 2), (rgba{10, 20, 30, 255}));
}

TEST(draw_grid, projections_that_cannot_be_brought_together_count_as_one) {
  scene_bench b(flat_grid("unknown.tif", 2, 2));
  b.open_page(2, 2, {500000, 6000000, 500020, 6000020});
  zu_render_set_pj4wstr(b.render.get(), L"no projection at all");
  b.draw();
  EXPECT_EQ(b.pixel(0, 0, 2, 2), (rgba{10, 20, 30, 255}));
}

TEST(draw_grid, is_reprojected_into_the_render) {
  scene_bench b(flat_grid("mercator.tif", 400, 400));
  zu_scn_2d_set_pj4wstr(b.scene.get(), L"EPSG:3857");
  b.layer->update_box();
  Tzu_box_d2 box;
  ASSERT_TRUE(zu_lr2d_get_box(b.entity.get(), &box));
  double w = box.x1 - box.x0, h = box.y1 - box.y0;
  b.open_page(60, 60, {box.x0 + w * 0.1, box.y0 + h * 0.1, box.x1 - w * 0.1, box.y1 - h * 0.1});
  zu_render_set_pj4wstr(b.render.get(), L"EPSG:3857");
  EXPECT_EQ(b.draw(), 1u);
  for (std::uint64_t at : {0, 30, 59}) EXPECT_EQ(b.pixel(at, at, 60, 60), (rgba{10, 20, 30, 255}));
}

TEST(draw_grid, an_affine_step_of_the_render_moves_the_layer) {
  scene_bench b(flat_grid("affine.tif", 2, 2));
  Tzu_matrix3x3 shift;
  zu_matrix3x3_init_single(&shift);
  shift.m[0][2] = -500000;
  shift.m[1][2] = -6000000;
  b.open_page(4, 2, {0, 0, 40, 20});
  zu_render_set_affine_matrix(b.render.get(), &shift);
  b.draw();
  EXPECT_EQ(b.pixel(1, 1, 4, 2), (rgba{10, 20, 30, 255}));
  EXPECT_EQ(b.pixel(2, 1, 4, 2), (rgba{0, 0, 0, 0}));
}

TEST(draw_grid, a_clip_polygon_bounds_the_drawing) {
  scene_bench b(flat_grid("clip.tif", 4, 4));
  b.open_page(4, 4, {500000, 6000000, 500040, 6000040});
  owned<zu_ov_d2_destroy> polygon(zu_ov_d2_create());
  Tzu_pv_d2* ring = zu_ov_d2_add(polygon.get());
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{500000, 6000000}, Tzu_vtx_d2{500020, 6000000},
                       Tzu_vtx_d2{500020, 6000040}, Tzu_vtx_d2{500000, 6000040}})
    zu_pv_d2_add_vtx(ring, &v);
  grid_render_params params;
  params.stl_mngr = b.layer->get_style_manager();
  params.clip_polygon = polygon.get();
  draw_layer(b.render.get(), b.entity.get(), nullptr, params, false);
  EXPECT_EQ(b.pixel(1, 1, 4, 4), (rgba{10, 20, 30, 255}));
  EXPECT_EQ(b.pixel(2, 1, 4, 4), (rgba{0, 0, 0, 0}));
}

/// A grid of 20 by 20 cells that rises by 10 a cell to the east, with isolines and shade in use.
std::wstring slope(const std::string& name) {
  made_grid file(name, 20, 20, GDT_Float32, 1);
  file.projection("EPSG:32637");
  file.transform({500000, 10, 0, 6000200, 0, -10});
  std::vector<double> values;
  for (int i = 0; i < 400; ++i) values.push_back(i % 20 * 10);
  file.values(1, values);
  return file.close();
}
void use_isolines(grid_layer2d& layer) {
  zu_isoline_style_set_use(layer.get_isoline_style(), true);
  zu_isoline_style_set_propname(layer.get_isoline_style(), L"Band 1");
}

TEST(draw_grid, isolines_lie_above_the_raster) {
  scene_bench b(slope("above.tif"));
  use_isolines(*b.layer);
  b.open_page(40, 40, {500000, 6000000, 500200, 6000200});
  EXPECT_EQ(b.draw(), 1u);
  // Level 100 at the middle of cell 10, pixel 21; nodes stand at pixels 20 and 25.
  EXPECT_EQ(b.pixel(5, 20, 40, 40), (rgba{10, 20, 30, 255}));
  EXPECT_LT(b.pixel(21, 20, 40, 40)[0], 8);
}

TEST(draw_grid, isolines_are_drawn_though_the_raster_of_the_tile_failed) {
  scene_bench b(slope("failed.tif"));
  use_isolines(*b.layer);
  zu_stl_mngr_set_mode(b.layer->get_style_manager(), zu_style_range);
  zu_stl_mngr_set_rng_prop_name_w(b.layer->get_style_manager(), L"missing");
  b.open_page(40, 40, {500000, 6000000, 500200, 6000200});
  b.draw();
  EXPECT_EQ(b.pixel(5, 20, 40, 40)[3], 0);
  EXPECT_GT(b.pixel(21, 20, 40, 40)[3], 0);
}

TEST(draw_grid, the_selection_alone_has_no_isolines) {
  scene_bench b(slope("alone.tif"));
  grid_render_params params;
  params.isoline_style = b.layer->get_isoline_style();
  use_isolines(*b.layer);
  b.open_page(40, 40, {500000, 6000000, 500200, 6000200});
  draw_layer(b.render.get(), b.entity.get(), nullptr, params, true);
  EXPECT_FALSE(zu_drwc_has_ink(b.page.get()));
  draw_layer(b.render.get(), b.entity.get(), nullptr, params, false);
  EXPECT_TRUE(zu_drwc_has_ink(b.page.get()));
}

TEST(draw_grid, each_tile_of_a_shaded_page_clears_its_first_row_and_column) {
  scene_bench b(slope("tiles.tif"));
  zu_hillshade_style_set_use(b.layer->get_hillshade_style(), true);
  zu_hillshade_style_set_propname(b.layer->get_hillshade_style(), L"Band 1");
  // Inside the middles of the outer cells, so that every node has a value. Rows of pixels run from
  // the top here.
  b.open_page(5000, 20, {500020, 6000100, 500170, 6000100.6}, true);
  EXPECT_EQ(b.draw(), 2u);
  for (std::uint64_t x : {0, 2500}) EXPECT_EQ(b.pixel(x, 9, 5000, 20)[3], 0) << x;
  for (std::uint64_t x : {1, 2499, 2501, 4999}) EXPECT_EQ(b.pixel(x, 9, 5000, 20)[3], 255) << x;
  EXPECT_EQ(b.pixel(100, 19, 5000, 20)[3], 0);
  EXPECT_EQ(b.pixel(100, 18, 5000, 20)[3], 255);
}

}  // namespace
