// zugrid probe: what the information tool says at a point.

#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>

#include "host/cli/commands.h"
#include "host/cli/option_texts.h"
#include "host/core/failure.h"
#include "host/core/probe.h"
#include "host/core/scene.h"
#include "host/core/texts.h"

namespace zu::cli {
namespace {

using json = nlohmann::ordered_json;

constexpr char footer[] =
    R"(The point is in coordinates of the scene: of --crs, or else of the grid.
Exit codes: 0 the grid has a cell there, 1 it has none or failed, 2 bad usage.)";

struct texts {
  std::string source, x, y, crs;
  bool as_json = false;
};

int run(const texts& given) {
  double x = number_of("X", given.x), y = number_of("Y", given.y);
  if (!given.crs.empty()) check_projection("--crs", given.crs);
  host::bundle services;
  host::scene scene(services);
  // Whatever layer the source would be, the grid behind it is asked.
  host::layer& layer = scene.add_layer("grid_lr2d", given.source);
  layer.data();
  if (!given.crs.empty()) scene.set_projection(given.crs);
  std::vector<host::object_info> found = host::probe(services, layer, x, y);
  if (found.empty()) throw host::failure(given.source, "has no cell at this point");
  json all = json::array();
  for (const host::object_info& object : found) {
    json values = json::object();
    if (!given.as_json) std::printf("%s\n", object.title.c_str());
    for (const auto& [name, value] : object.values) {
      values[name] = value;
      if (!given.as_json) std::printf("  %s: %s\n", name.c_str(), value.c_str());
    }
    all.push_back({{"title", object.title}, {"values", values}});
  }
  if (given.as_json)
    std::printf("%s\n", all.dump(2, ' ', false, json::error_handler_t::replace).c_str());
  return exit_success;
}

}  // namespace

command add_probe(CLI::App& options) {
  auto given = std::make_shared<texts>();
  options.add_option("SOURCE", given->source, "grid to look at")->required()->check(filled);
  options.add_option("X", given->x, "coordinate to the east")->required();
  options.add_option("Y", given->y, "coordinate to the north")->required();
  options.add_option("--crs", given->crs, "coordinate system of the point (the grid's own)")
      ->type_name("CRS")
      ->check(filled);
  options.add_flag("--json", given->as_json, "print data");
  options.footer(footer);
  return [given] { return run(*given); };
}

}  // namespace zu::cli
