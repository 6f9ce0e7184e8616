#pragma once
// Pages saved as documents, and what their files hold.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cpl_conv.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/unit/platform/zuk_drwc/made_picture.h"

namespace zu::test {

/// A folder of its own for each test.
class saved_document : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (std::filesystem::temp_directory_path() / "zu_pages_XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  /// The reason why the page was not saved; empty if it was.
  static std::wstring save(const drwc_ptr& drwc, const std::filesystem::path& path) {
    std::wstring reason;
    auto sink = [](const wchar_t* text, void* user) { *static_cast<std::wstring*>(user) = text; };
    Tzu_string_adp* adapter = zu_string_adp_create(nullptr, sink, &reason);
    bool done = zu_drwc_save_w(drwc.get(), path.wstring().c_str(), nullptr, nullptr, adapter);
    zu_string_adp_destroy(adapter);
    EXPECT_EQ(done, reason.empty());
    return reason;
  }
  std::string content(const drwc_ptr& drwc, const char* name) const {
    EXPECT_EQ(save(drwc, folder_ / name), L"");
    return bytes_of(folder_ / name);
  }
  static std::string bytes_of(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  std::filesystem::path folder_;
};

inline int count_of(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

/// The drawing operators of a PDF file: its compressed streams, one after the other.
inline std::string operators_of(const std::string& pdf) {
  std::string all;
  const std::string begin = "stream\n", end = "\nendstream";
  for (std::size_t at = pdf.find(begin); at != std::string::npos; at = pdf.find(begin, at)) {
    at += begin.size();
    std::size_t last = pdf.find(end, at);
    std::size_t length = 0;
    void* plain = CPLZLibInflate(pdf.data() + at, last - at, nullptr, 0, &length);
    if (plain != nullptr) all.append(static_cast<const char*>(plain), length);
    VSIFree(plain);
    at = last + end.size();
  }
  return all;
}

}  // namespace zu::test
