// zugrid info: what a source holds.

#include <unistd.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>

#include "host/cli/commands.h"
#include "host/core/failure.h"
#include "host/core/source.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu::cli {
namespace {

using json = nlohmann::ordered_json;

constexpr char footer[] =
    R"(With --json the same as data: "source", "driver", "georeference", "georeference_file", "size", "box", "spacing",
"rows_run_south", "projection" (name, code, wkt), "fields" (name, type, role, nodata, statistics)
and "parts" (name, description). A number that is not finite is a text: "nan", "inf", "-inf".)";

struct texts {
  std::string source;
  bool as_json = false, statistics = false;
};

const char* type_name(std::int32_t type) {
  static constexpr const char* names[] = {"none",   "uint8", "int8",   "int16",   "uint16", "int32",
                                          "uint32", "int64", "uint64", "float32", "float64"};
  return type >= 0 && type <= 10 ? names[type] : "unknown";
}

const char* role_name(std::int32_t role) {
  static constexpr const char* names[] = {"", "red", "green", "blue", "alpha", "gray", "palette"};
  return role >= 0 && role <= 6 ? names[role] : "";
}

/// The shortest text that reads back as the number, with a point in every locale.
std::string shown(double value) {
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

json number(double value) { return std::isfinite(value) ? json(value) : json(shown(value)); }

template <class function> std::string text(function&& ask) {
  return host::narrow(host::text_of(ask));
}

bool show_progress(double share, void*) {
  std::fprintf(stderr, "\rreading %3.0f %%", share * 100);
  return true;
}

json statistics_of(const host::source& source, std::size_t field, bool exact) {
  const Tzu_field_info& info = source.fields()[field].info;
  Tzu_field_stat stat{info.minimum, info.maximum, info.mean, info.stddev, 0, false};
  if (exact) {
    bool terminal = isatty(STDERR_FILENO) != 0;
    bool done = zu_datasource_compute_stat(source.get(), static_cast<std::int64_t>(field), 0,
                                           terminal ? &show_progress : nullptr, nullptr, &stat);
    if (terminal) std::fprintf(stderr, "\r             \r");
    if (!done) {
      std::vector<std::string> why = host::reasons(host::wide(source.name()), zu_problem_read);
      throw host::failure(source.name(), why.empty() ? "cannot be read" : why.back());
    }
  } else if (std::optional<Tzu_field_stat> known = source.limits(field)) {
    stat = *known;
  } else {
    return nullptr;
  }
  json all = {{"minimum", number(stat.minimum)},
              {"maximum", number(stat.maximum)},
              {"mean", number(stat.mean)},
              {"deviation", number(stat.stddev)}};
  if (stat.count > 0) all["count"] = stat.count;
  all["estimate"] = stat.estimate;
  return all;
}

json projection_of(const host::source& source) {
  std::string wkt = source.projection();
  if (wkt.empty()) return nullptr;
  std::wstring wide = host::wide(wkt);
  std::string code = text([&](Tzu_string_adp* a) { zu_pj_get_authority_w(wide.c_str(), a); });
  return {{"name", text([&](Tzu_string_adp* a) { zu_pj_get_name_w(wide.c_str(), a); })},
          {"code", code.empty() ? json() : json(code)},
          {"wkt", wkt}};
}

json describe(const host::source& source, bool exact) {
  handle opened = source.get();
  std::int32_t sizes[3] = {0, 0, 0};
  double box[4] = {0, 0, 0, 0}, spacing[3] = {1, 1, 1};
  call<&grid_source_impl::sizes>(source.grid(), sizes);
  call<&grid_source_impl::get_spacing>(source.grid(), spacing);
  bool has_box = call<&data_source_impl::extent>(opened, box, true);
  json all;
  all["source"] = source.name();
  all["driver"] = text([&](Tzu_string_adp* a) { zu_datasource_get_driver_w(opened, a); });
  all["georeference"] =
      text([&](Tzu_string_adp* a) { zu_datasource_get_georeference_w(opened, a); });
  std::string file =
      text([&](Tzu_string_adp* a) { zu_datasource_get_georeference_file_w(opened, a); });
  all["georeference_file"] = file.empty() ? json() : json(file);
  all["size"] = {sizes[0], sizes[1], sizes[2]};
  all["box"] = has_box ? json{box[0], box[1], box[2], box[3]} : json();
  all["spacing"] = {spacing[0], spacing[1]};
  all["rows_run_south"] = zu_datasource_rows_run_south(opened);
  all["projection"] = projection_of(source);
  all["fields"] = json::array();
  for (std::size_t i = 0; i < source.fields().size(); ++i) {
    const host::field& field = source.fields()[i];
    std::string role = role_name(field.role);
    all["fields"].push_back({{"name", field.name},
                             {"type", type_name(field.info.type)},
                             {"role", role.empty() ? json() : json(role)},
                             {"nodata", field.info.has_nodata ? number(field.info.nodata) : json()},
                             {"statistics", statistics_of(source, i, exact)}});
  }
  all["parts"] = json::array();
  for (std::uint32_t i = 0; i < zu_datasource_get_part_count(opened); ++i) {
    std::wstring description;
    std::wstring name = host::text_of([&](Tzu_string_adp* a) {
      description =
          host::text_of([&](Tzu_string_adp* d) { zu_datasource_get_part_w(opened, i, a, d); });
    });
    all["parts"].push_back(
        {{"name", host::narrow(name)}, {"description", host::narrow(description)}});
  }
  return all;
}

std::string plain(const json& value) {
  return value.is_string()         ? value.get<std::string>()
         : value.is_number_float() ? shown(value.get<double>())
                                   : value.dump();
}

void line(const char* label, const std::string& value) {
  std::printf("%-14s%s\n", label, value.c_str());
}

void print(const json& all) {
  line("source", plain(all["source"]));
  line("driver", plain(all["driver"]));
  line("size", plain(all["size"][0]) + " x " + plain(all["size"][1]) + " cells");
  line("cell", plain(all["spacing"][0]) + " x " + plain(all["spacing"][1]));
  if (!all["box"].is_null())
    line("box", plain(all["box"][0]) + ", " + plain(all["box"][1]) + ", " + plain(all["box"][2]) +
                    ", " + plain(all["box"][3]));
  const json& file = all["georeference_file"];
  bool beside = !file.is_null() && file != all["source"];
  line("georeference", plain(all["georeference"]) + (beside ? " of " + plain(file) : ""));
  const json& projection = all["projection"];
  if (projection.is_null())
    line("projection", "none");
  else
    line("projection",
         plain(projection["name"]) +
             (projection["code"].is_null() ? "" : " (" + plain(projection["code"]) + ")"));
  if (all["rows_run_south"].get<bool>())
    line("rows", "run south in the file, presented from the south");
  for (const json& field : all["fields"]) {
    std::string text = "\"" + plain(field["name"]) + "\"  " + plain(field["type"]);
    if (!field["role"].is_null()) text += ", " + plain(field["role"]);
    if (!field["nodata"].is_null()) text += ", NoData " + plain(field["nodata"]);
    line("field", text);
    const json& stat = field["statistics"];
    if (!stat.is_null())
      line("", "minimum " + plain(stat["minimum"]) + ", maximum " + plain(stat["maximum"]) +
                   ", mean " + plain(stat["mean"]) + ", deviation " + plain(stat["deviation"]) +
                   (stat.contains("count") ? ", " + plain(stat["count"]) + " values" : "") +
                   (stat["estimate"].get<bool>() ? ", an estimate" : ""));
  }
  for (const json& part : all["parts"])
    line("part", plain(part["name"]) + "  " + plain(part["description"]));
}

}  // namespace

command add_info(CLI::App& options) {
  auto given = std::make_shared<texts>();
  options.add_option("SOURCE", given->source, "grid to look at")->required()->check(filled);
  options.add_flag("--json", given->as_json, "print data");
  options.add_flag("--stats", given->statistics, "read the whole grid for exact statistics");
  options.footer(footer);
  return [given] {
    host::source source(given->source);
    json all = describe(source, given->statistics);
    if (given->as_json)
      std::printf("%s\n", all.dump(2, ' ', false, json::error_handler_t::replace).c_str());
    else
      print(all);
    return exit_success;
  };
}

}  // namespace zu::cli
