#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_xml_data/user_palettes.h"
#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

namespace fs = std::filesystem;
using zu::platform::from_utf8;
using zu::platform::owned;

struct palette_files : testing::Test {
  fs::path folder = fs::path(testing::TempDir()) / ("palette_files" + std::to_string(getpid()));
  owned<zu_xml_save_2d_destroy> xml{zu_xml_save_2d_create()};
  owned<zu_clr_palettes_destroy> list{zu_clr_palettes_create()};

  palette_files() {
    fs::create_directories(folder);
    add(L"Море \"1\"", {{1, 2, 3, 4}, {255, 0, 128, 255}});
    add(L"", {});
  }
  ~palette_files() override { fs::remove_all(folder); }

  void add(const wchar_t* caption, std::initializer_list<Tzu_color> colors) {
    Tzu_clr_palette* palette = zu_clr_palettes_add(list.get());
    zu_clr_palette_set_wcaption(palette, caption);
    for (Tzu_color each : colors) zu_clr_palette_add_color(palette, each);
  }
  std::wstring path(const char* name = "a.clrs") const {
    return from_utf8((folder / name).native());
  }
  bool load(Tzu_clr_palettes* into) {
    return zu_xml_data_load_clr_palettes(xml.get(), path().c_str(), into);
  }
  /// What a file of that text gives as its reason, and that the list stays.
  std::wstring refusal(const std::string& text) {
    std::ofstream(folder / "a.clrs") << text;
    EXPECT_FALSE(load(list.get())) << text;
    EXPECT_EQ(zu_clr_palettes_get_size(list.get()), 2U);
    return tests::text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml.get(), a); });
  }
  std::string written() const {
    std::ifstream in(folder / "a.clrs");
    return {std::istreambuf_iterator<char>(in), {}};
  }
};

TEST_F(palette_files, give_captions_and_colours_back) {
  ASSERT_TRUE(zu_xml_data_save_clr_palettes(xml.get(), path().c_str(), list.get()));
  std::string text = written();
  owned<zu_clr_palettes_destroy> other(zu_clr_palettes_create());
  zu_clr_palettes_add(other.get());
  ASSERT_TRUE(load(other.get()));
  ASSERT_EQ(zu_clr_palettes_get_size(other.get()), 2U);
  Tzu_clr_palette* first = zu_clr_palettes_get_ptr(other.get(), 0);
  EXPECT_EQ(tests::text_of([&](Tzu_string_adp* a) { zu_clr_palette_get_wcaption(first, a); }),
            L"Море \"1\"");
  ASSERT_EQ(zu_clr_palette_get_size(first), 2U);
  Tzu_color color = zu_clr_palette_get_color(first, 1);
  EXPECT_EQ(zu_clr_init_rgba(color.r, color.g, color.b, color.a), 0xff8000ffU);
  EXPECT_EQ(zu_clr_palette_get_color(first, 0).a, 4);
  ASSERT_TRUE(zu_xml_data_save_clr_palettes(xml.get(), path().c_str(), other.get()));
  EXPECT_EQ(written(), text);
}

TEST_F(palette_files, are_what_was_written_once) {
  std::ofstream(folder / "a.clrs") << R"(<?xml version="1.0" encoding="UTF-8"?>
<palettes>
  <palette caption="Sea">
    <color r="1" g="2" b="3" a="4" />
  </palette>
</palettes>
)";
  ASSERT_TRUE(load(list.get()));
  ASSERT_EQ(zu_clr_palettes_get_size(list.get()), 1U);
  Tzu_color color = zu_clr_palette_get_color(zu_clr_palettes_get_ptr(list.get(), 0), 0);
  EXPECT_EQ(zu_clr_init_rgba(color.r, color.g, color.b, color.a), 0x04030201U);
}

TEST_F(palette_files, that_are_broken_leave_the_list_as_it_was) {
  EXPECT_EQ(refusal("<range_scale/>"), L"holds no palettes");
  for (const char* color : {"", "r=\"1\" g=\"2\" b=\"3\"", "r=\"256\" g=\"0\" b=\"0\" a=\"0\"",
                            "r=\"-1\" g=\"0\" b=\"0\" a=\"0\"", "r=\"x\" g=\"0\" b=\"0\" a=\"0\""})
    EXPECT_EQ(refusal("<palettes><palette/><palette><color " + std::string(color) +
                      "/></palette></palettes>"),
              L"holds a broken colour");
  EXPECT_NE(refusal("<palettes><palette>"), L"");
  EXPECT_NE(refusal("<!DOCTYPE p [<!ENTITY e \"e\">]><palettes/>"), L"");
  EXPECT_NE(refusal(""), L"");
}

TEST_F(palette_files, that_are_not_there_have_a_reason) {
  EXPECT_FALSE(zu_xml_data_load_clr_palettes(xml.get(), path("none").c_str(), list.get()));
  EXPECT_FALSE(zu_xml_data_save_clr_palettes(xml.get(), path("none/a.clrs").c_str(), list.get()));
  EXPECT_NE(tests::text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml.get(), a); }),
            L"");
  EXPECT_FALSE(zu_xml_data_load_clr_palettes(xml.get(), nullptr, list.get()));
  EXPECT_FALSE(zu_xml_data_save_clr_palettes(xml.get(), path().c_str(), nullptr));
}

TEST_F(palette_files, that_cannot_be_written_leave_the_old_one) {
  ASSERT_TRUE(zu_xml_data_save_clr_palettes(xml.get(), path().c_str(), list.get()));
  std::string before = written();
  fs::create_directory(folder / "b.clrs");
  EXPECT_FALSE(zu_xml_data_save_clr_palettes(xml.get(), path("b.clrs").c_str(), list.get()));
  EXPECT_EQ(written(), before);
}

TEST_F(palette_files, of_the_person_are_kept_aside_if_they_cannot_be_read) {
  zu_clr_palettes_assign(list.get(),
                         owned<zu_clr_palettes_destroy>(zu_clr_palettes_create()).get());
  zu::platform::read_user_palettes(path(), list.get());
  EXPECT_EQ(zu_problems_get_count(path().c_str()), 0) << "there is none yet";
  std::ofstream(folder / "a.clrs") << "<palettes><palette><color/></palette></palettes>";
  zu::platform::read_user_palettes(path(), list.get());
  EXPECT_EQ(zu_clr_palettes_get_size(list.get()), 0U);
  EXPECT_EQ(tests::text_of([&](Tzu_string_adp* a) { zu_problems_get(path().c_str(), 0, a); }),
            L"holds a broken colour");
  EXPECT_FALSE(fs::exists(folder / "a.clrs"));
  EXPECT_TRUE(fs::exists(folder / "a.clrs.broken"));
  std::ofstream(folder / "a.clrs") << "<palettes><palette/></palettes>";
  zu::platform::read_user_palettes(path(), list.get());
  EXPECT_EQ(zu_clr_palettes_get_size(list.get()), 1U);
  zu_problems_clear(path().c_str());
}

TEST(user_palettes, are_one_list) {
  ASSERT_NE(zu_get_user_palettes(), nullptr);
  EXPECT_EQ(zu_get_user_palettes(), zu_get_user_palettes());
}

}  // namespace
