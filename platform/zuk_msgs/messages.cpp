#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_msgs.h"

namespace {

struct receiver {
  Tzu_message_sink sink = nullptr;
  void* user = nullptr;
} in_force;

Tzu_message_hooks hooks_in_force{};

}  // namespace

void zu_set_message_sink(Tzu_message_sink sink, void* user) { in_force = {sink, user}; }

void zu_show_wmessage(const wchar_t* text) {
  zu::platform::guarded(text, [](const wchar_t& first) {
    if (in_force.sink != nullptr) in_force.sink(&first, in_force.user);
  });
}

void zu_set_message_hooks(const Tzu_message_hooks* hooks) {
  hooks_in_force = hooks != nullptr ? *hooks : Tzu_message_hooks{};
}

void zu_show_wwarning(const wchar_t* text) {
  zu::platform::guarded(text, [](const wchar_t& first) {
    Tzu_message_hooks now = hooks_in_force;
    if (now.warning != nullptr) now.warning(&first, now.user);
  });
}

bool zu_ask_wyes_no(const wchar_t* text) {
  return zu::platform::guarded(text, false, [](const wchar_t& first) {
    Tzu_message_hooks now = hooks_in_force;
    return now.question != nullptr && now.question(&first, now.user);
  });
}
