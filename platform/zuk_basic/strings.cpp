#include <new>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_basic.h"

using zu::platform::guarded;

struct Tzu_string_adp {
  Tzu_narrow_sink narrow;
  Tzu_wide_sink wide;
  void* user;
};

Tzu_string_adp* zu_string_adp_create(Tzu_narrow_sink narrow, Tzu_wide_sink wide, void* user) {
  return new (std::nothrow) Tzu_string_adp{narrow, wide, user};
}

void zu_string_adp_destroy(Tzu_string_adp* adapter) { delete adapter; }

void zu_string_adp_feed(Tzu_string_adp* adapter, const wchar_t* text) {
  guarded(adapter, [&](Tzu_string_adp& a) {
    if (a.wide != nullptr) a.wide(text, a.user);
  });
}

void zu_string_adp_feed_narrow(Tzu_string_adp* adapter, const char* text) {
  guarded(adapter, [&](Tzu_string_adp& a) {
    if (a.narrow != nullptr) a.narrow(text, a.user);
  });
}
