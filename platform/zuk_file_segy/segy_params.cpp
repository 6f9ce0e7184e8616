#include "platform/zuk_file_segy/segy_params.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace zu::platform {

namespace {

struct words_of_coordinates {
  int x, y;
};
constexpr words_of_coordinates coordinate_words[] = {{SEGY_TR_GROUP_X, SEGY_TR_GROUP_Y},
                                                     {SEGY_TR_SOURCE_X, SEGY_TR_SOURCE_Y},
                                                     {SEGY_TR_CDP_X, SEGY_TR_CDP_Y}};

template <class number> bool parse(std::string_view text, number& out) {
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), out);
  return error == std::errc() && end == text.data() + text.size();
}

// Bytes 71 and 72: a factor if positive, a divisor if negative.
double scalar_of(std::int32_t word) {
  if (word == 0) return 1;
  return word > 0 ? word : -1.0 / word;
}

double fixed_coefficient(std::int32_t type, double number) {
  constexpr double known[] = {1, 0.1, 0.01};
  return type >= 0 && type < 3 ? known[type] : number;
}

bool is_line(const std::vector<Tzu_vtx_d2>& points, std::uint64_t traces, bool allow_duplicates) {
  auto same = [](const Tzu_vtx_d2& a, const Tzu_vtx_d2& b) { return a.x == b.x && a.y == b.y; };
  if (points.empty() || !std::all_of(points.begin(), points.end(), [](const Tzu_vtx_d2& p) {
        return std::isfinite(p.x) && std::isfinite(p.y);
      }))
    return false;
  if (!allow_duplicates && std::adjacent_find(points.begin(), points.end(), same) != points.end())
    return false;
  return traces == 1 || std::any_of(points.begin(), points.end(),
                                    [&](const Tzu_vtx_d2& p) { return !same(p, points[0]); });
}

}  // namespace

std::optional<Tzu_segy_prms> read_segy_params(const std::string& text) {
  Tzu_segy_prms params;
  bool has_type = false, has_coeff_type = false, has_coeff = false, has_simplify = false;
  std::int32_t simplify = 0;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = std::min(text.find('\n', at), text.size());
    std::string_view line = std::string_view(text).substr(at, end - at);
    at = end + 1;
    std::size_t sign = line.find('=');
    if (sign == std::string_view::npos) continue;
    std::string_view name = line.substr(0, sign), value = line.substr(sign + 1);
    if (name == "coord_type") has_type = parse(value, params.coord_type);
    if (name == "coord_coeff_type") has_coeff_type = parse(value, params.coeff_type);
    if (name == "coord_coeff") has_coeff = parse(value, params.coeff);
    if (name == "pln_simplify") has_simplify = parse(value, simplify);
  }
  if (!has_type || !has_coeff_type || !has_coeff || !has_simplify || !std::isfinite(params.coeff))
    return {};
  params.simplify = simplify != 0;
  return params;
}

std::string segy_params_text(const Tzu_segy_prms& params) {
  char number[64];
  char* end = std::to_chars(std::begin(number), std::end(number), params.coeff).ptr;
  return "coord_type=" + std::to_string(params.coord_type) +
         "\ncoord_coeff_type=" + std::to_string(params.coeff_type) +
         "\ncoord_coeff=" + std::string(number, end) +
         "\npln_simplify=" + (params.simplify ? "1" : "0") + "\n";
}

std::vector<Tzu_vtx_d2> segy_points(const section_file& file, std::int32_t coord_type,
                                    std::int32_t coeff_type, double coeff,
                                    const share_taker& progress) {
  if (coord_type < 0 || coord_type > zu_segy_coord_cdp) return {};
  const words_of_coordinates& words = coordinate_words[coord_type];
  const std::vector<int> bytes = {words.x, words.y, SEGY_TR_SOURCE_GROUP_SCALAR};
  std::vector<Tzu_vtx_d2> points;
  for (std::uint64_t trace = 0; trace < file.traces(); ++trace) {
    constexpr std::uint64_t at_once = 1024;
    if (trace % at_once == 0 &&
        !progress(static_cast<double>(trace) / static_cast<double>(file.traces())))
      return {};
    std::vector<std::int32_t> v = file.trace_fields(trace, bytes);
    if (v[0] == 0 && v[1] == 0) continue;
    double unit =
        coeff_type == zu_segy_coeff_header ? scalar_of(v[2]) : fixed_coefficient(coeff_type, coeff);
    points.push_back({v[0] * unit, v[1] * unit});
  }
  return points;
}

bool estimate_segy_params(const section_file& file, const Tzu_segy_estim_opts& options,
                          Tzu_segy_prms& params, const share_taker& progress) {
  bool stopped = false;
  auto watched = [&](double share) {
    stopped = stopped || !progress(share);
    return !stopped;
  };
  auto points_of = [&](std::int32_t type) {
    return segy_points(file, type, options.coeff_type, options.coeff, watched);
  };
  auto fits = [&](std::int32_t type) {
    return is_line(points_of(type), file.traces(), options.allow_duplicates);
  };
  auto found = std::find_if(options.types.begin(), options.types.end(), fits);
  if (found == options.types.end()) {
    constexpr std::int32_t all[] = {zu_segy_coord_receiver, zu_segy_coord_source,
                                    zu_segy_coord_cdp};
    auto has_none = [&](std::int32_t type) { return points_of(type).empty(); };
    if (!std::all_of(std::begin(all), std::end(all), has_none)) return false;
    found = options.types.begin();
  }
  if (stopped || found == options.types.end()) return false;
  params.coord_type = *found;
  params.coeff_type = options.coeff_type;
  params.coeff = options.coeff_type == zu_segy_coeff_header
                     ? options.coeff
                     : fixed_coefficient(options.coeff_type, options.coeff);
  return true;
}

}  // namespace zu::platform
