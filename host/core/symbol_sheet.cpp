#include "host/core/symbol_sheet.h"

#include <functional>
#include <memory>

#include "host/core/texts.h"
#include "zu/platform/zuk_symbols.h"

namespace zu::host {
namespace {

constexpr const char* figure_names[zu_figure_count] = {
    "circle",        "square",         "diamond", "triangle up", "triangle down", "pentagon",
    "hexagon",       "star",           "plus",    "cross",       "ring",          "square frame",
    "diamond frame", "triangle frame", "arrow",   "half circle"};

// Millimetres.
constexpr double margin = 5, column_width = 40, row_height = 16, text_height = 3.2;
constexpr double line_row = 9, line_length = 2 * column_width - 12, line_width = 1;
constexpr double sizes[] = {8, 4, 2};
constexpr int columns = 4, line_columns = 2, figure_rows = zu_figure_count / columns;
constexpr double dots_per_inch = 144, dots_per_mm = dots_per_inch / 25.4;

constexpr Tzu_color ink = {30, 30, 30, 0}, ground = {255, 255, 255, 0};
constexpr Tzu_color figure_ink = {0, 82, 147, 0}, mark_ink = {204, 76, 2, 0};

template <auto destroy> struct ended {
  template <class object> void operator()(object* o) const { destroy(o); }
};
using point_ptr = std::unique_ptr<Tzu_pnt_style, ended<zu_pnt_style_destroy>>;
using line_ptr = std::unique_ptr<Tzu_pln_style, ended<zu_pln_style_destroy>>;
using set_ptr = std::unique_ptr<Tzu_ov_d2, ended<zu_ov_d2_destroy>>;

void say(Tzu_drwc* page, double x, double y, const std::string& text) {
  zu_drwc_draw_text_w(page, x, y, text_height, zu_anchor_middle_left, ink, wide(text).c_str());
}

void draw_figure(Tzu_drwc* page, std::int32_t figure, double x, double y) {
  point_ptr style(zu_pnt_style_create());
  Tzu_bpnt_style* point = zu_pnt_style_get_bpnt_style_ptr(style.get());
  zu_bpnt_style_set_figure(point, figure);
  zu_bpnt_style_set_color(point, figure_ink);
  for (double size : sizes) {
    double middle = x + size / 2;
    zu_bpnt_style_set_size(point, size);
    zu_drwc_draw_pnt(page, 1, &middle, &y, style.get());
    x += size + 1.5;
  }
  say(page, x, y, std::to_string(figure));
}

/// A line of the sheet: what is said of it and what is set.
struct sample_line {
  const char* name;
  std::function<void(Tzu_pln_style*)> set;
};

void set_mark(Tzu_bpnt_style* mark, std::int32_t figure, double size) {
  zu_bpnt_style_set_figure(mark, figure);
  zu_bpnt_style_set_size(mark, size);
  zu_bpnt_style_set_color(mark, mark_ink);
}

void set_dashes(Tzu_pln_style* style, std::initializer_list<double> lengths) {
  zu_bpln_style_set_dashes(zu_pln_style_get_bpln_style_ptr(style),
                           static_cast<std::int32_t>(lengths.size()), lengths.begin());
}

const sample_line lines[] = {
    {"flat ends, miter joins",
     [](Tzu_pln_style* s) {
       zu_bpln_style_set_cap_style(zu_pln_style_get_bpln_style_ptr(s), zu_cap_butt);
       zu_bpln_style_set_join_style(zu_pln_style_get_bpln_style_ptr(s), zu_join_miter);
     }},
    {"arrow at the end",
     [](Tzu_pln_style* s) {
       zu_pln_style_set_end_visible(s, true);
       set_mark(zu_pln_style_get_bend_style_ptr(s), zu_figure_arrow, 4);
     }},
    {"square ends, bevel joins",
     [](Tzu_pln_style* s) {
       zu_bpln_style_set_cap_style(zu_pln_style_get_bpln_style_ptr(s), zu_cap_square);
       zu_bpln_style_set_join_style(zu_pln_style_get_bpln_style_ptr(s), zu_join_bevel);
     }},
    {"beginning and vertices",
     [](Tzu_pln_style* s) {
       zu_pln_style_set_beg_visible(s, true);
       set_mark(zu_pln_style_get_bbeg_style_ptr(s), zu_figure_ring, 4);
       zu_pln_style_set_pnt_visible(s, true);
       set_mark(zu_pln_style_get_bpnt_style_ptr(s), zu_figure_circle, 2);
     }},
    {"round ends, round joins", [](Tzu_pln_style*) {}},
    {"dashes and dots",
     [](Tzu_pln_style* s) {
       set_dashes(s, {5, 2.5, 0, 2.5});
     }},
};

void draw_line(Tzu_drwc* page, const sample_line& sample, double x, double y) {
  line_ptr style(zu_pln_style_create());
  zu_bpln_style_set_width(zu_pln_style_get_bpln_style_ptr(style.get()), line_width);
  zu_bpln_style_set_color(zu_pln_style_get_bpln_style_ptr(style.get()), figure_ink);
  sample.set(style.get());
  set_ptr set(zu_ov_d2_create());
  Tzu_pv_d2* line = zu_ov_d2_add(set.get());
  constexpr int bends = 4;
  for (int i = 0; i <= bends; ++i) {
    Tzu_vtx_d2 v{x + i * (line_length / 3) / bends, y + (i % 2 == 0 ? -1.5 : 1.5)};
    zu_pv_d2_add_vtx(line, &v);
  }
  zu_drwc_draw_pln(page, set.get(), style.get());
  say(page, x + line_length / 3 + 5, y, sample.name);
}

void draw_sheet(Tzu_drwc* page, double top) {
  for (std::int32_t i = 0; i < zu_figure_count; ++i) {
    double x = margin + i % columns * column_width;
    const int row = i / columns;
    double y = top - (row + 0.5) * row_height;
    draw_figure(page, i, x, y + 2);
    say(page, x, y - 5, figure_name(i));
  }
  top -= figure_rows * row_height + margin;
  int number = 0;
  for (const sample_line& sample : lines) {
    const int row = number / line_columns;
    draw_line(page, sample, margin + 2 + number % line_columns * 2 * column_width,
              top - (row + 0.5) * line_row);
    ++number;
  }
}

}  // namespace

const char* figure_name(std::int32_t figure) {
  return figure >= 0 && figure < zu_figure_count ? figure_names[figure] : nullptr;
}

drawn_picture draw_symbols(page_kind kind) {
  constexpr std::size_t line_rows = (std::size(lines) + line_columns - 1) / line_columns;
  constexpr double height = 3 * margin + figure_rows * row_height + line_rows * line_row;
  picture_request request;
  request.nx = static_cast<std::uint64_t>((2 * margin + columns * column_width) * dots_per_mm);
  request.ny = static_cast<std::uint64_t>(height * dots_per_mm);
  request.kind = kind;
  request.dots_per_inch = dots_per_inch;
  request.background = ground;
  drawn_picture picture = empty_page(request);
  Tzu_box_d2 whole{};
  zu_drwc_get_page(picture.page.get(), &whole);
  draw_sheet(picture.page.get(), whole.y1 - margin);
  return picture;
}

}  // namespace zu::host
