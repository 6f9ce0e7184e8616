// zugrid render: grids into a picture.

#include <cstdio>
#include <memory>
#include <tuple>

#include "host/cli/class_options.h"
#include "host/cli/commands.h"
#include "host/cli/option_texts.h"
#include "host/cli/page_options.h"
#include "host/cli/picture_file.h"
#include "host/core/failure.h"
#include "host/core/layer_look.h"
#include "host/core/picture.h"
#include "host/core/scale_files.h"
#include "host/core/texts.h"

namespace zu::cli {
namespace {

constexpr char footer[] = R"(Examples:
  zugrid render dem.tif -o dem.png
  zugrid render dem.tif -o dem.png --breaks 0,200,500,1000 --colors "#1a9850,#fee08b,#d73027"
  zugrid render dem.tif -o dem.png --classify natural --count 7 --seed 1
  zugrid render landuse.tif -o landuse.png --values "1=#ff0000,2=#00ff00" --other "#cccccc"
  zugrid render dem.tif -o tints.png --gradient height_light --hillshade
  zugrid render dem.tif -o relief.png --color-table relief.cpt
  zugrid render scene.tif -o gray.tif --draw gray --field "Band 4" --limits 0,4000
  zugrid render dem.tif -o world.png --crs EPSG:3857 --size 1920x1080

A grid without styling options shows as the image that its bands make, or else in ten equal classes
from blue through white to red. Exit codes: 0 done, 1 failed (a picture of what could be read is
still written where only a part of a file is damaged), 2 bad usage.)";

/// The options as they are written.
struct texts {
  std::vector<std::string> sources;
  page_texts page;
  std::string crs, draw, field, rgb, limits, breaks, colors, other, values, simple, hillshade,
      isolines, gradient, color_table, saved_table, scale, saved_scale;
  class_texts classes;
  bool unique = false;
  std::optional<std::int64_t> slice;
  bool interpolate = false;
  int transparency = 0;
};

host::draw_type draw_of(const std::string& text) {
  if (text == "scale") return host::draw_type::scale;
  if (text == "image") return host::draw_type::image;
  if (text == "gray") return host::draw_type::gray;
  return host::draw_type::rgb;
}

/// One way to make a scale goes with no other.
void check_scale(const host::layer_look& look) {
  bool breaks = !look.breaks.empty(), values = !look.values.empty();
  if (look.classes && (breaks || values || look.simple || look.unique_values))
    throw usage_error("--classify: goes without --breaks, --values, --unique and --simple");
  if (look.unique_values && (breaks || values || look.simple || !look.colors.empty()))
    throw usage_error("--unique: goes without --breaks, --colors, --values and --simple");
  if (look.gradient && (values || look.simple || !look.colors.empty()))
    throw usage_error("--gradient: goes without --colors, --values and --simple");
  if (look.table && (breaks || values || look.simple || !look.colors.empty() || look.gradient ||
                     look.classes || look.unique_values))
    throw usage_error("--color-table: makes the whole scale; besides it there is --other alone");
  if (!look.scale_file.empty() &&
      (breaks || values || look.simple || !look.colors.empty() || look.gradient || look.classes ||
       look.unique_values || look.table || look.other))
    throw usage_error("--scale: is the whole scale; it goes without options that make one");
}

/// What does not go together.
void check(const host::layer_look& look) {
  using host::draw_type;
  check_scale(look);
  if (look.simple && (!look.values.empty() || !look.breaks.empty() || !look.colors.empty()))
    throw usage_error("--simple: one colour needs no --values, --breaks or --colors");
  if (!look.values.empty() && (!look.breaks.empty() || !look.colors.empty()))
    throw usage_error("--values: takes its colours itself, without --breaks and --colors");
  std::size_t classes = look.breaks.empty() ? host::default_classes : look.breaks.size() - 1;
  if (!look.classes && !look.colors.empty() && look.colors.size() != classes &&
      look.colors.size() != classes + 2)
    throw usage_error("--colors: " + std::to_string(classes) + " classes take " +
                      std::to_string(classes + 2) + " colours, or " + std::to_string(classes) +
                      " to hide the tails; these are " + std::to_string(look.colors.size()));
  bool channels = look.draw == draw_type::gray || look.draw == draw_type::rgb ||
                  (!look.draw && !look.rgb.empty());
  if (look.limits && !channels) throw usage_error("--limits: goes with --draw gray or rgb");
  if (!look.rgb.empty() && look.draw && look.draw != draw_type::rgb)
    throw usage_error("--rgb: goes with --draw rgb");
  bool scale = !look.breaks.empty() || !look.colors.empty() || !look.values.empty() ||
               look.simple || look.other || look.classes || look.unique_values || look.gradient ||
               look.table || !look.scale_file.empty();
  if (scale && (channels || look.draw == draw_type::image))
    throw usage_error("--draw: a scale's options go with --draw scale");
  bool own_fields = look.draw == draw_type::rgb || look.draw == draw_type::image ||
                    (!look.draw && !look.rgb.empty());
  if (!look.field.empty() && own_fields)
    throw usage_error("--field: goes with --draw scale or gray");
}

host::layer_look look_of(const texts& given) {
  host::layer_look look;
  if (!given.draw.empty()) look.draw = draw_of(given.draw);
  look.field = given.field;
  if (!given.rgb.empty()) {
    look.rgb = parts_of("--rgb", given.rgb);
    if (look.rgb.size() != 3) throw usage_error("--rgb: needs three names R,G,B");
  }
  if (!given.limits.empty()) look.limits = limits_of("--limits", given.limits);
  if (!given.breaks.empty()) look.breaks = breaks_of("--breaks", given.breaks);
  if (!given.colors.empty()) look.colors = colors_of("--colors", given.colors);
  if (!given.other.empty()) look.other = color_of("--other", given.other);
  if (!given.values.empty()) look.values = values_of("--values", given.values);
  if (!given.simple.empty()) look.simple = color_of("--simple", given.simple);
  if (!given.hillshade.empty()) look.hillshade = hillshade_of("--hillshade", given.hillshade);
  if (!given.isolines.empty()) look.isolines = isolines_of("--isolines", given.isolines);
  if (!given.gradient.empty()) look.gradient = gradient_of("--gradient", given.gradient);
  if (!given.color_table.empty()) look.table = host::read_color_table(given.color_table);
  look.scale_file = given.scale;
  if (!given.classes.method.empty())
    look.classes = request_of(given.classes);
  else if (given.classes.any_but_method())
    throw usage_error("--classify: says how classes are made; without it they have no options");
  look.unique_values = given.unique;
  look.slice = given.slice;
  look.interpolate = given.interpolate;
  look.transparency = given.transparency;
  check(look);
  return look;
}

/// The first layer's that has classes.
void save_color_table(const host::scene& scene, const std::string& file) {
  for (const auto& each : scene.layers()) {
    Tzu_stl_mngr* styles = each->style_manager();
    if (styles == nullptr || zu_stl_mngr_get_mode(styles) != zu_style_range) continue;
    return host::write_color_table(file, zu_stl_mngr_get_rng_scale_ptr(styles));
  }
  throw host::failure(file, "no layer has classes");
}

/// What of the values got no row; drawing forgets it.
void warn_of_cut_values(const host::scene& scene) {
  for (const auto& layer : scene.layers())
    for (const std::string& reason :
         host::reasons(host::wide(layer->source_name()), zu_problem_part))
      std::fprintf(stderr, "zugrid: warning: %s: %s\n", layer->source_name().c_str(),
                   reason.c_str());
}

/// The first layer's that has a scale.
void save_scale(const host::scene& scene, const std::string& file) {
  for (const auto& each : scene.layers()) {
    Tzu_stl_mngr* styles = each->style_manager();
    if (styles == nullptr || zu_stl_mngr_get_mode(styles) == zu_style_simple) continue;
    return host::save_scale(file, styles);
  }
  throw host::failure(file, "no layer has a scale");
}

int run(const texts& given) {
  host::layer_look look = look_of(given);
  host::page_request request = request_of(given.page);
  if (!given.crs.empty()) check_projection("--crs", given.crs);
  check_output(given.page.output, given.sources);
  host::check_not_source(given.saved_table, given.sources);
  host::check_not_source(given.saved_scale, given.sources);

  bool makes_classes = look.classes || look.unique_values;
  host::bundle services(makes_classes ? std::vector<std::string>{host::classes_bundle}
                                      : std::vector<std::string>());
  if (makes_classes) look.builder = host::class_builder(services);
  host::scene scene(services);
  for (const std::string& source : given.sources) scene.add(source);
  if (!given.crs.empty()) scene.set_projection(given.crs);
  host::dress(scene, look);
  if (look.unique_values) warn_of_cut_values(scene);
  if (!given.saved_table.empty()) save_color_table(scene, given.saved_table);
  if (!given.saved_scale.empty()) save_scale(scene, given.saved_scale);
  host::drawn_picture picture = draw(scene, request);
  return write_picture(picture, given.page.output, scene.projection());
}

}  // namespace

