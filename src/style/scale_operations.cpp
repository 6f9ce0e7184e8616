#include "src/style/scale_operations.h"

#include "src/bundle/strings.h"
#include "zu/platform/zuk_os.h"

#include <algorithm>
#include <cmath>

namespace zu::style {
namespace {

/// Negative, 0, positive; a NaN is above every number, so that the order is one.
int compare(double a, double b) {
  if (std::isnan(a) || std::isnan(b)) return static_cast<int>(std::isnan(a)) - std::isnan(b);
  return static_cast<int>(a > b) - static_cast<int>(a < b);
}

int compare(const std::optional<double>& a, const std::optional<double>& b) {
  if (!a || !b) return static_cast<int>(!a) - static_cast<int>(!b);
  return compare(*a, *b);
}

}  // namespace

namespace detail {

void spread_colours(const std::vector<Tzu_stl_prm*>& rows, std::int32_t id,
                    const Tzu_clr_palette* palette, std::int32_t flag) {
  if (rows.empty()) return;
  std::vector<Tzu_color> colours;
  colours.reserve(rows.size());
  for (const Tzu_stl_prm* row : rows) colours.push_back(zu_stl_prm_get_color(row, primary));
  if (palette != nullptr)
    zu_clr_arrays_generate_palette_ex(palette, colours.size(), colours.data(), flag);
  else
    zu_clr_arrays_generate_ex(id, colours.size(), colours.data(), flag);
  for (std::size_t i = 0; i < rows.size(); ++i)
    zu_stl_prm_clr_set_all(rows[i], colours[i], primary);
}

std::vector<std::int64_t> sorted_order(std::vector<sorted_row> rows, bool as_text,
                                       bool descending) {
  // The list is in rising order of index, and equal rows stay so.
  std::stable_sort(rows.begin(), rows.end(), [&](const sorted_row& a, const sorted_row& b) {
    return (as_text ? zu_os_compare_ignoring_case(a.text.c_str(), b.text.c_str())
                    : compare(a.number, b.number)) < 0;
  });
  if (descending) std::reverse(rows.begin(), rows.end());
  std::vector<std::int64_t> order;
  order.reserve(rows.size());
  for (const sorted_row& row : rows) order.push_back(row.index);
  return order;
}

Tzu_style_lib* global_library(std::int32_t index) {
  Tzu_style_libs* libraries = zu_global_lib_styles_get_libs();
  if (libraries == nullptr || index < 0) return nullptr;
  auto place = static_cast<std::uint64_t>(index);
  return place < zu_style_libs_get_size(libraries) ? zu_style_libs_get_lib_ptr(libraries, place)
                                                   : nullptr;
}

std::optional<std::wstring> caption_in_library(Tzu_style_lib* library, std::int32_t number) {
  const Tzu_style_item* item =
      zu_style_item_find_by_index(zu_style_lib_get_root_item_ptr(library), number);
  if (item == nullptr) return {};
  return text_of([&](Tzu_string_adp* a) { zu_style_item_get_caption(item, a); });
}

Tzu_mapleg* legend_of_project(std::int32_t index) {
  Tzu_prj* project = zu_prj_get_instance();
  if (project == nullptr || index < 0) return nullptr;
  Tzu_maplegs* legends = zu_prj_get_maplegs_ptr(project);
  auto place = static_cast<std::uint64_t>(index);
  return place < zu_maplegs_get_size(legends) ? zu_maplegs_get_ptr(legends, place) : nullptr;
}

}  // namespace detail
}  // namespace zu::style
