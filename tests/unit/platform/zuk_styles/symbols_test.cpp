#include "platform/zuk_styles/symbols.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_styles/parameters.h"

namespace zu::test {
namespace {

using platform::owned;
using platform::text_of;

bool same(Tzu_color a, Tzu_color b) { return a.r == b.r && a.g == b.g && a.b == b.b && a.a == b.a; }

std::wstring family_of(const Tzu_fnt_type* font) {
  return text_of([&](Tzu_string_adp* a) { zu_fnt_type_get_wname(font, a); });
}

TEST(symbols, a_new_point_is_a_gray_circle_of_2_mm_and_null_says_the_same) {
  owned<zu_pnt_style_destroy> point(zu_pnt_style_create());
  for (const Tzu_bpnt_style* part :
       {static_cast<const Tzu_bpnt_style*>(zu_pnt_style_get_bpnt_style_ptr(point.get())),
        static_cast<const Tzu_bpnt_style*>(nullptr)}) {
    EXPECT_TRUE(zu_bpnt_style_get_use_figure(part));
    EXPECT_EQ(zu_bpnt_style_get_figure(part), zu_figure_circle);
    EXPECT_EQ(zu_bpnt_style_get_size(part), 2.0);
    EXPECT_TRUE(same(zu_bpnt_style_get_color(part), {128, 128, 128, 0}));
    EXPECT_EQ(family_of(zu_bpnt_style_get_fnt_type(part)), L"DejaVu Sans");
  }
}

TEST(symbols, a_new_line_is_black_solid_and_bears_nothing) {
  owned<zu_pln_style_destroy> line(zu_pln_style_create());
  const Tzu_bpln_style* part = zu_pln_style_get_bpln_style_ptr(line.get());
  EXPECT_TRUE(zu_pln_style_get_pln_visible(line.get()));
  EXPECT_FALSE(zu_pln_style_get_pnt_visible(line.get()));
  EXPECT_FALSE(zu_pln_style_get_beg_visible(line.get()));
  EXPECT_FALSE(zu_pln_style_get_end_visible(line.get()));
  EXPECT_FALSE(zu_pln_style_get_num_visible(line.get()));
  EXPECT_EQ(zu_bpln_style_get_width(part), 0.2);
  EXPECT_EQ(zu_bpln_style_get_cap_style(part), zu_cap_round);
  EXPECT_EQ(zu_bpln_style_get_join_style(part), zu_join_round);
  EXPECT_EQ(zu_bpln_style_get_dashes(part, nullptr), 0);
}

TEST(symbols, what_is_no_figure_cap_or_join_is_not_taken) {
  owned<zu_pln_style_destroy> line(zu_pln_style_create());
  Tzu_bpln_style* part = zu_pln_style_get_bpln_style_ptr(line.get());
  Tzu_bpnt_style* mark = zu_pln_style_get_bend_style_ptr(line.get());
  zu_bpln_style_set_cap_style(part, zu_cap_square);
  zu_bpln_style_set_join_style(part, zu_join_bevel);
  zu_bpnt_style_set_figure(mark, zu_figure_star);
  for (std::int32_t wrong : {-1, 3, 1000}) {
    zu_bpln_style_set_cap_style(part, wrong);
    zu_bpln_style_set_join_style(part, wrong);
  }
  for (std::int32_t wrong : {-1, 16}) zu_bpnt_style_set_figure(mark, wrong);
  EXPECT_EQ(zu_bpln_style_get_cap_style(part), zu_cap_square);
  EXPECT_EQ(zu_bpln_style_get_join_style(part), zu_join_bevel);
  EXPECT_EQ(zu_bpnt_style_get_figure(mark), zu_figure_star);
}

TEST(symbols, a_line_keeps_at_most_eight_dashes) {
  owned<zu_pln_style_destroy> line(zu_pln_style_create());
  Tzu_bpln_style* part = zu_pln_style_get_bpln_style_ptr(line.get());
  const double given[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  zu_bpln_style_set_dashes(part, 9, given);
  double taken[zu_line_dashes] = {};
  EXPECT_EQ(zu_bpln_style_get_dashes(part, taken), 8);
  EXPECT_EQ(taken[7], 8);
  zu_bpln_style_set_dashes(part, -1, given);
  EXPECT_EQ(zu_bpln_style_get_dashes(part, nullptr), 0);
  zu_bpln_style_set_dashes(part, 2, nullptr);
  EXPECT_EQ(zu_bpln_style_get_dashes(part, nullptr), 0);
}

TEST(symbols, a_copy_is_deep) {
  owned<zu_pgn_style_destroy> first(zu_pgn_style_create()), second(zu_pgn_style_create());
  Tzu_cpx_style* layers =
      zu_bpgn_style_get_complex_style(zu_pgn_style_get_bpgn_style_ptr(first.get()));
  std::get<Tzu_bpgn_style>(layers->add_layer("pgn_fill_slr")->style).color = {1, 2, 3, 4};
  owned<zu_fnt_type_destroy> font(zu_fnt_type_create());
  zu_fnt_type_set_wname(font.get(), L"Liberation Serif");
  zu_bpnt_style_set_fnt_type(zu_pgn_style_get_bpnt_style_ptr(first.get()), font.get());
  zu_pgn_style_assign(second.get(), first.get());
  zu_cpx_pgn_style_set_color(layers, {9, 9, 9, 9});
  zu_fnt_type_set_wname(font.get(), L"Other");

  Tzu_color color{};
  EXPECT_TRUE(zu_cpx_pgn_style_get_color(
      zu_bpgn_style_get_complex_style(zu_pgn_style_get_bpgn_style_ptr(second.get())), &color));
  EXPECT_TRUE(same(color, {1, 2, 3, 4}));
  EXPECT_EQ(family_of(zu_bpnt_style_get_fnt_type(zu_pgn_style_get_bpnt_style_ptr(second.get()))),
            L"Liberation Serif");
  zu_pgn_style_assign(second.get(), second.get());
  EXPECT_EQ(second->fill.complex.get()->layers.size(), 1u);
}

TEST(symbols, a_complex_style_is_made_when_it_is_asked_for) {
  owned<zu_pnt_style_destroy> point(zu_pnt_style_create()), copy(zu_pnt_style_create());
  EXPECT_EQ(point->point.complex.get(), nullptr);
  zu_pnt_style_assign(copy.get(), point.get());
  EXPECT_EQ(copy->point.complex.get(), nullptr);
  EXPECT_NE(zu_bpnt_style_get_complex_style(&point->point), nullptr);
  EXPECT_EQ(zu_bpnt_style_get_complex_style(nullptr), nullptr);
}

TEST(complex_styles, take_layers_of_their_kind_only) {
  struct {
    const char* kind;
    const char* layer;
    bool taken;
  } const rows[] = {{"pnt", "pnt_figr_slr", true},  {"pnt", "pnt_symb_slr", true},
                    {"pnt", "pln_line_slr", false}, {"pln", "pln_line_slr", true},
                    {"pln", "pgn_fill_slr", false}, {"pgn", "pgn_fill_slr", true},
                    {"pgn", "pnt_figr_slr", false}, {"pln", "pln_none_slr", false}};
  for (const auto& r : rows) {
    owned<zu_cpx_style_destroy> style(zu_cpx_style_create(r.kind));
    EXPECT_EQ(style->add_layer(r.layer) != nullptr, r.taken) << r.kind << ' ' << r.layer;
    EXPECT_EQ(style->layers.size(), r.taken ? 1u : 0u);
  }
  EXPECT_EQ(zu_cpx_style_create("txt"), nullptr);
  EXPECT_EQ(zu_cpx_style_create(nullptr), nullptr);
}

TEST(complex_styles, are_assigned_within_one_kind) {
  owned<zu_cpx_style_destroy> lines(zu_cpx_style_create("pln")), more(zu_cpx_style_create("pln")),
      points(zu_cpx_style_create("pnt"));
  more->add_layer("pln_line_slr");
  zu_cpx_style_assign(lines.get(), more.get());
  EXPECT_EQ(lines->layers.size(), 1u);
  zu_cpx_style_assign(points.get(), more.get());
  EXPECT_EQ(points->layers.size(), 0u);
}

TEST(complex_styles, the_size_is_that_of_the_largest_and_scales_all) {
  owned<zu_cpx_style_destroy> style(zu_cpx_style_create("pnt"));
  EXPECT_EQ(zu_cpx_pnt_style_get_point_size(style.get()), 0);
  zu_cpx_pnt_style_set_point_size(style.get(), 5);
  for (double size : {2.0, 4.0}) {
    auto& point = std::get<Tzu_bpnt_style>(style->add_layer("pnt_figr_slr")->style);
    point.size = size, point.dx = 1;
  }
  EXPECT_EQ(zu_cpx_pnt_style_get_point_size(style.get()), 4);
  zu_cpx_pnt_style_set_point_size(style.get(), 8);
  auto size = [&](std::size_t i) { return std::get<Tzu_bpnt_style>(style->layers[i].style).size; };
  EXPECT_EQ(size(0), 4);
  EXPECT_EQ(size(1), 8);
  EXPECT_EQ(std::get<Tzu_bpnt_style>(style->layers[0].style).dx, 2);
  zu_cpx_pnt_style_set_point_size(style.get(), 0);
  zu_cpx_pnt_style_set_point_size(style.get(), 3);  // from nothing all take it
  EXPECT_EQ(size(0), 3);
  EXPECT_EQ(size(1), 3);

  owned<zu_cpx_style_destroy> line(zu_cpx_style_create("pln"));
  std::get<Tzu_bpln_style>(line->add_layer("pln_line_slr")->style).width = 1;
  std::get<Tzu_bpln_style>(line->add_layer("pln_line_slr")->style).width = 0.5;
  zu_cpx_pln_style_set_line_width(line.get(), 3);
  EXPECT_EQ(zu_cpx_pln_style_get_line_width(line.get()), 3);
  EXPECT_EQ(std::get<Tzu_bpln_style>(line->layers[1].style).width, 1.5);
}

TEST(complex_styles, draw_only_with_layers_and_when_they_are_used) {
  owned<zu_pln_style_destroy> style(zu_pln_style_create());
  Tzu_bpln_style& line = style->line;
  EXPECT_EQ(line.drawn_complex(), nullptr);
  zu_bpln_style_set_use_complex(&line, true);
  zu_bpln_style_get_complex_style(&line);
  EXPECT_EQ(line.drawn_complex(), nullptr);
  line.complex.made()->add_layer("pln_line_slr");
  EXPECT_NE(line.drawn_complex(), nullptr);
  zu_bpln_style_set_use_complex(&line, false);
  EXPECT_EQ(line.drawn_complex(), nullptr);
}

TEST(parameters, a_style_is_made_in_their_colour_and_takes_a_new_one) {
  platform::style_parameters prm;
  EXPECT_EQ(prm.more, nullptr);
  EXPECT_TRUE(same(zu_stl_prm_get_color(&prm, 1), {255, 255, 0, 0}));
  zu_stl_prm_clr_set_all(&prm, {1, 2, 3, 4}, 0);
  Tzu_pln_style* line = zu_stl_prm_get_pln_style_ptr(&prm, 0);
  EXPECT_TRUE(same(line->line.color, {1, 2, 3, 4}));
  EXPECT_EQ(zu_stl_prm_get_pln_style_ptr(&prm, 0), line);
  line->line.color = {5, 6, 7, 8};
  EXPECT_TRUE(same(zu_stl_prm_get_color(&prm, 0), {5, 6, 7, 8}));
  zu_stl_prm_clr_set_all(&prm, {9, 9, 9, 0}, 0);
  EXPECT_TRUE(same(line->line.color, {9, 9, 9, 0}));
  EXPECT_EQ(zu_stl_prm_get_pnt_style_ptr(nullptr, 0), nullptr);
  EXPECT_TRUE(same(zu_stl_prm_get_color(nullptr, 0), {0, 0, 0, 0}));
}

TEST(parameters, a_clone_is_a_style_of_its_own) {
  platform::style_parameters prm;
  zu_stl_prm_get_pgn_style_ptr(&prm, 1)->contour.width = 3;
  Tzu_stl_prm* clone = zu_stl_prm_clone(&prm);
  zu_stl_prm_get_pgn_style_ptr(&prm, 1)->contour.width = 4;
  EXPECT_EQ(zu_stl_prm_get_pgn_style_ptr(clone, 1)->contour.width, 3);
  zu_stl_prm_destroy(clone);
  zu_stl_prm_destroy(nullptr);
  EXPECT_EQ(zu_stl_prm_clone(nullptr), nullptr);
}

TEST(parameters, a_row_is_assigned_with_its_visibility) {
  platform::scale_row from, to;
  from.visible = false;
  zu_stl_prm_get_pnt_style_ptr(&from.style, 0)->point.size = 7;
  zu_scale_prm_assign(&to, &from);
  zu_scale_prm_assign(&to, &to);
  EXPECT_FALSE(to.visible);
  EXPECT_NE(to.style.more, from.style.more);
  EXPECT_EQ(zu_stl_prm_get_pnt_style_ptr(&to.style, 0)->point.size, 7);
}

}  // namespace
}  // namespace zu::test
