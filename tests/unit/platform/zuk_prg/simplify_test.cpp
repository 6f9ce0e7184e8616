#include <gtest/gtest.h>

#include <vector>

#include "zu/platform/zuk_prg.h"

namespace {

std::vector<double> simplified_x(const std::vector<Tzu_vtx_d2>& vertices, double tolerance) {
  Tzu_pv_d2* list = zu_pv_d2_create();
  for (const Tzu_vtx_d2& v : vertices) zu_pv_d2_add_vtx(list, &v);
  Tzu_pv_d2* made = zu_pv_d2_chord_simplify(list, tolerance);
  std::vector<double> out;
  for (std::uint64_t i = 0; i < zu_pv_d2_get_size(made); ++i)
    out.push_back(zu_pv_d2_get_arr(made)[i].x);
  EXPECT_EQ(zu_pv_d2_get_size(list), vertices.size()) << "the list itself is left alone";
  zu_pv_d2_destroy(made);
  zu_pv_d2_destroy(list);
  return out;
}

using xs = std::vector<double>;

TEST(chord_simplify, keeps_what_is_further_off_the_chord_than_the_tolerance) {
  const std::vector<Tzu_vtx_d2> line = {{0, 0}, {1, 1.9}, {2, 0}, {3, 2.1}, {4, 0}};
  EXPECT_EQ(simplified_x(line, 2.0), (xs{0, 3, 4}));
  EXPECT_EQ(simplified_x(line, 0.1), (xs{0, 1, 2, 3, 4}));
  EXPECT_EQ(simplified_x(line, 10), (xs{0, 4}));
}

TEST(chord_simplify, drops_what_lies_on_the_chord) {
  EXPECT_EQ(simplified_x({{0, 0}, {1, 1}, {2, 2}, {3, 3}}, 0), (xs{0, 3}));
}

TEST(chord_simplify, of_a_line_that_comes_back_keeps_its_far_end) {
  EXPECT_EQ(simplified_x({{0, 0}, {50, 0}, {100, 0}, {0, 0}}, 2), (xs{0, 100, 0}));
  EXPECT_EQ(simplified_x({{0, 0}, {100, 0}, {50, 0}}, 2), (xs{0, 100, 50})) << "beyond the chord";
}

TEST(chord_simplify, short_lists_stay_as_they_are) {
  EXPECT_EQ(simplified_x({}, 2), xs{});
  EXPECT_EQ(simplified_x({{7, 7}}, 2), xs{7});
  EXPECT_EQ(simplified_x({{7, 7}, {7, 7}}, 2), (xs{7, 7}));
  EXPECT_EQ(zu_pv_d2_chord_simplify(nullptr, 2), nullptr);
}

TEST(chord_simplify, takes_long_lines) {
  std::vector<Tzu_vtx_d2> line;
  for (int i = 0; i < 200000; ++i) line.push_back({static_cast<double>(i), i % 2 * 10.0});
  EXPECT_EQ(simplified_x(line, 20).size(), 2U);
}

TEST(vertex_list, is_empty_again_when_cleared) {
  Tzu_pv_d2* list = zu_pv_d2_create();
  Tzu_vtx_d2 v{1, 2};
  zu_pv_d2_add_vtx(list, &v);
  zu_pv_d2_clear(list);
  EXPECT_EQ(zu_pv_d2_get_size(list), 0U);
  zu_pv_d2_clear(nullptr);
  zu_pv_d2_destroy(list);
}

}  // namespace
