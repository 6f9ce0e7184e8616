#include "src/viewer/viewer2d.h"

#include "src/viewer/zoom_to_data.h"

namespace zu::element {

viewer2d::viewer2d() {
  extension_.attach({});  // a pin: it goes with this
  panel_.set_extension(handle_of<viewer_extension_impl>(extension_));
  panel_.on_viewer = [this](Tzu_viewer* viewer) {
    extension_.set_viewer(viewer);
    if (on_viewer) on_viewer(viewer);
  };
  layout_.place(toolbar_).place(panel_).set_column_stretch(0).set_row_stretch(1);
}

void viewer2d::zoom_to_scene() {
  zu_viewer2d_zoom_to_scn(viewer());
  zu_viewer2d_redraw_slow(viewer());
}

void viewer2d::recalc_and_zoom() {
  if (viewer() == nullptr) return;
  zu_scn_2d_calc_box(scene());
  zoom_to_scene();
}

void viewer2d::zoom_box(const Tzu_box_d2& box) {
  zu_viewer2d_set_zoom_box(viewer(), &box);
  zu_viewer2d_redraw_slow(viewer());
}

void viewer2d::zoom_to_data(const Tzu_box_d2& box) { zu::zoom_to_data(viewer(), box); }

}  // namespace zu::element
