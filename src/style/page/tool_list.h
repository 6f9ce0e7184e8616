#pragma once
// Tools of a scale page, under keys that no page of another kind has.

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "src/toolkit/tools.h"

namespace zu::style::detail {

/// Tools in the order in which they are added. A tool's key is its id with the page's prefix
/// behind it.
class tool_list {
 public:
  explicit tool_list(std::wstring prefix) : prefix_(std::move(prefix)) {}
  tool_list(const tool_list&) = delete;
  tool_list& operator=(const tool_list&) = delete;

  /// What is added from now on stands behind a separator.
  void begin_set();
  toolkit::action_tool& add_action(const std::wstring& id, std::int32_t text,
                                   std::function<void()> action);
  /// A menu of `tools`, which must outlive this.
  template <class Tools>
  toolkit::category_tool& add_menu(const std::wstring& id, std::int32_t text, Tools& tools) {
    toolkit::category_tool& menu = menus_.emplace_back(text);
    menu.add(tools);
    add(id, menu);
    return menu;
  }
  /// A tool that must outlive this.
  template <class tool> void add(const std::wstring& id, tool& added) {
    tools_.push_back({&keys_.emplace_back(id + prefix_), toolkit::handle_of_element(added)});
  }

  void visit_tools(toolkit::tools_visitor& into);
  const std::wstring& prefix() const { return prefix_; }

 private:
  struct keyed_tool {
    const std::wstring* key;  // null: a set begins here
    handle tool;
  };

  std::wstring prefix_;
  std::deque<std::wstring> keys_;
  std::deque<toolkit::action_tool> actions_;
  std::deque<toolkit::category_tool> menus_;
  std::vector<keyed_tool> tools_;
};

}  // namespace zu::style::detail
