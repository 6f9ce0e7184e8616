#pragma once
// Files in memory for code that reads and writes by path, gone at the end.

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

class memory_folder {
 public:
  explicit memory_folder(const std::string& name)
      : path_("/dev/shm/" + name + "." + std::to_string(getpid())) {
    std::filesystem::create_directories(path_);
  }
  ~memory_folder() { std::filesystem::remove_all(path_); }
  memory_folder(const memory_folder&) = delete;
  memory_folder& operator=(const memory_folder&) = delete;

  std::wstring at(const std::string& name) const {
    std::string whole = path_ + "/" + name;
    return {whole.begin(), whole.end()};
  }
  void write(const std::string& name, const void* data, std::size_t size) const {
    std::ofstream(path_ + "/" + name, std::ios::binary)
        .write(static_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  std::string content(const std::string& name) const {
    std::ifstream file(path_ + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::string path_;
};
