#pragma once
// What all modes of viewers share.

#include <functional>

#include "src/toolkit/element.h"
#include "zu/viewer.h"

namespace zu::toolkit {

class viewer_extension_mode : public element_base<viewer_extension_mode_impl> {
 public:
  /// An empty view leaves the mode; what was half made is thrown away.
  void attach_view(element_view view) override {
    element_base::attach_view(view);
    attached_ = static_cast<bool>(view);
    if (!attached_) abandon();
  }
  /// The viewer that it acts on; null for none.
  virtual void set_viewer(Tzu_viewer* /*viewer*/) {}
  /// Throws away what is half made and tells of it.
  void deactivate() {
    abandon();
    if (on_finish) on_finish();
  }

  std::function<void()> on_finish;

 protected:
  bool attached() const { return attached_; }
  /// Asks the host to draw the mode anew, and what it changed.
  void tell_redraw() { tell_list(); }

 private:
  virtual void abandon() {}

  bool attached_ = false;
};

}  // namespace zu::toolkit
