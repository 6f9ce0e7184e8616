#include "src/toolkit/inputs.h"

#include <algorithm>

namespace zu::toolkit {

assisted_input& assisted_input::suggest(std::int32_t text) {
  suggestions_.push_back({text, {}});
  tell_list();
  return *this;
}

void assisted_input::set_suggestions(std::vector<std::wstring> texts) {
  suggestions_.clear();
  for (std::wstring& text : texts) suggestions_.push_back({0, std::move(text)});
  tell_list();
}

void assisted_input::visit_suggestions(string_visitor visitor) {
  for (const suggestion& s : suggestions_)
    if (s.id != 0)
      visit_text(s.id, visitor);
    else
      call<&string_visitor_impl::visit>(visitor, s.text.c_str());
}

void multiline_input::replace_selection(const wchar_t* text) {
  std::wstring whole = value(), part = text != nullptr ? text : L"";
  std::size_t begin = std::min<std::size_t>(marked().begin(), whole.size());
  std::size_t end = std::min<std::size_t>(marked().end(), whole.size());
  whole.replace(begin, end - begin, part);
  auto behind = static_cast<std::uint32_t>(begin + part.size());
  marked().select(behind, behind);
  assign(std::move(whole));
}

}  // namespace zu::toolkit
