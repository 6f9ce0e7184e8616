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

struct asked {
  std::vector<std::wstring> warnings, questions;
  bool answer = true;
};

TEST(messages, warnings_and_questions_go_to_the_host) {
  asked seen;
  Tzu_message_hooks hooks{};
  hooks.warning = [](const wchar_t* text, void* user) {
    static_cast<asked*>(user)->warnings.emplace_back(text);
  };
  hooks.question = [](const wchar_t* text, void* user) {
    auto& all = *static_cast<asked*>(user);
    all.questions.emplace_back(text);
    return all.answer;
  };
  hooks.user = &seen;
  zu_set_message_hooks(&hooks);
  zu_show_wwarning(L"hot");
  zu_show_wwarning(nullptr);
  EXPECT_TRUE(zu_ask_wyes_no(L"Really?"));
  seen.answer = false;
  EXPECT_FALSE(zu_ask_wyes_no(L"Still?"));
  EXPECT_FALSE(zu_ask_wyes_no(nullptr));
  zu_set_message_hooks(nullptr);
  EXPECT_EQ(seen.warnings, std::vector<std::wstring>{L"hot"});
  EXPECT_EQ(seen.questions, (std::vector<std::wstring>{L"Really?", L"Still?"}));
}

TEST(messages, without_a_host_the_answer_is_no) {
  zu_show_wwarning(L"unheard");
  EXPECT_FALSE(zu_ask_wyes_no(L"Anybody?"));
  Tzu_message_hooks empty{};
  zu_set_message_hooks(&empty);
  EXPECT_FALSE(zu_ask_wyes_no(L"Anybody?"));
  zu_set_message_hooks(nullptr);
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
