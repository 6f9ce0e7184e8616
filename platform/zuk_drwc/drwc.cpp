// The plain functions of drawing contexts.

#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_drwc/image_context.h"
#include "platform/zuk_drwc/save_picture.h"
#include "platform/zuk_io/atomic_file.h"

using zu::platform::guarded;
using zu::platform::pixel_box;

struct Tzu_drwc : zu::platform::image_context {
  using image_context::image_context;
};

Tzu_drwc* zu_drwc_create_image(uint64_t nx, uint64_t ny, double dots_per_inch, bool accurate) {
  try {
    return new Tzu_drwc(nx, ny, dots_per_inch, accurate);
  } catch (...) {
    return nullptr;
  }
}
void zu_drwc_destroy(Tzu_drwc* drwc) { delete drwc; }
void zu_drwc_fill(Tzu_drwc* drwc, Tzu_color color) {
  guarded(drwc, [&](Tzu_drwc& d) { d.fill(color); });
}
bool zu_drwc_is_accurate(const Tzu_drwc* drwc) { return drwc != nullptr && drwc->is_accurate(); }
void zu_drwc_get_page(const Tzu_drwc* drwc, Tzu_box_d2* millimetres) {
  guarded(drwc, [&](const Tzu_drwc& d) { *millimetres = d.page(); });
}
void zu_drwc_get_dib_size(const Tzu_drwc* drwc, const Tzu_box_d2* box, uint64_t* nx, uint64_t* ny) {
  *nx = *ny = 0;
  guarded(drwc, [&](const Tzu_drwc& d) {
    pixel_box pixels = d.pixels_of(*box);
    *nx = static_cast<uint64_t>(pixels.x1 - pixels.x0);
    *ny = static_cast<uint64_t>(pixels.y1 - pixels.y0);
  });
}
void zu_drwc_draw_dib(Tzu_drwc* drwc, const Tzu_dib_draw_record* record, const Tzu_dib* dib) {
  guarded(drwc, [&](Tzu_drwc& d) { d.draw(*record, *dib); });
}
void zu_drwc_set_clip_pgn(Tzu_drwc* drwc, int32_t, const Tzu_ov_d2* polygon) {
  guarded(drwc, [&](Tzu_drwc& d) { d.set_clip(polygon); });
}
void zu_drwc_set_clip_none(Tzu_drwc* drwc) {
  guarded(drwc, [](Tzu_drwc& d) { d.clear_clip(); });
}
void zu_drwc_get_pixels(Tzu_drwc* drwc, uint8_t* rgba) {
  guarded(drwc, [&](Tzu_drwc& d) { d.copy_pixels(rgba); });
}
bool zu_drwc_has_ink(Tzu_drwc* drwc) { return drwc != nullptr && drwc->has_ink(); }

bool zu_drwc_save_w(Tzu_drwc* drwc, const wchar_t* path, const Tzu_box_d2* georeference,
                    const wchar_t* projection, Tzu_string_adp* reason) {
  if (drwc == nullptr || path == nullptr) return false;
  using zu::platform::to_utf8;
  try {
    zu::platform::picture drawn{drwc->nx(), drwc->ny(), {}};
    drawn.rgba.resize(drawn.nx * drawn.ny * 4);
    drwc->copy_pixels(drawn.rgba.data());
    zu::platform::save_picture(drawn, to_utf8(path), georeference,
                               projection != nullptr ? to_utf8(projection) : std::string());
    return true;
  } catch (const std::bad_alloc&) {
    zu_string_adp_feed(reason, L"not enough memory");
  } catch (const std::exception& failure) {
    zu_string_adp_feed(reason, zu::platform::from_utf8(failure.what()).c_str());
  }
  return false;
}
