#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_io.h"

namespace {

namespace fs = std::filesystem;
using tests::text_of;

struct closed {
  void operator()(Tzu_xnode* node) const { zu_xnode_close(node); }
};
using node_ptr = std::unique_ptr<Tzu_xnode, closed>;

std::string text_in(const node_ptr& root) {
  std::wstring wide = text_of([&](Tzu_string_adp* a) { zu_xnode_get_text(root.get(), a); });
  return {wide.begin(), wide.end()};  // bytes, widened one by one
}

struct read_text {
  node_ptr root;
  std::wstring reason;
  explicit read_text(const std::string& text) {
    reason =
        text_of([&](Tzu_string_adp* a) { root.reset(zu_xnode_read(text.data(), text.size(), a)); });
  }
};

std::wstring attribute(const node_ptr& node, const wchar_t* key) {
  return text_of([&](Tzu_string_adp* a) { zu_xnode_get_attr_wstr(node.get(), key, a); });
}

TEST(tree_text, any_key_and_any_text_survives_being_written) {
  const std::wstring texts[] = {L"plain",       L"two words",     L"1st",        L"a:b",
                                L"<&\"'>",      L"Высота",        L"\U0001F30D", L"_x41_",
                                L"_x",          L"_xA\x01",       L"tile_x1",    L"_x5F_x41_",
                                L" \t\n\r ",    L"\x01\x1F\x7F",  L"\xFFFE",     L"-",
                                L"_x_x1_\x02_", L"]]>",           L"--",         L"%s",
                                L"xml",         L"_x1234567890_", L"x\u00D7y",   L"."};
  node_ptr root(zu_xnode_create_root_w(L"корень и 1"));
  for (const std::wstring& each : texts) {
    zu_xnode_set_attr_wstr(root.get(), each.c_str(), each.c_str());
    node_ptr child(zu_xnode_set_node_w(root.get(), each.c_str()));
    zu_xnode_set_attr_wstr(child.get(), L"v", each.c_str());
  }
  read_text again(text_in(root));
  ASSERT_TRUE(again.root) << testing::PrintToString(again.reason);
  EXPECT_EQ(text_in(again.root), text_in(root));
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_xnode_get_name_w(again.root.get(), a); }),
            L"корень и 1");
  for (const std::wstring& each : texts) {
    EXPECT_EQ(attribute(again.root, each.c_str()), each);
    node_ptr child(zu_xnode_get_node_w(again.root.get(), each.c_str()));
    EXPECT_EQ(attribute(child, L"v"), each);
  }
}

TEST(tree_text, doubles_survive_to_the_bit) {
  node_ptr root(zu_xnode_create_root_w(L"r"));
  const double values[] = {0.1, -0.0, 5e-324, 1.7976931348623157e308, HUGE_VAL, -HUGE_VAL, NAN};
  for (double value : values) {
    zu_xnode_set_attr_dbl_w(root.get(), L"v", value);
    read_text again(text_in(root));
    double read = zu_xnode_get_attr_dbl_w(again.root.get(), L"v", 7);
    EXPECT_EQ(std::isnan(read), std::isnan(value));
    EXPECT_EQ(std::signbit(read), std::signbit(value));
    EXPECT_TRUE(read == value || std::isnan(value));
  }
  zu_xnode_set_attr_dbl_w(root.get(), L"v", 0.1);
  EXPECT_EQ(attribute(root, L"v"), L"0.1");
}

TEST(tree_text, numbers_too_large_or_of_a_wrong_kind_give_the_default) {
  read_text tree(R"(<r a="1e999" b="9223372036854775808" c="-1e999" d="0x10"><n>1e3</n></r>)");
  ASSERT_TRUE(tree.root);
  EXPECT_EQ(zu_xnode_get_attr_dbl_w(tree.root.get(), L"a", 5), 5);
  EXPECT_EQ(zu_xnode_get_attr_int_w(tree.root.get(), L"b", 5), 5);
  EXPECT_EQ(zu_xnode_get_attr_dbl_w(tree.root.get(), L"c", 5), 5);
  EXPECT_EQ(zu_xnode_get_attr_int_w(tree.root.get(), L"d", 5), 5);
  EXPECT_EQ(zu_xnode_get_node_int(tree.root.get(), L"n", 5), 5);
}

