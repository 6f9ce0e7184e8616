#pragma once
// Who hears about viewers, and what follows the one that a person works in.

#include <cstdint>

#include "src/toolkit/events.h"
#include "zu/platform/zuk_viewer2d.h"

namespace zu::toolkit {

class viewer_extension;

/// Hears about the extensions of viewers.
class viewer_activator {
 public:
  virtual ~viewer_activator() = default;
  virtual void viewer_activated(viewer_extension& extension) = 0;
  virtual void viewer_deactivated(viewer_extension& extension) = 0;
  virtual void viewer_changed(viewer_extension& extension) = 0;
};

class viewer_manager : public viewer_activator {
 public:
  viewer_manager() = default;
  viewer_manager(const viewer_manager&) = delete;
  viewer_manager& operator=(const viewer_manager&) = delete;
  ~viewer_manager() override { leave_scene(); }

  void viewer_activated(viewer_extension& extension) override;
  void viewer_deactivated(viewer_extension& extension) override;
  void viewer_changed(viewer_extension& extension) override;
  /// The host's object behind the active extension; null if there is none.
  virtual void* active_object();
  viewer_extension* active() const { return active_; }

  /// While anybody follows scenes, `scene_changed` is fired by changes of the active viewer's.
  void follow_scene();
  void unfollow_scene();

  event<void()> changed;  ///< another viewer is active, or the active one is another
  event<void()> scene_changed;

 private:
  static void hear(Tzu_event_queue* queue, void* manager);
  void join_scene();
  void leave_scene();

  viewer_extension* active_ = nullptr;
  Tzu_event_channel* scene_channel_ = nullptr;
  std::int32_t followers_ = 0;
};

}  // namespace zu::toolkit
