#pragma once
// A temporary folder of a test's own.

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/zuk_basic/utf8.h"

namespace tests {

class own_folder {
 public:
  explicit own_folder(const std::string& name)
      : path_(std::filesystem::temp_directory_path() / (name + std::to_string(getpid()))) {
    std::filesystem::create_directories(path_);
  }
  ~own_folder() { std::filesystem::remove_all(path_); }
  own_folder(const own_folder&) = delete;
  own_folder& operator=(const own_folder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  /// A name in it, as the platform takes it.
  std::wstring at(const std::string& name) const {
    return zu::platform::from_utf8((path_ / name).native());
  }
  void write(const std::string& name, const std::string& content) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << content;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tests
