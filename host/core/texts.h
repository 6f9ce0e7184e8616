#pragma once
// Texts between the host (UTF-8) and the platform (wide).

#include <memory>
#include <string>
#include <vector>

#include "zu/platform/zuk_basic.h"
#include "zu/strings.h"

namespace zu::host {

std::wstring wide(const std::string& text);
std::string narrow(const std::wstring& text);
/// A file's name for the platform; throws `failure` if it is no UTF-8, since it would come to name
/// another file.
std::wstring wide_name(const std::string& file);

/// The text that a platform function delivers to an adapter; empty if it delivers none.
template <class function> std::wstring text_of(function&& ask) {
  std::wstring text;
  std::unique_ptr<Tzu_string_adp, void (*)(Tzu_string_adp*)> adapter(
      zu_string_adp_create(
          nullptr,
          [](const wchar_t* given, void* user) { *static_cast<std::wstring*>(user) = given; },
          &text),
      &zu_string_adp_destroy);
  ask(adapter.get());
  return text;
}

/// The same of a function that delivers UTF-8.
template <class function> std::string narrow_text_of(function&& ask) {
  std::string text;
  std::unique_ptr<Tzu_string_adp, void (*)(Tzu_string_adp*)> adapter(
      zu_string_adp_create(
          [](const char* given, void* user) { *static_cast<std::string*>(user) = given; }, nullptr,
          &text),
      &zu_string_adp_destroy);
  ask(adapter.get());
  return text;
}

/// Keeps the text that an interface gives.
class kept_text final : public string_visitor_impl {
 public:
  void visit(const wchar_t* text) override { text_ = text != nullptr ? text : L""; }
  string_visitor visitor() { return string_visitor(handle_of<string_visitor_impl>(*this)); }
  const std::wstring& get() const { return text_; }

 private:
  std::wstring text_;
};

/// The reasons that the platform keeps for a source, of one kind or of all (-1), oldest first.
std::vector<std::string> reasons(const std::wstring& source, int kind = -1);

}  // namespace zu::host
