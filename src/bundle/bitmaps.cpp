#include "src/bundle/bitmaps.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>
#include <vector>

#include "src/bundle/localizer_client.h"
#include "zu/platform/zuk_os.h"

namespace zu {
namespace {

struct bitmap_row {
  std::int32_t id;
  std::uint32_t width, height;
  const char* letters;
};

constexpr bitmap_row rows[] = {
#define ZU_BITMAP(id, width, height, letters) {id, width, height, letters},
#include "resources/bitmaps.def"
#undef ZU_BITMAP
};

void cut_out_first(std::vector<std::uint8_t>& pixels) {
  const std::uint8_t key[] = {pixels[0], pixels[1], pixels[2]};
  for (auto pixel = pixels.begin(); pixel != pixels.end(); pixel += 4) {
    bool cut = std::equal(key, key + 3, pixel);
    if (cut) std::fill_n(pixel, 3, std::uint8_t{0});
    pixel[3] = cut ? 0 : 255;
  }
}

}  // namespace

void get_bitmap(bitmap_resource bitmap, bytes_visitor visitor) {
  if (localizer host = localizer_of_host()) {
    detail::key_visitor masking(visitor);
    if (bitmap.masked) visitor = bytes_visitor(handle_of<bytes_visitor_impl>(masking));
    call<&localizer_impl::get_bitmap>(host, bitmap.id, visitor);
    return;
  }
  auto row = std::find_if(std::begin(rows), std::end(rows),
                          [&](const bitmap_row& r) { return r.id == bitmap.id; });
  if (row != std::end(rows))
    detail::visit_letters(row->letters, row->width, row->height, bitmap.masked, visitor);
}

void get_bitmap_of_basic(std::int32_t id, bytes_visitor visitor) {
  std::uint32_t width = 0, height = 0;
  if (const char* letters = zu_res_get_bitmap(id, &width, &height))
    detail::visit_letters(letters, width, height, false, visitor);
}

namespace detail {

void visit_letters(const char* letters, std::uint32_t width, std::uint32_t height, bool masked,
                   bytes_visitor visitor) {
  std::vector<std::uint8_t> pixels(std::size_t{width} * height * 4);
  if (pixels.empty() || !zu_res_paint_bitmap(letters, width, height, pixels.data())) return;
  if (masked) cut_out_first(pixels);
  std::uint64_t row_bytes = std::uint64_t{width} * 4, channels = masked ? 4 : 3;
  call<&bytes_visitor_impl::visit>(visitor, height, row_bytes, width, 4, channels, 1,
                                   pixels.data());
}

void key_visitor::visit(std::uint64_t height, std::uint64_t row_bytes, std::uint64_t width,
                        std::uint64_t bytes_per_pixel, std::uint64_t channels,
                        std::uint64_t interleave, const std::uint8_t* pixels) {
  if (channels != 1 && channels != 3) {
    call<&bytes_visitor_impl::visit>(receiver_, height, row_bytes, width, bytes_per_pixel, channels,
                                     interleave, pixels);
    return;
  }
  if (height == 0 || width == 0 || pixels == nullptr) return;
  std::vector<std::uint8_t> masked;
  if (width > masked.max_size() / 4 / height) return;
  try {
    masked.resize(height * width * 4);
  } catch (const std::bad_alloc&) {
    return;
  }
  const std::uint8_t* key = pixels + (height - 1) * row_bytes;
  std::uint8_t* out = masked.data();
  for (std::uint64_t row = 0; row < height; ++row) {
    const std::uint8_t* in = pixels + row * row_bytes;
    for (std::uint64_t i = 0; i < width; ++i, in += bytes_per_pixel, out += 4) {
      if (std::memcmp(in, key, channels) == 0) continue;
      for (int c = 0; c < 3; ++c) out[c] = in[channels == 3 ? c : 0];
      out[3] = 255;
    }
  }
  call<&bytes_visitor_impl::visit>(receiver_, height, width * 4, width, 4, 4, 1, masked.data());
}

}  // namespace detail
}  // namespace zu
