#include "src/toolkit/labels.h"

#include "src/bundle/strings.h"

namespace zu::toolkit {

void label_ex::text(string_visitor visitor) {
  std::wstring text, whole = format_;
  stdwstring_visitor receiver(text);
  label::text(string_visitor(handle_of<string_visitor_impl>(receiver)));
  if (std::size_t at = whole.find(L"%ls"); at != std::wstring::npos) whole.replace(at, 3, text);
  if (!whole.empty()) call<&string_visitor_impl::visit>(visitor, whole.c_str());
}

}  // namespace zu::toolkit
