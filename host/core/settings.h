#pragma once
// What a person has chosen once for all projects: zugrid/settings.xml in $XDG_CONFIG_HOME, else in
// ~/.config.

#include <string>

#include "host/core/project.h"

namespace zu::host {

/// The settings by name, each a text. A file that is not there holds none; one that is refused
/// throws `failure`.
class settings {
 public:
  settings();

  const std::string& path() const { return path_; }  ///< of the file; empty if it has no place
  /// The value; empty if there is none.
  std::string get(const std::string& name) const;
  /// Sets a value and writes the file, whole or not at all. Throws `failure`.
  void set(const std::string& name, const std::string& value);

 private:
  std::string path_;
  node_ptr root_;
};

/// Puts in force what the platform must know of the settings: "overviews" ("1" or "0"; else as the
/// platform has it) and "style_libraries" (a folder; else the platform's own). A settings file that
/// is refused says nothing.
void apply_settings();

/// Puts a language in force for the texts of the bundle: "ru" or "en"; with an empty name what the
/// setting "lang" says, else what the system says (LC_ALL, LC_MESSAGES or LANG). A settings file
/// that is refused says nothing.
void choose_language(const std::string& name);

}  // namespace zu::host
