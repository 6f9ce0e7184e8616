#pragma once
// The host's side of a viewer's extension: which of its modes is in force, and what that shows.

#include <QCursor>
#include <cstdint>
#include <functional>
#include <utility>

#include "zu/viewer.h"

namespace zu::desktop {

class mode_host {
 public:
  /// `mode_changed`: another mode is in force, or none. `mode_spoke`: it wants to be drawn anew.
  mode_host(std::function<void()> mode_changed, std::function<void()> mode_spoke);
  ~mode_host() { set_extension({}); }
  mode_host(const mode_host&) = delete;
  mode_host& operator=(const mode_host&) = delete;

  /// Keeps the extension alive; empty lets go of the former one.
  void set_extension(viewer_extension extension);
  viewer_extension extension() const { return extension_.get(); }
  viewer_extension_mode mode() const { return mode_; }
  /// That of the mode in force, or of the hand.
  QCursor cursor() const;
  /// Whether the mode in force moves the map: the hand without a mode, or the mode that pans.
  bool is_hand() const;

 private:
  struct view final : element_view_impl {
    std::function<void()> spoke;
    void value_changed() override { spoke(); }
    void redraw() override { spoke(); }
    void list_changed() override { spoke(); }
    element_view get() { return handle_of<element_view_impl>(*this); }
  };
  void take_mode();
  void leave_mode();

  std::function<void()> mode_changed_;
  view extension_view_, mode_view_;
  strong_ref<viewer_extension_impl> extension_;
  viewer_extension_mode mode_;
};

}  // namespace zu::desktop