command add_render(CLI::App& options) {
  auto given = std::make_shared<texts>();
  options.add_option("SOURCE", given->sources, "grids, the first is the lowest")->required();
  add_page_options(options, given->page);
  options
      .add_option("--crs", given->crs,
                  "projection of the scene: EPSG:n, PROJ text or WKT (the first layer's)")
      ->type_name("CRS");
  options.add_option("--draw", given->draw, "scale, image, gray or rgb")
      ->check(CLI::IsMember({"scale", "image", "gray", "rgb"}))
      ->type_name("KIND");
  options.add_option("--field", given->field, "field coloured by a scale or by gray")
      ->type_name("NAME");
  options.add_option("--rgb", given->rgb, "three field names R,G,B")->type_name("R,G,B");
  options
      .add_option("--limits", given->limits,
                  "limits MIN,MAX of the gray or rgb channels (the field's own)")
      ->type_name("MIN,MAX");
  options.add_option("--breaks", given->breaks, "boundaries B0,...,Bn: n classes and two tails")
      ->type_name("B0,...,Bn");
  add_class_options(options, "--classify", given->classes);
  options.add_flag("--unique", given->unique, "a value scale of the values that the field has");
  options
      .add_option("--colors", given->colors,
                  "n+2 colours, lower tail first, or n and the tails are hidden; #rrggbb or "
                  "#rrggbbaa, aa an opacity")
      ->type_name("C0,...");
  options
      .add_option("--other", given->other,
                  "colour of values that no class or value holds (invisible)")
      ->type_name("COLOR");
  options.add_option("--values", given->values, "value scale V=COLOR,...")
      ->type_name("V=COLOR,...");
  options
      .add_option("--gradient", given->gradient,
                  "array of colours for the classes and tails; zugrid gradients names them "
                  "(blue_white_red)")
      ->type_name("NAME");
  options
      .add_option("--color-table", given->color_table,
                  "classes and colours of a file of GMT (.cpt), QGIS or GDAL")
      ->type_name("FILE");
  options
      .add_option("--save-color-table", given->saved_table,
                  "write the classes for GMT (.cpt), QGIS (.qgis.txt) or, with any other name, "
                  "GDAL")
      ->type_name("FILE");
  options
      .add_option("--scale", given->scale,
                  "the scale of a file: ranges (._rg), values (._vl) or a legend of ArcView (.avl)")
      ->type_name("FILE");
  options
      .add_option("--save-scale", given->saved_scale,
                  "write the scale: ranges to ._rg, values to ._vl")
      ->type_name("FILE");
  options.add_option("--simple", given->simple, "one colour for the whole grid")
      ->type_name("COLOR");
  options.add_flag("--interpolate", given->interpolate, "interpolate values between cells");
  options.add_option("--transparency", given->transparency, "0 (opaque) to 100 percent")
      ->check(CLI::Range(0, 100))
      ->type_name("PERCENT");
  options
      .add_option("--hillshade", given->hillshade,
                  "shade of the relief: z=1,altitude=45,azimuth=315,part=0.5,field=NAME,"
                  "multidirectional")
      ->type_name("[SETTINGS]");
  options
      .add_option("--isolines", given->isolines,
                  "lines of equal value: thin=10,bold=50,field=NAME,label")
      ->type_name("[SETTINGS]");
  options.add_option("--slice", given->slice, "a slice of a volume, from 0")->type_name("N");
  for (CLI::Option* each : options.get_options())
    if (each->get_type_size() > 0) each->check(filled);
  options.footer(footer);
  return [given] { return run(*given); };
}

}  // namespace zu::cli
