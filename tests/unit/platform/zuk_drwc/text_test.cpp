#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "tests/unit/platform/zuk_drwc/saved_document.h"

namespace zu::test {
namespace {

constexpr std::uint64_t side = 200;

/// The box of what is drawn on a picture of one pixel a millimetre, y upwards.
struct ink {
  int x0 = side, y0 = side, x1 = 0, y1 = 0;
};

ink ink_of(const drwc_ptr& drwc) {
  std::vector<std::uint8_t> rgba(side * side * 4);
  zu_drwc_get_pixels(drwc.get(), rgba.data());
  ink box;
  for (int y = 0; y < int(side); ++y)
    for (int x = 0; x < int(side); ++x) {
      if (rgba[((side - 1 - y) * side + x) * 4 + 3] < 64) continue;
      box.x0 = std::min(box.x0, x), box.x1 = std::max(box.x1, x + 1);
      box.y0 = std::min(box.y0, y), box.y1 = std::max(box.y1, y + 1);
    }
  return box;
}

drwc_ptr with_text(double x, double y, double height, int anchor, const wchar_t* text) {
  drwc_ptr drwc = made_picture(side, side);
  zu_drwc_draw_text_w(drwc.get(), x, y, height, anchor, {0, 0, 0, 0}, text);
  return drwc;
}

TEST(text, the_anchor_is_a_point_of_the_base_line_or_of_the_capitals) {
  // Capitals of DejaVu Sans are 0.729 of its size.
  struct {
    int anchor;
    double left, low;  // of the ink, relative to the place: shares of its width and height
  } rows[] = {{zu_anchor_low_left, 0, 0},          {zu_anchor_low_center, 0.5, 0},
              {zu_anchor_low_right, 1, 0},         {zu_anchor_middle_left, 0, 0.5},
              {zu_anchor_middle_center, 0.5, 0.5}, {zu_anchor_middle_right, 1, 0.5},
              {zu_anchor_high_left, 0, 1},         {zu_anchor_high_center, 0.5, 1},
              {zu_anchor_high_right, 1, 1}};
  for (const auto& row : rows) {
    drwc_ptr drwc = with_text(100, 100, 40, row.anchor, L"HH");
    double width = zu_drwc_text_size_w(drwc.get(), 40, L"HH"), height = 40 * 0.729;
    ink box = ink_of(drwc);
    EXPECT_NEAR(box.y0, 100 - row.low * height, 1) << row.anchor;
    EXPECT_NEAR(box.y1 - box.y0, height, 1) << row.anchor;
    double bearing = 40 * 0.098;  // beside the letter's stems
    EXPECT_NEAR(box.x0, 100 - row.left * width + bearing, 1.5) << row.anchor;
    EXPECT_NEAR(box.x1, 100 + (1 - row.left) * width - bearing, 1.5) << row.anchor;
  }
}

TEST(text, has_the_same_width_in_every_context_and_follows_its_size) {
  const wchar_t* text = L"Шкала, м";
  drwc_ptr coarse = made_picture(10, 10), fine(zu_drwc_create_image(10, 10, 1200, true));
  drwc_ptr pdf(zu_drwc_create_pdf(50, 50, 300));
  double width = zu_drwc_text_size_w(coarse.get(), 10, text);
  EXPECT_NEAR(width, 50, 5);
  EXPECT_NEAR(zu_drwc_text_size_w(fine.get(), 10, text), width, 0.05);
  EXPECT_NEAR(zu_drwc_text_size_w(pdf.get(), 10, text), width, 0.05);
  EXPECT_NEAR(zu_drwc_text_size_w(coarse.get(), 20, text), 2 * width, 0.05);
  EXPECT_EQ(zu_drwc_text_size_w(coarse.get(), 10, L""), 0);
}

TEST(text, stands_in_its_colour) {
  drwc_ptr drwc = made_picture(side, side);
  zu_drwc_draw_text_w(drwc.get(), 10, 10, 150, zu_anchor_low_left, {10, 200, 30, 0}, L"I");
  ink box = ink_of(drwc);
  auto middle = [](int a, int b) { return static_cast<std::uint64_t>((a + b) / 2); };
  EXPECT_EQ(pixel(drwc, side, side, middle(box.x0, box.x1), middle(box.y0, box.y1)),
            (rgba{10, 200, 30, 255}));
}

TEST(text, what_cannot_be_drawn_draws_nothing) {
  const double nan = std::nan("");
  struct {
    double x, y, height;
    int anchor;
    const wchar_t* text;
  } rows[] = {{nan, 10, 10, 0, L"a"},   {10, HUGE_VAL, 10, 0, L"a"}, {10, 10, 0, 0, L"a"},
              {10, 10, -5, 0, L"a"},    {10, 10, nan, 0, L"a"},      {10, 10, 1e9, 0, L"a"},
              {10, 10, 10, 9, L"a"},    {10, 10, 10, -1, L"a"},      {10, 10, 10, 0, L""},
              {10, 10, 10, 0, nullptr}, {1e300, 10, 10, 0, L"a"}};
  for (const auto& row : rows)
    EXPECT_FALSE(zu_drwc_has_ink(with_text(row.x, row.y, row.height, row.anchor, row.text).get()))
        << row.x << " " << row.y << " " << row.height << " " << row.anchor;
  drwc_ptr drwc = made_picture(side, side);
  EXPECT_EQ(zu_drwc_text_size_w(drwc.get(), nan, L"a"), 0);
  EXPECT_EQ(zu_drwc_text_size_w(nullptr, 10, L"a"), 0);
}

TEST(text, is_one_line_whatever_it_holds) {
  drwc_ptr drwc = with_text(10, 100, 10, zu_anchor_low_left, L"H\nH\x110000");
  ink box = ink_of(drwc);
  EXPECT_GT(box.x1, box.x0);
  EXPECT_LT(box.y1 - box.y0, 15);
}

TEST(text, is_cut_by_the_region) {
  drwc_ptr drwc = made_picture(side, side);
  const Tzu_box_d2 region{0, 0, 50, 200};
  zu_drwc_set_region(drwc.get(), &region);
  zu_drwc_draw_text_w(drwc.get(), 10, 100, 40, zu_anchor_low_left, {0, 0, 0, 0}, L"HHHH");
  EXPECT_EQ(ink_of(drwc).x1, 50);
}

class text_of_documents : public saved_document {};

TEST_F(text_of_documents, stays_text_in_a_pdf_and_outlines_in_an_svg) {
  drwc_ptr pdf(zu_drwc_create_pdf(100, 50, 300)), svg(zu_drwc_create_svg(100, 50, 300));
  zu_drwc_draw_text_w(pdf.get(), 10, 10, 5, 0, {0, 0, 0, 0}, L"1234");
  zu_drwc_draw_text_w(svg.get(), 10, 10, 5, 0, {0, 0, 0, 0}, L"1234");
  std::string bytes = content(pdf, "text.pdf"), drawn = operators_of(bytes);
  EXPECT_NE(bytes.find("DejaVuSans"), std::string::npos);
  EXPECT_EQ(count_of(drawn, "BT\n"), 1) << drawn;
  EXPECT_EQ(count_of(bytes, "/Subtype /Image"), 0);
  EXPECT_EQ(count_of(content(svg, "text.svg"), "<use "), 4);
}

class objects : public saved_document {};

TEST_F(objects, a_pdf_lists_each_once_inside_its_outer_one) {
  drwc_ptr drwc(zu_drwc_create_pdf(100, 50, 300));
  for (int k = 0; k < 2; ++k) {
    zu_drwc_beg_object_w(drwc.get(), L"outer");
    zu_drwc_beg_object_w(drwc.get(), L"inner");
    zu_drwc_end_object_w(drwc.get(), L"outer");  // not the innermost one: no effect
    zu_drwc_end_object_w(drwc.get(), L"inner");
    zu_drwc_beg_object_w(drwc.get(), L"inner");  // inside the outer one, which is still open
    zu_drwc_end_object_w(drwc.get(), L"inner");
    zu_drwc_end_object_w(drwc.get(), L"outer");
    zu_drwc_end_object_w(drwc.get(), L"never begun");
  }
  std::string bytes = content(drwc, "objects.pdf");
  EXPECT_EQ(count_of(bytes, "/Title (outer)"), 1) << bytes;
  EXPECT_EQ(count_of(bytes, "/Title (inner)"), 1);
}

TEST_F(objects, leave_other_contexts_as_they_are) {
  drwc_ptr drwc = made_picture(4, 4);
  zu_drwc_beg_object_w(drwc.get(), L"a");
  draw(drwc, {0, 0, 4, 4}, made_dib(4, 4, [](auto, auto) { return Tzu_color{1, 2, 3, 0}; }));
  zu_drwc_end_object_w(drwc.get(), nullptr);
  zu_drwc_end_object_w(nullptr, L"a");
  EXPECT_EQ(pixel(drwc, 4, 4, 3, 3), (rgba{1, 2, 3, 255}));
}

}  // namespace
}  // namespace zu::test
