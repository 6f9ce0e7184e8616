#include "platform/zuk_drwc/vector_context.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include <algorithm>
#include <new>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_drwc/save_document.h"
#include "platform/zuk_io/atomic_file.h"

namespace zu::platform {
namespace {

constexpr double points_per_inch = 72, mm_per_inch = 25.4;

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
  try {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::bad_alloc&) {
    return CAIRO_STATUS_NO_MEMORY;
  }
}

surface_ptr new_document(document_kind kind, std::string& bytes, double width_mm,
                         double height_mm) {
  double width = width_mm / mm_per_inch * points_per_inch;
  double height = height_mm / mm_per_inch * points_per_inch;
  bool pdf = kind == document_kind::pdf;
  surface_ptr made(pdf ? cairo_pdf_surface_create_for_stream(&append, &bytes, width, height)
                       : cairo_svg_surface_create_for_stream(&append, &bytes, width, height));
  if (cairo_surface_status(made.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  return made;
}

/// Whether a picture shows anything.
bool shows(cairo_surface_t* picture) {
  const std::uint32_t* words = words_of(picture);
  const std::uint32_t* end = words + stride_of(picture) * cairo_image_surface_get_height(picture);
  return std::any_of(words, end, [](std::uint32_t word) { return word >> 24 != 0; });
}

/// Clears what is not opaque in the columns from `x` and the rows above `y` of a picture that shows
/// `box`: put under a neighbour it would show twice.
void clear_translucent(cairo_surface_t* picture, const pixel_box& box, std::int64_t x,
                       std::int64_t y) {
  std::uint32_t* row = words_of(picture);
  for (std::int64_t at_y = box.y1 - 1; at_y >= box.y0; --at_y, row += stride_of(picture))
    for (std::int64_t at_x = at_y >= y ? box.x0 : std::max(x, box.x0); at_x < box.x1; ++at_x)
      if (row[at_x - box.x0] >> 24 != 255) row[at_x - box.x0] = 0;
}

}  // namespace

vector_context::vector_context(document_kind kind, double width_mm, double height_mm,
                               double dots_per_inch)
    : drawing_context(width_mm * dots_per_inch / mm_per_inch,
                      height_mm * dots_per_inch / mm_per_inch, dots_per_inch, true,
                      static_cast<std::uint64_t>(largest_page / mm_per_inch * most_dots)),
      kind_(kind) {
  bool sensible = width_mm > 0 && height_mm > 0 && width_mm <= largest_page &&
                  height_mm <= largest_page && dots_per_inch > 0 && dots_per_inch <= most_dots;
  if (!sensible) throw std::bad_alloc();
  surface_ = new_document(kind, bytes_, width_mm, height_mm);
  cairo_.reset(cairo_create(surface_.get()));
  bleed_ = 1;
  double points = points_per_inch / dots_per_inch;
  cairo_scale(cairo_.get(), points, points);
}

vector_context::~vector_context() {
  cairo_surface_finish(surface_.get());  // while there are bytes to write to
}

void vector_context::fill(Tzu_color color) {
  labels_.clear();
  if (color.a == 255) return;
  cairo_save(cairo_.get());
  cairo_reset_clip(cairo_.get());
  cairo_set_source_rgba(cairo_.get(), color.r / 255.0, color.g / 255.0, color.b / 255.0,
                        (255 - color.a) / 255.0);
  cairo_paint(cairo_.get());
  cairo_restore(cairo_.get());
  inked();
}

void vector_context::draw(const Tzu_dib_draw_record& record, const Tzu_dib& dib) {
  if (dib.pixels == nullptr || dib.nx == 0 || dib.ny == 0) return;
  pixel_box place = pixels_of(record.box), bounds = region();
  pixel_box shown = common(place, bled_region());
  if (shown.is_empty()) return;
  surface_ptr image = new_surface(shown.x1 - shown.x0, shown.y1 - shown.y0);
  put_dib(image.get(), shown.x0, shown.y0, place, shown, dib, record.alpha);
  clear_translucent(image.get(), shown, bounds.x1, bounds.y1);
  if (!shows(image.get())) return;
  cairo_surface_mark_dirty(image.get());
  cairo_save(cairo_.get());
  cairo_set_source_surface(cairo_.get(), image.get(), static_cast<double>(shown.x0),
                           height_ - static_cast<double>(shown.y1));
  cairo_pattern_set_filter(cairo_get_source(cairo_.get()), CAIRO_FILTER_NEAREST);
  cairo_paint(cairo_.get());
  cairo_restore(cairo_.get());
  inked();
}

int vector_context::note_object(int outer, const std::wstring& name) {
  if (kind_ != document_kind::pdf || complete_) return 0;
  auto [entry, is_new] = outline_.try_emplace({outer, name}, 0);
  if (is_new)
    entry->second = cairo_pdf_surface_add_outline(surface_.get(), outer, to_utf8(name).c_str(),
                                                  "page=1", CAIRO_PDF_OUTLINE_FLAG_OPEN);
  return entry->second;
}

void vector_context::save(const std::string& path, const Tzu_box_d2*, const std::string&) {
  const char* ending = kind_ == document_kind::pdf ? ".pdf" : ".svg";
  if (lower_ending(path) != ending)
    throw write_failure(std::string("the name of this page must end in ") + ending);
  if (!complete_) {
    cairo_status_t drawn = cairo_status(cairo_.get());
    cairo_surface_finish(surface_.get());
    cairo_status_t written = cairo_surface_status(surface_.get());
    failure_ = drawn != CAIRO_STATUS_SUCCESS ? drawn : written;
    complete_ = true;
  }
  if (failure_ != CAIRO_STATUS_SUCCESS) throw write_failure(cairo_status_to_string(failure_));
  save_document(bytes_, path);
}

}  // namespace zu::platform
