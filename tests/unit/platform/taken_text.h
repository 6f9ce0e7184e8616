#pragma once
// What a platform function delivers to an adapter.

#include <string>
#include <vector>

#include "zu/platform/zuk_basic.h"

namespace tests {

/// All texts that `ask` has delivered, narrow ones widened byte by byte.
template <class function> std::vector<std::wstring> texts_of(function&& ask) {
  std::vector<std::wstring> texts;
  Tzu_string_adp* adapter = zu_string_adp_create(
      [](const char* text, void* user) {
        std::string narrow = text;
        static_cast<std::vector<std::wstring>*>(user)->emplace_back(narrow.begin(), narrow.end());
      },
      [](const wchar_t* text, void* user) {
        static_cast<std::vector<std::wstring>*>(user)->emplace_back(text);
      },
      &texts);
  ask(adapter);
  zu_string_adp_destroy(adapter);
  return texts;
}

/// The last one; empty if there was none.
template <class function> std::wstring text_of(function&& ask) {
  std::vector<std::wstring> texts = texts_of(ask);
  return texts.empty() ? std::wstring() : texts.back();
}

}  // namespace tests
