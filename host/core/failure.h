#pragma once
// What goes wrong in the host: one line that names the file and the reason.

#include <stdexcept>
#include <string>

namespace zu::host {

struct failure : std::runtime_error {
  explicit failure(const std::string& reason) : std::runtime_error(reason) {}
  failure(const std::string& file, const std::string& reason)
      : std::runtime_error(file + ": " + reason) {}
};

}  // namespace zu::host
