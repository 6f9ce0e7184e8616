// zugrid symbols: the figures of points and the marks of lines.

#include <cstdio>
#include <memory>

#include "host/cli/commands.h"
#include "host/cli/picture_file.h"
#include "host/core/symbol_sheet.h"

namespace zu::cli {
namespace {

constexpr char footer[] = R"(Examples:
  zugrid symbols
  zugrid symbols -o symbols.pdf

The numbers are those that style files hold. A picture shows each figure in three sizes, and lines with
their ends, corners, dashes and marks.)";

int run(const std::string& output) {
  if (output.empty()) {
    for (std::int32_t figure = 0; const char* name = host::figure_name(figure); ++figure)
      std::printf("%d %s\n", figure, name);
    return exit_success;
  }
  check_output(output, {});
  return write_picture(host::draw_symbols(*host::page_kind_of(output, false)), output, "");
}

}  // namespace

command add_symbols(CLI::App& options) {
  auto output = std::make_shared<std::string>();
  options.add_option("-o,--output", *output, "draw them into a picture: .png, .tif, .pdf or .svg")
      ->check(filled)
      ->type_name("PICTURE");
  options.footer(footer);
  return [output] { return run(*output); };
}

}  // namespace zu::cli
