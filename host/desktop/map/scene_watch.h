#pragma once
// Hears of what makes a scene's picture old: its layers, their data, what of them is selected.

#include <functional>
#include <utility>
#include <vector>

#include "zu/platform/zuk_lr2d.h"

namespace zu::desktop {

class scene_watch {
 public:
  explicit scene_watch(std::function<void()> changed) : changed_(std::move(changed)) {}
  ~scene_watch() { watch(nullptr); }
  scene_watch(const scene_watch&) = delete;
  scene_watch& operator=(const scene_watch&) = delete;

  /// Leaves the former scene, which may be gone, for this one, as its layers are now; null for
  /// none.
  void watch(Tzu_scn_2d* scene);

 private:
  static void hear(Tzu_event_queue* queue, void* user);
  void listen(Tzu_event_channel* channel);
  void follow_layers();
  void leave();

  std::function<void()> changed_;
  Tzu_scn_2d* scene_ = nullptr;
  std::vector<Tzu_event_channel*> channels_;
};

}  // namespace zu::desktop
