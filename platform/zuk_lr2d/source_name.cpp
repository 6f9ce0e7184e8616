#include <cwctype>
#include <filesystem>
#include <system_error>

#include "platform/zuk_lr2d/scene.h"

namespace zu::platform {
namespace {

bool is_file(const std::wstring& path) {
  std::error_code unknown;
  return std::filesystem::exists(std::filesystem::path(path), unknown);
}

/// /vsizip/a.zip/in.tif, /vsizip/{a.zip}/in.tif, /vsigzip/a.gz …: the longest beginning that
/// exists.
std::wstring file_of_virtual_path(std::wstring path) {
  while (path.rfind(L"/vsi", 0) == 0) {
    std::size_t end = path.find(L'/', 1);
    if (end == std::wstring::npos) return path;
    path.erase(0, end + 1);
  }
  if (!path.empty() && path.front() == L'{') {
    std::size_t end = path.find(L'}');
    return path.substr(1, end == std::wstring::npos ? end : end - 1);
  }
  // A path that the prefix left without its root.
  for (const std::wstring& from : {path, L"/" + path})
    for (std::wstring part = from; !part.empty();) {
      if (is_file(part) && part != L"/") return part;
      std::size_t slash = part.rfind(L'/');
      if (slash == std::wstring::npos) break;
      part.resize(slash);
    }
  return path;
}

/// What stands behind a driver's prefix; empty if there is none.
std::wstring behind_prefix(const std::wstring& source) {
  std::size_t colon = source.find(L':');
  if (colon == std::wstring::npos || colon < 2) return {};
  for (std::size_t i = 0; i < colon; ++i)
    if (!std::iswalnum(static_cast<wint_t>(source[i])) && source[i] != L'_') return {};
  return source.substr(colon + 1);
}

}  // namespace

std::wstring file_of_source(const std::wstring& source) {
  if (source.empty() || source.front() == L'*' || is_file(source)) return source;
  if (source.rfind(L"/vsi", 0) == 0) return file_of_virtual_path(source);
  std::wstring rest = behind_prefix(source);
  if (rest.empty()) return source;
  if (rest.front() == L'"') return rest.substr(1, rest.find(L'"', 1) - 1);
  for (std::wstring part = rest; !part.empty();) {
    if (is_file(part)) return part;
    std::size_t colon = part.rfind(L':');
    if (colon == std::wstring::npos) break;
    part.resize(colon);
  }
  return source;
}

}  // namespace zu::platform