TEST(tree_text, texts_and_numbers_inside_children_are_read) {
  read_text tree("<r><a>Текст &amp; <!-- not this --></a><b>-12</b><c/></r>");
  ASSERT_TRUE(tree.root);
  auto text = [&](const wchar_t* key) {
    return tests::texts_of(
        [&](Tzu_string_adp* a) { zu_xnode_get_node_wstr(tree.root.get(), key, a); });
  };
  EXPECT_EQ(text(L"a"), std::vector<std::wstring>{L"Текст & "});
  EXPECT_EQ(text(L"c"), std::vector<std::wstring>{L""});
  EXPECT_TRUE(text(L"none").empty());
  EXPECT_EQ(zu_xnode_get_node_int(tree.root.get(), L"b", 5), -12);
  EXPECT_EQ(zu_xnode_get_node_int(tree.root.get(), L"a", 5), 5);
  EXPECT_EQ(zu_xnode_get_node_int(tree.root.get(), L"none", 5), 5);
}

TEST(tree_text, children_of_one_name_are_walked_in_order) {
  node_ptr root(zu_xnode_create_root_w(L"r"));
  for (int i = 0; i < 3; ++i) {
    node_ptr row(zu_xnode_add_node_w(root.get(), L"row"));
    zu_xnode_set_attr_int_w(row.get(), L"i", i);
    node_ptr between(zu_xnode_add_node_w(root.get(), L"between"));
  }
  int next = 0;
  for (node_ptr row(zu_xnode_get_node_w(root.get(), L"row")); row;
       row.reset(zu_xnode_next_node_w(row.get())))
    EXPECT_EQ(zu_xnode_get_attr_int_w(row.get(), L"i", -1), next++);
  EXPECT_EQ(next, 3);
}

