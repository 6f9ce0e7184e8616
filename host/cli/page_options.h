#pragma once
// The options of a picture's page, which commands that draw share.

#include <CLI/CLI.hpp>

#include <string>

#include "host/core/export.h"

namespace zu::cli {

/// The options as they are written.
struct page_texts {
  std::string output, size, extent, background, dots, legend;
  bool print = false;
};

void add_page_options(CLI::App& options, page_texts& given);
/// Throws `usage_error`.
host::page_request request_of(const page_texts& given);

}  // namespace zu::cli
