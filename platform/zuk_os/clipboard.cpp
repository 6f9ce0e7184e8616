// The host's clipboard.

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_os.h"

using zu::platform::guarded;

namespace {

Tzu_clipboard_hooks hooks_in_force{};

}  // namespace

void zu_os_set_clipboard_hooks(const Tzu_clipboard_hooks* hooks) {
  hooks_in_force = hooks != nullptr ? *hooks : Tzu_clipboard_hooks{};
}

bool zu_os_set_clipboard_w(const wchar_t* format, const wchar_t* text, bool empty_first) {
  if (text == nullptr) return false;
  return guarded(format, false, [&](const wchar_t& name) {
    Tzu_clipboard_hooks now = hooks_in_force;
    return now.set != nullptr && now.set(&name, text, empty_first, now.user);
  });
}

bool zu_os_get_clipboard_w(const wchar_t* format, Tzu_string_adp* adapter) {
  return guarded(format, false, [&](const wchar_t& name) {
    Tzu_clipboard_hooks now = hooks_in_force;
    return now.get != nullptr && now.get(&name, adapter, now.user);
  });
}
