#include "host/core/gradient_sheet.h"

#include "host/core/texts.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::host {
namespace {

// Millimetres.
constexpr double margin = 4.0, row_height = 7.0, strip_height = 5.0, text_height = 3.2;
constexpr double name_width = 46.0, strip_width = 62.0, gap = 4.0, title_height = 6.0;
constexpr double dots_per_inch = 96, dots_per_mm = dots_per_inch / 25.4;

constexpr Tzu_color ink = {30, 30, 30, 0}, ground = {255, 255, 255, 0};

struct column {
  const wchar_t* title;
  std::size_t count;
  std::int32_t flag;  // as the arrays take it
};
constexpr column columns[] = {{L"ramp", 248, 0}, {L"ten classes", 10, 0}, {L"in turn", 14, 1}};

void draw_strip(Tzu_drwc* page, double x, double top, const std::vector<Tzu_color>& colors) {
  double step = strip_width / static_cast<double>(colors.size());
  for (std::size_t i = 0; i < colors.size(); ++i) {
    // Up to the end of the strip, so that no ground shows between two colours.
    Tzu_box_d2 box{x + static_cast<double>(i) * step, top - strip_height, x + strip_width, top};
    zu_drwc_fill_box(page, &box, colors[i]);
  }
}

void draw_row(Tzu_drwc* page, std::int32_t id, double top) {
  zu_drwc_draw_text_w(page, margin, top - strip_height / 2, text_height, zu_anchor_middle_left, ink,
                      wide(zu_clr_arrays_get_name(id)).c_str());
  double x = margin + name_width;
  for (const column& each : columns) {
    std::vector<Tzu_color> colors(each.count);
    zu_clr_arrays_generate_ex(id, colors.size(), colors.data(), each.flag);
    draw_strip(page, x, top, colors);
    x += strip_width + gap;
  }
}

}  // namespace

drawn_picture draw_gradients(page_kind kind) {
  double rows = zu_clr_arrays_get_count() * row_height;
  double width = 2 * margin + name_width + 3 * strip_width + 2 * gap;
  picture_request request;
  request.nx = static_cast<std::uint64_t>(width * dots_per_mm);
  request.ny = static_cast<std::uint64_t>((2 * margin + title_height + rows) * dots_per_mm);
  request.kind = kind;
  request.dots_per_inch = dots_per_inch;
  request.background = ground;
  drawn_picture picture = empty_page(request);
  Tzu_drwc* page = picture.page.get();
  Tzu_box_d2 whole{};
  zu_drwc_get_page(page, &whole);
  double top = whole.y1 - margin, x = margin + name_width;
  for (const column& each : columns) {
    zu_drwc_draw_text_w(page, x, top - title_height / 2, text_height, zu_anchor_middle_left, ink,
                        each.title);
    x += strip_width + gap;
  }
  top -= title_height;
  for (std::int32_t id = 0; id < zu_clr_arrays_get_count(); ++id, top -= row_height)
    draw_row(page, id, top);
  return picture;
}

}  // namespace zu::host
