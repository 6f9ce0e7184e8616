// Plot layers: what they hold, their boxes, and the pixels that they draw.

#include "zu/platform/zuk_plot_lr2d.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/zuk_basic/owned.h"
#include "zu/platform/zuk_render.h"
#include "zu/platform/zuk_scn_2d.h"
#include "zu/platform/zuk_tld_data.h"

namespace zu::platform {
namespace {

using layer = owned<zu_lr2d_destroy>;
using page = owned<zu_drwc_destroy>;
using render = owned<zu_render_destroy>;
using histogram = owned<zu_histogramm_destroy>;

histogram of_counts(const std::vector<double>& counts, double low, double high) {
  histogram made(zu_histogramm_create());
  zu_histogramm_set_limits(made.get(), low, high);
  zu_histogramm_set_params(made.get(), counts.size());
  for (std::size_t i = 0; i < counts.size(); ++i) zu_histogramm_set(made.get(), i, counts[i]);
  return made;
}

/// A page of 100 x 100 pixels, a millimetre each, that shows a box.
struct picture {
  page paper{zu_drwc_create_image(100, 100, 25.4, false)};
  render drawing;
  explicit picture(const Tzu_box_d2& box) : drawing(zu_render_create(paper.get(), &box)) {
    zu_drwc_fill(paper.get(), {255, 255, 255, 0});
  }
  std::array<int, 3> at(int x, int y_from_below) {
    std::vector<uint8_t> rgba(100 * 100 * 4);
    zu_drwc_get_pixels(paper.get(), rgba.data());
    const uint8_t* p = &rgba[static_cast<std::size_t>(((99 - y_from_below) * 100 + x) * 4)];
    return {p[0], p[1], p[2]};
  }
};
constexpr std::array<int, 3> white{255, 255, 255};

TEST(plot_layers, a_histogram_has_the_box_of_its_limits) {
  layer bars(zu_lr2d_create(ZU_PLOT_HISTOGRAM_LR2D));
  Tzu_box_d2 box{};
  EXPECT_FALSE(zu_lr2d_get_box(bars.get(), &box));
  zu_plot_histogram_lr2d_set_histogramm(bars.get(), of_counts({1, 2}, -5, 15).get());
  ASSERT_TRUE(zu_lr2d_get_box(bars.get(), &box));
  EXPECT_EQ(box.x0, -5);
  EXPECT_EQ(box.x1, 15);
  EXPECT_EQ(box.y1, 1);
  zu_plot_histogram_lr2d_set_histogramm(bars.get(), nullptr);
  EXPECT_FALSE(zu_lr2d_get_box(bars.get(), &box));
}
TEST(plot_layers, the_tallest_bar_is_one_high_and_the_others_in_proportion) {
  layer bars(zu_lr2d_create(ZU_PLOT_HISTOGRAM_LR2D));
  zu_plot_histogram_lr2d_set_histogramm(bars.get(), of_counts({1, 4}, 0, 2).get());
  picture p({0, 0, 2, 1});
  ASSERT_TRUE(zu_plot_lr2d_draw(p.drawing.get(), bars.get()));
  EXPECT_NE(p.at(25, 20), white);
  EXPECT_EQ(p.at(25, 30), white);
  EXPECT_NE(p.at(75, 95), white);
}
TEST(plot_layers, bars_have_the_colours_of_their_classes) {
  layer bars(zu_lr2d_create(ZU_PLOT_HISTOGRAM_LR2D));
  Tzu_stl_mngr* manager = zu_lr_get_style_mngr_ptr(bars.get());
  zu_stl_mngr_set_mode(manager, zu_style_range);
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  zu_rng_scale_set_size(scale, 2);
  for (uint64_t i = 0; i < 2; ++i) {
    zu_rng_scale_set_min(scale, i, double(i));
    zu_rng_scale_set_max(scale, i, double(i + 1));
  }
  zu_rng_scale_set_max_value(scale, 2);
  auto color = [&](uint64_t i, Tzu_color c) {
    zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(scale, i)),
                           c, 0);
  };
  color(0, {200, 0, 0, 0});
  color(1, {0, 0, 200, 0});
  zu_plot_histogram_lr2d_set_histogramm(bars.get(), of_counts({3, 3}, 0, 2).get());
  picture p({0, 0, 2, 1});
  zu_plot_lr2d_draw(p.drawing.get(), bars.get());
  EXPECT_EQ(p.at(25, 50), (std::array<int, 3>{200, 0, 0}));
  EXPECT_EQ(p.at(75, 50), (std::array<int, 3>{0, 0, 200}));
}
TEST(plot_layers, a_line_over_the_bars_shows_those_of_a_white_class) {
  layer bars(zu_lr2d_create(ZU_PLOT_HISTOGRAM_LR2D));
  Tzu_stl_prm* style = zu_stl_mngr_get_simple_sp_ptr(zu_lr_get_style_mngr_ptr(bars.get()));
  zu_bpgn_style_set_color(zu_pgn_style_get_bpgn_style_ptr(zu_stl_prm_get_pgn_style_ptr(style, 0)),
                          {255, 255, 255, 0});
  zu_plot_histogram_lr2d_set_histogramm(bars.get(), of_counts({1, 2, 0, 1}, 0, 4).get());
  picture p({0, 0, 4, 1});
  zu_plot_lr2d_draw(p.drawing.get(), bars.get());
  auto has_line = [&](int x, int from, int to) {
    for (int y = from; y < to; ++y)
      if (p.at(x, y) != white) return true;
    return false;
  };
  EXPECT_TRUE(has_line(12, 48, 52));
  EXPECT_TRUE(has_line(37, 97, 100));
  EXPECT_FALSE(has_line(37, 5, 90));
  EXPECT_FALSE(has_line(62, 0, 100)) << "no bar";
  EXPECT_TRUE(has_line(87, 48, 52));
}
TEST(plot_layers, lines_stand_upright_at_their_places) {
  layer lines(zu_lr2d_create(ZU_PLOT_LINE_LR2D));
  owned<zu_dbls_destroy> places(zu_dbls_create());
  zu_dbls_add(places.get(), 50.5);
  zu_plot_line_lr2d_set_places(lines.get(), places.get());
  Tzu_stl_prm* style = zu_stl_mngr_get_simple_sp_ptr(zu_lr_get_style_mngr_ptr(lines.get()));
  zu_bpln_style_set_width(zu_pln_style_get_bpln_style_ptr(zu_stl_prm_get_pln_style_ptr(style, 0)),
                          1);
  picture p({0, 0, 100, 1});
  ASSERT_TRUE(zu_plot_lr2d_draw(p.drawing.get(), lines.get()));
  EXPECT_NE(p.at(50, 10), white);
  EXPECT_NE(p.at(50, 90), white);
  EXPECT_EQ(p.at(47, 50), white);
}
TEST(plot_layers, layers_of_other_types_are_left_alone) {
  layer grid(zu_lr2d_create("grid_lr2d"));
  picture p({0, 0, 1, 1});
  EXPECT_FALSE(zu_plot_lr2d_draw(p.drawing.get(), grid.get()));
  EXPECT_FALSE(zu_plot_lr2d_draw(p.drawing.get(), nullptr));
  zu_plot_histogram_lr2d_set_histogramm(grid.get(), of_counts({1}, 0, 1).get());
  zu_plot_line_lr2d_set_places(grid.get(), nullptr);
  Tzu_box_d2 box{};
  EXPECT_FALSE(zu_lr2d_get_box(grid.get(), &box));
}

