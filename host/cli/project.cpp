// zugrid project: scenes of layers in a file.

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>

#include "host/cli/commands.h"
#include "host/cli/option_texts.h"
#include "host/cli/page_options.h"
#include "host/cli/picture_file.h"
#include "host/core/failure.h"
#include "host/core/layer_look.h"
#include "host/core/project.h"

namespace zu::cli {
namespace {

using host::failure;
using json = nlohmann::ordered_json;

constexpr char footer[] = R"(Examples:
  zugrid project new map.zgp
  zugrid project add map.zgp dem.tif relief.tif
  zugrid project render map.zgp -o map.png --size 1920x1080

Data beside the project or below its folder are found again when all is moved together. Layers whose
file is missing stay in the project.)";

struct texts {
  std::string project, crs, scene, layer;
  page_texts page;
  std::vector<std::string> sources;
  bool as_json = false;
};

host::project_scene& scene_of(host::project& project, const texts& given) {
  try {
    return given.scene.empty() ? project.scenes().front() : project.find_scene(given.scene);
  } catch (const failure& problem) {
    throw failure(given.project, problem.what());
  }
}

void save(host::project& project, const texts& given) {
  undisturbed whole;
  project.save(given.project);
}

int make(const texts& given) {
  if (!given.crs.empty()) check_projection("--crs", given.crs);
  if (std::filesystem::exists(given.project)) throw failure(given.project, "exists already");
  host::bundle services;
  host::project project(services);
  host::project_scene& scene = project.scenes().front();
  scene.name = given.scene;
  if (!given.crs.empty()) scene.content->set_projection(given.crs);
  save(project, given);
  return exit_success;
}

int add(const texts& given) {
  host::bundle services;
  host::project project(services, given.project);
  host::project_scene& scene = scene_of(project, given);
  for (const std::string& source : given.sources)
    for (host::layer* added : project.add(scene, source)) host::apply_look({}, *added);
  save(project, given);
  return exit_success;
}

/// Index of the layer that a person means: a number as `info` shows it, or else a caption.
std::size_t index_of(const host::project_scene& scene, const texts& given) {
  const std::string& text = given.layer;
  std::size_t number = 0, found = 0, count = 0;
  auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec == std::errc() && read.ptr == text.data() + text.size() && number >= 1 &&
      number <= scene.layers.size())
    return number - 1;
  for (std::size_t i = 0; i < scene.layers.size(); ++i)
    if (scene.layers[i].caption() == text) found = i, ++count;
  if (count == 1) return found;
  throw failure(given.project, count == 0 ? "has no layer \"" + text + "\""
                                          : "has " + std::to_string(count) + " layers \"" + text +
                                                "\": give the number of one");
}

int remove(const texts& given) {
  host::bundle services;
  host::project project(services, given.project);
  host::project_scene& scene = scene_of(project, given);
  project.remove(scene, index_of(scene, given));
  save(project, given);
  return exit_success;
}

json described(const host::project_layer& layer) {
  bool known = layer.shown != nullptr;
  return {{"caption", layer.caption()},
          {"type", layer.type()},
          {"source", layer.source()},
          {"visible", known && layer.shown->is_visible()},
          {"state", !known                      ? "unknown type"
                    : layer.shown->is_missing() ? "missing"
                                                : "ok"}};
}

int info(const texts& given) {
  host::bundle services;
  host::project project(services, given.project);
  json all = {{"project", given.project}, {"scenes", json::array()}};
  for (const host::project_scene& scene : project.scenes()) {
    json one = {{"name", scene.name},
                {"projection", scene.content->projection()},
                {"layers", json::array()}};
    for (const host::project_layer& layer : scene.layers) one["layers"].push_back(described(layer));
    all["scenes"].push_back(one);
  }
  if (given.as_json) {
    std::printf("%s\n", all.dump(2, ' ', false, json::error_handler_t::replace).c_str());
    return exit_success;
  }
  for (const json& scene : all["scenes"]) {
    std::printf("scene \"%s\"\n", scene["name"].get<std::string>().c_str());
    std::size_t number = 0;
    for (const json& layer : scene["layers"]) {
      std::string state = layer["state"];
      std::printf("%3zu  %s  (%s, %s%s%s)\n", ++number, layer["caption"].get<std::string>().c_str(),
                  layer["type"].get<std::string>().c_str(),
                  layer["source"].get<std::string>().c_str(),
                  state == "ok" ? "" : (", " + state).c_str(),
                  layer["visible"].get<bool>() || state == "unknown type" ? "" : ", hidden");
    }
  }
  return exit_success;
}

int render(const texts& given) {
  host::page_request request = request_of(given.page);
  host::bundle services;
  host::project project(services, given.project);
  host::project_scene& scene = scene_of(project, given);
  std::vector<std::string> sources{given.project};
  for (const host::project_layer& layer : scene.layers) sources.push_back(layer.source());
  check_output(given.page.output, sources);
  host::drawn_picture picture = draw(*scene.content, request);
  for (const host::project_layer& layer : scene.layers)
    if (layer.shown == nullptr)
      picture.shortfalls.push_back(layer.source() + ": there are no layers of type " +
                                   layer.type());
  return write_picture(picture, given.page.output, scene.content->projection());
}

/// Reads the settings of one of the commands below and runs it.
struct action {
  const char* name;
  const char* summary;
  int (*run)(const texts& given);
  void (*add_options)(CLI::App& options, texts& given);
};

void add_scene(CLI::App& options, texts& given) {
  options.add_option("--scene", given.scene, "the scene of this name (the first)")
      ->type_name("NAME");
}

void add_render_options(CLI::App& options, texts& given) {
  add_page_options(options, given.page);
  add_scene(options, given);
}

constexpr action actions[] = {
    {"new", "make a project without layers", &make,
     [](CLI::App& options, texts& given) {
       options.add_option("--crs", given.crs, "projection of its scene (the first layer's)")
           ->type_name("CRS");
       options.add_option("--scene", given.scene, "name of its scene")->type_name("NAME");
     }},
    {"add", "put grids on top of a scene", &add,
     [](CLI::App& options, texts& given) {
       options.add_option("SOURCE", given.sources, "grids, the first is the lowest")->required();
       add_scene(options, given);
     }},
    {"remove", "take a layer out of a scene", &remove,
     [](CLI::App& options, texts& given) {
       options.add_option("LAYER", given.layer, "number that `info` shows, or caption")->required();
       add_scene(options, given);
     }},
    {"info", "list scenes and layers", &info,
     [](CLI::App& options, texts& given) {
       options.add_flag("--json", given.as_json, "print data");
     }},
    {"render", "draw a scene into a picture", &render, &add_render_options},
};

}  // namespace

command add_project(CLI::App& options) {
  auto given = std::make_shared<texts>();
  options.require_subcommand(1);
  options.footer(footer);
  for (const action& each : actions) {
    CLI::App* part = options.add_subcommand(each.name, each.summary);
    part->add_option("PROJECT", given->project, "file of the project (.zgp)")->required();
    each.add_options(*part, *given);
    for (CLI::Option* option : part->get_options())
      if (option->get_type_size() > 0) option->check(filled);
  }
  return [given, &options] {
    const CLI::App* chosen = options.get_subcommands().front();
    for (const action& each : actions)
      if (chosen->get_name() == each.name) return each.run(*given);
    return static_cast<int>(exit_usage);
  };
}

}  // namespace zu::cli
