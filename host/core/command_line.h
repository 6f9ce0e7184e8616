#pragma once
// What a person sees, as a line for the command line.

#include <string>
#include <vector>

#include "host/core/export.h"
#include "host/core/project.h"

namespace zu::host {

struct command_line {
  std::string line;  ///< quoted for a shell; empty if there is nothing to draw
  /// What its picture lacks of the one seen, a line each; none if both are the same to the pixel.
  std::vector<std::string> lacks;

  /// For a clipboard: the line, and what it lacks in comments above it.
  std::string text() const;
};

/// The line that makes the picture of a scene: `zugrid render` with its sources, if the options can
/// say how they look, which is found out by drawing; else `zugrid project render`, if the project
/// is saved under `project_path` (empty: it is not, or it has changed since).
command_line command_of(const project& content, const project_scene& shown,
                        const page_request& request, const std::string& project_path);

/// Words as one line of a POSIX shell.
std::string shell_line(const std::vector<std::string>& words);

}  // namespace zu::host
