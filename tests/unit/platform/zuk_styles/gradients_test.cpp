#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_styles/parameters.h"

namespace zu::test {
namespace {

using platform::owned;
constexpr std::uint64_t all = UINT64_MAX;

class gradients : public testing::Test {
 protected:
  void set_rows(const std::vector<Tzu_color>& colors) {
    zu_rng_scale_set_size(scale_, colors.size());
    for (std::uint64_t i = 0; i < colors.size(); ++i)
      zu_stl_prm_clr_set_all(style(i), colors[i], 0);
  }
  Tzu_stl_prm* style(std::uint64_t row) {
    return zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(scale_, row));
  }
  void expect_color(std::uint64_t row, Tzu_color expected) {
    Tzu_color c = zu_stl_prm_get_color(style(row), 0);
    EXPECT_EQ((std::vector<int>{c.r, c.g, c.b, c.a}),
              (std::vector<int>{expected.r, expected.g, expected.b, expected.a}))
        << "row " << row;
  }

  owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  Tzu_rng_scale* scale_ = zu_stl_mngr_get_rng_scale_ptr(manager_.get());
};

TEST_F(gradients, colours_between_the_ends_lie_evenly_and_keep_their_transparency) {
  set_rows({{0, 0, 100, 10}, {9, 9, 9, 20}, {9, 9, 9, 30}, {9, 9, 9, 40}, {200, 2, 0, 50}});
  zu_rng_scale_clr_gradient(scale_, 0, 4, 0);
  expect_color(0, {0, 0, 100, 10});
  expect_color(1, {50, 1, 75, 20});  // 0.5 is rounded up
  expect_color(2, {100, 1, 50, 30});
  expect_color(3, {150, 2, 25, 40});
  expect_color(4, {200, 2, 0, 50});
}

TEST_F(gradients, a_span_is_cut_to_the_scale_and_needs_three_rows) {
  set_rows({{0, 0, 0, 0}, {9, 9, 9, 0}, {100, 0, 0, 0}});
  zu_rng_scale_clr_gradient(scale_, 1, all, 0);
  zu_rng_scale_clr_gradient(scale_, 2, 1, 0);
  zu_rng_scale_clr_gradient(scale_, 7, 9, 0);
  expect_color(1, {9, 9, 9, 0});
  zu_rng_scale_clr_gradient(scale_, 0, all, 0);
  expect_color(1, {50, 0, 0, 0});
  zu_rng_scale_set_size(scale_, 0);
  zu_rng_scale_clr_gradient(scale_, 0, all, 0);
  zu_rng_scale_clr_gradient(nullptr, 0, all, 0);
}

TEST_F(gradients, the_other_style_of_a_row_stays) {
  set_rows({{0, 0, 0, 0}, {9, 9, 9, 0}, {100, 0, 0, 0}});
  zu_stl_prm_clr_set_all(style(0), {0, 0, 0, 0}, 1);
  zu_stl_prm_clr_set_all(style(2), {0, 80, 0, 0}, 1);
  zu_rng_scale_clr_gradient(scale_, 0, 2, 1);
  expect_color(1, {9, 9, 9, 0});
  EXPECT_EQ(zu_stl_prm_get_color(style(1), 1).g, 40);
}

TEST_F(gradients, the_hue_goes_the_shorter_way) {
  struct {
    Tzu_color first, last, middle;
  } const rows[] = {{{255, 0, 0, 0}, {0, 255, 0, 0}, {200, 200, 100, 0}},   // red, yellow, green
                    {{255, 0, 0, 0}, {0, 0, 255, 0}, {200, 100, 200, 0}},   // over magenta
                    {{0, 255, 0, 0}, {0, 0, 255, 0}, {100, 200, 200, 0}},   // over cyan
                    {{255, 0, 0, 0}, {70, 70, 70, 0}, {200, 100, 100, 0}},  // a gray has no hue
                    {{9, 9, 9, 0}, {0, 0, 255, 0}, {100, 100, 200, 0}}};
  for (const auto& r : rows) {
    set_rows({r.first, {200, 100, 150, 0}, r.last});
    zu_rng_scale_hue_gradient(scale_, 0, 2, 0);
    expect_color(1, r.middle);
  }
  set_rows({{9, 9, 9, 0}, {200, 100, 150, 0}, {70, 70, 70, 0}});
  zu_rng_scale_hue_gradient(scale_, 0, 2, 0);
  expect_color(1, {200, 100, 150, 0});
}

TEST_F(gradients, the_transparency_alone_changes) {
  set_rows({{1, 1, 1, 0}, {2, 2, 2, 9}, {3, 3, 3, 200}});
  zu_rng_scale_transparency_gradient(scale_, 0, 2, 0);
  expect_color(1, {2, 2, 2, 100});
}

TEST_F(gradients, sizes_of_symbols_and_widths_of_lines_lie_evenly) {
  set_rows(std::vector<Tzu_color>(3));
  zu_stl_prm_get_pnt_style_ptr(style(0), 0)->point.size = 2;
  zu_stl_prm_get_pnt_style_ptr(style(2), 0)->point.size = 6;
  zu_stl_prm_get_pln_style_ptr(style(2), 0)->line.width = 1.2;  // the first has 0.2
  zu_rng_scale_size_gradient(scale_, 0, 2, 0);
  EXPECT_EQ(zu_stl_prm_get_pnt_style_ptr(style(1), 0)->point.size, 4);
  EXPECT_DOUBLE_EQ(zu_stl_prm_get_pln_style_ptr(style(1), 0)->line.width, 0.7);
}

TEST_F(gradients, rows_of_colours_alone_get_no_symbols) {
  set_rows(std::vector<Tzu_color>(3));
  zu_rng_scale_size_gradient(scale_, 0, 2, 0);
  EXPECT_EQ(style(1)->more, nullptr);
}

TEST_F(gradients, a_size_is_that_of_the_complex_style_in_use) {
  set_rows(std::vector<Tzu_color>(3));
  zu_stl_prm_get_pnt_style_ptr(style(0), 0)->point.size = 1;
  Tzu_bpnt_style& middle = zu_stl_prm_get_pnt_style_ptr(style(1), 0)->point;
  Tzu_bpnt_style& last = zu_stl_prm_get_pnt_style_ptr(style(2), 0)->point;
  for (Tzu_bpnt_style* point : {&middle, &last}) {
    point->use_complex = true;
    point->complex.made()->add_layer("pnt_figr_slr");
  }
  zu_cpx_pnt_style_set_point_size(last.complex.made(), 9);
  zu_rng_scale_size_gradient(scale_, 0, 2, 0);
  EXPECT_EQ(middle.size, 5);
  EXPECT_EQ(zu_cpx_pnt_style_get_point_size(middle.complex.get()), 5);
}

TEST_F(gradients, go_over_the_marked_rows_the_tails_among_them) {
  set_rows({{9, 9, 9, 0}, {9, 9, 9, 0}, {9, 9, 9, 0}, {80, 0, 0, 0}});
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_min_prm_ptr(scale_)),
                         {0, 0, 0, 0}, 0);
  zu_rng_scale_set_min_marked(scale_, true);
  zu_rng_scale_set_marked(scale_, 1, true);
  zu_rng_scale_set_marked(scale_, 3, true);
  zu_rng_scale_clr_gradient_marked(scale_, 0);
  expect_color(0, {9, 9, 9, 0});
  expect_color(1, {40, 0, 0, 0});
  expect_color(2, {9, 9, 9, 0});
  zu_rng_scale_transparency_gradient_marked(scale_, 0);
  zu_rng_scale_size_gradient_marked(scale_, 0);
  expect_color(1, {40, 0, 0, 0});
}

