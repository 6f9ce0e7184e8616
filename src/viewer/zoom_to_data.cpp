#include "src/viewer/zoom_to_data.h"

namespace zu {
namespace {

void widen(double& low, double& high, double least) {
  if (high - low >= least) return;
  double middle = zu_halfway(low, high);
  low = middle - least, high = middle + least;
}

}  // namespace

Tzu_box_d2 of_least_extent(Tzu_viewer2d* viewer, Tzu_box_d2 box) {
  constexpr double least_mm = 10.0;
  widen(box.x0, box.x1, zu_viewer2d_size_mm2cr_x(viewer, least_mm));
  widen(box.y0, box.y1, zu_viewer2d_size_mm2cr_y(viewer, least_mm));
  return box;
}

void zoom_to_data(Tzu_viewer2d* viewer, const Tzu_box_d2& box) {
  constexpr double margin = 0.02;
  Tzu_box_d2 wanted = of_least_extent(viewer, box);
  zu_box_d2_inflate_cf(&wanted, margin);
  zu_viewer2d_set_zoom_box(viewer, &wanted);
  zu_viewer2d_redraw_slow(viewer);
}

}  // namespace zu
