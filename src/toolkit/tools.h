#pragma once
// Commands of tool bars and menus.

#include <functional>
#include <string>
#include <vector>

#include "src/toolkit/element.h"
#include "src/toolkit/events.h"
#include "zu/tools.h"

namespace zu::toolkit {
namespace detail {

/// What tools of all kinds have. Built with one id, a tool has it as caption, hint and description.
template <class Impl>
class tool_base : public mixed<Impl, with_enabled, with_visible, with_hint, with_caption> {
 public:
  explicit tool_base(std::int32_t id) : tool_base(id, id, id) {}
  tool_base(std::int32_t caption, std::int32_t hint, std::int32_t description)
      : description_(description) {
    this->set_caption(caption);
    this->set_hint(hint);
  }
  /// Where it stands in menus, outermost first.
  void set_categories(std::vector<std::int32_t> ids) { categories_ = std::move(ids); }
  /// `on_update` is called now and whenever the owner's event is fired.
  void follow(event<void()>& updates) {
    connection_ = updates.connect([this] { update(); });
    update();
  }

  void description(string_visitor visitor) override { visit_text(description_, visitor); }
  void visit_categories(string_visitor visitor) override {
    for (std::int32_t id : categories_) visit_text(id, visitor);
  }

  std::function<void()> on_update;

 private:
  void update() {
    if (on_update) on_update();
  }

  std::int32_t description_;
  std::vector<std::int32_t> categories_;
  events::connection connection_;
};

/// `V` is what `on_execute` is told.
template <class Impl, class V = void> class tool;

template <> class tool<action_tool_impl> : public tool_base<action_tool_impl> {
 public:
  using tool_base::tool_base;
  void execute() override {
    if (on_execute) on_execute();
  }
  std::function<void()> on_execute;
};

/// A tool that is on or off.
template <class Impl> class tool<Impl, bool> : public tool_base<Impl> {
 public:
  using tool_base<Impl>::tool_base;
  void assign(bool checked) {
    if (this->replace(checked_, checked)) this->tell_value();
  }
  bool checked() override { return checked_; }
  void set_checked(bool checked) override {
    checked_ = checked;
    if (on_execute) on_execute(checked);
  }
  std::function<void(bool)> on_execute;

 private:
  bool checked_ = false;
};

template <> class tool<integer_tool_impl, std::int32_t> : public tool_base<integer_tool_impl> {
 public:
  using tool_base::tool_base;
  void set_range(std::int32_t minimum, std::int32_t maximum) {
    bool changed = replace(minimum_, minimum);
    if (replace(maximum_, maximum) || changed) tell_list();
  }
  void assign(std::int32_t value) {
    if (replace(value_, value)) tell_value();
  }
  std::int32_t value() override { return value_; }
  bool set_value(std::int32_t value) override;
  std::int32_t minimum() override { return minimum_; }
  std::int32_t maximum() override { return maximum_; }

  std::function<bool(std::int32_t)> validate;
  std::function<void(std::int32_t)> on_execute;

 private:
  std::int32_t value_ = 0, minimum_ = 0, maximum_ = 100;
};

template <> class tool<list_tool_impl, std::int32_t> : public tool_base<list_tool_impl> {
 public:
  using tool_base::tool_base;
  tool& add(std::int32_t text);
  /// For items that are data.
  void set_items(std::vector<std::wstring> texts);
  void assign(std::int32_t index) {
    if (replace(current_, index)) tell_value();
  }
  std::uint32_t count() override { return static_cast<std::uint32_t>(items_.size()); }
  void item_text(std::uint32_t index, string_visitor visitor) override;
  std::int32_t current() override { return current_; }
  void set_current(std::int32_t index) override;

  std::function<void(std::int32_t)> on_execute;

 private:
  struct item {
    std::int32_t id;
    std::wstring text;  // without an id
  };
  std::vector<item> items_;
  std::int32_t current_ = -1;
};

/// Several actions under one button, which does the first at once.
class multitool : public tool_base<multiaction_tool_impl> {
 public:
  using tool_base::tool_base;
  multitool& add(std::int32_t text, std::function<void()> action);
  std::uint32_t count() override { return static_cast<std::uint32_t>(actions_.size()); }
  void item_text(std::uint32_t index, string_visitor visitor) override;
  void execute(std::uint32_t index) override;

 private:
  struct action {
    std::int32_t text;
    std::function<void()> act;
  };
  std::vector<action> actions_;
};

}  // namespace detail

/// Takes tools, in rows.
class tools_visitor {
 public:
  /// Gives what it takes to a `toolbar`, or anything else with the same two operations.
  template <class toolbar> class toolset_state_impl;

  tools_visitor() = default;
  tools_visitor(const tools_visitor&) = delete;
  tools_visitor& operator=(const tools_visitor&) = delete;
  virtual ~tools_visitor() = default;

  /// Begins a row.
  tools_visitor& toolset() {
    begin();
    return *this;
  }
  /// Adds a tool, which must outlive the tool bar; the id is the host's key to it.
  template <class T> tools_visitor& tool(const wchar_t* id, T& added) {
    return tool(id, handle_of_element(added));
  }
  tools_visitor& tool(const wchar_t* id, handle added) {
    take(id, added);
    return *this;
  }

 private:
  virtual void begin() = 0;
  virtual void take(const wchar_t* id, handle tool) = 0;
};

template <class toolbar> class tools_visitor::toolset_state_impl : public tools_visitor {
 public:
  explicit toolset_state_impl(toolbar& bar) : bar_(bar) {}

 private:
  void begin() override { bar_.begin_toolset(); }
  void take(const wchar_t* id, handle tool) override { bar_.add_tool(id, tool); }

  toolbar& bar_;
};

namespace detail {

/// Tools that stand together.
class toolset : public tool_set_impl {
 public:
  void add(const wchar_t* id, handle tool) { tools_.push_back({id, tool}); }
  void visit(tool_visitor visitor) override;

 private:
  struct named_tool {
    const wchar_t* id;
    handle tool;
  };
  std::vector<named_tool> tools_;
};

/// A menu of further tools.
template <> class tool<category_tool_impl> : public tool_base<category_tool_impl> {
 public:
  using tool_base::tool_base;
  /// `tools` enumerates its tools by `visit_tools(tools_visitor&)` and must outlive this.
  template <class Tools> tool& add(Tools& tools) {
    tools_visitor::toolset_state_impl<tool> state(*this);
    tools.visit_tools(state);
    return *this;
  }
  void visit_tools(tool_visitor visitor) override { all_.visit(visitor); }

  void begin_toolset() {}
  void add_tool(const wchar_t* id, handle added) { all_.add(id, added); }

 private:
  toolset all_;
};

}  // namespace detail

using detail::toolset;
using action_tool = detail::tool<action_tool_impl>;
using boolean_tool = detail::tool<boolean_tool_impl, bool>;
using integer_tool = detail::tool<integer_tool_impl, std::int32_t>;
using list_tool = detail::tool<list_tool_impl, std::int32_t>;
using category_tool = detail::tool<category_tool_impl>;
using multiaction_tool = detail::multitool;

/// One of the modes of a viewer.
class mode_tool : public detail::tool<mode_tool_impl, bool> {
 public:
  using tool::tool;
  void set_mode(handle mode) { mode_ = mode; }
  handle mode() override { return mode_; }

 private:
  handle mode_;
};

}  // namespace zu::toolkit
