#include <gtest/gtest.h>

#include <map>
#include <string>

#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_os.h"

namespace {

/// A host's clipboard.
struct board {
  std::map<std::wstring, std::wstring> texts;

  static bool set(const wchar_t* format, const wchar_t* text, bool empty_first, void* user) {
    auto& self = *static_cast<board*>(user);
    if (empty_first) self.texts.clear();
    self.texts[format] = text;
    return true;
  }
  static bool get(const wchar_t* format, Tzu_string_adp* adapter, void* user) {
    auto& self = *static_cast<board*>(user);
    auto found = self.texts.find(format);
    if (found == self.texts.end()) return false;
    zu_string_adp_feed(adapter, found->second.c_str());
    return true;
  }
};

class clipboard : public testing::Test {
 protected:
  clipboard() {
    Tzu_clipboard_hooks hooks{&board::set, &board::get, &host_};
    zu_os_set_clipboard_hooks(&hooks);
  }
  ~clipboard() override { zu_os_set_clipboard_hooks(nullptr); }

  static std::wstring text(const wchar_t* format) {
    return tests::text_of([&](Tzu_string_adp* a) { zu_os_get_clipboard_w(format, a); });
  }
  board host_;
};

TEST_F(clipboard, a_text_lies_under_its_format) {
  EXPECT_TRUE(zu_os_set_clipboard_w(L"format/a", L"one", true));
  EXPECT_EQ(text(L"format/a"), L"one");
  EXPECT_FALSE(zu_os_get_clipboard_w(L"format/b", nullptr));
}

TEST_F(clipboard, the_rest_goes_only_where_it_is_emptied) {
  zu_os_set_clipboard_w(L"format/a", L"one", true);
  zu_os_set_clipboard_w(L"format/b", L"two", false);
  EXPECT_EQ(text(L"format/a"), L"one");
  zu_os_set_clipboard_w(L"format/c", L"three", true);
  EXPECT_EQ(text(L"format/a"), L"");
}

TEST_F(clipboard, null_is_refused) {
  EXPECT_FALSE(zu_os_set_clipboard_w(nullptr, L"one", true));
  EXPECT_FALSE(zu_os_set_clipboard_w(L"format/a", nullptr, true));
  EXPECT_FALSE(zu_os_get_clipboard_w(nullptr, nullptr));
  EXPECT_TRUE(host_.texts.empty());
}

TEST_F(clipboard, without_a_host_there_is_none) {
  zu_os_set_clipboard_hooks(nullptr);
  EXPECT_FALSE(zu_os_set_clipboard_w(L"format/a", L"one", true));
  EXPECT_FALSE(zu_os_get_clipboard_w(L"format/a", nullptr));
}

}  // namespace
