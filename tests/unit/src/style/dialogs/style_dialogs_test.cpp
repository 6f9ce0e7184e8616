#include "src/style/dialogs/style_dialogs.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "src/bundle/strings.h"
#include "tests/unit/src/style/dialogs/style_form.h"
#include "zu/platform/zuk_drwc.h"

namespace {

using namespace zu;
using owned_point = owned<zu_pnt_style_destroy>;
using owned_line = owned<zu_pln_style_destroy>;
using owned_polygon = owned<zu_pgn_style_destroy>;

constexpr std::int32_t shown = 14903, size_label = 10339, width_label = 10355;

std::vector<int> parts(Tzu_color c) { return {c.r, c.g, c.b, c.a}; }

/// A style as text: equal for equal styles.
std::wstring text_of_style(const Tzu_pnt_style* style) {
  return text_of(
      [&](Tzu_string_adp* a) { zu_xml_save_style_save_style_pnt_str(nullptr, style, a); });
}
std::wstring text_of_style(const Tzu_pln_style* style) {
  return text_of(
      [&](Tzu_string_adp* a) { zu_xml_save_style_save_style_pln_str(nullptr, style, a); });
}

/// A dialog on a style, seen through its elements.
template <class dialog, class style> struct opened {
  explicit opened(style* edited) { shown.set(edited); }
  dialog shown;
  tests::style_form form{shown.element()};
};
using point_dialog = opened<dialog::detail::point_style, Tzu_pnt_style>;
using line_dialog = opened<dialog::detail::line_style, Tzu_pln_style>;
using polygon_dialog = opened<dialog::detail::polygon_style, Tzu_pgn_style>;

class style_dialogs : public testing::Test {
 protected:
  std::wstring path(const char* name) {
    std::string narrow = folder_ / name;
    return {narrow.begin(), narrow.end()};
  }
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() / ("zu_styles_" + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
    // No libraries but those that a test makes.
    former_libs_ = zu_options_get_style_libs_path();
    zu_options_set_style_libs_path(path("libs").c_str());
    if (const char* former = std::getenv("XDG_DATA_HOME")) former_home_ = former;
    setenv("XDG_DATA_HOME", folder_.c_str(), 1);
  }
  void TearDown() override {
    zu_options_set_style_libs_path(former_libs_.c_str());
    former_home_.empty() ? unsetenv("XDG_DATA_HOME")
                         : setenv("XDG_DATA_HOME", former_home_.c_str(), 1);
    std::filesystem::remove_all(folder_);
  }

