#include <gtest/gtest.h>

#include <string>

#include "zu/platform/zuk_msgs.h"

namespace {

/// A host that answers every question, or none.
struct answering {
  explicit answering(bool answers) : answer(answers) {
    Tzu_asking_hooks hooks{};
    hooks.open_file = [](const wchar_t* filter, Tzu_string_adp* path, void* user) {
      auto& self = *static_cast<answering*>(user);
      self.asked += L"open:" + std::wstring(filter) + L";";
      if (self.answer) zu_string_adp_feed(path, L"/a");
      return self.answer;
    };
    hooks.save_file = [](const wchar_t* filter, const wchar_t* name, Tzu_string_adp* path,
                         void* user) {
      auto& self = *static_cast<answering*>(user);
      self.asked += L"save:" + std::wstring(filter) + L"," + (name != nullptr ? name : L"-") + L";";
      if (self.answer) zu_string_adp_feed(path, L"/b");
      return self.answer;
    };
    hooks.color = [](Tzu_color* color, void* user) {
      color->r = 9;
      return static_cast<answering*>(user)->answer;
    };
    hooks.user = this;
    zu_set_asking_hooks(&hooks);
  }
  ~answering() { zu_set_asking_hooks(nullptr); }

  bool answer;
  std::wstring asked;
};

struct path_reader {
  path_reader()
      : adapter(zu_string_adp_create(
            nullptr,
            [](const wchar_t* text, void* user) { *static_cast<std::wstring*>(user) += text; },
            &path)) {}
  ~path_reader() { zu_string_adp_destroy(adapter); }

  std::wstring path;
  Tzu_string_adp* adapter;
};

TEST(questions, of_files_and_colours_are_the_host_s_to_answer) {
  answering host(true);
  path_reader opened, saved;
  EXPECT_TRUE(zu_ask_open_file_w(L"A (*.a)|*.a", opened.adapter));
  EXPECT_TRUE(zu_ask_save_file_w(nullptr, nullptr, saved.adapter));
  EXPECT_TRUE(zu_ask_save_file_w(L"", L"x.a", saved.adapter));
  EXPECT_EQ(opened.path, L"/a");
  EXPECT_EQ(saved.path, L"/b/b");
  EXPECT_EQ(host.asked, L"open:A (*.a)|*.a;save:,-;save:,x.a;");
  Tzu_color color{1, 2, 3, 4};
  EXPECT_TRUE(zu_ask_color(&color));
  EXPECT_EQ(color.r, 9);
}

TEST(questions, refused_change_nothing) {
  answering host(false);
  path_reader path;
  EXPECT_FALSE(zu_ask_open_file_w(L"", path.adapter));
  EXPECT_FALSE(zu_ask_save_file_w(L"", L"x", path.adapter));
  EXPECT_EQ(path.path, L"");
  Tzu_color color{1, 2, 3, 4};
  EXPECT_FALSE(zu_ask_color(&color));
  EXPECT_EQ(color.r, 1);
}

TEST(questions, without_a_host_or_a_place_for_the_answer_get_none) {
  path_reader path;
  Tzu_color color{1, 2, 3, 4};
  EXPECT_FALSE(zu_ask_open_file_w(L"", path.adapter));
  EXPECT_FALSE(zu_ask_save_file_w(L"", nullptr, path.adapter));
  EXPECT_FALSE(zu_ask_color(&color));
  answering host(true);
  EXPECT_FALSE(zu_ask_open_file_w(L"", nullptr));
  EXPECT_FALSE(zu_ask_save_file_w(L"", nullptr, nullptr));
  EXPECT_FALSE(zu_ask_color(nullptr));
  EXPECT_EQ(host.asked, L"");
}

}  // namespace