TEST(axes_of_a_scene, show_when_they_and_the_axis_are_visible) {
  owned<zu_scn_2d_destroy> scene(zu_scn_2d_create());
  Tzu_axes* axes = zu_scn_2d_get_axes_ptr(scene.get());
  auto has_ink = [&] {
    page paper(zu_drwc_create_image(100, 100, 25.4, false));
    Tzu_box_d2 box{0, 0, 1000, 1};
    render drawing(zu_render_create(paper.get(), &box));
    zu_scn_2d_draw_axes(drawing.get(), scene.get());
    return zu_drwc_has_ink(paper.get());
  };
  EXPECT_FALSE(has_ink());
  zu_axes_set_visible(axes, true);
  EXPECT_FALSE(has_ink());
  zu_axis_type_set_visible(zu_axes_get_axis(axes, zu_axis_bottom), true);
  EXPECT_TRUE(has_ink());
  zu_axes_set_visible(axes, false);
  EXPECT_FALSE(has_ink());
  EXPECT_EQ(zu_axes_get_axis(axes, 2), nullptr);
}

TEST(axes_of_a_scene, keep_numbers_away_that_the_edge_of_the_page_would_cut) {
  owned<zu_scn_2d_destroy> scene(zu_scn_2d_create());
  Tzu_axes* axes = zu_scn_2d_get_axes_ptr(scene.get());
  zu_axes_set_visible(axes, true);
  zu_axis_type_set_visible(zu_axes_get_axis(axes, zu_axis_bottom), true);
  page paper(zu_drwc_create_image(100, 100, 25.4, false));  // a pixel is a millimetre
  Tzu_box_d2 box{0, 0, 1000, 1};
  render drawing(zu_render_create(paper.get(), &box));
  zu_scn_2d_draw_axes(drawing.get(), scene.get());
  std::vector<std::uint8_t> rgba(100 * 100 * 4);
  zu_drwc_get_pixels(paper.get(), rgba.data());
  auto has_number = [&](std::size_t from, std::size_t to) {
    for (std::size_t row = 95; row < 98; ++row)  // above the marks
      for (std::size_t x = from; x < to; ++x)
        if (rgba[(row * 100 + x) * 4 + 3] != 0) return true;
    return false;
  };
  EXPECT_FALSE(has_number(0, 10));
  EXPECT_TRUE(has_number(15, 25));
  EXPECT_TRUE(has_number(75, 85));
  EXPECT_FALSE(has_number(90, 100));
}

