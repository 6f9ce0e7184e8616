#include "zu/platform/zuk_basic.h"

// Keeps the library's own copy of what the header defines.
[[gnu::used]] static const auto exported_pack = &zu_clr_init_rgba;
