#pragma once
// A style dialog as a host sees it, and what a person does there. Controls are found by the text of
// their label or their own, in the language in force, counted from 0.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "src/bundle/texts.h"
#include "tests/unit/src/style/page/shown_tools.h"
#include "tests/unit/src/toolkit/element_tree.h"
#include "zu/platform/zuk_msgs.h"

namespace tests {

/// All elements but layouts and tabs, in the order of their cells, pages of stacks too.
inline void gather_all(handle element, std::vector<handle>& all) {
  std::vector<handle> some;
  gather(element, some);
  for (handle each : some) {
    element_taker inner;
    if (auto tabs = cast<tab_layout_impl>(each)) {
      struct : docker_visitor_impl {
        void visit(const wchar_t*, docker shown) override { dockers.push_back(shown); }
        std::vector<docker> dockers;
      } taker;
      for (std::uint32_t i = 0; i < call<&tab_layout_impl::count>(tabs); ++i)
        call<&tab_layout_impl::visit_tab>(tabs, i,
                                          docker_visitor(handle_of<docker_visitor_impl>(taker)));
      for (docker shown : taker.dockers) call<&docker_impl::visit_element>(shown, inner.visitor());
    } else if (auto stack = cast<stack_layout_impl>(each)) {
      for (std::uint32_t i = 0; i < call<&stack_layout_impl::count>(stack); ++i)
        call<&stack_layout_impl::visit_page>(stack, i, inner.visitor());
    } else {
      all.push_back(each);
    }
    for (handle page : inner.elements) gather_all(page, all);
  }
}

class style_form {
 public:
  explicit style_form(handle root) { gather_all(root, elements_); }

  bool checked(std::int32_t text, int n = 0) {
    return call<&checkbox_impl::is_checked>(mark(text, n));
  }
  void check(std::int32_t text, bool on, int n = 0) {
    call<&checkbox_impl::set_checked>(mark(text, n), on);
  }
  double number(std::int32_t label, int n = 0) {
    return call<&floating_input_impl::value>(labelled<floating_input_impl>(label, n));
  }
  void type(std::int32_t label, double value, int n = 0) {
    auto input = labelled<floating_input_impl>(label, n);
    EXPECT_TRUE(call<&floating_input_impl::set_value>(input, value));
    call<&floating_input_impl::apply>(input);
  }
  std::wstring line_of(std::int32_t label, int n = 0) {
    auto input = labelled<assisted_input_impl>(label, n);
    return tests::text([&](auto v) { call<&assisted_input_impl::text>(input, v); });
  }
  /// False if it is refused.
  bool write(std::int32_t label, const wchar_t* text, int n = 0) {
    auto input = labelled<assisted_input_impl>(label, n);
    if (!call<&assisted_input_impl::set_text>(input, text)) return false;
    call<&assisted_input_impl::commit>(input);
    return true;
  }
  void choose(std::int32_t label, std::int32_t item, int n = 0) {
    call<&dropdown_impl::set_current>(labelled<dropdown_impl>(label, n), item);
  }
  std::int32_t chosen(std::int32_t label, int n = 0) {
    return call<&dropdown_impl::current>(labelled<dropdown_impl>(label, n));
  }
  std::uint32_t item_count(std::int32_t label) {
    return call<&dropdown_impl::count>(labelled<dropdown_impl>(label, 0));
  }
  bool has_label(std::int32_t label) { return static_cast<bool>(behind(label, 0)); }
  void press(std::int32_t label, int n = 0) {
    call<&button_impl::press>(labelled<button_impl>(label, n));
  }
  bool accept() { return call<&button_box_impl::press>(one<button_box_impl>(), 0); }
  bool refuse() { return call<&button_box_impl::press>(one<button_box_impl>(), 1); }
  /// Of any of the tool bars.
  void use_tool(const std::wstring& id) {
    tool_set_taker taker;
    for (int i = 0; auto bar = find<toolbar_impl>(elements_, i); ++i)
      call<&toolbar_impl::visit>(bar, taker.visitor());
    execute(taker.sets, id);
  }
  template <class impl> of<impl> one() { return find<impl>(elements_); }

 private:
  of<checkbox_impl> mark(std::int32_t text, int n) {
    for (handle each : elements_) {
      auto box = cast<checkbox_impl>(each);
      auto caption = tests::text([&](auto v) { call<&checkbox_impl::caption>(box, v); });
      if (box && caption == load_text(text) && n-- == 0) return box;
    }
    ADD_FAILURE() << "no mark " << text;
    return {};
  }
  handle behind(std::int32_t text, int n) {
    for (std::size_t i = 0; i + 1 < elements_.size(); ++i) {
      auto label = cast<label_impl>(elements_[i]);
      if (label &&
          tests::text([&](auto v) { call<&label_impl::text>(label, v); }) == load_text(text) &&
          n-- == 0)
        return elements_[i + 1];
    }
    return {};
  }
  template <class impl> of<impl> labelled(std::int32_t text, int n) {
    auto found = cast<impl>(behind(text, n));
    EXPECT_TRUE(found) << "no control labelled " << text;
    return found;
  }

  std::vector<handle> elements_;
};

/// A clipboard that holds texts by format.
class held_clipboard {
 public:
  held_clipboard() {
    Tzu_clipboard_hooks hooks{
        [](const wchar_t* format, const wchar_t* text, bool empty_first, void* user) {
          auto* self = static_cast<held_clipboard*>(user);
          if (empty_first) self->texts.clear();
          self->texts[format] = text;
          return true;
        },
        [](const wchar_t* format, Tzu_string_adp* adapter, void* user) {
          auto* self = static_cast<held_clipboard*>(user);
          auto found = self->texts.find(format);
          if (found == self->texts.end()) return false;
          zu_string_adp_feed(adapter, found->second.c_str());
          return true;
        },
        this};
    zu_os_set_clipboard_hooks(&hooks);
  }
  ~held_clipboard() { zu_os_set_clipboard_hooks(nullptr); }
  std::map<std::wstring, std::wstring> texts;
};

/// A person who answers every question for a file or a colour in the same way.
class answering {
 public:
  answering() {
    Tzu_asking_hooks hooks{
        [](const wchar_t* filter, Tzu_string_adp* path, void* user) {
          return static_cast<answering*>(user)->give(filter, path);
        },
        [](const wchar_t* filter, const wchar_t*, Tzu_string_adp* path, void* user) {
          return static_cast<answering*>(user)->give(filter, path);
        },
        [](Tzu_color* color, void* user) {
          auto* self = static_cast<answering*>(user);
          self->asked_color = *color;
          if (self->accepts) *color = self->color;
          return self->accepts;
        },
        this};
    zu_set_asking_hooks(&hooks);
  }
  ~answering() { zu_set_asking_hooks(nullptr); }
  bool accepts = true;
  std::wstring path, asked_filter;
  Tzu_color color{}, asked_color{};

 private:
  bool give(const wchar_t* filter, Tzu_string_adp* out) {
    asked_filter = filter;
    if (accepts) zu_string_adp_feed(out, path.c_str());
    return accepts;
  }
};

}  // namespace tests
