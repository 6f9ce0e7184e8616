// Lines of equal value drawn on a page, from fields small enough to know where they run.

#include "src/render/isolines.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "src/bundle/owned.h"
#include "tests/unit/src/made_source.h"
#include "zu/platform/zuk_render.h"

namespace {

using namespace zu;
using tests::made_source;

constexpr int side = 40, cells = 8;  // pixels and cells of the grid a side
const Tzu_color red{255, 0, 0, 0}, blue{0, 0, 255, 0};

/// A page of 40 by 40 pixels over 40 by 40 cells, drawn by matrix or by the mesh of an identity
/// step.
class drawn_isolines : public testing::TestWithParam<bool> {
 protected:
  made_source source{cells, cells};
  owned<zu_isoline_style_destroy> style{zu_isoline_style_create()};
  owned<zu_stl_mngr_destroy> manager{zu_clr_stl_mngr_create()};
  owned<zu_ov_d2_destroy> polygon{zu_ov_d2_create()};
  grid_render_params params;
  Tzu_box_d2 box{0, 0, side, side};
  std::uint64_t nx = side, ny = side;

  drawn_isolines() {
    // At x the field "east" has the value x, and "north" has y at y.
    std::vector<double> east, north;
    for (int i = 0; i < cells * cells; ++i) {
      east.push_back(5 * (i % cells) + 2.5);
      north.push_back(5 * (i / cells) + 2.5);
    }
    source.cell = 5;
    source.add(L"east", east);
    source.add(L"north", north);
    source.add(L"flat", std::vector<double>(cells * cells, 20.0));
    zu_isoline_style_set_use(style.get(), true);
    zu_isoline_style_set_propname(style.get(), L"east");
    steps(20, 1000);
    owned<zu_pln_style_destroy> line(zu_pln_style_create());
    zu_bpln_style_set_color(zu_pln_style_get_bpln_style_ptr(line.get()), red);
    zu_isoline_style_set_thin_style(style.get(), line.get());
    zu_bpln_style_set_color(zu_pln_style_get_bpln_style_ptr(line.get()), blue);
    zu_isoline_style_set_bold_style(style.get(), line.get());
    params.isoline_style = style.get();
    params.stl_mngr = manager.get();
  }
  void steps(double thin, double bold) {
    zu_isoline_style_set_thin_step(style.get(), thin);
    zu_isoline_style_set_bold_step(style.get(), bold);
  }
  void draw() {
    Tzu_box_d2 whole{0, 0, side, side};
    page_.reset(zu_drwc_create_image(side, side, 96, false));
    owned<zu_render_destroy> render(zu_render_create(page_.get(), &whole));
    Tzu_matrix3x3 identity;
    zu_matrix3x3_init_single(&identity);
    zu_rpj_fb_d2_set_use_affine_after(rpj_.get(), GetParam());
    zu_rpj_fb_d2_set_affine_after(rpj_.get(), &identity);
    grid_render_context context;
    context.params = params;
    context.reprojection = {rpj_.get(), GetParam()};
    context.render = render.get();
    context.drwc = page_.get();
    data::grid_datasource data;
    ASSERT_TRUE(data.attach(source.handle()) && data.bind(L"made", 0));
    zu::isoline_pass(context, box, nx, ny, data).draw();
  }
  bool has_ink() { return zu_drwc_has_ink(page_.get()); }
  /// Columns (or rows from the south) that a line of a colour, or any, goes through.
  std::set<int> columns(const Tzu_color* of = nullptr) { return inked(of, true); }
  std::set<int> rows(const Tzu_color* of = nullptr) { return inked(of, false); }

