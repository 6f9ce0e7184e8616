// zugrid gradients: the arrays of colours.

#include <cstdio>
#include <memory>

#include "host/cli/commands.h"
#include "host/cli/picture_file.h"
#include "host/core/gradient_sheet.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::cli {
namespace {

constexpr char footer[] = R"(Examples:
  zugrid gradients
  zugrid gradients -o gradients.png

The names go to --gradient of zugrid render. A picture shows each array as a ramp, as the colours of
ten classes, and as its own colours in turn.)";

int run(const std::string& output) {
  if (output.empty()) {
    for (std::int32_t id = 0; id < zu_clr_arrays_get_count(); ++id)
      std::puts(zu_clr_arrays_get_name(id));
    return exit_success;
  }
  check_output(output, {});
  return write_picture(host::draw_gradients(*host::page_kind_of(output, false)), output, "");
}

}  // namespace

command add_gradients(CLI::App& options) {
  auto output = std::make_shared<std::string>();
  options.add_option("-o,--output", *output, "draw them into a picture: .png, .tif, .pdf or .svg")
      ->check(filled)
      ->type_name("PICTURE");
  options.footer(footer);
  return [output] { return run(*output); };
}

}  // namespace zu::cli
