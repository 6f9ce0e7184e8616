#include "src/render/profile_curve.h"

namespace zu {
namespace {

void add_vertex(Tzu_pv_d2* line, double x, double y) {
  Tzu_vtx_d2 vertex;
  zu_vtx_d2_init_xy(&vertex, x, y);
  zu_pv_d2_add_vtx(line, &vertex);
}

}  // namespace

profile_curve::profile_curve(double origin, double step, data::nodata_test nodata)
    : unselected_(zu_ov_d2_create()),
      selected_(zu_ov_d2_create()),
      origin_(origin),
      step_(step),
      nodata_(nodata),
      previous_(nodata.value) {}

void profile_curve::add(double v, bool selected) {
  double x = static_cast<double>(index_) * step_ + origin_;
  bool valid = nodata_.valid(v);
  if (valid) {
    if (open_unselected_ == nullptr) open_unselected_ = zu_ov_d2_add(unselected_.get());
    add_vertex(open_unselected_, x, v);
  } else {
    open_unselected_ = nullptr;
  }
  add_selected(v, x, valid, selected);
  ++index_;
  previous_ = v;
}

void profile_curve::add_selected(double v, double x, bool valid, bool selected) {
  bool chord = valid && nodata_.valid(previous_);
  double middle_x = x - step_ * 0.5, middle_y = (v + previous_) * 0.5;
  if (!selected) {
    if (open_selected_ != nullptr && chord) add_vertex(open_selected_, middle_x, middle_y);
    open_selected_ = nullptr;
    return;
  }
  if (!valid) return;
  if (open_selected_ == nullptr) {
    open_selected_ = zu_ov_d2_add(selected_.get());
    if (chord) add_vertex(open_selected_, middle_x, middle_y);
  }
  add_vertex(open_selected_, x, v);
}

void profile_curve::apply(const Tzu_matrix3x3& matrix) {
  zu_ov_d2_apply_matrix3x3(unselected_.get(), &matrix);
  zu_ov_d2_apply_matrix3x3(selected_.get(), &matrix);
}

}  // namespace zu