TEST(texts_at_places, take_a_box_about_their_anchor) {
  picture p({0, 0, 100, 100});
  owned<zu_text_data_destroy> text(zu_text_data_create());
  Tzu_box_d2 box{};
  EXPECT_FALSE(zu_text_data_get_box_mm(text.get(), p.drawing.get(), &box));
  zu_text_data_set_wtext(text.get(), L"123");
  zu_text_data_set_height(text.get(), 10);
  zu_text_data_set_place(text.get(), 50, 50, zu_anchor_middle_center);
  ASSERT_TRUE(zu_text_data_get_box_mm(text.get(), p.drawing.get(), &box));
  EXPECT_NEAR(zu_halfway(box.x0, box.x1), 50, 1e-9);
  EXPECT_NEAR(zu_halfway(box.y0, box.y1), 50, 1e-9);
  zu_text_data_draw(text.get(), p.drawing.get());
  EXPECT_TRUE(zu_drwc_has_ink(p.paper.get()));
}

TEST(lists_of_boxes, find_points_and_crossings) {
  owned<zu_boxes_d2_destroy> list(zu_boxes_d2_create());
  const Tzu_box_d2 low{0, 0, 1, 1}, high{5, 5, 7, 6};
  zu_boxes_d2_add(list.get(), &low);
  zu_boxes_d2_add(list.get(), &high);
  EXPECT_EQ(zu_boxes_d2_includes(list.get(), 1, 1, 0), 0);
  EXPECT_EQ(zu_boxes_d2_includes(list.get(), 6, 5.5, 0), 1);
  EXPECT_EQ(zu_boxes_d2_includes(list.get(), 3, 3, 0), -1);
  EXPECT_EQ(zu_boxes_d2_includes(list.get(), 1, 1, 1), -1);
  const Tzu_box_d2 touching{1, 0, 2, 1}, crossing{6, 0, 20, 20};
  EXPECT_EQ(zu_boxes_d2_crosses(list.get(), &touching, 0), -1);
  EXPECT_EQ(zu_boxes_d2_crosses(list.get(), &crossing, 0), 1);
  zu_boxes_d2_clear(list.get());
  EXPECT_EQ(zu_boxes_d2_get_size(list.get()), 0u);
}

}  // namespace
}  // namespace zu::platform
