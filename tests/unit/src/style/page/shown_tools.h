#pragma once
// Tools as a host meets them: sets of a tool bar or of a menu, each tool under its key.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/src/toolkit/fake_views.h"
#include "zu/tools.h"

namespace tests {

struct shown_tool {
  std::wstring key;
  handle tool;
};

struct tool_taker final : tool_visitor_impl {
  void visit(const wchar_t* key, handle tool) override { tools.push_back({key, tool}); }
  tool_visitor visitor() { return tool_visitor(handle_of<tool_visitor_impl>(*this)); }
  std::vector<shown_tool> tools;
};
struct tool_set_taker final : tool_set_visitor_impl {
  void visit(tool_set set) override {
    tool_taker taker;
    call<&tool_set_impl::visit>(set, taker.visitor());
    sets.push_back(taker.tools);
  }
  tool_set_visitor visitor() { return tool_set_visitor(handle_of<tool_set_visitor_impl>(*this)); }
  std::vector<std::vector<shown_tool>> sets;
};

/// Sets of a tool bar or a context menu.
template <class bar> std::vector<std::vector<shown_tool>> sets_of(bar& shown) {
  tool_set_taker taker;
  shown.visit(taker.visitor());
  return taker.sets;
}

/// What is in a menu; nothing for a tool that is none.
inline std::vector<shown_tool> menu_of(handle tool) {
  tool_taker taker;
  call<&category_tool_impl::visit_tools>(cast<category_tool_impl>(tool), taker.visitor());
  return taker.tools;
}

/// All ids in order, "|" between sets and "{ }" around what is in a menu. `prefix` is what stands
/// behind each id.
inline std::wstring ids_of(const std::vector<shown_tool>& tools, const std::wstring& prefix) {
  std::wstring text;
  for (const shown_tool& t : tools) {
    EXPECT_TRUE(t.key.ends_with(prefix));
    text += (text.empty() ? L"" : L" ") + t.key.substr(0, t.key.size() - prefix.size());
    if (cast<category_tool_impl>(t.tool)) text += L" { " + ids_of(menu_of(t.tool), prefix) + L" }";
  }
  return text;
}
inline std::wstring ids_of(const std::vector<std::vector<shown_tool>>& sets,
                           const std::wstring& prefix) {
  std::wstring text;
  for (const auto& set : sets) text += (text.empty() ? L"" : L" | ") + ids_of(set, prefix);
  return text;
}

/// The first tool whose key begins so, in menus too; empty if there is none.
inline handle tool_named(const std::vector<shown_tool>& tools, const std::wstring& id) {
  for (const shown_tool& t : tools)
    if (t.key.starts_with(id)) return t.tool;
  for (const shown_tool& t : tools)
    if (handle found = tool_named(menu_of(t.tool), id)) return found;
  return {};
}
inline handle tool_named(const std::vector<std::vector<shown_tool>>& sets, const std::wstring& id) {
  for (const auto& set : sets)
    if (handle found = tool_named(set, id)) return found;
  return {};
}
/// Does an action. The id must be that of one.
inline void execute(const std::vector<std::vector<shown_tool>>& sets, const std::wstring& id) {
  handle action = cast<action_tool_impl>(tool_named(sets, id));
  ASSERT_TRUE(action) << std::string(id.begin(), id.end());
  call<&action_tool_impl::execute>(action);
}

}  // namespace tests
