#pragma once
// Tells a person why a file could not be written.

#include <string>

#include "zu/platform/zuk_msgs.h"

namespace zu::style {

inline void warn_of_file(const std::wstring& path, const std::wstring& reason) {
  zu_show_wwarning((path + L": " + reason).c_str());
}

}  // namespace zu::style
