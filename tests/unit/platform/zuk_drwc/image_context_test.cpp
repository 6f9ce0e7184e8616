#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>

#include "tests/unit/platform/zuk_drwc/made_picture.h"

namespace zu::test {

void PrintTo(const rgba& p, std::ostream* out) {
  *out << p.r << " " << p.g << " " << p.b << " opacity " << p.opacity;
}

namespace {

constexpr rgba nothing{0, 0, 0, 0};

TEST(image_context, a_page_measures_its_pixels_in_millimetres) {
  drwc_ptr drwc(zu_drwc_create_image(96, 192, 96, true));
  Tzu_box_d2 page;
  zu_drwc_get_page(drwc.get(), &page);
  EXPECT_EQ(page.x0, 0);
  EXPECT_EQ(page.y0, 0);
  EXPECT_DOUBLE_EQ(page.x1, 25.4);
  EXPECT_DOUBLE_EQ(page.y1, 50.8);
  EXPECT_TRUE(zu_drwc_is_accurate(drwc.get()));
  EXPECT_FALSE(zu_drwc_is_accurate(made_picture(1, 1).get()));
}

TEST(image_context, sides_of_0_or_beyond_what_a_picture_can_have_make_none) {
  EXPECT_EQ(zu_drwc_create_image(0, 5, 96, false), nullptr);
  EXPECT_EQ(zu_drwc_create_image(5, 0, 96, false), nullptr);
  EXPECT_EQ(zu_drwc_create_image(32768, 1, 96, false), nullptr);
  EXPECT_EQ(zu_drwc_create_image(5, 5, 0, false), nullptr);
  EXPECT_EQ(zu_drwc_create_image(5, 5, std::nan(""), false), nullptr);
  EXPECT_NE(drwc_ptr(zu_drwc_create_image(32767, 1, 96, false)), nullptr);
}

TEST(image_context, the_size_of_a_dib_is_that_of_the_rounded_box) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  struct {
    Tzu_box_d2 box;
    std::uint64_t nx, ny;
  } rows[] = {
      {{0, 0, 100, 50}, 100, 50},
      {{0.4, 0.5, 10.4, 10.5}, 10, 10},
      {{0.5, 0, 10.4, 1}, 9, 1},
      {{-0.5, -0.5, 0.5, 0.5}, 1, 1},
      {{5.1, 5.1, 5.2, 5.3}, 1, 1},  // what has an area has a pixel
      {{5.9999999, 0, 6.2, 1}, 1, 1},
      {{5, 5, 5, 9}, 0, 0},  // no area
      {{9, 0, 5, 9}, 0, 0},  // corners the wrong way
      {{-1000, -1000, 2000, 2000}, 3000, 3000},
      {{0, 0, 32767, 1}, 32767, 1},
      {{0, 0, 32768, 1}, 0, 0},
      {{0, 0, infinity, 1}, 0, 0},
      {{std::nan(""), 0, 5, 5}, 0, 0},
      {{0, 0, 1e300, 1}, 0, 0},
  };
  drwc_ptr drwc = made_picture(100, 100);
  for (const auto& row : rows) {
    std::uint64_t nx = 77, ny = 77;
    zu_drwc_get_dib_size(drwc.get(), &row.box, &nx, &ny);
    EXPECT_EQ(nx, row.nx) << row.box.x0 << " " << row.box.x1;
    EXPECT_EQ(ny, row.ny) << row.box.y0 << " " << row.box.y1;
  }
}

TEST(image_context, neighbouring_boxes_share_a_side_without_gap_or_overlap) {
  drwc_ptr drwc(zu_drwc_create_image(1000, 10, 96, true));
  double step = 1000.0 / 96 * 25.4 / 7, x = 0;
  std::uint64_t sum = 0;
  for (int k = 0; k < 7; ++k, x += step) {
    Tzu_box_d2 box{x, 0, x + step, 1};
    std::uint64_t nx, ny;
    zu_drwc_get_dib_size(drwc.get(), &box, &nx, &ny);
    sum += nx;
  }
  EXPECT_EQ(sum, 1000u);
}

TEST(image_context, a_dib_of_the_boxs_size_is_copied_and_its_row_0_is_the_lowest) {
  drwc_ptr drwc = made_picture(30, 20);
  dib_ptr dib = made_dib(20, 10, [](auto x, auto y) {
    return Tzu_color{static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 200, 0};
  });
  draw(drwc, {5.2, 6.4, 25.2, 16.4}, dib);
  EXPECT_EQ(pixel(drwc, 30, 20, 5, 6), (rgba{0, 0, 200, 255}));
  EXPECT_EQ(pixel(drwc, 30, 20, 24, 15), (rgba{19, 9, 200, 255}));
  EXPECT_EQ(pixel(drwc, 30, 20, 12, 8), (rgba{7, 2, 200, 255}));
  EXPECT_EQ(pixel(drwc, 30, 20, 4, 6), nothing);
  EXPECT_EQ(pixel(drwc, 30, 20, 25, 6), nothing);
  EXPECT_EQ(pixel(drwc, 30, 20, 5, 5), nothing);
  EXPECT_EQ(pixel(drwc, 30, 20, 5, 16), nothing);
}

TEST(image_context, what_lies_off_the_page_is_cut) {
  auto numbered = [](auto x, auto y) {
    return Tzu_color{static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 0, 0};
  };
  dib_ptr dib = made_dib(30, 30, numbered);
  drwc_ptr drwc = made_picture(10, 10);
  draw(drwc, {-12, -15, 18, 15}, dib);
  EXPECT_EQ(pixel(drwc, 10, 10, 0, 0), (rgba{12, 15, 0, 255}));
  EXPECT_EQ(pixel(drwc, 10, 10, 9, 9), (rgba{21, 24, 0, 255}));
  drwc_ptr untouched = made_picture(10, 10);
  for (Tzu_box_d2 box : {Tzu_box_d2{10, 0, 40, 30},
                         {-30, 0, 0, 30},
                         {0, 10, 30, 40},
                         {0, -30, 30, 0},
                         {500, 500, 530, 530}})
    draw(untouched, box, dib);
  EXPECT_FALSE(zu_drwc_has_ink(untouched.get()));
}

TEST(image_context, a_dib_of_another_size_is_sampled_at_the_nearest_pixel) {
  drwc_ptr drwc = made_picture(4, 4);
  dib_ptr dib = made_dib(2, 8, [](auto x, auto y) {
    return Tzu_color{static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 0, 0};
  });
  draw(drwc, {0, 0, 4, 4}, dib);
  EXPECT_EQ(pixel(drwc, 4, 4, 1, 0), (rgba{0, 1, 0, 255}));
  EXPECT_EQ(pixel(drwc, 4, 4, 2, 3), (rgba{1, 7, 0, 255}));
}

// A row long enough for whole stretches and a rest, against the formula in real numbers.
TEST(image_context, draws_over_what_is_there_within_one_of_the_formula) {
  constexpr std::uint64_t nx = 263;
  for (int alpha : {0, 1, 127, 200, 255})
    for (int transparency : {0, 1, 100, 254, 255, -1}) {
      auto byte = [](std::uint64_t v) { return static_cast<std::uint8_t>(v); };
      auto a_of = [&](std::uint64_t x) {
        return byte(transparency < 0 ? x * 37 : static_cast<std::uint64_t>(transparency));
      };
      drwc_ptr drwc = made_picture(nx, 1);
      zu_drwc_fill(drwc.get(), {200, 100, 50, 0});
      draw(drwc, {0, 0, nx, 1},
           made_dib(nx, 1,
                    [&](auto x, auto) {
                      return Tzu_color{byte(x), byte(255 - x), byte(x * 3), a_of(x)};
                    }),
           static_cast<std::uint8_t>(alpha));
      std::vector<std::uint8_t> drawn(nx * 4);
      zu_drwc_get_pixels(drwc.get(), drawn.data());
      for (std::uint64_t x = 0; x < nx; ++x) {
        double share = (255 - a_of(x)) / 255.0 * alpha / 255.0;
        const double over[3] = {double(byte(x)), double(byte(255 - x)), double(byte(x * 3))};
        const double below[3] = {200, 100, 50};
        for (int c = 0; c < 3; ++c)
          ASSERT_NEAR(drawn[x * 4 + c], over[c] * share + below[c] * (1 - share), 1.0)
              << "alpha " << alpha << ", transparency " << transparency << ", x " << x;
        ASSERT_EQ(drawn[x * 4 + 3], 255);
      }
    }
}

TEST(image_context, half_over_nothing_is_half) {
  drwc_ptr drwc = made_picture(1, 1);
  dib_ptr dib = made_dib(1, 1, [](auto, auto) { return Tzu_color{200, 100, 0, 0}; });
  draw(drwc, {0, 0, 1, 1}, dib, 128, 1);
  rgba drawn = pixel(drwc, 1, 1, 0, 0);
  EXPECT_EQ(drawn.opacity, 128);
  EXPECT_NEAR(drawn.r, 200, 1);
  EXPECT_NEAR(drawn.g, 100, 1);
  draw(drwc, {0, 0, 1, 1}, dib, 128);
  EXPECT_NEAR(pixel(drwc, 1, 1, 0, 0).opacity, 192, 1);
}

TEST(image_context, gives_its_pixels_premultiplied_where_they_stand) {
  drwc_ptr drwc = made_picture(5, 2);
  dib_ptr dib = made_dib(1, 1, [](auto, auto) { return Tzu_color{255, 0, 0, 127}; });
  draw(drwc, {4, 1, 5, 2}, dib);
  std::uint64_t row_bytes = 0;
  const std::uint32_t* words = zu_drwc_get_argb(drwc.get(), &row_bytes);
  ASSERT_NE(words, nullptr);
  ASSERT_GE(row_bytes, 5 * sizeof(std::uint32_t));
  EXPECT_EQ(words[4], 0x80800000u) << "the top row is the first";
  EXPECT_EQ(words[row_bytes / 4 + 4], 0u);
  zu_drwc_fill(drwc.get(), {1, 2, 3, 0});
  EXPECT_EQ(zu_drwc_get_argb(drwc.get(), &row_bytes), words);
  EXPECT_EQ(words[row_bytes / 4 + 4], 0xff010203u);
  drwc_ptr document(zu_drwc_create_pdf(10, 10, 96));
  EXPECT_EQ(zu_drwc_get_argb(document.get(), &row_bytes), nullptr);
  EXPECT_EQ(zu_drwc_get_argb(nullptr, &row_bytes), nullptr);
}

TEST(image_context, has_ink_where_any_pixel_shows) {
  drwc_ptr drwc = made_picture(9, 9);
  EXPECT_FALSE(zu_drwc_has_ink(drwc.get()));
  draw(drwc, {0, 8, 8, 9}, made_dib(8, 1, [](auto, auto) { return Tzu_color{0, 0, 0, 254}; }));
  EXPECT_TRUE(zu_drwc_has_ink(drwc.get()));
}

TEST(image_context, filling_replaces_the_page_whatever_the_clip) {
  drwc_ptr drwc = made_picture(4, 4);
  ov_ptr polygon(zu_ov_d2_create());
  zu_drwc_fill(drwc.get(), {1, 2, 3, 0});
  zu_drwc_set_clip_pgn(drwc.get(), 0, polygon.get());
  zu_drwc_fill(drwc.get(), {10, 20, 30, 0});
  EXPECT_EQ(pixel(drwc, 4, 4, 3, 3), (rgba{10, 20, 30, 255}));
  zu_drwc_fill(drwc.get(), {10, 20, 30, 255});
  EXPECT_FALSE(zu_drwc_has_ink(drwc.get()));
}

TEST(image_context, a_dib_without_pixels_draws_nothing) {
  drwc_ptr drwc = made_picture(4, 4);
  draw(drwc, {0, 0, 4, 4}, dib_ptr(zu_dib_create()));
  EXPECT_FALSE(zu_drwc_has_ink(drwc.get()));
}

// --- Clip

void add_ring(Tzu_ov_d2* set, std::initializer_list<Tzu_vtx_d2> ring) {
  Tzu_pv_d2* list = zu_ov_d2_add(set);
  for (const Tzu_vtx_d2& v : ring) zu_pv_d2_add_vtx(list, &v);
}

dib_ptr red(std::uint64_t side) {
  return made_dib(side, side, [](auto, auto) { return Tzu_color{255, 0, 0, 0}; });
}

TEST(clip, only_the_inside_of_the_polygon_is_drawn_and_a_ring_inside_is_a_hole) {
  drwc_ptr drwc = made_picture(20, 20);
  ov_ptr polygon(zu_ov_d2_create());
  add_ring(polygon.get(), {{2, 2}, {18, 2}, {18, 10}, {2, 10}});
  add_ring(polygon.get(), {{5, 4}, {8, 4}, {8, 6}, {5, 6}});
  zu_drwc_set_clip_pgn(drwc.get(), 0, polygon.get());
  draw(drwc, {0, 0, 20, 20}, red(20));
  rgba full{255, 0, 0, 255};
  EXPECT_EQ(pixel(drwc, 20, 20, 2, 2), full);
  EXPECT_EQ(pixel(drwc, 20, 20, 17, 9), full);
  EXPECT_EQ(pixel(drwc, 20, 20, 1, 5), nothing);
  EXPECT_EQ(pixel(drwc, 20, 20, 10, 10), nothing);
  EXPECT_EQ(pixel(drwc, 20, 20, 6, 5), nothing);
  EXPECT_EQ(pixel(drwc, 20, 20, 8, 5), full);
}

TEST(clip, is_over_when_it_is_taken_away) {
  drwc_ptr drwc = made_picture(20, 20);
  ov_ptr polygon(zu_ov_d2_create());
  add_ring(polygon.get(), {{0, 0}, {1, 0}, {1, 1}, {0, 1}});
  zu_drwc_set_clip_pgn(drwc.get(), 0, polygon.get());
  zu_drwc_set_clip_none(drwc.get());
  draw(drwc, {0, 0, 20, 20}, red(20));
  EXPECT_EQ(pixel(drwc, 20, 20, 19, 19), (rgba{255, 0, 0, 255}));
}

TEST(clip, a_slanting_edge_is_smooth) {
  drwc_ptr drwc = made_picture(20, 20);
  ov_ptr polygon(zu_ov_d2_create());
  add_ring(polygon.get(), {{0, 0}, {20, 0}, {20, 20}});
  zu_drwc_set_clip_pgn(drwc.get(), 0, polygon.get());
  draw(drwc, {0, 0, 20, 20}, red(20));
  EXPECT_NEAR(pixel(drwc, 20, 20, 10, 10).opacity, 128, 16);
}

TEST(clip, a_polygon_that_reaches_far_beyond_the_page_holds_the_same_inside) {
  for (double far : {1e4, 1e8, 1e12, 1e200}) {
    drwc_ptr drwc = made_picture(20, 20);
    ov_ptr polygon(zu_ov_d2_create());
    add_ring(polygon.get(), {{-far, -far}, {10, -far}, {10, far}, {-far, far}});
    zu_drwc_set_clip_pgn(drwc.get(), 0, polygon.get());
    draw(drwc, {0, 0, 20, 20}, red(20));
    EXPECT_EQ(pixel(drwc, 20, 20, 9, 10), (rgba{255, 0, 0, 255})) << far;
    EXPECT_EQ(pixel(drwc, 20, 20, 10, 10), nothing) << far;
  }
}

TEST(clip, vertices_that_are_not_finite_are_left_out) {
  drwc_ptr drwc = made_picture(20, 20);
  ov_ptr polygon(zu_ov_d2_create());
  add_ring(polygon.get(), {{0, 0}, {std::nan(""), 3}, {10, 0}, {10, 20}, {5, HUGE_VAL}, {0, 20}});
  zu_drwc_set_clip_pgn(drwc.get(), 0, polygon.get());
  draw(drwc, {0, 0, 20, 20}, red(20));
  EXPECT_EQ(pixel(drwc, 20, 20, 9, 10), (rgba{255, 0, 0, 255}));
  EXPECT_EQ(pixel(drwc, 20, 20, 10, 10), nothing);
}

}  // namespace
}  // namespace zu::test
