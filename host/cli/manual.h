#pragma once
// The manual page and the shells' completion, made from the parser's own table of options.

#include <CLI/CLI.hpp>

#include <string>

namespace zu::cli {

/// A page for man(1).
std::string man_page(const CLI::App& parser, const std::string& version);
/// A script for bash: completes commands, options and files.
std::string bash_completion(const CLI::App& parser);

}  // namespace zu::cli
