#pragma once
// Tool bars and menus of tool sets. A class of tools has its tools as members and enumerates them
// by `void visit_tools(tools_visitor&)`.

#include <list>

#include "src/toolkit/tools.h"

namespace zu::toolkit {
namespace detail {

/// Rows of tools; `Impl` is a tool bar, a menu, or a service of tools. `X` serves a row.
template <class Impl, class X = toolset> class toolset_rows : public Impl {
 public:
  using Impl::Impl;
  toolset_rows(const toolset_rows&) = delete;
  toolset_rows& operator=(const toolset_rows&) = delete;
  virtual ~toolset_rows() = default;

  void visit(tool_set_visitor visitor) override {
    for (X& row : rows_)
      call<&tool_set_visitor_impl::visit>(visitor, tool_set(handle_of<tool_set_impl>(row)));
  }
  void begin_toolset() { rows_.emplace_back(); }
  void add_tool(const wchar_t* id, handle tool) {
    if (rows_.empty()) begin_toolset();
    rows_.back().add(id, tool);
  }

 protected:
  toolset_rows() = default;
  template <class Tools> void collect(Tools& tools) {
    tools_visitor::toolset_state_impl<toolset_rows> state(*this);
    tools.visit_tools(state);
  }

 private:
  std::list<X> rows_;
};

}  // namespace detail

template <class Tools, class Impl = toolbar_impl, class X = detail::toolset>
class toolbar : public detail::toolset_rows<Impl, X> {
 public:
  using toolset = X;

  /// What is given constructs the tools.
  template <class... args>
  explicit toolbar(args&&... given) : tools_(std::forward<args>(given)...) {
    this->collect(tools_);
  }
  Tools& tools() { return tools_; }

 private:
  Tools tools_;
};

namespace detail {

/// Two classes of tools in one tool bar, the second first. Both are constructed of what is given.
template <class Impl, class A, class B> class multitoolbar : public toolset_rows<Impl> {
 public:
  template <class... args> explicit multitoolbar(args&&... given) : a_(given...), b_(given...) {
    this->collect(b_);
    this->collect(a_);
  }
  A& first() { return a_; }
  B& second() { return b_; }

 private:
  A a_;
  B b_;
};

}  // namespace detail
}  // namespace zu::toolkit
