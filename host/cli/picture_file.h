#pragma once
// Pictures that commands leave in files.

#include <csignal>
#include <string>
#include <vector>

#include "host/core/picture.h"

namespace zu::cli {

/// While it lives, a signal that would end the program waits, so that a file is written whole or
/// its half is gone.
class undisturbed {
 public:
  undisturbed();
  ~undisturbed();
  undisturbed(const undisturbed&) = delete;
  undisturbed& operator=(const undisturbed&) = delete;

 private:
  sigset_t before_;
};

/// Refuses a picture whose ending says no format (`usage_error`), and one that would replace a
/// source (`failure`).
void check_output(const std::string& output, const std::vector<std::string>& sources);

/// Writes the picture and says on standard error what it lacks. Gives the exit code.
int write_picture(const host::drawn_picture& picture, const std::string& output,
                  const std::string& projection);

}  // namespace zu::cli
