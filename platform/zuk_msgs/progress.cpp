#include <new>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_msgs.h"

using zu::platform::guarded;

struct Tzu_progress {
  Tzu_progress_hooks hooks;
  void* window;
};

namespace {

Tzu_progress_hooks& hooks_in_force() {
  static Tzu_progress_hooks hooks{};
  return hooks;
}

}  // namespace

void zu_progress_set_hooks(const Tzu_progress_hooks* hooks) {
  hooks_in_force() = hooks != nullptr ? *hooks : Tzu_progress_hooks{};
}

Tzu_progress* zu_progress_create(int32_t can_stop) {
  auto* made = new (std::nothrow) Tzu_progress{hooks_in_force(), nullptr};
  guarded(made, [&](Tzu_progress& p) {
    if (p.hooks.begin != nullptr) p.window = p.hooks.begin(can_stop, p.hooks.user);
  });
  return made;
}

void zu_progress_destroy(Tzu_progress* progress) {
  guarded(progress, [](Tzu_progress& p) {
    if (p.hooks.end != nullptr) p.hooks.end(p.window, p.hooks.user);
  });
  delete progress;
}

void zu_progress_wcaption(Tzu_progress* progress, const wchar_t* text) {
  guarded(progress, [&](Tzu_progress& p) {
    if (p.hooks.caption != nullptr)
      p.hooks.caption(p.window, text != nullptr ? text : L"", p.hooks.user);
  });
}

void zu_progress_show64(Tzu_progress* progress, int64_t done, int64_t total) {
  guarded(progress, [&](Tzu_progress& p) {
    if (p.hooks.show != nullptr) p.hooks.show(p.window, done, total, p.hooks.user);
  });
}

bool zu_progress_get_stopped(Tzu_progress* progress) {
  return guarded(progress, false, [](Tzu_progress& p) {
    return p.hooks.stopped != nullptr && p.hooks.stopped(p.window, p.hooks.user);
  });
}