 private:
  std::set<int> inked(const Tzu_color* of, bool by_column) {
    std::vector<std::uint8_t> all(side * side * 4);
    zu_drwc_get_pixels(page_.get(), all.data());
    std::set<int> found;
    for (int i = 0; i < side * side; ++i) {
      const std::uint8_t* p = &all[static_cast<std::size_t>(i) * 4];
      if (p[3] == 0 || (of != nullptr && (p[0] != of->r || p[2] != of->b))) continue;
      found.insert(by_column ? i % side : side - 1 - i / side);
    }
    return found;
  }
  owned<zu_drwc_destroy> page_;
  owned<zu_rpj_fb_d2_destroy> rpj_{zu_rpj_fb_d2_create()};
};
INSTANTIATE_TEST_SUITE_P(both_forms, drawn_isolines, testing::Values(false, true),
                         [](const auto& form) { return form.param ? "mesh" : "matrix"; });

TEST_P(drawn_isolines, a_line_lies_where_the_field_has_its_level) {
  draw();
  EXPECT_EQ(columns(), (std::set<int>{19, 20}));  // a line of 0.2 mm on the edge between two pixels
  // Nodes stand every five pixels from 0 to 35; that of row 0 has no value.
  EXPECT_EQ(*rows().begin(), 2);
  EXPECT_EQ(*rows().rbegin(), 37);
  zu_isoline_style_set_propname(style.get(), L"north");
  draw();
  EXPECT_EQ(rows(), (std::set<int>{19, 20}));
}

TEST_P(drawn_isolines, multiples_of_the_bold_step_have_the_bold_style) {
  steps(10, 20);
  draw();
  EXPECT_EQ(columns(&red), (std::set<int>{9, 10, 29, 30}));
  EXPECT_EQ(columns(&blue), (std::set<int>{19, 20}));
}

TEST_P(drawn_isolines, samples_are_bilinear_whatever_the_layer_has) {
  steps(7, 1000);
  draw();
  std::set<int> without = columns();
  params.interpolate = true;
  draw();
  EXPECT_EQ(columns(), without);
  EXPECT_EQ(without, (std::set<int>{6, 7, 13, 14, 20, 21, 27, 28}));
}

TEST_P(drawn_isolines, without_a_field_of_its_own_it_follows_the_colouring_field) {
  zu_isoline_style_set_propname(style.get(), L"");
  draw();
  EXPECT_FALSE(has_ink());  // a simple style has none
  zu_stl_mngr_set_mode(manager.get(), zu_style_range);
  zu_stl_mngr_set_rng_prop_name_w(manager.get(), L"north");
  draw();
  EXPECT_EQ(rows(), (std::set<int>{19, 20}));
}

TEST_P(drawn_isolines, nothing_is_drawn_without_a_use_a_level_or_a_field) {
  zu_isoline_style_set_propname(style.get(), L"flat");
  draw();
  EXPECT_FALSE(has_ink()) << "of a constant field";
  zu_isoline_style_set_propname(style.get(), L"missing");
  draw();
  EXPECT_FALSE(has_ink()) << "of a missing field";
  zu_isoline_style_set_propname(style.get(), L"east");
  steps(100, 500);
  draw();
  EXPECT_FALSE(has_ink()) << "of levels outside the range";
  steps(20, 1000);
  zu_isoline_style_set_use(style.get(), false);
  draw();
  EXPECT_FALSE(has_ink()) << "of a style not in use";
  zu_isoline_style_set_use(style.get(), true);
  params.isoline_style = nullptr;
  draw();
  EXPECT_FALSE(has_ink()) << "without a style";
  params.isoline_style = style.get();
  source.reads_before_failure = 0;
  draw();
  EXPECT_FALSE(has_ink()) << "of a source that cannot be read";
  source.reads_before_failure = -1;
  draw();
  EXPECT_TRUE(has_ink());
}

TEST_P(drawn_isolines, a_dib_narrower_or_lower_than_five_pixels_has_no_lines) {
  steps(1, 1000);
  struct {
    std::uint64_t nx, ny;
    bool lines;
  } const cases[] = {{4, 40, false}, {40, 4, false}, {14, 14, false}, {15, 15, true}};
  for (const auto& c : cases) {  // of 14 by 14 one node has a value, and so a range without levels
    nx = c.nx, ny = c.ny;
    draw();
    EXPECT_EQ(has_ink(), c.lines) << nx << " by " << ny;
  }
}

TEST_P(drawn_isolines, neither_opacity_nor_the_colours_of_the_layer_reach_the_lines) {
  params.alpha = 0;
  draw();
  EXPECT_EQ(columns(&red), (std::set<int>{19, 20}));
}

TEST_P(drawn_isolines, lines_are_clipped_as_the_raster_is_and_the_clip_ends_with_them) {
  Tzu_pv_d2* ring = zu_ov_d2_add(polygon.get());
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{0, 10}, {40, 10}, {40, 20}, {0, 20}, {0, 10}})
    zu_pv_d2_add_vtx(ring, &v);
  params.clip_polygon = polygon.get();
  draw();
  EXPECT_EQ(*rows().begin(), 10);
  EXPECT_EQ(*rows().rbegin(), 19);
}

TEST_P(drawn_isolines, a_hole_in_the_field_cuts_the_lines) {
  std::vector<double> east;
  for (int i = 0; i < cells * cells; ++i) east.push_back(5 * (i % cells) + 2.5);
  auto& holed = source.add(L"holed", east);
  holed.values[4 * cells + 4] =
      -1;  // from 20 to 25, so that the nodes at its corners have no value
  holed.has_nodata = true, holed.nodata = -1;
  zu_isoline_style_set_propname(style.get(), L"holed");
  draw();
  EXPECT_EQ(rows().count(20), 0u);
  EXPECT_EQ(rows().count(10), 1u);
  EXPECT_EQ(rows().count(30), 1u);
}

}  // namespace