  tests::base_language language_;
  tests::answering person_;
  tests::held_clipboard clipboard_;
  std::filesystem::path folder_;
  std::wstring former_libs_;
  std::string former_home_;
  owned_point point_{zu_pnt_style_create()};
  owned_line line_{zu_pln_style_create()};
  owned_polygon polygon_{zu_pgn_style_create()};
};

TEST_F(style_dialogs, a_point_is_edited_in_a_copy_that_comes_back_on_ok) {
  Tzu_bpnt_style* part = zu_pnt_style_get_bpnt_style_ptr(point_.get());
  zu_bpnt_style_set_dx(part, 1.5);
  point_dialog d(point_.get());
  EXPECT_TRUE(d.form.checked(shown));
  EXPECT_EQ(d.form.number(size_label), 2);
  EXPECT_EQ(d.form.number(10502), 1.5);
  d.form.check(shown, false);
  d.form.type(size_label, 3.5);
  d.form.type(10503, -2);
  d.form.type(10504, 45);
  person_.color = {1, 2, 3, 4};
  d.form.press(10338);
  EXPECT_EQ(zu_bpnt_style_get_size(part), 2);
  EXPECT_TRUE(zu_pnt_style_get_pnt_visible(point_.get()));
  EXPECT_TRUE(d.form.accept());
  EXPECT_EQ(zu_bpnt_style_get_size(part), 3.5);
  EXPECT_EQ(zu_bpnt_style_get_dx(part), 1.5);
  EXPECT_EQ(zu_bpnt_style_get_dy(part), -2);
  EXPECT_EQ(zu_bpnt_style_get_angle(part), 45);
  EXPECT_EQ(parts(zu_bpnt_style_get_color(part)), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(parts(person_.asked_color), (std::vector<int>{128, 128, 128, 0}));
  EXPECT_FALSE(zu_pnt_style_get_pnt_visible(point_.get()));
}

TEST_F(style_dialogs, cancel_changes_nothing) {
  std::wstring before = text_of_style(line_.get());
  line_dialog d(line_.get());
  d.form.type(width_label, 9);
  d.form.check(shown, false);
  EXPECT_TRUE(d.form.refuse());
  EXPECT_EQ(text_of_style(line_.get()), before);
}

TEST_F(style_dialogs, a_refused_colour_leaves_the_old_one) {
  point_dialog d(point_.get());
  person_.accepts = false;
  d.form.press(10338);
  d.form.accept();
  EXPECT_EQ(zu_bpnt_style_get_color(zu_pnt_style_get_bpnt_style_ptr(point_.get())).r, 128);
}

TEST_F(style_dialogs, a_character_takes_the_place_of_the_figure) {
  point_dialog d(point_.get());
  EXPECT_TRUE(d.form.checked(14901));
  d.form.check(14901, false);
  d.form.accept();
  EXPECT_FALSE(zu_bpnt_style_get_use_figure(zu_pnt_style_get_bpnt_style_ptr(point_.get())));
  point_dialog again(point_.get());
  EXPECT_FALSE(again.form.checked(14901));
}

TEST_F(style_dialogs, a_line_has_caps_and_joins_in_the_order_of_the_lists) {
  line_dialog d(line_.get());
  EXPECT_EQ(d.form.chosen(13501), 2);
  EXPECT_EQ(d.form.chosen(13502), 2);
  struct {
    std::int32_t item, cap, join;
  } const rows[] = {{0, zu_cap_butt, zu_join_miter},
                    {1, zu_cap_square, zu_join_bevel},
                    {2, zu_cap_round, zu_join_round}};
  for (const auto& r : rows) {
    d.form.choose(13501, r.item);
    d.form.choose(13502, r.item);
    d.form.accept();
    const Tzu_bpln_style* part = zu_pln_style_get_bpln_style_ptr(line_.get());
    EXPECT_EQ(zu_bpln_style_get_cap_style(part), r.cap);
    EXPECT_EQ(zu_bpln_style_get_join_style(part), r.join);
  }
}

TEST_F(style_dialogs, dashes_are_lengths_with_blanks_between) {
  Tzu_bpln_style* part = zu_pln_style_get_bpln_style_ptr(line_.get());
  const double given[] = {3, 0.25};
  zu_bpln_style_set_dashes(part, 2, given);
  line_dialog d(line_.get());
  EXPECT_EQ(d.form.line_of(14917), L"3 0.25");
  for (const wchar_t* wrong : {L"3 -1", L"a", L"3;2", L"0 0", L"1 inf", L"1 1 1 1 1 1 1 1 1"})
    EXPECT_FALSE(d.form.write(14917, wrong));
  struct {
    const wchar_t* text;
    std::vector<double> lengths;
  } const rows[] = {{L" 4  1,5 ", {4, 1.5}}, {L"0 1", {0, 1}}, {L"", {}}};
  for (const auto& r : rows) {
    EXPECT_TRUE(d.form.write(14917, r.text));
    d.form.accept();
    std::vector<double> taken(zu_line_dashes);
    taken.resize(static_cast<std::size_t>(zu_bpln_style_get_dashes(part, taken.data())));
    EXPECT_EQ(taken, r.lengths);
  }
}

TEST_F(style_dialogs, parts_of_a_line_are_shown_and_hidden_by_their_marks) {
  line_dialog d(line_.get());
  d.form.check(shown, false, 0);  // the line
  d.form.check(shown, true, 1);   // vertices
  d.form.check(shown, true, 2);   // the beginning
  d.form.check(shown, true, 3);   // the end
  d.form.check(shown, true, 4);   // numbers
  d.form.type(size_label, 5, 2);
  d.form.accept();
  EXPECT_FALSE(zu_pln_style_get_pln_visible(line_.get()));
  EXPECT_TRUE(zu_pln_style_get_pnt_visible(line_.get()));
  EXPECT_TRUE(zu_pln_style_get_beg_visible(line_.get()));
  EXPECT_TRUE(zu_pln_style_get_end_visible(line_.get()));
  EXPECT_TRUE(zu_pln_style_get_num_visible(line_.get()));
  EXPECT_EQ(zu_bpnt_style_get_size(zu_pln_style_get_bend_style_ptr(line_.get())), 5);
  EXPECT_EQ(zu_bpnt_style_get_size(zu_pln_style_get_bbeg_style_ptr(line_.get())), 2);
}

TEST_F(style_dialogs, the_direction_of_a_beginning_mark_is_that_of_the_end_mark_too) {
  line_dialog d(line_.get());
  EXPECT_TRUE(d.form.checked(10501));
  for (bool turn : {false, true}) {
    d.form.check(10501, turn);
    d.form.accept();
    EXPECT_EQ(zu_pln_style_get_beg_use_line_dir(line_.get()), turn);
    EXPECT_EQ(zu_pln_style_get_end_use_line_dir(line_.get()), turn);
  }
}

TEST_F(style_dialogs, parts_of_a_polygon_have_their_forms) {
  polygon_dialog d(polygon_.get());
  person_.color = {7, 8, 9, 0};
  d.form.press(10353);
  d.form.type(width_label, 1.25);
  d.form.check(shown, false, 0);  // the fill
  d.form.check(shown, false, 1);  // the contour
  d.form.check(shown, true, 2);   // vertices
  d.form.check(shown, true, 3);   // numbers
  d.form.type(size_label, 4, 1);
  d.form.accept();
  EXPECT_EQ(parts(zu_bpgn_style_get_color(zu_pgn_style_get_bpgn_style_ptr(polygon_.get()))),
            (std::vector<int>{7, 8, 9, 0}));
  EXPECT_EQ(zu_bpln_style_get_width(zu_pgn_style_get_bpln_style_ptr(polygon_.get())), 1.25);
  EXPECT_EQ(zu_bnum_style_get_size(zu_pgn_style_get_bnum_style_ptr(polygon_.get())), 4);
  EXPECT_FALSE(zu_pgn_style_get_pgn_visible(polygon_.get()));
  EXPECT_FALSE(zu_pgn_style_get_pln_visible(polygon_.get()));
  EXPECT_TRUE(zu_pgn_style_get_pnt_visible(polygon_.get()));
  EXPECT_TRUE(zu_pgn_style_get_num_visible(polygon_.get()));
}

TEST_F(style_dialogs, a_size_of_a_complex_style_in_use_is_that_of_both) {
  ASSERT_TRUE(
      zu_xml_save_style_load_style_pnt_str(nullptr,
                                           LR"(<point_style size="2" use_complex="true"><complex>
            <layer type="pnt_figr_slr" size="6"/><layer type="pnt_figr_slr" size="3"/>
          </complex></point_style>)",
                                           point_.get()));
  Tzu_bpnt_style* part = zu_pnt_style_get_bpnt_style_ptr(point_.get());
  point_dialog d(point_.get());
  EXPECT_TRUE(d.form.checked(14902));
  EXPECT_EQ(d.form.number(size_label), 6);
  d.form.type(size_label, 12);
  d.form.accept();
  EXPECT_EQ(zu_bpnt_style_get_size(part), 12);
  EXPECT_EQ(zu_cpx_pnt_style_get_point_size(zu_bpnt_style_get_complex_style(part)), 12);

  d.form.check(14902, false);  // the simple one alone
  EXPECT_EQ(d.form.number(size_label), 12);
  d.form.type(size_label, 1);
  d.form.accept();
  EXPECT_FALSE(zu_bpnt_style_get_use_complex(part));
  EXPECT_EQ(zu_bpnt_style_get_size(part), 1);
  EXPECT_EQ(zu_cpx_pnt_style_get_point_size(zu_bpnt_style_get_complex_style(part)), 12);
}

TEST_F(style_dialogs, a_width_and_a_fill_reach_the_complex_style_too) {
  ASSERT_TRUE(
      zu_xml_save_style_load_style_pln_str(nullptr,
                                           LR"(<line_style width="1" use_complex="true"><complex>
            <layer type="pln_line_slr" width="2"/></complex></line_style>)",
                                           line_.get()));
  line_dialog lines(line_.get());
  EXPECT_EQ(lines.form.number(width_label), 2);
  lines.form.type(width_label, 5);
  lines.form.accept();
  Tzu_bpln_style* line = zu_pln_style_get_bpln_style_ptr(line_.get());
  EXPECT_EQ(zu_bpln_style_get_width(line), 5);
  EXPECT_EQ(zu_cpx_pln_style_get_line_width(zu_bpln_style_get_complex_style(line)), 5);

