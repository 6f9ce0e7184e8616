#include "src/viewer/viewer_extension.h"

#include "src/viewer/viewer_manager.h"

namespace zu::toolkit {

viewer_extension::~viewer_extension() {
  if (activator_ != nullptr) activator_->viewer_deactivated(*this);
}

void viewer_extension::set_viewer(Tzu_viewer* viewer) {
  viewer_ = viewer;
  for (viewer_extension_mode* mode : modes_) mode->set_viewer(viewer);
  if (activator_ != nullptr) activator_->viewer_changed(*this);
  changed();
}

void viewer_extension::activated() {
  if (activator_ != nullptr) activator_->viewer_activated(*this);
  if (current_ != nullptr) current_->deactivate();
  changed();
}

void viewer_extension::deactivated() {
  if (activator_ != nullptr) activator_->viewer_deactivated(*this);
}

void viewer_extension::visit_modes(viewer_extension_mode_visitor visitor) {
  for (viewer_extension_mode* mode : modes_)
    call<&viewer_extension_mode_visitor_impl::visit>(visitor,
                                                     handle_of<viewer_extension_mode_impl>(*mode));
}

zu::viewer_extension_mode viewer_extension::current_mode() {
  if (current_ == nullptr) return {};
  return handle_of<viewer_extension_mode_impl>(*current_);
}

void viewer_extension::set_current_mode(zu::viewer_extension_mode wanted) {
  if (!wanted) return choose(nullptr);
  for (viewer_extension_mode* mode : modes_)
    if (wanted == handle_of<viewer_extension_mode_impl>(*mode)) return choose(mode);
}

void viewer_extension::choose(viewer_extension_mode* mode) {
  if (mode == current_) return;
  if (current_ != nullptr) current_->deactivate();
  current_ = mode;
  call<&element_view_impl::value_changed>(view_);
  changed();
}

}  // namespace zu::toolkit
