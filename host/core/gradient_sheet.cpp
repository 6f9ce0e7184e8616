#include "host/core/gradient_sheet.h"

#include "host/core/texts.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::host {
namespace {

// Pixels; whole ones, so that no colour mixes with the ground at an edge.
constexpr double margin = 16, row_height = 28, strip_height = 20, title_height = 24;
constexpr double name_width = 176, strip_width = 240, gap = 16;
constexpr double dots_per_inch = 96, pixel = 25.4 / dots_per_inch;  // in millimetres
constexpr double text_height = 3.2;                                 // millimetres

/// Neither the white nor the black end of an array is lost on the ground.
constexpr Tzu_color ink = {30, 30, 30, 0}, ground = {228, 228, 228, 0};

struct column {
  const wchar_t* title;
  std::size_t count;
  std::int32_t flag;  // as the arrays take it
};
constexpr column columns[] = {{L"ramp", 240, 0}, {L"ten classes", 10, 0}, {L"in turn", 15, 1}};

void draw_text(Tzu_drwc* page, double x, double y, const std::wstring& text) {
  zu_drwc_draw_text_w(page, x * pixel, y * pixel, text_height, zu_anchor_middle_left, ink,
                      text.c_str());
}

void draw_strip(Tzu_drwc* page, double x, double top, const std::vector<Tzu_color>& colors) {
  double step = strip_width / static_cast<double>(colors.size());
  for (std::size_t i = 0; i < colors.size(); ++i) {
    double left = x + static_cast<double>(i) * step;
    Tzu_box_d2 box{left * pixel, (top - strip_height) * pixel, (left + step) * pixel, top * pixel};
    zu_drwc_fill_box(page, &box, colors[i]);
  }
}

void draw_row(Tzu_drwc* page, std::int32_t id, double top) {
  draw_text(page, margin, top - strip_height / 2, wide(zu_clr_arrays_get_name(id)));
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
  double height = 2 * margin + title_height + zu_clr_arrays_get_count() * row_height;
  picture_request request;
  request.nx = static_cast<std::uint64_t>(2 * margin + name_width + 3 * strip_width + 2 * gap);
  request.ny = static_cast<std::uint64_t>(height);
  request.kind = kind;
  request.dots_per_inch = dots_per_inch;
  request.background = ground;
  drawn_picture picture = empty_page(request);
  Tzu_drwc* page = picture.page.get();
  double top = height - margin, x = margin + name_width;
  for (const column& each : columns) {
    draw_text(page, x, top - title_height / 2, each.title);
    x += strip_width + gap;
  }
  top -= title_height;
  for (std::int32_t id = 0; id < zu_clr_arrays_get_count(); ++id, top -= row_height)
    draw_row(page, id, top);
  return picture;
}

}  // namespace zu::host
