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

/// Nothing went wrong: a person declined what they were asked about the file, and was told all
/// there is to tell.
struct declined : failure {
  explicit declined(const std::string& file) : failure(file, "was not opened") {}
};

}  // namespace zu::host
