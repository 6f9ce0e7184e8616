#include "src/toolkit/tools.h"

#include <gtest/gtest.h>

#include "src/toolkit/labels.h"
#include "src/toolkit/toolbars.h"
#include "tests/unit/src/toolkit/fake_views.h"

namespace zu::toolkit {
namespace {

using tests::text;
using tests::texts;

TEST(tool, built_with_one_id_has_it_as_caption_hint_and_description) {
  tests::base_language base;
  action_tool tool(101);
  EXPECT_EQ(text([&](auto v) { tool.caption(v); }), L"Редактор структуры");
  EXPECT_EQ(text([&](auto v) { tool.hint(v); }), L"Редактор структуры");
  EXPECT_EQ(text([&](auto v) { tool.description(v); }), L"Редактор структуры");
  action_tool other(55, 67, 101);
  EXPECT_EQ(text([&](auto v) { other.caption(v); }), L"Значение");
  EXPECT_EQ(text([&](auto v) { other.hint(v); }), L"Шаг Z");
  EXPECT_EQ(text([&](auto v) { other.description(v); }), L"Редактор структуры");
  other.set_categories({101, 55});
  EXPECT_EQ(texts([&](auto v) { other.visit_categories(v); }),
            (std::vector<std::wstring>{L"Редактор структуры", L"Значение"}));
}

TEST(tool, of_each_kind_tells_what_a_person_chose) {
  std::string heard;
  action_tool action(1);
  action.execute();
  action.on_execute = [&] { heard += 'a'; };
  action.execute();

  boolean_tool check(1);
  check.on_execute = [&](bool on) { heard += on ? '+' : '-'; };
  check.set_checked(true);
  EXPECT_TRUE(check.checked());
  check.set_checked(false);

  integer_tool number(1);
  number.set_range(2, 9);
  number.validate = [](std::int32_t v) { return v != 5; };
  number.on_execute = [&](std::int32_t v) { heard += std::to_string(v); };
  for (std::int32_t v : {1, 5, 10}) EXPECT_FALSE(number.set_value(v));
  EXPECT_TRUE(number.set_value(7));
  EXPECT_EQ(number.value(), 7);

  list_tool list(1);
  list.add(55).add(67);
  list.on_execute = [&](std::int32_t i) { heard += static_cast<char>('x' + i); };
  for (std::int32_t i : {-1, 2, 1}) list.set_current(i);
  EXPECT_EQ(list.current(), 1);

  multiaction_tool several(1);
  several.add(55, [&] { heard += 'f'; }).add(67, [&] { heard += 's'; });
  for (std::uint32_t i : {0U, 1U, 2U}) several.execute(i);
  EXPECT_EQ(heard, "a+-7yfs");
}

TEST(tool, hears_of_its_owner_as_long_as_it_lives) {
  event<void()> changed;
  bool active = false;
  {
    action_tool tool(1);
    tool.on_update = [&] { tool.set_enabled(active); };
    tool.follow(changed);
    EXPECT_FALSE(tool.enabled()) << "updated at once";
    active = true;
    tests::viewing view(tool);
    changed();
    EXPECT_TRUE(tool.enabled());
    changed();
    EXPECT_EQ(view.calls(), (tests::told{0, 1, 0}));
  }
  changed();
}

TEST(mode_tool, names_the_mode_that_it_stands_for) {
  mode_tool tool(1);
  EXPECT_FALSE(tool.mode());
  label other(1);
  tool.set_mode(handle_of<label_impl>(other));
  EXPECT_EQ(tool.mode().instance, handle_of_element(other).instance);
  EXPECT_TRUE(cast<mode_tool_impl>(handle_of_element(tool)));
}

struct edit_tools {
  explicit edit_tools(std::int32_t id) : cut(id) {}
  void visit_tools(tools_visitor& visitor) {
    visitor.toolset().tool(L"cut", cut).tool(L"copy", copy);
    visitor.toolset().tool(L"grid", grid);
  }
  action_tool cut, copy{2};
  boolean_tool grid{3};
};
struct move_tools {
  explicit move_tools(std::int32_t) {}
  void visit_tools(tools_visitor& visitor) { visitor.toolset().tool(L"up", up); }
  action_tool up{4};
};

/// The ids of tools, a row a text.
struct rows_taker : tool_set_visitor_impl, tool_visitor_impl {
  void visit(tool_set set) override {
    rows.emplace_back();
    call<&tool_set_impl::visit>(set, tool_visitor(handle_of<tool_visitor_impl>(*this)));
  }
  void visit(const wchar_t* id, handle tool) override {
    if (rows.empty()) rows.emplace_back();
    rows.back() += std::wstring(id) + L" ";
    last = tool;
  }
  std::vector<std::wstring> rows;
  handle last;
};
template <class bar> rows_taker rows_of(bar& shown) {
  rows_taker taker;
  shown.visit(tool_set_visitor(handle_of<tool_set_visitor_impl>(taker)));
  return taker;
}

TEST(toolbar, shows_the_rows_of_its_tools) {
  toolbar<edit_tools> bar(1);
  rows_taker taker = rows_of(bar);
  EXPECT_EQ(taker.rows, (std::vector<std::wstring>{L"cut copy ", L"grid "}));
  EXPECT_TRUE(cast<boolean_tool_impl>(taker.last));
  EXPECT_EQ(taker.last.instance, handle_of_element(bar.tools().grid).instance);
  EXPECT_TRUE(cast<toolbar_impl>(handle_of_element(bar)));
  toolbar<edit_tools, context_menu_impl> menu(1);
  EXPECT_EQ(rows_of(menu).rows.size(), 2U);
  EXPECT_TRUE(cast<context_menu_impl>(handle_of_element(menu)));
}

TEST(multitoolbar, shows_the_second_tools_first) {
  detail::multitoolbar<toolbar_impl, edit_tools, move_tools> bar(1);
  EXPECT_EQ(rows_of(bar).rows, (std::vector<std::wstring>{L"up ", L"cut copy ", L"grid "}));
}

TEST(category_tool, shows_further_tools) {
  edit_tools edit(1);
  move_tools move(1);
  category_tool menu(1);
  menu.add(edit).add(move);
  rows_taker taker;
  menu.visit_tools(tool_visitor(handle_of<tool_visitor_impl>(taker)));
  EXPECT_EQ(taker.rows, std::vector<std::wstring>{L"cut copy grid up "});
}

}  // namespace
}  // namespace zu::toolkit
