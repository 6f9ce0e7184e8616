#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_lr2d.h"

namespace {

struct host {
  std::vector<std::wstring> added, failed;
  Izu_layer* given = nullptr;
};

Izu_layer* add(const wchar_t* path, const char* type, void* user) {
  auto& h = *static_cast<host*>(user);
  std::string name = type;
  h.added.push_back(std::wstring(path) + L"|" + std::wstring(name.begin(), name.end()));
  return h.given;
}

void fail(const wchar_t* path, const wchar_t* text, void* user) {
  static_cast<host*>(user)->failed.push_back(std::wstring(path) + L"|" + text);
}

TEST(lr_builder, asks_the_host_for_each_layer_and_gives_what_it_made) {
  host h;
  h.given = zu_lr2d_create("rtr_lr2d");
  Tzu_lr_builder* builder = zu_lr_builder_create(&add, &fail, &h);
  EXPECT_EQ(zu_lr_builder_add_layer(builder, L"/data/a.png", "rtr_lr2d"), h.given);
  EXPECT_EQ(h.added, std::vector<std::wstring>{L"/data/a.png|rtr_lr2d"});
  EXPECT_TRUE(h.failed.empty());
  zu_lr_builder_destroy(builder);
  zu_lr2d_destroy(h.given);
}

TEST(lr_builder, passes_errors_on_with_their_path) {
  host h;
  Tzu_lr_builder* builder = zu_lr_builder_create(&add, &fail, &h);
  zu_lr_builder_add_error(builder, L"/data/a.png", L"No good");
  zu_lr_builder_add_error(builder, nullptr, nullptr);
  EXPECT_EQ(h.failed, (std::vector<std::wstring>{L"/data/a.png|No good", L"|"}));
  zu_lr_builder_destroy(builder);
}

TEST(lr_builder, without_a_host_makes_nothing) {
  Tzu_lr_builder* builder = zu_lr_builder_create(nullptr, nullptr, nullptr);
  EXPECT_EQ(zu_lr_builder_add_layer(builder, L"a", "grid_lr2d"), nullptr);
  zu_lr_builder_add_error(builder, L"a", L"b");
  zu_lr_builder_destroy(builder);
  EXPECT_EQ(zu_lr_builder_add_layer(nullptr, L"a", "grid_lr2d"), nullptr);
  zu_lr_builder_add_error(nullptr, L"a", L"b");
  zu_lr_builder_destroy(nullptr);
}

TEST(lr2d, keeps_its_subtype_beside_its_type) {
  Izu_layer* layer = zu_lr2d_create("grid_lr2d");
  auto subtype = [&] {
    return tests::text_of([&](Tzu_string_adp* a) { zu_lr_get_lr_subtype(layer, a); });
  };
  EXPECT_EQ(subtype(), L"");
  zu_lr_set_lr_subtype(layer, L"segy_sub_lr2d");
  EXPECT_EQ(subtype(), L"segy_sub_lr2d");
  EXPECT_STREQ(zu_lr_get_lr_type(layer), "grid_lr2d");
  zu_lr_set_lr_subtype(layer, nullptr);
  EXPECT_EQ(subtype(), L"");
  EXPECT_STREQ(zu_lr_get_lr_type(nullptr), "");
  zu_lr2d_destroy(layer);
}

}  // namespace
