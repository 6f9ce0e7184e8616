#include "host/core/legend.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

// Millimetres.
constexpr double margin = 2.5;
constexpr double text_height = 2.8;
constexpr double row_height = 4.6;
constexpr double bar_row_height = 1.2;
constexpr double swatch_width = 7.0, swatch_height = 3.4;
constexpr double gap = 2.0;

/// Classes beyond this number make a bar.
constexpr std::size_t most_rows = 24;
constexpr std::size_t bar_steps = 64;
constexpr std::size_t bar_ticks = 5;

constexpr Tzu_color ink = {30, 30, 30, 0};
constexpr Tzu_color ground = {255, 255, 255, 30};

std::wstring shown(double value) {
  std::array<char, 32> text{};
  auto end = std::to_chars(text.data(), text.data() + text.size(), value == 0 ? 0.0 : value,
                           std::chars_format::general, 6);
  return wide(std::string(text.data(), end.ptr));
}

bool visible(Tzu_scale_prm* row) { return zu_scale_prm_get_visible(row); }

Tzu_color color_of(Tzu_scale_prm* row) {
  return *zu_stl_prm_get_clr_style_ptr(zu_scale_prm_get_stl_prm_ptr(row), 0);
}

/// The caption that `read` gives, or what stands for it where a row has none.
template <class reader> std::wstring caption(reader read, const std::wstring& otherwise) {
  std::wstring own = text_of(read);
  return own.empty() ? otherwise : own;
}

void add_other(Tzu_scale_prm* row, const std::wstring& text, legend_part& part) {
  if (visible(row)) part.rows.push_back({color_of(row), text});
}

/// From the highest class down, as a person reads heights.
void add_classes(Tzu_rng_scale* scale, legend_part& part) {
  std::uint64_t count = zu_rng_scale_get_size(scale);
  if (Tzu_scale_prm* upper = zu_rng_scale_get_max_prm_ptr(scale); visible(upper))
    part.rows.push_back(
        {color_of(upper),
         caption([&](Tzu_string_adp* a) { zu_rng_scale_get_max_caption_w(scale, a); },
                 L"> " + shown(zu_rng_scale_get_max_value(scale)))});
  for (std::uint64_t i = count; i-- > 0;) {
    Tzu_scale_prm* row = zu_rng_scale_get_scale_prm_ptr(scale, i);
    if (!visible(row)) continue;
    part.rows.push_back(
        {color_of(row), caption([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(scale, i, a); },
                                shown(zu_rng_scale_get_min(scale, i)) + L" \x2013 " +
                                    shown(zu_rng_scale_get_max(scale, i)))});
  }
  if (Tzu_scale_prm* lower = zu_rng_scale_get_min_prm_ptr(scale); visible(lower))
    part.rows.push_back(
        {color_of(lower),
         caption([&](Tzu_string_adp* a) { zu_rng_scale_get_min_caption_w(scale, a); },
                 L"\x2264 " + shown(zu_rng_scale_get_min_value(scale)))});
  add_other(
      zu_rng_scale_get_other_prm_ptr(scale),
      caption([&](Tzu_string_adp* a) { zu_rng_scale_get_other_caption_w(scale, a); }, L"other"),
      part);
}

/// Many classes: their colours in a column, with a number at some of their upper ends.
void add_class_bar(Tzu_rng_scale* scale, legend_part& part) {
  std::uint64_t count = zu_rng_scale_get_size(scale);
  part.bar = true;
  std::uint64_t every = std::max<std::uint64_t>(1, count / bar_ticks);
  for (std::uint64_t i = count; i-- > 0;) {
    bool tick = (count - 1 - i) % every == 0;
    part.rows.push_back({color_of(zu_rng_scale_get_scale_prm_ptr(scale, i)),
                         tick ? shown(zu_rng_scale_get_max(scale, i)) : L""});
  }
}

void add_values(Tzu_val_scale* scale, legend_part& part) {
  for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i) {
    Tzu_scale_prm* row = zu_val_scale_get_scale_prm_ptr(scale, i);
    if (!visible(row)) continue;
    std::wstring text = text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, i, a); });
    part.rows.push_back(
        {color_of(row),
         caption([&](Tzu_string_adp* a) { zu_val_scale_get_caption_w(scale, i, a); }, text)});
  }
  add_other(
      zu_val_scale_get_other_prm_ptr(scale),
      caption([&](Tzu_string_adp* a) { zu_val_scale_get_other_caption_w(scale, a); }, L"other"),
      part);
}

void add_gray_bar(const Tzu_clr_channel* channel, legend_part& part) {
  part.bar = true;
  double low = zu_clr_channel_get_minimum(channel), high = zu_clr_channel_get_maximum(channel);
  for (std::size_t i = 0; i < bar_steps; ++i) {
    double share = 1.0 - static_cast<double>(i) / (bar_steps - 1);
    auto level = static_cast<std::uint8_t>(std::lround(share * 255));
    bool tick = i % (bar_steps / bar_ticks) == 0;
    part.rows.push_back({{level, level, level, 0}, tick ? shown(low + share * (high - low)) : L""});
  }
}

double height_of(const legend_part& part) {
  double rows = static_cast<double>(part.rows.size()) * (part.bar ? bar_row_height : row_height);
  return row_height + rows + gap;
}

