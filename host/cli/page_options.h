#pragma once
// The options of a picture's page, which commands that draw share.

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

#include "host/core/legend.h"
#include "host/core/picture.h"

namespace zu::cli {

/// The options as they are written.
struct page_texts {
  std::string output, size, extent, background, dots, legend;
  bool print = false;
};

/// What they ask for.
struct page_request {
  host::picture_request picture;
  std::optional<host::corner> legend;  ///< none: no legend
  bool legend_only = false;            ///< nothing but the legend
};

void add_page_options(CLI::App& options, page_texts& given);
/// Throws `usage_error`.
page_request request_of(const page_texts& given);

/// Draws a scene as asked, with its legend. Throws `failure`.
host::drawn_picture draw(const host::scene& shown, const page_request& request);

}  // namespace zu::cli
