#include <cmath>
#include <new>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_basic.h"

using zu::platform::guarded;

namespace {

/// The public head, with the name behind it.
struct channel : Tzu_clr_channel {
  channel() : Tzu_clr_channel{} {
    body = this;
    set_limits(0, 255);
  }
  channel(const channel& other) : Tzu_clr_channel(other), name(other.name) { body = this; }
  channel& operator=(const channel& other) {
    Tzu_clr_channel::operator=(other);
    name = other.name;
    body = this;
    return *this;
  }
  void set_limits(double low, double high) {
    minimum = low, maximum = high;
    range = high - low;  // 0 makes a step, since what is above comes out infinite
  }
  std::wstring name;
};

const channel& whole(const Tzu_clr_channel& head) { return *static_cast<channel*>(head.body); }
channel& whole(Tzu_clr_channel& head) { return *static_cast<channel*>(head.body); }

}  // namespace

struct Tzu_rgb_channels {
  channel red, green, blue, gray;
};

Tzu_rgb_channels* zu_rgb_channels_create() { return new (std::nothrow) Tzu_rgb_channels; }
void zu_rgb_channels_destroy(Tzu_rgb_channels* channels) { delete channels; }
void zu_rgb_channels_assign(Tzu_rgb_channels* channels, const Tzu_rgb_channels* from) {
  if (from != nullptr) guarded(channels, [&](Tzu_rgb_channels& c) { c = *from; });
}
Tzu_clr_channel* zu_rgb_channels_get_red(Tzu_rgb_channels* channels) {
  return channels != nullptr ? &channels->red : nullptr;
}
Tzu_clr_channel* zu_rgb_channels_get_green(Tzu_rgb_channels* channels) {
  return channels != nullptr ? &channels->green : nullptr;
}
Tzu_clr_channel* zu_rgb_channels_get_blue(Tzu_rgb_channels* channels) {
  return channels != nullptr ? &channels->blue : nullptr;
}
Tzu_clr_channel* zu_rgb_channels_get_gray(Tzu_rgb_channels* channels) {
  return channels != nullptr ? &channels->gray : nullptr;
}
void zu_clr_channel_get_prop_name_w(const Tzu_clr_channel* head, Tzu_string_adp* adapter) {
  guarded(head,
          [&](const Tzu_clr_channel& c) { zu_string_adp_feed(adapter, whole(c).name.c_str()); });
}
void zu_clr_channel_set_prop_name_w(Tzu_clr_channel* head, const wchar_t* name) {
  guarded(head, [&](Tzu_clr_channel& c) { whole(c).name = name != nullptr ? name : L""; });
}
double zu_clr_channel_get_minimum(const Tzu_clr_channel* head) {
  return head != nullptr ? head->minimum : NAN;
}
double zu_clr_channel_get_maximum(const Tzu_clr_channel* head) {
  return head != nullptr ? head->maximum : NAN;
}
void zu_clr_channel_set_limits(Tzu_clr_channel* head, double minimum, double maximum) {
  guarded(head, [&](Tzu_clr_channel& c) { whole(c).set_limits(minimum, maximum); });
}

// Keeps the library's own copy of what the header defines.
[[gnu::used]] static const auto exported_255value = &zu_clr_channel_get255value;