  ASSERT_TRUE(zu_xml_save_style_load_style_pgn_str(
      nullptr, LR"(<polygon_style><complex><layer type="pgn_fill_slr"/></complex></polygon_style>)",
      polygon_.get()));
  polygon_dialog polygons(polygon_.get());
  EXPECT_FALSE(polygons.form.checked(14902));
  polygons.form.check(14902, true);
  person_.color = {1, 2, 3, 4};
  polygons.form.press(10353);
  polygons.form.accept();
  Tzu_bpgn_style* fill = zu_pgn_style_get_bpgn_style_ptr(polygon_.get());
  Tzu_color of_layers{};
  EXPECT_TRUE(zu_cpx_pgn_style_get_color(zu_bpgn_style_get_complex_style(fill), &of_layers));
  EXPECT_EQ(parts(of_layers), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(parts(zu_bpgn_style_get_color(fill)), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_TRUE(zu_bpgn_style_get_use_complex(fill));
}

TEST_F(style_dialogs, a_copied_style_is_pasted_into_a_dialog_of_its_kind) {
  zu_bpnt_style_set_size(zu_pnt_style_get_bpnt_style_ptr(point_.get()), 7);
  point_dialog from(point_.get());
  from.form.use_tool(L"zu_common_style_dialog_copy_tool");
  ASSERT_EQ(clipboard_.texts.count(L"zugrid/format/pnt_style"), 1u);
  owned_point other(zu_pnt_style_create());
  point_dialog to(other.get());
  to.form.use_tool(L"zu_common_style_dialog_paste_tool");
  EXPECT_EQ(to.form.number(size_label), 7);
  EXPECT_EQ(zu_bpnt_style_get_size(zu_pnt_style_get_bpnt_style_ptr(other.get())), 2);
  to.form.accept();
  EXPECT_EQ(text_of_style(other.get()), text_of_style(point_.get()));
}

TEST_F(style_dialogs, what_is_no_style_of_the_kind_is_not_pasted) {
  std::wstring before = text_of_style(line_.get());
  line_dialog d(line_.get());
  const std::wstring format = L"zugrid/format/pln_style";
  const auto paste = [&] {
    d.form.use_tool(L"zu_common_style_dialog_paste_tool");
    d.form.accept();
    return text_of_style(line_.get());
  };
  EXPECT_EQ(paste(), before);  // an empty clipboard
  point_dialog(point_.get()).form.use_tool(L"zu_common_style_dialog_copy_tool");
  EXPECT_EQ(paste(), before);
  for (const std::wstring& text : {text_of_style(point_.get()), std::wstring(L"<broken")}) {
    clipboard_.texts = {{format, text}};
    EXPECT_EQ(paste(), before);
  }
}

TEST_F(style_dialogs, a_style_goes_to_a_file_and_comes_back) {
  person_.path = path("a.s_a");
  polygon_dialog from(polygon_.get());
  from.form.type(width_label, 3);
  from.form.use_tool(L"zu_common_style_dialog_save_tool");
  EXPECT_EQ(person_.asked_filter, load_text(10225));
  owned_polygon other(zu_pgn_style_create());
  polygon_dialog to(other.get());
  to.form.use_tool(L"zu_common_style_dialog_load_tool");
  EXPECT_EQ(to.form.number(width_label), 3);
}

TEST_F(style_dialogs, a_file_that_holds_no_style_changes_nothing) {
  std::ofstream(folder_ / "b.s_l") << "no style";
  point_dialog points(point_.get());
  person_.path = path("c.s_p");
  points.form.use_tool(L"zu_common_style_dialog_save_tool");
  std::wstring before = text_of_style(line_.get());
  line_dialog d(line_.get());
  for (const char* name : {"b.s_l", "c.s_p", "none.s_l"}) {
    person_.path = path(name);
    d.form.use_tool(L"zu_common_style_dialog_load_tool");
  }
  person_.accepts = false;
  d.form.use_tool(L"zu_common_style_dialog_load_tool");
  d.form.use_tool(L"zu_common_style_dialog_save_tool");
  d.form.accept();
  EXPECT_EQ(text_of_style(line_.get()), before);
}

TEST_F(style_dialogs, a_style_that_cannot_be_saved_is_told) {
  std::vector<std::wstring> messages;
  const Tzu_message_hooks hooks{[](const wchar_t* text, void* user) {
                                  static_cast<std::vector<std::wstring>*>(user)->emplace_back(text);
                                },
                                nullptr, &messages};
  zu_set_message_hooks(&hooks);
  person_.path = path("nowhere") + L"/a.s_p";
  point_dialog d(point_.get());
  d.form.use_tool(L"zu_common_style_dialog_save_tool");
  zu_set_message_hooks(nullptr);
  ASSERT_EQ(messages.size(), 1u);
  EXPECT_EQ(messages[0].find(person_.path + L": "), 0u);
  EXPECT_GT(messages[0].size(), person_.path.size() + 2);
}

TEST_F(style_dialogs, the_preview_is_drawn_anew_at_each_change) {
  point_dialog d(point_.get());
  auto preview = d.form.one<canvas_impl>();
  tests::fake_view<element_view_impl> view;
  call<&canvas_impl::attach_view>(preview, element_view(handle_of<element_view_impl>(view)));
  const auto ink = [&] {
    owned<zu_drwc_destroy> page(zu_drwc_create_image(170, 113, 96, false));
    call<&canvas_impl::draw>(preview, page.get());
    return zu_drwc_has_ink(page.get());
  };
  EXPECT_TRUE(ink());
  d.form.type(size_label, 4);
  EXPECT_EQ(view.calls.redraw, 1);
  d.form.check(shown, false);
  EXPECT_EQ(view.calls.redraw, 2);
  EXPECT_FALSE(ink());
  call<&canvas_impl::attach_view>(preview, element_view());
}

TEST_F(style_dialogs, without_libraries_there_is_no_choice_of_one) {
  point_dialog d(point_.get());
  EXPECT_FALSE(d.form.has_label(14905));
  EXPECT_TRUE(d.form.one<outline_impl>());  // of favourites
}

TEST_F(style_dialogs, the_style_in_the_forms_becomes_a_favourite_and_is_picked_again) {
  point_dialog d(point_.get());
  d.form.type(size_label, 6);
  d.form.use_tool(L"zu_common_style_favorites_append_tool");
  d.form.type(size_label, 1);
  toolkit::outline_table_item_index row(0);
  call<&outline_impl::set_current>(d.form.one<outline_impl>(), row.item());
  EXPECT_EQ(d.form.number(size_label), 6);
}

TEST_F(style_dialogs, a_style_is_picked_from_a_library) {
  std::filesystem::create_directories(folder_ / "libs");
  owned<zu_style_lib_destroy> library(zu_style_lib_create());
  zu_style_lib_set_caption(library.get(), L"Roads");
  zu_style_item_add(zu_style_lib_get_root_item_ptr(library.get()), 5, L"Highway");
  Tzu_style_list* lines = zu_style_lib_get_pln_list_ptr(library.get());
  Tzu_pln_style* style = zu_idx_pln_style_get_pln_style_ptr(zu_style_list_insert(lines, 0, 5));
  zu_bpln_style_set_width(zu_pln_style_get_bpln_style_ptr(style), 2.5);
  ASSERT_TRUE(zu_xml_data_save_style_lib_file(path("libs/roads._ls").c_str(), library.get()));

  line_dialog d(line_.get());
  EXPECT_EQ(d.form.item_count(14905), 1u);
  auto list = d.form.one<outline_impl>();
  ASSERT_TRUE(list);
  EXPECT_EQ(call<&outline_impl::item_count>(list, outline_item()), 1u);
  toolkit::outline_table_item_index row(0);
  call<&outline_impl::set_current>(list, row.item());
  EXPECT_EQ(d.form.number(width_label), 2.5);
  d.form.type(width_label, 4);  // of the copy: the library keeps its own
  call<&outline_impl::set_current>(list, row.item());
  EXPECT_EQ(d.form.number(width_label), 2.5);
  d.form.accept();
  EXPECT_EQ(zu_bpln_style_get_width(zu_pln_style_get_bpln_style_ptr(line_.get())), 2.5);
}

TEST_F(style_dialogs, without_a_host_nothing_opens) {
  EXPECT_FALSE(style::edit_line_style(line_.get()));
  EXPECT_FALSE(style::edit_point_style(nullptr));
  EXPECT_FALSE(style::edit_polygon_style(nullptr));
  EXPECT_FALSE(style::edit_color(nullptr));
}

TEST_F(style_dialogs, a_colour_link_has_the_person_choose_another) {
  style::color_style_link link(10338);
  link.assign({9, 9, 9, 0});
  std::vector<std::vector<int>> told;
  link.on_change = [&](Tzu_color c) { told.push_back(parts(c)); };
  person_.color = {1, 1, 1, 1};
  link.press();
  EXPECT_EQ(parts(person_.asked_color), (std::vector<int>{9, 9, 9, 0}));
  EXPECT_EQ(parts(link.value()), (std::vector<int>{1, 1, 1, 1}));
  person_.accepts = false;
  person_.color = {2, 2, 2, 2};
  link.press();
  EXPECT_EQ(parts(link.value()), (std::vector<int>{1, 1, 1, 1}));
  EXPECT_EQ(told, (std::vector<std::vector<int>>{{1, 1, 1, 1}}));
}

TEST_F(style_dialogs, a_link_keeps_a_style_of_its_own_and_shows_its_sample) {
  style::line_style_link link(10359);
  zu_bpln_style_set_width(zu_pln_style_get_bpln_style_ptr(line_.get()), 3);
  link.assign(line_.get());
  std::wstring before = text_of_style(line_.get());
  zu_bpln_style_set_width(zu_pln_style_get_bpln_style_ptr(line_.get()), 1);
  EXPECT_EQ(text_of_style(link.value()), before);
  std::vector<handle> elements;
  tests::gather_all(link.element(), elements);
  ASSERT_EQ(elements.size(), 1u) << "a click on the sample is a click on the link";
  struct : bitmap_visitor_impl {
    void visit(of<bitmap_impl>) override { ++visits; }
    int visits = 0;
  } taker;
  auto sample = cast<image_impl>(call<&button_impl::image>(cast<button_impl>(elements[0])));
  call<&image_impl::picture>(sample, bitmap_visitor(handle_of<bitmap_visitor_impl>(taker)));
  EXPECT_EQ(taker.visits, 1);
  zu_pln_style_set_pln_visible(line_.get(), false);
  link.assign(line_.get());
  call<&image_impl::picture>(sample, bitmap_visitor(handle_of<bitmap_visitor_impl>(taker)));
  EXPECT_EQ(taker.visits, 1);
}

}  // namespace
