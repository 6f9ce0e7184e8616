#include "platform/zuk_drwc/image_context.h"

#include <algorithm>
#include <future>
#include <new>
#include <utility>

#include "platform/zuk_drwc/mark_stamps.h"
#include "platform/zuk_drwc/save_picture.h"
#include "platform/zuk_drwc/stroke.h"

namespace zu::platform {

image_context::image_context(std::uint64_t nx, std::uint64_t ny, double dots_per_inch,
                             bool accurate)
    : drawing_context(static_cast<double>(nx), static_cast<double>(ny), dots_per_inch, accurate,
                      largest_picture),
      nx_(nx),
      ny_(ny) {
  if (nx == 0 || ny == 0 || nx > largest_picture || ny > largest_picture || !(per_mm_ > 0.0))
    throw std::bad_alloc();
  surface_ = new_surface(static_cast<std::int64_t>(nx), static_cast<std::int64_t>(ny));
  cairo_.reset(cairo_create(surface_.get()));
}

void image_context::fill(Tzu_color color) {
  labels_.clear();
  cairo_save(cairo_.get());
  cairo_reset_clip(cairo_.get());
  cairo_set_operator(cairo_.get(), CAIRO_OPERATOR_SOURCE);
  cairo_set_source_rgba(cairo_.get(), color.r / 255.0, color.g / 255.0, color.b / 255.0,
                        (255 - color.a) / 255.0);
  cairo_paint(cairo_.get());
  cairo_restore(cairo_.get());
}

void image_context::draw(const Tzu_dib_draw_record& record, const Tzu_dib& dib) {
  if (dib.pixels == nullptr || dib.nx == 0 || dib.ny == 0) return;
  pixel_box place = pixels_of(record.box);
  if (clipped_)
    draw_clipped(place, dib, record.alpha);
  else
    put_dib(surface_.get(), 0, 0, place, region(), dib, record.alpha);
}

/// The upper and the lower part of a screen's picture side by side: each is a surface of its own
/// rows, so that a pixel gets the same ink as from the whole. Each has about half of the vertices.
void image_context::stroke_lines(const strokes& lines) {
  constexpr std::size_t worth_a_thread = 500;  // vertices
  bool plain = lines.thinned && lines.dashes.empty() && lines.color.a == 0;
  if (!plain || clipped_ || region_ || ny_ < 2) return drawing_context::stroke_lines(lines);
  std::vector<double> heights;
  for (const line_piece& part : lines.parts)
    for (const Tzu_vtx_d2& v : part.vertices) heights.push_back(v.y);
  if (heights.size() < worth_a_thread) return drawing_context::stroke_lines(lines);
  auto middle = heights.begin() + static_cast<std::ptrdiff_t>(heights.size() / 2);
  std::nth_element(heights.begin(), middle, heights.end());
  auto border = static_cast<std::uint64_t>(std::clamp(*middle, 1.0, static_cast<double>(ny_ - 1)));
  cairo_surface_flush(surface_.get());
  auto* bytes = reinterpret_cast<unsigned char*>(words_of(surface_.get()));
  auto row_bytes = static_cast<int>(stride_of(surface_.get()) * 4);
  auto stroke_rows = [&](std::uint64_t from, std::uint64_t to) {
    surface_ptr rows(cairo_image_surface_create_for_data(
        bytes + static_cast<std::int64_t>(from) * row_bytes, CAIRO_FORMAT_ARGB32,
        static_cast<int>(nx_), static_cast<int>(to - from), row_bytes));
    cairo_ptr cairo(cairo_create(rows.get()));
    cairo_translate(cairo.get(), 0, -static_cast<double>(from));
    double margin = lines.margin();
    const Tzu_box_d2 near_the_rows{-margin, static_cast<double>(from) - margin, width_ + margin,
                                   static_cast<double>(to) + margin};
    std::vector<line_piece> parts;
    for (const line_piece& part : lines.parts)
      for (line_piece& piece : cut_line(part.vertices.data(), part.vertices.size(), near_the_rows))
        parts.push_back(std::move(piece));
    stroke(cairo.get(), lines, parts);
  };
  auto upper = std::async(stroke_rows, std::uint64_t{0}, border);
  stroke_rows(border, ny_);
  upper.get();
  cairo_surface_mark_dirty(surface_.get());
}

void image_context::put_marks(const mark& drawn, const std::vector<mark_place>& places) {
  bool turned =
      std::any_of(places.begin(), places.end(), [](const mark_place& p) { return p.turn != 0; });
  if (clipped_ || turned || drawn.reach() > mark_stamps::largest_reach)
    return drawing_context::put_marks(drawn, places);
  pixel_box shown = region();
  auto rows = static_cast<std::int64_t>(ny_);
  const pixel_box bounds{shown.x0, rows - shown.y1, shown.x1, rows - shown.y0};
  cairo_surface_flush(surface_.get());
  mark_stamps stamps(drawn);
  for (const mark_place& place : places)
    stamps.put(words_of(surface_.get()), stride_of(surface_.get()), bounds, drawn.middle(place));
  cairo_surface_mark_dirty(surface_.get());
}

/// Through a surface of its own, which Cairo paints inside the clip.
void image_context::draw_clipped(const pixel_box& place, const Tzu_dib& dib, std::uint8_t alpha) {
  pixel_box shown = common(place, region());
  if (shown.is_empty()) return;
  surface_ptr layer = new_surface(shown.x1 - shown.x0, shown.y1 - shown.y0);
  put_dib(layer.get(), shown.x0, shown.y0, place, shown, dib, alpha);
  cairo_set_source_surface(cairo_.get(), layer.get(), static_cast<double>(shown.x0),
                           height_ - static_cast<double>(shown.y1));
  cairo_paint(cairo_.get());
  cairo_set_source_rgba(cairo_.get(), 0, 0, 0, 1);
}

const std::uint32_t* image_context::words(std::uint64_t& row_bytes) const {
  cairo_surface_flush(surface_.get());
  row_bytes = static_cast<std::uint64_t>(stride_of(surface_.get())) * sizeof(std::uint32_t);
  return words_of(surface_.get());
}

void image_context::copy_pixels(std::uint8_t* rgba) const {
  cairo_surface_flush(surface_.get());
  const std::uint32_t* words = words_of(surface_.get());
  std::int64_t stride = stride_of(surface_.get());
  for (std::uint64_t y = 0; y < ny_; ++y, words += stride)
    for (std::uint64_t x = 0; x < nx_; ++x, rgba += 4) {
      std::uint32_t word = words[x], a = word >> 24;
      if (a == 255) {
        rgba[0] = static_cast<std::uint8_t>(word >> 16);
        rgba[1] = static_cast<std::uint8_t>(word >> 8);
        rgba[2] = static_cast<std::uint8_t>(word);
        rgba[3] = 255;
        continue;
      }
      auto straight = [&](int shift) {
        std::uint32_t c = word >> shift & 255;
        return static_cast<std::uint8_t>(a == 0 ? 0 : std::min(255u, (c * 255 + a / 2) / a));
      };
      rgba[0] = straight(16), rgba[1] = straight(8), rgba[2] = straight(0);
      rgba[3] = static_cast<std::uint8_t>(a);
    }
}

bool image_context::has_ink() const {
  cairo_surface_flush(surface_.get());
  const std::uint32_t* words = words_of(surface_.get());
  std::int64_t stride = stride_of(surface_.get());
  for (std::uint64_t y = 0; y < ny_; ++y, words += stride)
    if (std::any_of(words, words + nx_, [](std::uint32_t word) { return word >> 24 != 0; }))
      return true;
  return false;
}

void image_context::save(const std::string& path, const Tzu_box_d2* georeference,
                         const std::string& projection) {
  picture drawn{nx_, ny_, {}};
  drawn.rgba.resize(drawn.nx * drawn.ny * 4);
  copy_pixels(drawn.rgba.data());
  save_picture(drawn, path, georeference, projection);
}

}  // namespace zu::platform