TEST_F(gradients, work_on_value_scales_too) {
  Tzu_val_scale* values = zu_stl_mngr_get_val_scale_ptr(manager_.get());
  zu_val_scale_set_size(values, 3);
  auto row = [&](std::uint64_t i) {
    return zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(values, i));
  };
  zu_stl_prm_clr_set_all(row(0), {0, 0, 0, 0}, 0);
  zu_stl_prm_clr_set_all(row(2), {60, 60, 60, 100}, 0);
  zu_stl_prm_get_pln_style_ptr(row(2), 0)->line.width = 0.6;
  zu_val_scale_clr_gradient(values, 0, 2, 0);
  zu_val_scale_transparency_gradient(values, 0, 2, 0);
  zu_val_scale_size_gradient(values, 0, 2, 0);
  EXPECT_EQ(zu_stl_prm_get_color(row(1), 0).r, 30);
  EXPECT_EQ(zu_stl_prm_get_color(row(1), 0).a, 50);
  EXPECT_DOUBLE_EQ(zu_stl_prm_get_pln_style_ptr(row(1), 0)->line.width, 0.4);
  for (std::uint64_t i : {0, 1, 2}) zu_val_scale_set_marked(values, i, true);
  zu_stl_prm_clr_set_all(row(2), {0, 0, 0, 0}, 0);
  zu_val_scale_clr_gradient_marked(values, 0);
  zu_val_scale_transparency_gradient_marked(values, 0);
  zu_val_scale_size_gradient_marked(values, 0);
  EXPECT_EQ(zu_stl_prm_get_color(row(1), 0).r, 0);
  EXPECT_EQ(zu_stl_prm_get_color(row(1), 0).a, 0);
}

}  // namespace
}  // namespace zu::test
