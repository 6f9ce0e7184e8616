#include "platform/zuk_file_segy/side_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <utility>

namespace zu::platform {

namespace {

namespace fs = std::filesystem;

fs::path data_folder() {
  for (auto [variable, below] : {std::pair("XDG_DATA_HOME", ""), std::pair("HOME", ".local/share")})
    if (const char* home = std::getenv(variable); home != nullptr && *home == '/')
      return fs::path(home) / below / "zugrid" / "sections";
  return {};
}

// The whole path in one name: two sections of one name in two folders do not meet.
std::string name_of(const std::string& section) {
  std::error_code error;
  fs::path absolute = fs::weakly_canonical(section, error);
  std::string text = error ? section : absolute.string();
  std::uint64_t hash = 0xCBF29CE484222325U;  // FNV-1a
  for (char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  std::string name;
  for (int shift = 60; shift >= 0; shift -= 4) name += "0123456789abcdef"[hash >> shift & 15];
  return name + "-" + fs::path(text).filename().string();
}

// Seconds and nanoseconds.
std::pair<std::int64_t, std::int64_t> time_of(const std::string& path) {
  struct stat about;
  if (::stat(path.c_str(), &about) != 0) return {0, 0};
  return {about.st_mtim.tv_sec, about.st_mtim.tv_nsec};
}

}  // namespace

std::string existing_side_file(const std::string& section, const std::string& suffix) {
  std::error_code error;
  if (fs::is_regular_file(section + suffix, error)) return section + suffix;
  fs::path folder = data_folder();
  if (folder.empty()) return {};
  fs::path kept = folder / (name_of(section) + suffix);
  return fs::is_regular_file(kept, error) ? kept.string() : std::string();
}

std::string side_file_to_write(const std::string& section, const std::string& suffix) {
  fs::path folder = fs::path(section).parent_path();
  if (folder.empty()) folder = ".";
  fs::path kept = data_folder();
  if (kept.empty() || ::access(folder.c_str(), W_OK) == 0) return section + suffix;
  std::error_code error;
  fs::create_directories(kept, error);  // the write tells what is wrong
  return (kept / (name_of(section) + suffix)).string();
}

bool is_newer(const std::string& file, const std::string& section) {
  return time_of(section) < time_of(file);
}

}  // namespace zu::platform
