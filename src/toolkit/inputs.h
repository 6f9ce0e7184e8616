#pragma once
// Texts that a person types, and those that they only read and copy.

#include <functional>
#include <string>
#include <vector>

#include "src/toolkit/element.h"

namespace zu::toolkit {

/// Counts from 0; the end is the first character that is not marked.
class text_selection : public text_selection_impl {
 public:
  std::uint32_t begin() override { return begin_; }
  std::uint32_t end() override { return end_; }
  void select(std::uint32_t begin, std::uint32_t end) override {
    begin_ = std::min(begin, end), end_ = std::max(begin, end);
  }

 private:
  std::uint32_t begin_ = 0, end_ = 0;
};

namespace detail {

/// `set_text` is a candidate, which `validate` may refuse; `commit` is its acceptance.
template <class impl>
class text_input : public mixed<impl, with_hint, with_enabled, with_read_only, with_width> {
 public:
  const std::wstring& value() const { return text_; }
  void assign(std::wstring text) {
    if (this->replace(text_, std::move(text))) this->tell_value();
  }
  text_selection& marked() { return selection_; }

  void text(string_visitor visitor) override {
    call<&string_visitor_impl::visit>(visitor, text_.c_str());
  }
  bool set_text(const wchar_t* text) override {
    std::wstring former = std::exchange(text_, text != nullptr ? text : L"");
    if (!validate || validate(text_)) return true;
    text_ = std::move(former);
    return false;
  }
  void commit() override {
    if (on_commit) on_commit(text_);
  }

  std::function<bool(const std::wstring&)> validate;
  std::function<void(const std::wstring&)> on_commit;

 protected:
  handle selection_handle() { return handle_of<text_selection_impl>(selection_); }

 private:
  std::wstring text_;
  text_selection selection_;
};

template <class impl> class line_input : public with_visible<text_input<impl>> {
 public:
  handle cursor() override { return this->selection_handle(); }
};

}  // namespace detail

class input : public detail::line_input<input_impl> {};

/// An input with a list of suggestions; any other text is taken too.
class assisted_input : public detail::line_input<assisted_input_impl> {
 public:
  assisted_input& suggest(std::int32_t text);
  void set_suggestions(std::vector<std::wstring> texts);
  void visit_suggestions(string_visitor visitor) override;

 private:
  struct suggestion {
    std::int32_t id;
    std::wstring text;  // without an id
  };
  std::vector<suggestion> suggestions_;
};

class multiline_input : public detail::text_input<multiline_input_impl> {
 public:
  multiline_input() { set_width(20); }
  void set_lines(std::uint32_t lines) {
    if (replace(lines_, lines)) redraw();
  }
  void set_monospaced(bool monospaced) {
    if (replace(monospaced_, monospaced)) redraw();
  }

  handle selection() override { return selection_handle(); }
  void replace_selection(const wchar_t* text) override;
  std::uint32_t lines() override { return lines_; }
  bool monospaced() override { return monospaced_; }

 private:
  std::uint32_t lines_ = 7;
  bool monospaced_ = false;
};

namespace detail {

template <class impl> class text_output : public mixed<impl, with_hint, with_enabled, with_width> {
 public:
  const std::wstring& value() const { return text_; }
  void assign(std::wstring text) {
    if (this->replace(text_, std::move(text))) this->tell_value();
  }
  void text(string_visitor visitor) override {
    call<&string_visitor_impl::visit>(visitor, text_.c_str());
  }

 private:
  std::wstring text_;
};

}  // namespace detail

class output : public with_visible<detail::text_output<output_impl>> {};

class multiline_output : public detail::text_output<multiline_output_impl> {
 public:
  multiline_output() { set_width(20); }
  void set_lines(std::uint32_t lines) {
    if (replace(lines_, lines)) redraw();
  }
  void set_monospaced(bool monospaced) {
    if (replace(monospaced_, monospaced)) redraw();
  }
  std::uint32_t lines() override { return lines_; }
  bool monospaced() override { return monospaced_; }

 private:
  std::uint32_t lines_ = 7;
  bool monospaced_ = false;
};

}  // namespace zu::toolkit
