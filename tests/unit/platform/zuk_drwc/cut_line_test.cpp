#include "platform/zuk_drwc/cut_line.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zu::platform {
namespace {

constexpr Tzu_box_d2 box{0, 0, 10, 10};
using points = std::vector<Tzu_vtx_d2>;

std::vector<line_piece> cut(const points& line) { return cut_line(line.data(), line.size(), box); }

void expect_points(const line_piece& piece, const points& expected) {
  ASSERT_EQ(piece.vertices.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(piece.vertices[i].x, expected[i].x, 1e-9) << i;
    EXPECT_NEAR(piece.vertices[i].y, expected[i].y, 1e-9) << i;
  }
}

TEST(cut_line, keeps_what_is_inside_and_cuts_at_the_sides) {
  struct {
    points line, expected;
    double start;
  } rows[] = {
      {{{1, 1}, {9, 1}, {9, 9}}, {{1, 1}, {9, 1}, {9, 9}}, 0},
      {{{-4, 5}, {14, 5}}, {{0, 5}, {10, 5}}, 4},
      {{{5, 14}, {5, 2}, {1, 2}}, {{5, 10}, {5, 2}, {1, 2}}, 4},
      {{{-3, -4}, {3, 4}}, {{0, 0}, {3, 4}}, 5},
      {{{20, 0}, {20, 5}, {5, 5}}, {{10, 5}, {5, 5}}, 15},
  };
  for (const auto& row : rows) {
    std::vector<line_piece> pieces = cut(row.line);
    ASSERT_EQ(pieces.size(), 1u);
    expect_points(pieces[0], row.expected);
    EXPECT_NEAR(pieces[0].start, row.start, 1e-9);
    EXPECT_FALSE(pieces[0].closed);
  }
}

TEST(cut_line, a_line_that_leaves_and_comes_back_has_a_piece_for_each_time) {
  std::vector<line_piece> pieces = cut({{5, 5}, {15, 5}, {15, 8}, {5, 8}});
  ASSERT_EQ(pieces.size(), 2u);
  expect_points(pieces[0], {{5, 5}, {10, 5}});
  expect_points(pieces[1], {{10, 8}, {5, 8}});
  EXPECT_EQ(pieces[1].start, 18);
}

TEST(cut_line, what_misses_the_box_has_no_piece) {
  for (const points& line : {points{}, {{5, 5}}, {{-5, 5}, {4, 20}}, {{20, 0}, {20, 10}}})
    EXPECT_TRUE(cut(line).empty());
}

TEST(cut_line, a_vertex_that_is_not_finite_breaks_the_line) {
  std::vector<line_piece> pieces = cut({{1, 1}, {2, 1}, {NAN, 1}, {3, 1}, {4, 1}, {INFINITY, 1}});
  ASSERT_EQ(pieces.size(), 2u);
  expect_points(pieces[0], {{1, 1}, {2, 1}});
  expect_points(pieces[1], {{3, 1}, {4, 1}});
}

TEST(cut_line, a_whole_ring_is_closed_and_a_cut_one_goes_on_over_its_first_vertex) {
  std::vector<line_piece> whole = cut({{1, 1}, {9, 1}, {9, 9}, {1, 1}});
  ASSERT_EQ(whole.size(), 1u);
  EXPECT_TRUE(whole[0].closed);
  std::vector<line_piece> pieces = cut({{5, 5}, {15, 5}, {15, 8}, {5, 8}, {5, 5}});
  ASSERT_EQ(pieces.size(), 1u);
  expect_points(pieces[0], {{10, 8}, {5, 8}, {5, 5}, {10, 5}});
  EXPECT_FALSE(pieces[0].closed);
}

}  // namespace
}  // namespace zu::platform
