#include "platform/zuk_scn_2d/prf_data.h"

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_lr2d/scene.h"
#include "zu/platform/zuk_scn_2d.h"

using zu::platform::guarded;

uint64_t zu_scn_get_count(const Tzu_scn_2d* scene) { return zu_scn_2d_get_layer_count(scene); }

void zu_scn_begin_update(Tzu_scn_2d* scene) {
  if (scene != nullptr) scene->channel.begin();
}
void zu_scn_end_update(Tzu_scn_2d* scene) {
  guarded(scene, [](Tzu_scn_2d& s) { s.channel.end(); });
}

Tzu_prf_data* zu_scn_2d_get_prf_data_ptr(Tzu_scn_2d* scene) {
  return scene != nullptr ? &scene->profile : nullptr;
}

void zu_prf_data_set_is_profil(Tzu_prf_data* data, bool is_profile) {
  if (data != nullptr) data->is_profile = is_profile;
}
bool zu_prf_data_get_is_profil(const Tzu_prf_data* data) {
  return data != nullptr && data->is_profile;
}
void zu_prf_data_set_axes_scale(Tzu_prf_data* data, double scale) {
  if (data != nullptr) data->axes_scale = scale;
}
double zu_prf_data_get_axes_scale(const Tzu_prf_data* data) {
  return data != nullptr ? data->axes_scale : 0;
}
void zu_prf_data_set_pv(Tzu_prf_data* data, const Tzu_pv_d2* line) {
  guarded(data, [&](Tzu_prf_data& d) { zu_pv_d2_assign(&d.line, line); });
}
Tzu_pv_d2* zu_prf_data_get_pv(Tzu_prf_data* data) {
  return data != nullptr ? &data->line : nullptr;
}

void zu_prf_data_set_xmin(Tzu_prf_data* data, double value) {
  if (data != nullptr) data->low.x = value;
}
double zu_prf_data_get_xmin(const Tzu_prf_data* data) { return data != nullptr ? data->low.x : 0; }
void zu_prf_data_set_ymin(Tzu_prf_data* data, double value) {
  if (data != nullptr) data->low.y = value;
}
double zu_prf_data_get_ymin(const Tzu_prf_data* data) { return data != nullptr ? data->low.y : 0; }
void zu_prf_data_set_zmin(Tzu_prf_data* data, double value) {
  if (data != nullptr) data->low.z = value;
}
double zu_prf_data_get_zmin(const Tzu_prf_data* data) { return data != nullptr ? data->low.z : 0; }
void zu_prf_data_set_xmax(Tzu_prf_data* data, double value) {
  if (data != nullptr) data->high.x = value;
}
double zu_prf_data_get_xmax(const Tzu_prf_data* data) { return data != nullptr ? data->high.x : 0; }
void zu_prf_data_set_ymax(Tzu_prf_data* data, double value) {
  if (data != nullptr) data->high.y = value;
}
double zu_prf_data_get_ymax(const Tzu_prf_data* data) { return data != nullptr ? data->high.y : 0; }
void zu_prf_data_set_zmax(Tzu_prf_data* data, double value) {
  if (data != nullptr) data->high.z = value;
}
double zu_prf_data_get_zmax(const Tzu_prf_data* data) { return data != nullptr ? data->high.z : 0; }
