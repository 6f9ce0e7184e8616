#include "host/core/map_legends.h"

#include "host/core/project.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

void fill(Tzu_maplegs* legends, void* user) {
  zu_maplegs_clear(legends);
  for (const project_scene& scene : static_cast<const project*>(user)->scenes())
    for (const project_layer& each : scene.layers) {
      Tzu_stl_mngr* manager = each.shown != nullptr ? each.shown->style_manager() : nullptr;
      if (manager == nullptr || zu_stl_mngr_get_mode(manager) != zu_style_value) continue;
      Tzu_mapleg* legend = zu_maplegs_add(legends, wide(each.caption()).c_str());
      zu_val_scale_assign(zu_mapleg_get_val_scale_ptr(legend),
                          zu_stl_mngr_get_val_scale_ptr(manager));
    }
}

}  // namespace

map_legends::map_legends(const project& of) : offered_(zu_prj_create()) {
  zu_prj_set_refresh(offered_.get(), &fill, const_cast<project*>(&of));
  zu_prj_set_instance(offered_.get());
}

}  // namespace zu::host
