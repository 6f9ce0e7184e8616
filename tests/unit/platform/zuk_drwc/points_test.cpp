#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "tests/unit/platform/zuk_drwc/made_styles.h"
#include "tests/unit/platform/zuk_drwc/saved_document.h"

namespace zu::test {
namespace {

constexpr std::uint64_t side = 60;
constexpr rgba red{200, 0, 0, 255}, nothing{0, 0, 0, 0};

rgba at(const drwc_ptr& drwc, std::uint64_t x, std::uint64_t y) {
  return pixel(drwc, side, side, x, y);
}

TEST(points, what_has_no_place_no_size_no_colour_or_no_character_is_not_drawn) {
  drwc_ptr drwc = made_picture(side, side);
  for (double bad : {std::nan(""), HUGE_VAL, -HUGE_VAL})
    draw_point(drwc, bad, 30, figure(zu_figure_square, 10));
  for (double size : {0.0, -1.0, std::nan("")})
    draw_point(drwc, 30, 30, figure(zu_figure_square, size));
  draw_point(drwc, 30, 30, figure(zu_figure_square, 10, {200, 0, 0, 255}));
  Tzu_pnt_style hidden = figure(zu_figure_square, 10);
  hidden.visible = false;
  draw_point(drwc, 30, 30, hidden);
  Tzu_pnt_style letter = figure(zu_figure_square, 10);
  letter.point.use_figure = false;
  for (std::uint32_t none : {0u, 0xD800u, 0x110000u, 0x20u}) {
    letter.point.symbol = none;
    draw_point(drwc, 30, 30, letter);
  }
  double place = 30;
  zu_drwc_draw_pnt(drwc.get(), 1, &place, &place, nullptr);
  zu_drwc_draw_pnt(drwc.get(), 1, nullptr, &place, &hidden);
  zu_drwc_draw_pnt(nullptr, 1, &place, &place, &letter);
  EXPECT_FALSE(zu_drwc_has_ink(drwc.get()));
}

TEST(points, all_places_get_the_symbol) {
  drwc_ptr drwc = made_picture(side, side);
  const double xs[] = {10, 30, 50}, ys[] = {10, 50, 30};
  Tzu_pnt_style style = figure(zu_figure_square, 6);
  zu_drwc_draw_pnt(drwc.get(), 3, xs, ys, &style);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(at(drwc, std::uint64_t(xs[i]), std::uint64_t(ys[i])), red) << i;
  EXPECT_EQ(ink(drwc, side, side), 3 * 36);
}

TEST(points, the_offset_moves_to_the_right_and_upwards_and_the_angle_turns_against_the_clock) {
  Tzu_pnt_style style = figure(zu_figure_triangle_up, 20);
  style.point.dx = 10;
  style.point.dy = 5;
  style.point.angle = 90;  // points to the left
  drwc_ptr drwc = made_picture(side, side);
  draw_point(drwc, 20, 20, style);
  EXPECT_EQ(at(drwc, 30, 25), red);
  EXPECT_EQ(at(drwc, 38, 33), red);
  EXPECT_EQ(at(drwc, 38, 16), red);
  EXPECT_EQ(at(drwc, 22, 33), nothing);
  EXPECT_EQ(at(drwc, 22, 25), red);
}

TEST(points, a_transparent_symbol_shows_the_ground_and_one_over_another_is_darker) {
  drwc_ptr drwc = made_picture(side, side);
  zu_drwc_fill(drwc.get(), {255, 255, 255, 0});
  const double xs[] = {20, 26}, ys[] = {20, 20};
  Tzu_pnt_style style = figure(zu_figure_square, 10, {0, 0, 0, 128});
  zu_drwc_draw_pnt(drwc.get(), 2, xs, ys, &style);
  EXPECT_NEAR(at(drwc, 17, 20).r, 128, 1);
  EXPECT_NEAR(at(drwc, 23, 20).r, 64, 1);
  EXPECT_NEAR(at(drwc, 29, 20).r, 128, 1);
  EXPECT_EQ(at(drwc, 17, 20).opacity, 255);
}

TEST(points, a_character_of_a_font_stands_with_its_ink_in_the_middle) {
  Tzu_pnt_style style = figure(0, 40);
  style.point.use_figure = false;
  style.point.symbol = 0x25A0;  // a black square
  drwc_ptr drwc = made_picture(side, side);
  draw_point(drwc, 30, 30, style);
  EXPECT_EQ(at(drwc, 30, 30), red);
  std::uint64_t low = side, high = 0, left = side, right = 0;
  for (std::uint64_t y = 0; y < side; ++y)
    for (std::uint64_t x = 0; x < side; ++x)
      if (at(drwc, x, y).opacity != 0) {
        low = std::min(low, y), high = std::max(high, y);
        left = std::min(left, x), right = std::max(right, x);
      }
  EXPECT_NEAR(double(low + high) / 2, 29.5, 1);
  EXPECT_NEAR(double(left + right) / 2, 29.5, 1);
  EXPECT_GT(high - low, 15u);
  EXPECT_LT(high - low, 40u);
}

TEST(points, a_complex_style_draws_its_layers_in_place_of_the_fields) {
  Tzu_pnt_style style = figure(zu_figure_circle, 40, {0, 0, 200, 0});
  style.point.use_complex = true;
  draw_point(made_picture(side, side), 30, 30, style);
  for (auto [number, size] : {std::pair{zu_figure_square, 30.0}, {zu_figure_square, 10.0}}) {
    auto& layer =
        std::get<Tzu_bpnt_style>(style.point.complex.made()->add_layer("pnt_figr_slr")->style);
    layer.figure = number;
    layer.size = size;
    layer.color = size > 20 ? Tzu_color{200, 0, 0, 0} : Tzu_color{0, 200, 0, 0};
  }
  drwc_ptr drwc = made_picture(side, side);
  draw_point(drwc, 30, 30, style);
  EXPECT_EQ(at(drwc, 30, 30), (rgba{0, 200, 0, 255}));
  EXPECT_EQ(at(drwc, 18, 18), red);
  EXPECT_EQ(at(drwc, 30, 48), nothing);
}

TEST(points, a_region_and_a_clip_hold_for_symbols) {
  for (bool clipped : {false, true}) {
    drwc_ptr drwc = made_picture(side, side);
    if (clipped) {
      ov_ptr box(zu_ov_d2_create());
      Tzu_pv_d2* ring = zu_ov_d2_add(box.get());
      for (Tzu_vtx_d2 v : {Tzu_vtx_d2{0, 0}, {30, 0}, {30, 60}, {0, 60}})
        zu_pv_d2_add_vtx(ring, &v);
      zu_drwc_set_clip_pgn(drwc.get(), 0, box.get());
    } else {
      const Tzu_box_d2 half{0, 0, 30, 60};
      zu_drwc_set_region(drwc.get(), &half);
    }
    draw_point(drwc, 30, 30, figure(zu_figure_square, 20));
    EXPECT_EQ(at(drwc, 29, 30), red) << clipped;
    EXPECT_EQ(at(drwc, 30, 30), nothing) << clipped;
  }
}

TEST(points, stamps_and_paths_give_the_same_ink) {
  for (int32_t number = 0; number < zu_figure_count; ++number) {
    Tzu_pnt_style style = figure(number, 15.3, {10, 90, 200, 77});
    style.point.angle = 17;
    drwc_ptr stamped = made_picture(side, side), drawn = made_picture(side, side);
    ov_ptr page(zu_ov_d2_create());
    Tzu_pv_d2* ring = zu_ov_d2_add(page.get());
    for (Tzu_vtx_d2 v : {Tzu_vtx_d2{-5, -5}, {65, -5}, {65, 65}, {-5, 65}})
      zu_pv_d2_add_vtx(ring, &v);
    zu_drwc_set_clip_pgn(drawn.get(), 0, page.get());  // no stamps inside a clip
    for (const drwc_ptr* drwc : {&stamped, &drawn}) draw_point(*drwc, 30.37, 29.81, style);
    for (std::uint64_t y = 0; y < side; ++y)
      for (std::uint64_t x = 0; x < side; ++x)
        ASSERT_NEAR(at(stamped, x, y).opacity, at(drawn, x, y).opacity, 3)
            << number << ' ' << x << ' ' << y;
  }
}

TEST(points, symbols_at_the_edge_and_far_off_are_cut) {
  drwc_ptr drwc = made_picture(side, side);
  const double xs[] = {0, 60, 1e12, -1e12, 30}, ys[] = {0, 60, 30, 30, 1e300};
  Tzu_pnt_style style = figure(zu_figure_square, 10);
  zu_drwc_draw_pnt(drwc.get(), 5, xs, ys, &style);
  EXPECT_EQ(ink(drwc, side, side), 2 * 25);
}

using points_in_documents = saved_document;

TEST_F(points_in_documents, symbols_are_paths_of_a_pdf_and_an_svg) {
  auto drawn = [](drwc_ptr page) {
    draw_point(page, 30, 30, figure(zu_figure_star, 10));
    Tzu_pnt_style letter = figure(0, 10);
    letter.point.use_figure = false;
    letter.point.symbol = 0x2605;
    draw_point(page, 60, 30, letter);
    EXPECT_TRUE(zu_drwc_has_ink(page.get()));
    return page;
  };
  std::string svg = content(drawn(drwc_ptr(zu_drwc_create_svg(100, 50, 254))), "points.svg");
  EXPECT_EQ(count_of(svg, "<path"), 2);
  EXPECT_EQ(count_of(svg, "<image"), 0);
  std::string pdf = content(drawn(drwc_ptr(zu_drwc_create_pdf(100, 50, 254))), "points.pdf");
  std::string operators = operators_of(pdf);
  EXPECT_EQ(count_of(operators, " Do"), 0);
  EXPECT_GE(count_of(operators, " l"), 9);
  EXPECT_EQ(count_of(pdf, "/Font <<"), 0);
}

TEST_F(points_in_documents, opaque_frames_that_lap_over_are_not_cut_out_of_each_other) {
  drwc_ptr page(zu_drwc_create_svg(100, 50, 254));
  const double xs[] = {30, 33}, ys[] = {30, 30};
  Tzu_pnt_style style = figure(zu_figure_square_frame, 10);
  zu_drwc_draw_pnt(page.get(), 2, xs, ys, &style);
  std::string svg = content(page, "frames.svg");
  EXPECT_EQ(count_of(svg, "<path"), 1);
  EXPECT_EQ(count_of(svg, "evenodd"), 0);
}

TEST(fonts, the_systems_fonts_are_listed_once_in_order) {
  Tzu_wstrings* names = zu_wstrings_create();
  zu_fnt_type_list(names);
  std::vector<std::wstring> all;
  for (std::uint64_t i = 0; i < zu_wstrings_get_size(names); ++i)
    all.emplace_back(zu_wstrings_get_str(names, i));
  zu_wstrings_destroy(names);
  EXPECT_NE(std::find(all.begin(), all.end(), L"DejaVu Sans"), all.end());
  EXPECT_TRUE(std::is_sorted(all.begin(), all.end()));
  EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end());
  zu_fnt_type_list(nullptr);
}

TEST(fonts, a_font_tells_the_characters_that_it_has) {
  Tzu_fnt_type font;
  Tzu_ints* characters = zu_ints_create();
  zu_fnt_type_list_characters(&font, characters);
  std::vector<std::int64_t> all;
  for (std::uint64_t i = 0; i < zu_ints_get_size(characters); ++i)
    all.push_back(zu_ints_get(characters, i));
  zu_ints_destroy(characters);
  for (std::int64_t has : {U'!', U'A', U'Ж', U'★'})
    EXPECT_TRUE(std::binary_search(all.begin(), all.end(), has)) << has;
  for (std::int64_t none : {U' ', U'\t', U'\u0301', U'한', char32_t{0x10FFFF}})
    EXPECT_FALSE(std::binary_search(all.begin(), all.end(), none)) << none;
}

}  // namespace
}  // namespace zu::test
