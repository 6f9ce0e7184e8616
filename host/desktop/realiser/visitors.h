#pragma once
// Receivers of what elements visit, as functions.

#include <QString>
#include <utility>

#include "zu/tools.h"

namespace zu::desktop {

/// Asks an operation that visits elements, and gives each to `take(handle)`.
template <auto operation, class function, class... given>
void visit_elements(function&& take, handle asked, given... values) {
  struct receiver final : element_visitor_impl {
    explicit receiver(function& wanted) : wanted(wanted) {}
    void visit(handle element) override { wanted(element); }
    function& wanted;
  } visitor(take);
  call<operation>(asked, values..., handle_of<element_visitor_impl>(visitor));
}

/// The same of dockers with their ids: `take(QString, docker)`.
template <auto operation, class function, class... given>
void visit_dockers(function&& take, handle asked, given... values) {
  struct receiver final : docker_visitor_impl {
    explicit receiver(function& wanted) : wanted(wanted) {}
    void visit(const wchar_t* id, docker panel) override {
      wanted(QString::fromWCharArray(id != nullptr ? id : L""), panel);
    }
    function& wanted;
  } visitor(take);
  call<operation>(asked, values..., handle_of<docker_visitor_impl>(visitor));
}

/// The same of tools with their ids: `take(QString, handle)`.
template <auto operation, class function> void visit_tools(function&& take, handle asked) {
  struct receiver final : tool_visitor_impl {
    explicit receiver(function& wanted) : wanted(wanted) {}
    void visit(const wchar_t* id, handle tool) override {
      wanted(QString::fromWCharArray(id != nullptr ? id : L""), tool);
    }
    function& wanted;
  } visitor(take);
  call<operation>(asked, handle_of<tool_visitor_impl>(visitor));
}

/// The same of tool sets: `take(tool_set)`.
template <auto operation, class function> void visit_tool_sets(function&& take, handle asked) {
  struct receiver final : tool_set_visitor_impl {
    explicit receiver(function& wanted) : wanted(wanted) {}
    void visit(tool_set set) override { wanted(set); }
    function& wanted;
  } visitor(take);
  call<operation>(asked, handle_of<tool_set_visitor_impl>(visitor));
}

}  // namespace zu::desktop
