#include "src/layer/layer_services.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>

namespace zu {
namespace {

template <std::size_t count> bool is_one_of(const char* type, const char* const (&names)[count]) {
  return std::any_of(std::begin(names), std::end(names),
                     [&](const char* name) { return std::strcmp(type, name) == 0; });
}

}  // namespace

bool is_shp_layer(const char* type) {
  return is_one_of(type, {"shp_pnt_lr2d", "shp_pln_lr2d", "shp_pgn_lr2d"});
}

bool is_shp_z_subtype(const wchar_t* subtype) {
  static constexpr const wchar_t* names[] = {L"shp_pntz_sub_lr2d", L"shp_plnz_sub_lr2d",
                                             L"shp_pgnz_sub_lr2d"};
  return std::any_of(std::begin(names), std::end(names),
                     [&](const wchar_t* name) { return std::wcscmp(subtype, name) == 0; });
}

bool is_vector_layer(const char* type) {
  return is_one_of(type, {"vector_point_lr2d", "vector_multipoint_lr2d", "vector_polyline_lr2d",
                          "vector_polygon_lr2d", "vector_lr2d"});
}

}  // namespace zu