TEST(tree_text, assigning_copies_all_that_a_node_holds_and_clearing_takes_it_away) {
  read_text from("<r a=\"1\"><b c=\"2\">text</b><!--said--></r>");
  node_ptr to(zu_xnode_create_root_w(L"r"));
  zu_xnode_set_attr_int_w(to.get(), L"old", 1);
  zu_xnode_assign(to.get(), from.root.get());
  EXPECT_EQ(text_in(to), text_in(from.root));
  zu_xnode_assign(to.get(), to.get());
  EXPECT_EQ(text_in(to), text_in(from.root));
  zu_xnode_clear(to.get());
  EXPECT_EQ(text_in(to), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r />\n");
}

std::string nested(int depth) {
  std::string text;
  for (int i = 0; i < depth; ++i) text += "<a>";
  for (int i = 0; i < depth; ++i) text += "</a>";
  return text;
}

TEST(tree_text, what_is_no_tree_is_refused_with_the_reason) {
  struct {
    std::string text, reason;
  } const cases[] = {
      {"", "is empty"},
      {"no markup", "is no XML: it has no root"},
      {"<a><b></a>", "is no XML: "},
      {"<a x=\"1></a>", "is no XML: "},
      {"<a", "is no XML: "},
      {"<a/><b/>", "is no XML: it has more than one root"},
      {"<!-- nothing -->", "is no XML: it has no root"},
      {std::string("<a b=\"\0\"/>", 10), "is no XML in UTF-8: it holds a NUL"},
      {std::string("<\0a\0/\0>\0", 8), "is no XML in UTF-8: it holds a NUL"},
      {"<!DOCTYPE r [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;\">]><r>&b;</r>",
       "declares a document type"},
      {"<!DOCTYPE r SYSTEM \"file:///etc/passwd\"><r/>", "declares a document type"},
      {nested(65), "is nested too deeply"},
      {nested(100000), "is nested too deeply"},
  };
  for (const auto& c : cases) {
    read_text tree(c.text);
    EXPECT_FALSE(tree.root) << c.text.substr(0, 40);
    std::wstring expected(c.reason.begin(), c.reason.end());
    EXPECT_EQ(tree.reason.substr(0, expected.size()), expected) << c.text.substr(0, 40);
  }
  EXPECT_TRUE(read_text(nested(64)).root);
}

TEST(tree_text, the_line_of_a_mistake_is_said) {
  read_text tree("<a>\n<b>\n</c>\n</a>");
  EXPECT_NE(tree.reason.find(L"in line 3"), std::wstring::npos)
      << testing::PrintToString(tree.reason);
}

TEST(tree_text, a_huge_attribute_and_unknown_entities_are_texts) {
  std::string huge(1 << 22, 'x');
  read_text tree("<a v=\"" + huge + "\" e=\"&unknown;\" z=\"a&#0;b\"/>");
  ASSERT_TRUE(tree.root);
  EXPECT_EQ(attribute(tree.root, L"v").size(), huge.size());
  EXPECT_EQ(attribute(tree.root, L"e"), L"&unknown;");
  EXPECT_EQ(attribute(tree.root, L"z"), L"a");  // a text ends at a NUL
}

struct tree_file : testing::Test {
  fs::path folder = fs::path(testing::TempDir()) / ("tree_file" + std::to_string(getpid()));
  tree_file() { fs::create_directories(folder); }
  ~tree_file() override { fs::remove_all(folder); }

  static std::string bytes_of(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::wstring wide(const fs::path& path) {
    std::string narrow = path.string();
    return {narrow.begin(), narrow.end()};
  }
};

TEST_F(tree_file, saved_and_loaded_and_saved_again_is_the_same_to_the_byte) {
  fs::path path = folder / "a.xml", again = folder / "b.xml";
  read_text tree("<r b='2' a='1'><!-- kept --><z/><a>text &lt; \u00e9</a></r>");
  EXPECT_TRUE(zu_xnode_save_file_w(tree.root.get(), wide(path).c_str(), nullptr));
  node_ptr loaded(zu_xnode_load_file_w(wide(path).c_str(), nullptr));
  EXPECT_TRUE(zu_xnode_save_file_w(loaded.get(), wide(again).c_str(), nullptr));
  EXPECT_EQ(bytes_of(path), bytes_of(again));
  EXPECT_EQ(bytes_of(path), text_in(tree.root));
}

TEST_F(tree_file, says_why_a_file_cannot_be_read_or_written) {
  auto reading = [&](const fs::path& path) {
    node_ptr root;
    return text_of(
        [&](Tzu_string_adp* a) { root.reset(zu_xnode_load_file_w(wide(path).c_str(), a)); });
  };
  EXPECT_EQ(reading(folder / "none.xml"), L"no such file");
  EXPECT_EQ(reading(folder), L"is a folder");
  EXPECT_EQ(reading("/dev/null"), L"is not a regular file");
  node_ptr root(zu_xnode_create_root_w(L"r"));
  auto writing = [&](const fs::path& path) {
    return text_of([&](Tzu_string_adp* a) {
      EXPECT_FALSE(zu_xnode_save_file_w(root.get(), wide(path).c_str(), a));
    });
  };
  EXPECT_EQ(writing(folder / "no" / "a.xml"), L"no such folder");
  EXPECT_EQ(writing(folder), L"is a folder");
  EXPECT_FALSE(zu_xnode_save_file_w(nullptr, L"x", nullptr));
  EXPECT_EQ(zu_xnode_load_file_w(nullptr, nullptr), nullptr);
}

TEST_F(tree_file, a_disk_that_fills_up_leaves_the_old_file) {
  const fs::path path = folder / "a.txt";
  const std::string old = "old", fresh(100000, 'x');
  ASSERT_TRUE(zu_io_write_file_w(wide(path).c_str(), old.data(), old.size(), nullptr));
  // A file may not grow over 4 KiB, which fails as a full disk does.
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  auto* signal_before = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit narrow{4096, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &narrow);
  bool written = true;
  const std::wstring reason = text_of([&](Tzu_string_adp* a) {
    written = zu_io_write_file_w(wide(path).c_str(), fresh.data(), fresh.size(), a);
  });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, signal_before);
  EXPECT_FALSE(written);
  EXPECT_EQ(reason, L"no space left on the device");
  EXPECT_EQ(bytes_of(path), old);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

TEST_F(tree_file, a_kill_in_the_middle_of_a_save_leaves_a_whole_file) {
  fs::path path = folder / "a.xml";
  auto tree_of = [](int mark) {
    node_ptr root(zu_xnode_create_root_w(L"r"));
    for (int i = 0; i < 2000; ++i) {
      node_ptr row(zu_xnode_add_node_w(root.get(), L"row"));
      zu_xnode_set_attr_int_w(row.get(), L"mark", mark);
    }
    return root;
  };
  node_ptr first = tree_of(1), second = tree_of(2);
  std::string old = text_in(first), changed = text_in(second);
  ASSERT_TRUE(zu_xnode_save_file_w(first.get(), wide(path).c_str(), nullptr));
  for (int i = 0; i < 40; ++i) {
    pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
      for (;;) {
        zu_xnode_save_file_w(second.get(), wide(path).c_str(), nullptr);
        zu_xnode_save_file_w(first.get(), wide(path).c_str(), nullptr);
      }
    usleep(static_cast<useconds_t>(500 + 397 * i));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::string left = bytes_of(path);
    EXPECT_TRUE(left == old || left == changed) << left.size() << " bytes";
  }
}

}  // namespace
