#include "host/core/source_paths.h"

#include <filesystem>
#include <system_error>

namespace zu::host {
namespace {

namespace fs = std::filesystem;

/// "NETCDF:file:field", "https://…", "PG:…": a word of two letters or more before a colon.
bool is_connection(const std::string& text) {
  std::size_t colon = text.find(':');
  if (colon == std::string::npos || colon < 2) return false;
  for (char c : text.substr(0, colon)) {
    bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    if (!letter && c != '_' && c != '+' && c != '-') return false;
  }
  return true;
}

bool is_reference(const std::string& text) {
  return text.empty() || text[0] == '*' || text.rfind("/vsi", 0) == 0;
}

bool stands(const fs::path& path) {
  std::error_code none;
  return fs::exists(path, none);
}

/// Absolute; links of the folder are followed, one that is the file itself is not.
fs::path settled(const fs::path& path) {
  std::error_code error;
  fs::path whole = fs::absolute(path, error).lexically_normal();
  fs::path folder = fs::weakly_canonical(whole.parent_path(), error);
  return error ? whole : folder / whole.filename();
}

}  // namespace

std::string file_name_of(const std::string& path) {
  std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string folder_of(const std::string& file) { return settled(file).parent_path().string(); }

std::string written_source(const std::string& source, const std::string& folder) {
  if (is_reference(source) || (is_connection(source) && !stands(source))) return source;
  fs::path path = settled(source), relative = path.lexically_relative(folder);
  if (relative.empty() || *relative.begin() == "..") return path.string();
  std::string text = relative.string();
  return is_reference(text) || is_connection(text) ? "./" + text : text;
}

std::string read_source(const std::string& text, const std::string& folder) {
  if (is_reference(text) || is_connection(text) || text[0] == '/') return text;
  return (fs::path(folder) / text).lexically_normal().string();
}

}  // namespace zu::host
