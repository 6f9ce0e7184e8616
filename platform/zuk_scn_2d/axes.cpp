#include "platform/zuk_scn_2d/axes.h"

#include "platform/zuk_lr2d/scene.h"
#include "zu/platform/zuk_scn_2d.h"

Tzu_margins* zu_scn_2d_get_margins_ptr(Tzu_scn_2d* scene) {
  return scene != nullptr ? &scene->margins : nullptr;
}
void zu_margins_set_visible(Tzu_margins* margins, bool visible) {
  if (margins != nullptr) margins->visible = visible;
}
bool zu_margins_get_visible(const Tzu_margins* margins) {
  return margins != nullptr && margins->visible;
}
void zu_margins_set_lft(Tzu_margins* margins, double millimetres) {
  if (margins != nullptr) margins->left = millimetres;
}
double zu_margins_get_lft(const Tzu_margins* margins) {
  return margins != nullptr ? margins->left : 0;
}
void zu_margins_set_rgt(Tzu_margins* margins, double millimetres) {
  if (margins != nullptr) margins->right = millimetres;
}
double zu_margins_get_rgt(const Tzu_margins* margins) {
  return margins != nullptr ? margins->right : 0;
}
void zu_margins_set_top(Tzu_margins* margins, double millimetres) {
  if (margins != nullptr) margins->top = millimetres;
}
double zu_margins_get_top(const Tzu_margins* margins) {
  return margins != nullptr ? margins->top : 0;
}
void zu_margins_set_btm(Tzu_margins* margins, double millimetres) {
  if (margins != nullptr) margins->bottom = millimetres;
}
double zu_margins_get_btm(const Tzu_margins* margins) {
  return margins != nullptr ? margins->bottom : 0;
}

Tzu_axes* zu_scn_2d_get_axes_ptr(Tzu_scn_2d* scene) {
  return scene != nullptr ? &scene->axes : nullptr;
}
void zu_axes_set_visible(Tzu_axes* axes, bool visible) {
  if (axes != nullptr) axes->visible = visible;
}
bool zu_axes_get_visible(const Tzu_axes* axes) { return axes != nullptr && axes->visible; }
Tzu_axis_type* zu_axes_get_axis(Tzu_axes* axes, int32_t side) {
  bool known = axes != nullptr && (side == zu_axis_bottom || side == zu_axis_left);
  return known ? &axes->sides[static_cast<std::size_t>(side)] : nullptr;
}
void zu_axis_type_set_visible(Tzu_axis_type* axis, bool visible) {
  if (axis != nullptr) axis->visible = visible;
}
bool zu_axis_type_get_visible(const Tzu_axis_type* axis) {
  return axis != nullptr && axis->visible;
}
