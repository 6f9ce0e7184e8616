#include "src/viewer/viewer_manager.h"

#include <utility>

#include "src/viewer/viewer_extension.h"

namespace zu::toolkit {

void viewer_manager::viewer_activated(viewer_extension& extension) {
  if (active_ == &extension) return;
  leave_scene();
  active_ = &extension;
  join_scene();
  changed();
}

void viewer_manager::viewer_deactivated(viewer_extension& extension) {
  if (active_ != &extension) return;
  leave_scene();
  active_ = nullptr;
  changed();
}

// It may show another scene.
void viewer_manager::viewer_changed(viewer_extension& extension) {
  if (active_ != &extension) return;
  leave_scene();
  join_scene();
  changed();
}

void* viewer_manager::active_object() { return active_ != nullptr ? active_->object() : nullptr; }

void viewer_manager::follow_scene() {
  if (followers_++ == 0) join_scene();
}
void viewer_manager::unfollow_scene() {
  if (followers_ > 0 && --followers_ == 0) leave_scene();
}

void viewer_manager::hear(Tzu_event_queue* /*queue*/, void* manager) {
  static_cast<viewer_manager*>(manager)->scene_changed();
}

void viewer_manager::join_scene() {
  if (followers_ == 0 || active_ == nullptr || active_->viewer() == nullptr) return;
  scene_channel_ = zu_scn_get_update_event_channel(zu_viewer_get_scn(active_->viewer()));
  zu_event_channel_add_client(scene_channel_, hear, this);
}
void viewer_manager::leave_scene() {
  zu_event_channel_del_client(std::exchange(scene_channel_, nullptr), hear, this);
}

}  // namespace zu::toolkit
