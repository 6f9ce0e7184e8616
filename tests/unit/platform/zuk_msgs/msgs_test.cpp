#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "zu/platform/zuk_msgs.h"

namespace {

TEST(messages, go_to_the_sink_and_to_nobody_without_one) {
  std::vector<std::wstring> seen;
  zu_set_message_sink(
      [](const wchar_t* text, void* user) {
        static_cast<std::vector<std::wstring>*>(user)->emplace_back(text);
      },
      &seen);
  zu_show_wmessage(L"one");
  zu_show_wmessage(nullptr);
  zu_set_message_sink(nullptr, nullptr);
  zu_show_wmessage(L"two");
  EXPECT_EQ(seen, std::vector<std::wstring>{L"one"});
}

TEST(progress, is_silent_and_never_stopped_without_hooks) {
  Tzu_progress* progress = zu_progress_create(1);
  zu_progress_wcaption(progress, L"a");
  zu_progress_show64(progress, 1, 2);
  EXPECT_FALSE(zu_progress_get_stopped(progress));
  zu_progress_destroy(progress);
  zu_progress_destroy(nullptr);
  EXPECT_FALSE(zu_progress_get_stopped(nullptr));
}

TEST(progress, keeps_the_hooks_that_it_was_made_with) {
  int ended = 0;
  Tzu_progress_hooks hooks{};
  hooks.user = &ended;
  hooks.end = [](void* window, void* user) {
    EXPECT_EQ(window, nullptr) << "no hook has given one";
    ++*static_cast<int*>(user);
  };
  zu_progress_set_hooks(&hooks);
  Tzu_progress* progress = zu_progress_create(0);
  zu_progress_set_hooks(nullptr);
  Tzu_progress* silent = zu_progress_create(0);
  zu_progress_destroy(silent);
  EXPECT_EQ(ended, 0);
  zu_progress_destroy(progress);
  EXPECT_EQ(ended, 1);
}

}  // namespace
