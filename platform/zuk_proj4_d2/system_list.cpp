// The systems that PROJ's database knows.

#include <cmath>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_proj4_d2/coordinate_systems.h"
#include "zu/platform/zuk_proj4_d2.h"

using namespace zu::platform;

namespace {

struct parameters_destroyer {
  void operator()(PROJ_CRS_LIST_PARAMETERS* p) const { proj_get_crs_list_parameters_destroy(p); }
};
struct list_destroyer {
  void operator()(PROJ_CRS_INFO** list) const { proj_crs_info_list_destroy(list); }
};

std::wstring wide(const char* text) { return text != nullptr ? from_utf8(text) : std::wstring(); }

void tell(const PROJ_CRS_INFO& found, Tzu_pj_system_visit visit, void* user) {
  std::wstring authority = wide(found.auth_name), code = wide(found.code), name = wide(found.name),
               area = wide(found.area_name);
  bool bounded = found.bbox_valid != 0;
  auto degrees = [&](double value) { return bounded ? value : NAN; };
  Tzu_pj_system told{authority.c_str(),
                     code.c_str(),
                     name.c_str(),
                     area.c_str(),
                     degrees(found.west_lon_degree),
                     degrees(found.south_lat_degree),
                     degrees(found.east_lon_degree),
                     degrees(found.north_lat_degree),
                     found.type == PJ_TYPE_GEOGRAPHIC_2D_CRS,
                     found.deprecated != 0};
  visit(&told, user);
}

}  // namespace

bool zu_pj_list_systems(Tzu_pj_system_visit visit, void* user) {
  if (visit == nullptr) return false;
  const auto& thread = proj_thread::current();
  return guarded(thread.get(), false, [&](proj_thread& t) {
    std::unique_ptr<PROJ_CRS_LIST_PARAMETERS, parameters_destroyer> wanted(
        proj_get_crs_list_parameters_create());
    const PJ_TYPE kinds[] = {PJ_TYPE_GEOGRAPHIC_2D_CRS, PJ_TYPE_PROJECTED_CRS};
    wanted->types = kinds;
    wanted->typesCount = 2;
    wanted->allow_deprecated = 1;
    int count = 0;
    std::unique_ptr<PROJ_CRS_INFO*, list_destroyer> found(
        proj_get_crs_info_list_from_database(t.context(), nullptr, wanted.get(), &count));
    for (int i = 0; found != nullptr && i < count; ++i) tell(*found.get()[i], visit, user);
    return count > 0;
  });
}
