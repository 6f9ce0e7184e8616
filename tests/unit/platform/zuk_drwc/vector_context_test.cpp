#include <cmath>

#include "platform/zuk_styles/symbols.h"
#include "tests/unit/platform/zuk_drwc/saved_document.h"

namespace zu::test {
namespace {

drwc_ptr pdf_page(double width = 100, double height = 50, double dpi = 254) {
  return drwc_ptr(zu_drwc_create_pdf(width, height, dpi));
}
drwc_ptr svg_page(double width = 100, double height = 50, double dpi = 254) {
  return drwc_ptr(zu_drwc_create_svg(width, height, dpi));
}

void draw_cross(const drwc_ptr& drwc) {
  ov_ptr set(zu_ov_d2_create());
  for (auto [a, b] : {std::pair{Tzu_vtx_d2{10, 10}, Tzu_vtx_d2{90, 40}}, {{10, 40}, {90, 10}}}) {
    Tzu_pv_d2* list = zu_ov_d2_add(set.get());
    zu_pv_d2_add_vtx(list, &a);
    zu_pv_d2_add_vtx(list, &b);
  }
  Tzu_pln_style style;
  style.line.width = 1;
  style.line.color = {255, 0, 0, 0};
  zu_drwc_draw_pln(drwc.get(), set.get(), &style);
}

dib_ptr plain_dib(std::uint64_t nx, std::uint64_t ny, std::uint8_t transparency = 0) {
  return made_dib(nx, ny, [&](auto, auto) { return Tzu_color{0, 128, 255, transparency}; });
}

using vector_context = saved_document;

TEST_F(vector_context, a_page_has_the_size_asked_for_and_is_accurate) {
  for (const drwc_ptr& drwc : {pdf_page(210, 297, 300), svg_page(210, 297, 300)}) {
    Tzu_box_d2 page;
    zu_drwc_get_page(drwc.get(), &page);
    EXPECT_DOUBLE_EQ(page.x1, 210);
    EXPECT_DOUBLE_EQ(page.y1, 297);
    EXPECT_TRUE(zu_drwc_is_accurate(drwc.get()));
    std::uint64_t nx, ny;
    zu_drwc_get_dib_size(drwc.get(), &page, &nx, &ny);
    EXPECT_EQ(nx, 2480u);  // 210 / 25.4 * 300 = 2480.3
    EXPECT_EQ(ny, 3508u);  // 3507.9
  }
}

TEST_F(vector_context, a_large_page_has_more_dots_than_a_picture_may_have) {
  std::uint64_t nx, ny;
  drwc_ptr drwc = pdf_page(1189, 841, 1200);
  Tzu_box_d2 page;
  zu_drwc_get_page(drwc.get(), &page);
  zu_drwc_get_dib_size(drwc.get(), &page, &nx, &ny);
  EXPECT_EQ(nx, 56173u);
}

TEST_F(vector_context, a_page_that_no_reader_opens_is_not_made) {
  for (auto make : {&zu_drwc_create_pdf, &zu_drwc_create_svg}) {
    EXPECT_EQ(make(0, 50, 300), nullptr);
    EXPECT_EQ(make(50, -1, 300), nullptr);
    EXPECT_EQ(make(5081, 50, 300), nullptr);
    EXPECT_EQ(make(50, std::nan(""), 300), nullptr);
    EXPECT_EQ(make(50, 50, 0), nullptr);
    EXPECT_EQ(make(50, 50, 9601), nullptr);
    EXPECT_EQ(make(50, 50, std::nan("")), nullptr);
  }
}

TEST_F(vector_context, lines_stay_lines_in_a_pdf) {
  drwc_ptr drwc = pdf_page();
  draw_cross(drwc);
  std::string pdf = content(drwc, "lines.pdf"), drawn = operators_of(pdf);
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_EQ(count_of(pdf, "/Subtype /Image"), 0);
  EXPECT_EQ(count_of(drawn, " m "), 2) << drawn;
  EXPECT_EQ(count_of(drawn, " l "), 2) << drawn;
  EXPECT_NE(drawn.find("1 0 0 RG"), std::string::npos) << drawn;
  EXPECT_NE(drawn.find("2.834646 w"), std::string::npos) << drawn;  // 1 mm in points
}

TEST_F(vector_context, lines_stay_lines_in_an_svg) {
  drwc_ptr drwc = svg_page();
  draw_cross(drwc);
  std::string svg = content(drwc, "lines.svg");
  EXPECT_NE(svg.find("<svg"), std::string::npos);
  EXPECT_EQ(count_of(svg, "<path"), 1) << svg;
  EXPECT_EQ(count_of(svg, "<image"), 0);
  EXPECT_NE(svg.find("M 100.004232 400.003147 L 899.996745 100.004232 M"), std::string::npos)
      << "dots of a tenth of a millimetre, on Cairo's 256th of a point\n"
      << svg;
}

TEST_F(vector_context, a_bitmap_becomes_one_image_of_its_own_pixels) {
  drwc_ptr pdf = pdf_page(), svg = svg_page();
  for (const drwc_ptr& drwc : {std::cref(pdf), std::cref(svg)})
    draw(drwc, {10, 10, 17, 13}, plain_dib(70, 30));
  std::string bytes = content(pdf, "image.pdf");
  EXPECT_EQ(count_of(bytes, "/Subtype /Image"), 1);
  EXPECT_NE(bytes.find("/Width 70"), std::string::npos);
  EXPECT_NE(bytes.find("/Height 30"), std::string::npos);
  EXPECT_EQ(bytes.find("/Interpolate true"), std::string::npos);
  EXPECT_EQ(bytes.find("/SMask"), std::string::npos) << "an opaque image needs no mask";
  bytes = content(svg, "image.svg");
  EXPECT_EQ(count_of(bytes, "<image"), 1);
  EXPECT_NE(bytes.find("width=\"70\""), std::string::npos);
}

TEST_F(vector_context, a_translucent_bitmap_has_a_mask_and_an_invisible_one_is_left_out) {
  drwc_ptr half = pdf_page(), none = pdf_page();
  draw(half, {0, 0, 1, 1}, plain_dib(10, 10, 100));
  draw(none, {0, 0, 1, 1}, plain_dib(10, 10, 255));
  draw(none, {0, 0, 1, 1}, plain_dib(10, 10), 0);
  draw(none, {200, 0, 201, 1}, plain_dib(10, 10));
  EXPECT_FALSE(zu_drwc_has_ink(none.get()));
  EXPECT_TRUE(zu_drwc_has_ink(half.get()));
  EXPECT_EQ(count_of(content(half, "half.pdf"), "/SMask"), 1);
  EXPECT_EQ(count_of(content(none, "none.pdf"), "/Subtype /Image"), 0);
}

TEST_F(vector_context, what_lies_off_the_page_is_not_in_the_file) {
  drwc_ptr drwc = pdf_page();
  draw(drwc, {-10, -10, 110, 60}, plain_dib(1200, 700));
  std::string bytes = content(drwc, "cut.pdf");
  EXPECT_NE(bytes.find("/Width 1000"), std::string::npos);
  EXPECT_NE(bytes.find("/Height 500"), std::string::npos);
}

TEST_F(vector_context, a_piece_reaches_a_dot_under_the_next_one_where_it_is_opaque) {
  for (auto [transparency, masked] : {std::pair{0, false}, {100, true}}) {
    drwc_ptr drwc = pdf_page();
    const Tzu_box_d2 region{10, 10, 20, 20};
    zu_drwc_set_region(drwc.get(), &region);
    draw(drwc, {9, 9, 22, 22}, plain_dib(130, 130, static_cast<std::uint8_t>(transparency)));
    std::string bytes = content(drwc, "piece.pdf");
    EXPECT_NE(bytes.find("/Width 101"), std::string::npos);
    EXPECT_NE(bytes.find("/Height 101"), std::string::npos);
    EXPECT_EQ(bytes.find("/SMask") != std::string::npos, masked);
    std::string row_of_mask = std::string(100, static_cast<char>(155)) + '\0';
    EXPECT_EQ(count_of(operators_of(bytes), row_of_mask), masked ? 100 : 0);
  }
}

TEST_F(vector_context, is_written_under_its_own_ending_alone_and_can_be_saved_again) {
  drwc_ptr pdf = pdf_page(), svg = svg_page();
  EXPECT_EQ(save(pdf, folder_ / "a.svg"), L"the name of this page must end in .pdf");
  EXPECT_EQ(save(svg, folder_ / "a.png"), L"the name of this page must end in .svg");
  EXPECT_EQ(save(pdf, folder_ / "none" / "a.pdf"), L"no such folder");
  EXPECT_EQ(save(made_picture(3, 3), folder_ / "a.pdf"), L"unknown kind of picture: .pdf");
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
  EXPECT_EQ(save(pdf, folder_ / "A.PDF"), L"");
  std::string first = bytes_of(folder_ / "A.PDF");
  draw_cross(pdf);
  EXPECT_EQ(save(pdf, folder_ / "b.pdf"), L"");
  EXPECT_EQ(bytes_of(folder_ / "b.pdf"), first);
}

TEST_F(vector_context, an_older_file_stays_where_the_new_one_cannot_be_written) {
  drwc_ptr drwc = pdf_page();
  std::filesystem::create_directory(folder_ / "a.pdf");
  EXPECT_EQ(save(drwc, folder_ / "a.pdf"), L"is a folder");
  EXPECT_TRUE(std::filesystem::is_directory(folder_ / "a.pdf"));
}

TEST_F(vector_context, has_no_pixels_to_give) {
  std::uint8_t untouched = 77;
  drwc_ptr drwc = svg_page();
  draw_cross(drwc);
  zu_drwc_get_pixels(drwc.get(), &untouched);
  EXPECT_EQ(untouched, 77);
  EXPECT_TRUE(zu_drwc_has_ink(drwc.get()));
}

TEST_F(vector_context, a_clip_and_a_background_are_in_the_file) {
  drwc_ptr drwc = svg_page();
  zu_drwc_fill(drwc.get(), {255, 255, 255, 0});
  ov_ptr polygon(zu_ov_d2_create());
  Tzu_pv_d2* ring = zu_ov_d2_add(polygon.get());
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{10, 10}, {50, 10}, {50, 40}}) zu_pv_d2_add_vtx(ring, &v);
  zu_drwc_set_clip_pgn(drwc.get(), 0, polygon.get());
  draw_cross(drwc);
  zu_drwc_set_clip_none(drwc.get());
  std::string svg = content(drwc, "clip.svg");
  EXPECT_EQ(count_of(svg, "<rect"), 1) << svg;
  EXPECT_GE(count_of(svg, "<clipPath"), 1) << svg;
}

}  // namespace
}  // namespace zu::test
