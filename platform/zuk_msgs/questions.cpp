#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_msgs.h"

using zu::platform::guarded;

namespace {

Tzu_asking_hooks asked{};

}  // namespace

void zu_set_asking_hooks(const Tzu_asking_hooks* hooks) {
  asked = hooks != nullptr ? *hooks : Tzu_asking_hooks{};
}

bool zu_ask_open_file_w(const wchar_t* filter, Tzu_string_adp* path) {
  return guarded(path, false, [&](Tzu_string_adp& answer) {
    Tzu_asking_hooks now = asked;
    return now.open_file != nullptr &&
           now.open_file(filter != nullptr ? filter : L"", &answer, now.user);
  });
}

bool zu_ask_save_file_w(const wchar_t* filter, const wchar_t* suggested, Tzu_string_adp* path) {
  return guarded(path, false, [&](Tzu_string_adp& answer) {
    Tzu_asking_hooks now = asked;
    return now.save_file != nullptr &&
           now.save_file(filter != nullptr ? filter : L"", suggested, &answer, now.user);
  });
}

bool zu_ask_color(Tzu_color* color) {
  return guarded(color, false, [](Tzu_color& shown) {
    Tzu_asking_hooks now = asked;
    Tzu_color chosen = shown;
    if (now.color == nullptr || !now.color(&chosen, now.user)) return false;
    shown = chosen;
    return true;
  });
}
