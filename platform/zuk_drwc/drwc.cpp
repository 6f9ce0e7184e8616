// The plain functions of drawing contexts.

#include <memory>
#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_drwc/image_context.h"
#include "platform/zuk_drwc/vector_context.h"

using zu::platform::document_kind;
using zu::platform::drawing_context;
using zu::platform::guarded;
using zu::platform::pixel_box;
using zu::platform::vector_context;

struct Tzu_drwc {
  std::unique_ptr<zu::platform::drawing_context> context;
};

namespace {

/// Work on the context behind a handle.
template <class work> void drawn_by(const Tzu_drwc* drwc, work w) {
  guarded(drwc, [&](const Tzu_drwc& d) { w(*d.context); });
}

template <class context, class... args> Tzu_drwc* made(args... given) {
  try {
    return new Tzu_drwc{std::make_unique<context>(given...)};
  } catch (...) {
    return nullptr;
  }
}

}  // namespace

Tzu_drwc* zu_drwc_create_image(uint64_t nx, uint64_t ny, double dots_per_inch, bool accurate) {
  return made<zu::platform::image_context>(nx, ny, dots_per_inch, accurate);
}
Tzu_drwc* zu_drwc_create_pdf(double width_mm, double height_mm, double dots_per_inch) {
  return made<vector_context>(document_kind::pdf, width_mm, height_mm, dots_per_inch);
}
Tzu_drwc* zu_drwc_create_svg(double width_mm, double height_mm, double dots_per_inch) {
  return made<vector_context>(document_kind::svg, width_mm, height_mm, dots_per_inch);
}
void zu_drwc_destroy(Tzu_drwc* drwc) { delete drwc; }
void zu_drwc_fill(Tzu_drwc* drwc, Tzu_color color) {
  drawn_by(drwc, [&](drawing_context& d) { d.fill(color); });
}
bool zu_drwc_is_accurate(const Tzu_drwc* drwc) {
  return drwc != nullptr && drwc->context->is_accurate();
}
void zu_drwc_get_page(const Tzu_drwc* drwc, Tzu_box_d2* millimetres) {
  drawn_by(drwc, [&](drawing_context& d) { *millimetres = d.page(); });
}
double zu_drwc_get_dots_per_mm(const Tzu_drwc* drwc) {
  return drwc != nullptr ? drwc->context->dots_per_mm() : 0.0;
}
void zu_drwc_get_dib_size(const Tzu_drwc* drwc, const Tzu_box_d2* box, uint64_t* nx, uint64_t* ny) {
  *nx = *ny = 0;
  drawn_by(drwc, [&](drawing_context& d) {
    pixel_box pixels = d.pixels_of(*box);
    *nx = static_cast<uint64_t>(pixels.x1 - pixels.x0);
    *ny = static_cast<uint64_t>(pixels.y1 - pixels.y0);
  });
}
void zu_drwc_draw_dib(Tzu_drwc* drwc, const Tzu_dib_draw_record* record, const Tzu_dib* dib) {
  drawn_by(drwc, [&](drawing_context& d) { d.draw(*record, *dib); });
}
void zu_drwc_set_clip_pgn(Tzu_drwc* drwc, int32_t, const Tzu_ov_d2* polygon) {
  drawn_by(drwc, [&](drawing_context& d) { d.set_clip(polygon); });
}
void zu_drwc_set_clip_none(Tzu_drwc* drwc) {
  drawn_by(drwc, [](drawing_context& d) { d.clear_clip(); });
}
void zu_drwc_get_pixels(Tzu_drwc* drwc, uint8_t* rgba) {
  drawn_by(drwc, [&](drawing_context& d) { d.copy_pixels(rgba); });
}
const uint32_t* zu_drwc_get_argb(const Tzu_drwc* drwc, uint64_t* row_bytes) {
  const uint32_t* words = nullptr;
  drawn_by(drwc, [&](drawing_context& d) { words = d.words(*row_bytes); });
  return words;
}
void zu_drwc_draw_pln(Tzu_drwc* drwc, const Tzu_ov_d2* lines, const Tzu_pln_style* style) {
  if (lines == nullptr || style == nullptr) return;
  drawn_by(drwc, [&](drawing_context& d) { d.draw_lines(*lines, *style); });
}
void zu_drwc_draw_pnt(Tzu_drwc* drwc, uint64_t count, const double* x_mm, const double* y_mm,
                      const Tzu_pnt_style* style) {
  if (x_mm == nullptr || y_mm == nullptr || style == nullptr) return;
  drawn_by(drwc, [&](drawing_context& d) { d.draw_points(count, x_mm, y_mm, *style); });
}
void zu_drwc_draw_pgn(Tzu_drwc* drwc, const Tzu_ov_d2* rings, const Tzu_pgn_style* style) {
  if (rings == nullptr || style == nullptr) return;
  drawn_by(drwc, [&](drawing_context& d) { d.draw_polygon(*rings, *style); });
}
void zu_drwc_draw_text_w(Tzu_drwc* drwc, double x_mm, double y_mm, double height_mm, int32_t anchor,
                         Tzu_color color, const wchar_t* text) {
  drawn_by(drwc, [&](drawing_context& d) {
    d.draw_text(x_mm, y_mm, height_mm, anchor, color, zu::platform::to_utf8(text));
  });
}
double zu_drwc_text_size_w(const Tzu_drwc* drwc, double height_mm, const wchar_t* text) {
  return guarded(drwc, 0.0, [&](const Tzu_drwc& d) {
    return d.context->text_width(height_mm, zu::platform::to_utf8(text));
  });
}
void zu_drwc_fill_box(Tzu_drwc* drwc, const Tzu_box_d2* millimetres, Tzu_color color) {
  drawn_by(drwc, [&](drawing_context& d) { d.fill_box(*millimetres, color); });
}
void zu_drwc_set_region(Tzu_drwc* drwc, const Tzu_box_d2* millimetres) {
  drawn_by(drwc, [&](drawing_context& d) { d.set_region(millimetres); });
}
void zu_drwc_beg_object_w(Tzu_drwc* drwc, const wchar_t* name) {
  drawn_by(drwc, [&](drawing_context& d) { d.begin_object(name != nullptr ? name : L""); });
}
void zu_drwc_end_object_w(Tzu_drwc* drwc, const wchar_t* name) {
  drawn_by(drwc, [&](drawing_context& d) { d.end_object(name != nullptr ? name : L""); });
}
bool zu_drwc_has_ink(Tzu_drwc* drwc) { return drwc != nullptr && drwc->context->has_ink(); }

bool zu_drwc_save_w(Tzu_drwc* drwc, const wchar_t* path, const Tzu_box_d2* georeference,
                    const wchar_t* projection, Tzu_string_adp* reason) {
  if (drwc == nullptr || path == nullptr) return false;
  using zu::platform::to_utf8;
  try {
    drwc->context->save(to_utf8(path), georeference,
                        projection != nullptr ? to_utf8(projection) : std::string());
    return true;
  } catch (const std::bad_alloc&) {
    zu_string_adp_feed(reason, L"not enough memory");
  } catch (const std::exception& failure) {
    zu_string_adp_feed(reason, zu::platform::from_utf8(failure.what()).c_str());
  }
  return false;
}
