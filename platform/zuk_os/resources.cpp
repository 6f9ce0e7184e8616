#include <algorithm>
#include <cstring>
#include <iterator>

#include "zu/platform/zuk_os.h"

namespace {

constexpr int32_t english = 50000;

struct text_row {
  int32_t id;
  const wchar_t* base;
  const wchar_t* english;
};
constexpr text_row texts[] = {
#define ZU_TEXT(id, base, english) {id, base, english},
#include "platform/zuk_basic/texts.def"
#undef ZU_TEXT
};

struct bitmap_row {
  int32_t id;
  uint32_t width, height;
  const char* letters;
};
constexpr bitmap_row bitmaps[] = {
#define ZU_BITMAP(id, width, height, letters) {id, width, height, letters},
#include "platform/zuk_basic/bitmaps.def"
#undef ZU_BITMAP
};

template <class table> auto find(const table& rows, int32_t id) {
  auto row = std::lower_bound(std::begin(rows), std::end(rows), id,
                              [](const auto& r, int32_t wanted) { return r.id < wanted; });
  return row != std::end(rows) && row->id == id ? row : nullptr;
}

struct paint {
  char letter;
  uint8_t r, g, b;
};
constexpr paint paints[] = {
    {'.', 254, 254, 254}, {'w', 255, 255, 255}, {'k', 40, 44, 52},   {'g', 128, 134, 142},
    {'l', 205, 210, 216}, {'r', 214, 64, 52},   {'o', 240, 148, 44}, {'y', 248, 210, 72},
    {'e', 108, 180, 76},  {'t', 52, 168, 164},  {'b', 56, 116, 196}, {'s', 150, 200, 240},
    {'d', 28, 66, 128},   {'n', 150, 108, 72},  {'v', 132, 84, 172},
};

}  // namespace

const wchar_t* zu_res_get_wstr(int32_t id) {
  const text_row* row = find(texts, id);
  if (row == nullptr) return nullptr;
  return zu_res_get_lng() == english ? row->english : row->base;
}

const char* zu_res_get_bitmap(int32_t id, uint32_t* width, uint32_t* height) {
  const bitmap_row* row = find(bitmaps, id);
  if (row == nullptr || width == nullptr || height == nullptr) return nullptr;
  *width = row->width, *height = row->height;
  return row->letters;
}

bool zu_res_paint_bitmap(const char* letters, uint32_t width, uint32_t height, uint8_t* pixels) {
  if (letters == nullptr || pixels == nullptr) return false;
  if (std::strlen(letters) != std::size_t{width} * height) return false;
  for (uint32_t row = 0; row < height; ++row) {
    const char* line = letters + std::size_t{height - 1 - row} * width;
    for (uint32_t i = 0; i < width; ++i, pixels += 4) {
      auto known = std::find_if(std::begin(paints), std::end(paints),
                                [&](const paint& p) { return p.letter == line[i]; });
      if (known == std::end(paints)) return false;
      pixels[0] = known->r, pixels[1] = known->g, pixels[2] = known->b, pixels[3] = 0;
    }
  }
  return true;
}
