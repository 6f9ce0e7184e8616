#include <algorithm>
#include <cmath>
#include <memory>
#include <new>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_stat.h"

using zu::platform::guarded;

namespace {

struct destroy_stat {
  void operator()(Tzu_stat* stat) const { zu_stat_destroy(stat); }
};

/// The public head, with the name behind it. A copy makes the statistics of the field anew.
struct channel : Tzu_clr_channel {
  channel() : Tzu_clr_channel{} {
    body = this;
    set_limits(0, 255);
  }
  channel(const channel& other) : Tzu_clr_channel(other), name(other.name) { body = this; }
  channel& operator=(const channel& other) {
    Tzu_clr_channel::operator=(other);
    set_name(other.name);
    body = this;
    return *this;
  }
  void set_limits(double low, double high) {
    minimum = low, maximum = high;
    range = high - low;  // 0 makes a step, since what is above comes out infinite
  }
  void set_name(const std::wstring& now) {
    if (now != name) stat.reset();
    name = now;
  }
  std::wstring name;
  std::unique_ptr<Tzu_stat, destroy_stat> stat;
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
  guarded(head, [&](Tzu_clr_channel& c) { whole(c).set_name(name != nullptr ? name : L""); });
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

void zu_clr_channel_set_min(Tzu_clr_channel* head, double minimum) {
  guarded(head, [&](Tzu_clr_channel& c) { whole(c).set_limits(minimum, c.maximum); });
}
void zu_clr_channel_set_max(Tzu_clr_channel* head, double maximum) {
  guarded(head, [&](Tzu_clr_channel& c) { whole(c).set_limits(c.minimum, maximum); });
}
void zu_clr_channel_bound_minmax(Tzu_clr_channel* head, double minimum, double maximum) {
  auto cut = [&](double limit) { return std::max(std::min(limit, maximum), minimum); };
  guarded(head, [&](Tzu_clr_channel& c) { whole(c).set_limits(cut(c.minimum), cut(c.maximum)); });
}
Tzu_stat* zu_clr_channel_get_stat(Tzu_clr_channel* head) {
  return guarded(head, static_cast<Tzu_stat*>(nullptr), [](Tzu_clr_channel& c) {
    auto& stat = whole(c).stat;
    if (!stat) stat.reset(zu_stat_create());
    return stat.get();
  });
}

// Keeps the library's own copy of what the header defines.
[[gnu::used]] static const auto exported_255value = &zu_clr_channel_get255value;
