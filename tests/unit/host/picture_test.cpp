#include "host/core/picture.h"

#include <gtest/gtest.h>

#include "host/core/texts.h"

namespace zu::host {
namespace {

void expect_box(const Tzu_box_d2& box, double x0, double y0, double x1, double y1) {
  EXPECT_DOUBLE_EQ(box.x0, x0);
  EXPECT_DOUBLE_EQ(box.y0, y0);
  EXPECT_DOUBLE_EQ(box.x1, x1);
  EXPECT_DOUBLE_EQ(box.y1, y1);
}

TEST(scene, a_box_is_widened_about_its_centre_to_the_shape_of_the_picture) {
  expect_box(widened({0, 0, 2, 1}, 100, 100), 0, -0.5, 2, 1.5);
  expect_box(widened({0, 0, 1, 2}, 100, 100), -0.5, 0, 1.5, 2);
  expect_box(widened({10, 10, 20, 20}, 200, 100), 5, 10, 25, 20);
}

TEST(scene, a_box_of_the_right_shape_keeps_its_numbers) {
  expect_box(widened({0.1, 0.2, 400.1, 300.2}, 400, 300), 0.1, 0.2, 400.1, 300.2);
}

TEST(texts, letters_of_every_length_come_back) {
  std::string text = "a \xd1\x91 \xe2\x82\xac \xf0\x9f\x97\xba";
  EXPECT_EQ(wide(text).size(), 7u);
  EXPECT_EQ(narrow(wide(text)), text);
}

}  // namespace
}  // namespace zu::host
