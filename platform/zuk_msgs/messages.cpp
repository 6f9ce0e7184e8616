#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_msgs.h"

namespace {

struct receiver {
  Tzu_message_sink sink = nullptr;
  void* user = nullptr;
} in_force;

}  // namespace

void zu_set_message_sink(Tzu_message_sink sink, void* user) { in_force = {sink, user}; }

void zu_show_wmessage(const wchar_t* text) {
  zu::platform::guarded(text, [](const wchar_t& first) {
    if (in_force.sink != nullptr) in_force.sink(&first, in_force.user);
  });
}
