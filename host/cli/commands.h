#pragma once
// One function and one file per command. A new command is a function here, its file, and a row of
// the table in main.cpp.

#include <CLI/CLI.hpp>

#include <functional>
#include <stdexcept>
#include <string>

namespace zu::cli {

/// Bad usage: exit code 2.
struct usage_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

enum exit_code { exit_success = 0, exit_failure = 1, exit_usage = 2 };

/// Refuses an empty text as the value of an option.
inline const CLI::Validator filled(
    [](std::string& text) { return text.empty() ? std::string("an empty text says nothing") : ""; },
    "");

/// Adds the command's options to its part of the parser; gives what runs it once they are read.
/// The result of that is the exit code; it throws `usage_error` and `host::failure`.
using command = std::function<int()>;
command add_render(CLI::App& options);
command add_info(CLI::App& options);
command add_convert(CLI::App& options);
command add_probe(CLI::App& options);
command add_classify(CLI::App& options);
command add_project(CLI::App& options);
command add_gradients(CLI::App& options);
command add_symbols(CLI::App& options);
command add_config(CLI::App& options);

}  // namespace zu::cli
