#pragma once
// Names of sources in a project's file: relative where the data lie beside the file or below its
// folder, so that both can be moved together.

#include <string>

namespace zu::host {

/// What stands behind the last slash, or backslash, of a source's name.
std::string file_name_of(const std::string& source);
/// The folder of a file, as an absolute path without links.
std::string folder_of(const std::string& file);
/// How a source is written in a file of that folder. What is no path ("/vsi…", "*…", the connection
/// texts of drivers) is written as it is.
std::string written_source(const std::string& source, const std::string& folder);
/// The source that a text in a file of that folder names.
std::string read_source(const std::string& text, const std::string& folder);

}  // namespace zu::host
