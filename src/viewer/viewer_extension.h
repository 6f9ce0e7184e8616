#pragma once
// The modes of one viewer, of which one is in force.

#include <vector>

#include "src/toolkit/events.h"
#include "src/viewer/viewer_extension_mode.h"
#include "zu/viewer.h"

namespace zu::toolkit {

class viewer_activator;

class viewer_extension : public referent<viewer_extension_impl> {
 public:
  /// `activator` may be null; it must outlive the extension.
  explicit viewer_extension(viewer_activator* activator, handle owner = {})
      : referent(owner), activator_(activator) {}
  ~viewer_extension() override;

  /// Modes are members of whoever holds the extension.
  void add(viewer_extension_mode& mode) { modes_.push_back(&mode); }
  /// The viewer that the modes act on; null takes it from them.
  void set_viewer(Tzu_viewer* viewer);
  Tzu_viewer* viewer() const { return viewer_; }
  /// What the host shows in the viewer, for those who follow the active one.
  virtual void* object() { return viewer_; }

  /// Tells the activator. What the mode in force had half made is thrown away; it stays in force.
  void activated() override;
  void deactivated() override;
  void visit_modes(viewer_extension_mode_visitor visitor) override;
  zu::viewer_extension_mode current_mode() override;
  void set_current_mode(zu::viewer_extension_mode mode) override;
  void attach_view(element_view view) override { view_ = view; }

  /// Another mode is in force, or the viewer is another.
  event<void()> changed;

 private:
  void choose(viewer_extension_mode* mode);

  viewer_activator* activator_;
  Tzu_viewer* viewer_ = nullptr;
  std::vector<viewer_extension_mode*> modes_;
  viewer_extension_mode* current_ = nullptr;
  element_view view_;
};

}  // namespace zu::toolkit
