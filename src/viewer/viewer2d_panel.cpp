#include "src/viewer/viewer2d_panel.h"

namespace zu::toolkit {

viewer2d_panel::~viewer2d_panel() { zu_viewer2d_set_scn_2d(viewer(), nullptr); }

void viewer2d_panel::visit_title(string_visitor visitor) {
  if (!title_.empty()) call<&string_visitor_impl::visit>(visitor, title_.c_str());
}

void viewer2d_panel::attach_viewer(Tzu_viewer* given) {
  viewer_ = given;
  if (given != nullptr) zu_viewer2d_set_scn_2d(viewer(), scene_.get());
  if (on_viewer) on_viewer(given);
}

void viewer2d_panel::activate() {
  if (on_activate) on_activate();
}

}  // namespace zu::toolkit
