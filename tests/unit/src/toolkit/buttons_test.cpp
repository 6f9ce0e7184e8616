#include "src/toolkit/buttons.h"

#include <gtest/gtest.h>

#include "tests/unit/src/toolkit/fake_views.h"

namespace zu::toolkit {
namespace {

using tests::text;

struct bitmap_taker : bitmap_visitor_impl, bytes_visitor_impl {
  void visit(zu::bitmap shown) override {
    ids.push_back(call<&bitmap_impl::id>(shown));
    call<&bitmap_impl::pixels>(shown, bytes_visitor(handle_of<bytes_visitor_impl>(*this)));
  }
  void visit(std::uint64_t, std::uint64_t, std::uint64_t width, std::uint64_t, std::uint64_t,
             std::uint64_t, const std::uint8_t*) override {
    widths.push_back(width);
  }
  bitmap_visitor visitor() { return bitmap_visitor(handle_of<bitmap_visitor_impl>(*this)); }
  std::vector<std::int32_t> ids;
  std::vector<std::uint64_t> widths;
};

TEST(texts_of_elements, are_of_the_bundle_above_zero_and_shared_below) {
  tests::base_language base;
  EXPECT_EQ(text([](auto v) { visit_text(101, v); }), L"Редактор структуры");
  EXPECT_EQ(text([](auto v) { visit_text(-101, v); }), L"ОК");
  for (std::int32_t none : {0, 999999, -999999})
    EXPECT_TRUE(tests::texts([&](auto v) { visit_text(none, v); }).empty()) << none;
  zu_res_set_lng(50000);
  EXPECT_EQ(text([](auto v) { visit_text(101, v); }), L"Structure editor");
  EXPECT_EQ(text([](auto v) { visit_text(-103, v); }), L"Apply");
}

TEST(pictures_of_elements, are_shown_by_their_ids) {
  bitmap_taker taker;
  visit_bitmap(0, taker.visitor());
  EXPECT_TRUE(taker.ids.empty());
  visit_bitmap(-101, taker.visitor());
  EXPECT_EQ(taker.widths, std::vector<std::uint64_t>{16});
  visit_bitmap(999999, taker.visitor());
  EXPECT_EQ(taker.ids, (std::vector<std::int32_t>{-101, 999999}));
  EXPECT_EQ(taker.widths.size(), 1U) << "an id without a picture gives no pixels";
}

TEST(button, a_press_turns_it_and_calls_the_handler) {
  button b(55, 67);
  std::vector<bool> heard;
  b.press();
  EXPECT_TRUE(b.pressed());
  b.on_click = [&] { heard.push_back(b.pressed()); };
  b.press();
  b.press();
  EXPECT_EQ(heard, (std::vector<bool>{false, true}));
  EXPECT_TRUE(b.enabled());
  EXPECT_TRUE(b.visible());
  EXPECT_FALSE(b.toggle());
  EXPECT_FALSE(b.is_link());
  image shown(101);
  EXPECT_FALSE(b.image());
  b.set_image(shown);
  EXPECT_TRUE(cast<image_impl>(b.image()));
}

TEST(button_link, lies_in_a_layout_of_its_own) {
  button_link link(55);
  auto outer = cast<grid_layout_impl>(handle_of_element(link));
  ASSERT_TRUE(outer);
  tests::element_taker taker;
  call<&grid_layout_impl::visit_cell>(outer, 0U, 0U, taker.visitor());
  auto inner = cast<button_impl>(taker.only());
  ASSERT_TRUE(inner);
  EXPECT_TRUE(call<&button_impl::is_link>(inner));
  int clicks = 0;
  link.on_click = [&] { ++clicks; };
  call<&button_impl::press>(inner);
  EXPECT_EQ(clicks, 1);
}

TEST(checkbox, is_on_at_the_start_and_forgets_that_it_was_undecided) {
  checkbox box(55);
  EXPECT_TRUE(box.is_checked());
  box.assign_state(checkbox::undecided);
  EXPECT_FALSE(box.is_checked());
  EXPECT_TRUE(box.is_undecided());
  std::vector<bool> heard;
  box.on_state = [&](bool on) { heard.push_back(on); };
  box.set_checked(true);
  EXPECT_EQ(box.state(), 2U);
  box.set_checked(false);
  EXPECT_EQ(box.state(), 0U);
  EXPECT_EQ(heard, (std::vector<bool>{true, false}));
}

TEST(radiogroup, one_button_is_down) {
  radiogroup<2, 1> group(55);
  group.add(1).add(2).add(3);
  EXPECT_EQ(group.count(), 2) << "the third has no cell";
  EXPECT_EQ(group.current(), -1);
  std::vector<int> heard;
  group.on_change = [&](int i) { heard.push_back(i); };
  group.at(1).press();
  group.at(1).press();
  EXPECT_TRUE(group.at(1).pressed());
  group.at(0).press();
  EXPECT_TRUE(group.at(0).pressed());
  EXPECT_FALSE(group.at(1).pressed());
  EXPECT_EQ(heard, (std::vector<int>{1, 0}));
  tests::viewing view(group.at(0));
  group.assign(1);
  EXPECT_EQ(view.calls(), (tests::told{1, 0, 0}));
  group.assign(7);
  EXPECT_EQ(group.current(), -1);
  EXPECT_EQ(heard.size(), 2U);
}

struct entry {
  std::wstring caption;
  std::uint32_t role;
  bool operator==(const entry&) const = default;
};
std::vector<entry> entries(button_box& box) {
  std::vector<entry> all;
  for (std::uint32_t i = 0; i < box.count(); ++i) {
    EXPECT_EQ(box.kind(i), 1U);
    all.push_back({text([&](auto v) { box.caption(i, v); }), box.role(i)});
  }
  return all;
}

TEST(button_box, makes_a_button_of_each_bit_in_a_fixed_order) {
  tests::base_language base;
  struct mask_case {
    std::uint32_t mask;
    std::vector<entry> expected;
  };
  for (const mask_case& c : {mask_case{0, {}}, mask_case{10, {{L"ОК", 2}, {L"Отмена", 8}}},
                             mask_case{96, {{L"Да", 32}, {L"Нет", 64}}},
                             mask_case{127,
                                       {{L"ОК", 1},
                                        {L"ОК", 2},
                                        {L"Отмена", 4},
                                        {L"Отмена", 8},
                                        {L"Применить", 16},
                                        {L"Да", 32},
                                        {L"Нет", 64}}}}) {
    button_box box(c.mask);
    EXPECT_EQ(entries(box), c.expected) << c.mask;
  }
}

TEST(button_box, a_role_says_whether_the_dialog_may_close) {
  button_box box(127);
  const bool without[] = {true, true, true, true, false, true, true};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(box.press(i), without[i]) << i;
  EXPECT_TRUE(box.press(-1));
  EXPECT_FALSE(box.press(7));

  int accepts = 0, applies = 0;
  box.on_accept = [&] { return ++accepts > 3; };
  box.on_apply = [&] { ++applies; };
  const bool with[] = {false, false, true, true, false, false, true};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(box.press(i), with[i]) << i;
  EXPECT_EQ(accepts, 3) << "of roles 1, 2 and 32";
  EXPECT_EQ(applies, 1);
  EXPECT_TRUE(box.press(0)) << "what the handler says";
}

TEST(button_box, a_role_of_its_own_goes_to_the_host) {
  struct host : button_box_handler_impl {
    void pressed(std::uint32_t role) override { roles.push_back(role); }
    std::vector<std::uint32_t> roles;
  } handler;
  button_box box(2);
  box.add(55, 1024);
  EXPECT_FALSE(box.press(1)) << "no host";
  box.attach_handler(button_box_handler(handle_of<button_box_handler_impl>(handler)));
  EXPECT_FALSE(box.press(1));
  EXPECT_TRUE(box.press(0));
  EXPECT_EQ(handler.roles, std::vector<std::uint32_t>{1024});
}

TEST(button_layout, calls_by_role_and_then_for_every_role) {
  button_layout row;
  std::string heard;
  row.add(55, 2).add(67, 101, 4).add(67, 16);
  row.on_accept = [&] { heard += 'a'; };
  row.on_cancel = [&] { heard += 'c'; };
  row.on_click = [&](std::uint32_t role) { heard += std::to_string(role); };
  EXPECT_EQ(row.column_count(), 3U);
  EXPECT_EQ(row.row_count(), 1U);
  tests::element_taker taker;
  for (std::uint32_t column : {0U, 1U, 2U, 3U}) row.visit_cell(column, 0, taker.visitor());
  row.visit_cell(0, 1, taker.visitor());
  ASSERT_EQ(taker.elements.size(), 3U);
  for (handle b : taker.elements) call<&button_impl::press>(cast<button_impl>(b));
  EXPECT_EQ(heard, "a2c416");
}

}  // namespace
}  // namespace zu::toolkit
