#include "host/cli/page_options.h"

#include <cmath>
#include <tuple>

#include "host/cli/commands.h"
#include "host/cli/option_texts.h"

namespace zu::cli {
namespace {

constexpr double least_dots = 10, most_dots = 1200;

/// A corner, or `as_it_comes`, or "only"; also both with a comma between them.
void read_legend(const std::string& text, host::page_request& request) {
  request.legend = host::corner::top_right;
  for (const std::string& part : parts_of("--legend", text)) {
    if (part == "only")
      request.legend_only = true;
    else if (part == "top-left")
      request.legend = host::corner::top_left;
    else if (part == "bottom-left")
      request.legend = host::corner::bottom_left;
    else if (part == "bottom-right")
      request.legend = host::corner::bottom_right;
    else if (part != "top-right" && part != as_it_comes)
      throw usage_error("--legend: \"" + part + "\" is neither a corner nor \"only\"");
  }
}

}  // namespace

void add_page_options(CLI::App& options, page_texts& given) {
  options.add_option("-o,--output", given.output, "picture to write: .png, .tif, .pdf or .svg")
      ->required()
      ->type_name("FILE");
  options.add_option("--size", given.size, "pixels of the picture, WxH (1024x768)")
      ->type_name("WxH");
  options
      .add_option("--dpi", given.dots,
                  "pixels an inch, by which lines and texts get their size (96)")
      ->type_name("N");
  options.add_flag("--print", given.print,
                   "draw with full precision, in tiles; a .pdf or .svg always is");
  options
      .add_option("--extent", given.extent,
                  "visible box x0,y0,x1,y1 in scene coordinates (all layers); widened to the "
                  "picture's shape")
      ->type_name("X0,Y0,X1,Y1");
  options
      .add_option("--background", given.background,
                  "colour of the page (none: the picture keeps its transparency)")
      ->type_name("COLOR");
  options
      .add_option("--legend", given.legend,
                  "legend in a corner: top-right, top-left, bottom-left, bottom-right; or only: "
                  "nothing but the legend")
      ->type_name("[CORNER|only]");
}

host::page_request request_of(const page_texts& given) {
  host::page_request request;
  host::picture_request& picture = request.picture;
  if (!given.size.empty()) std::tie(picture.nx, picture.ny) = size_of("--size", given.size);
  picture.sized = !given.size.empty();
  if (!given.extent.empty()) picture.extent = box_of("--extent", given.extent);
  if (!given.background.empty()) picture.background = color_of("--background", given.background);
  if (!given.dots.empty()) {
    picture.dots_per_inch = number_of("--dpi", given.dots);
    if (picture.dots_per_inch < least_dots || picture.dots_per_inch > most_dots)
      throw usage_error("--dpi: \"" + given.dots + "\" is out of range");
  }
  if (!given.legend.empty()) read_legend(given.legend, request);
  picture.kind = host::page_kind_of(given.output, given.print).value_or(picture.kind);
  return request;
}

}  // namespace zu::cli