/// A hair line inside the sides: a white sample would not be seen on paper.
void draw_frame(const Tzu_box_d2& box, Tzu_drwc* page) {
  constexpr double hair = 0.1;  // mm
  constexpr Tzu_color gray{128, 128, 128, 0};
  const Tzu_box_d2 sides[] = {{box.x0, box.y0, box.x1, box.y0 + hair},
                              {box.x0, box.y1 - hair, box.x1, box.y1},
                              {box.x0, box.y0, box.x0 + hair, box.y1},
                              {box.x1 - hair, box.y0, box.x1, box.y1}};
  for (const Tzu_box_d2& side : sides) zu_drwc_fill_box(page, &side, gray);
}

/// Draws one part with its top at y; the x of its left side.
void draw_part(const legend_part& part, Tzu_drwc* page, double x, double y) {
  zu_drwc_draw_text_w(page, x, y - row_height / 2, text_height, zu_anchor_middle_left, ink,
                      part.title.c_str());
  double top = y - row_height, step = part.bar ? bar_row_height : row_height;
  double inset = part.bar ? 0.0 : (row_height - swatch_height) / 2;
  for (const legend_row& row : part.rows) {
    Tzu_box_d2 swatch{x, top - step + inset, x + swatch_width, top - inset};
    zu_drwc_fill_box(page, &swatch, row.color);
    if (!part.bar) draw_frame(swatch, page);
    if (!row.text.empty())
      zu_drwc_draw_text_w(page, x + swatch_width + gap, part.bar ? top : top - step / 2,
                          text_height, zu_anchor_middle_left, ink, row.text.c_str());
    top -= step;
  }
  if (part.bar) draw_frame({x, top, x + swatch_width, y - row_height}, page);
}

}  // namespace

legend_part legend_of(const layer& shown) {
  legend_part part;
  part.title = wide(shown.caption());
  draw_settings settings = shown.settings();
  if (settings.draw == draw_type::gray)
    add_gray_bar(zu_rgb_channels_get_gray(settings.channels.get()), part);
  Tzu_stl_mngr* styles = shown.style_manager();
  if (settings.draw != draw_type::scale || styles == nullptr) return part;
  if (zu_stl_mngr_get_mode(styles) == zu_style_simple)
    part.rows.push_back(
        {*zu_stl_prm_get_clr_style_ptr(zu_stl_mngr_get_simple_sp_ptr(styles), 0), part.title});
  if (zu_stl_mngr_get_mode(styles) == zu_style_value)
    add_values(zu_stl_mngr_get_val_scale_ptr(styles), part);
  if (zu_stl_mngr_get_mode(styles) == zu_style_range) {
    Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(styles);
    if (zu_rng_scale_get_size(scale) > most_rows)
      add_class_bar(scale, part);
    else
      add_classes(scale, part);
  }
  return part;
}

std::vector<legend_part> legend_of(const scene& shown) {
  std::vector<legend_part> parts;
  for (auto each = shown.layers().rbegin(); each != shown.layers().rend(); ++each)
    if (legend_part part = legend_of(**each); !part.rows.empty()) parts.push_back(std::move(part));
  return parts;
}

legend_size size_of(const std::vector<legend_part>& parts, Tzu_drwc* page) {
  legend_size size{0, 2 * margin - gap};
  auto text_width = [&](const std::wstring& text) {
    return zu_drwc_text_size_w(page, text_height, text.c_str());
  };
  for (const legend_part& part : parts) {
    size.height += height_of(part);
    size.width = std::max(size.width, text_width(part.title));
    for (const legend_row& row : part.rows)
      size.width = std::max(size.width, swatch_width + gap + text_width(row.text));
  }
  size.width += 2 * margin;
  return size;
}

void draw_legend(const std::vector<legend_part>& parts, Tzu_drwc* page, corner where) {
  if (parts.empty()) return;
  Tzu_box_d2 whole;
  zu_drwc_get_page(page, &whole);
  legend_size size = size_of(parts, page);
  bool left = where == corner::top_left || where == corner::bottom_left;
  bool top = where == corner::top_left || where == corner::top_right;
  double x = left ? whole.x0 + margin : whole.x1 - margin - size.width;
  double y = top ? whole.y1 - margin : whole.y0 + margin + size.height;
  Tzu_box_d2 plate{x, y - size.height, x + size.width, y};
  zu_drwc_fill_box(page, &plate, ground);
  y -= margin;
  for (const legend_part& part : parts) {
    draw_part(part, page, x + margin, y);
    y -= height_of(part);
  }
}

drawn_picture draw_legend_alone(const scene& shown, const picture_request& request) {
  std::vector<legend_part> parts = legend_of(shown);
  if (parts.empty()) throw failure("the scene has nothing that a legend explains");
  picture_request own = request;
  if (!request.sized) {
    picture_request smallest;
    smallest.nx = smallest.ny = 1;
    drawn_picture measure = empty_page(smallest);
    legend_size size = size_of(parts, measure.page.get());
    auto pixels = [&](double millimetres) {
      return static_cast<std::uint64_t>(
          std::ceil((millimetres + 2 * margin) / 25.4 * request.dots_per_inch));
    };
    own.nx = pixels(size.width);
    own.ny = pixels(size.height);
  }
  drawn_picture picture = empty_page(own);
  draw_legend(parts, picture.page.get(), corner::top_left);
  return picture;
}

}  // namespace zu::host
