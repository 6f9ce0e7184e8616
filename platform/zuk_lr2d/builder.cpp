// Builders of layers: the host's two functions behind a handle.

#include <new>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_lr2d.h"

using zu::platform::guarded;

struct Tzu_lr_builder {
  Tzu_lr_builder_add add;
  Tzu_lr_builder_error error;
  void* user;
};

Tzu_lr_builder* zu_lr_builder_create(Tzu_lr_builder_add add, Tzu_lr_builder_error error,
                                     void* user) {
  return new (std::nothrow) Tzu_lr_builder{add, error, user};
}

void zu_lr_builder_destroy(Tzu_lr_builder* builder) { delete builder; }

Izu_layer* zu_lr_builder_add_layer(Tzu_lr_builder* builder, const wchar_t* path, const char* type) {
  return guarded(builder, static_cast<Izu_layer*>(nullptr), [&](Tzu_lr_builder& b) -> Izu_layer* {
    if (b.add == nullptr) return nullptr;
    return b.add(path != nullptr ? path : L"", type != nullptr ? type : "", b.user);
  });
}

void zu_lr_builder_add_error(Tzu_lr_builder* builder, const wchar_t* path, const wchar_t* text) {
  guarded(builder, [&](Tzu_lr_builder& b) {
    if (b.error != nullptr)
      b.error(path != nullptr ? path : L"", text != nullptr ? text : L"", b.user);
  });
}
