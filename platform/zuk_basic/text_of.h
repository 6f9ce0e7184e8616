#pragma once
// A text that a plain function delivers to an adapter.

#include <string>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_basic.h"

namespace zu::platform {

/// Calls `ask` with an adapter and gives what it delivered last; empty if it delivered nothing.
template <class function> std::wstring text_of(function&& ask) {
  std::wstring text;
  owned<zu_string_adp_destroy> adapter(zu_string_adp_create(
      [](const char* narrow, void* user) { *static_cast<std::wstring*>(user) = from_utf8(narrow); },
      [](const wchar_t* wide, void* user) { *static_cast<std::wstring*>(user) = wide; }, &text));
  ask(adapter.get());
  return text;
}

}  // namespace zu::platform
