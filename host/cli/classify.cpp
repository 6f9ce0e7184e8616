// zugrid classify: boundaries of classes of a field's values.

#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>

#include "host/cli/class_options.h"
#include "host/cli/commands.h"
#include "host/core/classes.h"
#include "host/core/failure.h"
#include "host/core/numbers.h"
#include "host/core/texts.h"

namespace zu::cli {
namespace {

using json = nlohmann::ordered_json;

constexpr char footer[] = R"(Examples:
  zugrid classify dem.tif --method natural --count 7 --seed 1
  zugrid classify dem.tif --field slope --method quantile --count 5 --digits -1
  zugrid classify dem.tif --method log --power 1 --json

Prints a boundary a line, the least first. With --json: "source", "field", "method", "boundaries" and
"classes" (minimum, maximum, caption).)";

struct texts {
  std::string source, field;
  class_texts classes;
  bool as_json = false;
};

struct closed {
  void operator()(Tzu_stl_mngr* manager) const { zu_stl_mngr_destroy(manager); }
};

std::vector<double> boundaries_of(const Tzu_rng_scale* scale) {
  std::vector<double> all{zu_rng_scale_get_min_value(scale)};
  for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i)
    all.push_back(zu_rng_scale_get_max(scale, i));
  return all;
}

json classes_of(const Tzu_rng_scale* scale) {
  json all = json::array();
  for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i) {
    std::wstring caption =
        host::text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(scale, i, a); });
    all.push_back({{"minimum", zu_rng_scale_get_min(scale, i)},
                   {"maximum", zu_rng_scale_get_max(scale, i)},
                   {"caption", host::narrow(caption)}});
  }
  return all;
}

int run(const texts& given) {
  class_request request = request_of(given.classes);
  host::bundle services({host::classes_bundle});
  host::source data(given.source);
  if (data.fields().empty()) throw host::failure(given.source, "has no fields");
  std::optional<std::size_t> field =
      given.field.empty() ? data.default_field() : data.find(given.field);
  if (!field) throw host::failure(given.source, "has no field \"" + given.field + "\"");
  std::unique_ptr<Tzu_stl_mngr, closed> manager(zu_clr_stl_mngr_create());
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager.get());
  host::build_classes(host::class_builder(services), request, data, *field, scale);
  std::vector<double> boundaries = boundaries_of(scale);
  if (given.as_json) {
    json all = {{"source", given.source},
                {"field", data.fields()[*field].name},
                {"method", given.classes.method},
                {"boundaries", boundaries},
                {"classes", classes_of(scale)}};
    std::printf("%s\n", all.dump(2, ' ', false, json::error_handler_t::replace).c_str());
    return exit_success;
  }
  for (double boundary : boundaries) std::printf("%s\n", host::text_of_number(boundary).c_str());
  return exit_success;
}

}  // namespace

command add_classify(CLI::App& options) {
  auto given = std::make_shared<texts>();
  options.add_option("SOURCE", given->source, "grid to read")->required();
  options.add_option("--field", given->field, "field whose values are classed")->type_name("NAME");
  add_class_options(options, "--method", given->classes)->required();
  options.add_flag("--json", given->as_json, "print data");
  for (CLI::Option* each : options.get_options())
    if (each->get_type_size() > 0) each->check(filled);
  options.footer(footer);
  return [given] { return run(*given); };
}

}  // namespace zu::cli
