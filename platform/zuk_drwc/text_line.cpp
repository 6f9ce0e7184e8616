#include "platform/zuk_drwc/text_line.h"

#include <new>

namespace zu::platform {
namespace {

/// Larger letters are wider than Pango can count.
constexpr double largest_size = 100000;

template <auto release> struct released_by {
  template <class object> void operator()(object* o) const { release(o); }
};

void unhint(PangoContext* context) {
  std::unique_ptr<cairo_font_options_t, released_by<cairo_font_options_destroy>> options(
      cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
  pango_cairo_context_set_font_options(context, options.get());
  pango_context_set_round_glyph_positions(context, FALSE);
}

}  // namespace

text_line::text_line(cairo_t* cairo, const std::string& utf8, double size,
                     const std::string& family)
    : cairo_(cairo), layout_(pango_cairo_create_layout(cairo)) {
  if (!layout_ || !(size > 0) || size > largest_size) throw std::bad_alloc();
  unhint(pango_layout_get_context(layout_.get()));
  std::unique_ptr<PangoFontDescription, released_by<pango_font_description_free>> font(
      pango_font_description_new());
  pango_font_description_set_family(font.get(), family.c_str());
  pango_font_description_set_absolute_size(font.get(), size * PANGO_SCALE);
  pango_layout_set_font_description(layout_.get(), font.get());
  pango_layout_set_single_paragraph_mode(layout_.get(), TRUE);
  pango_layout_set_text(layout_.get(), utf8.data(), static_cast<int>(utf8.size()));
}

double text_line::width() const {
  PangoRectangle logical;
  pango_layout_get_extents(layout_.get(), nullptr, &logical);
  return static_cast<double>(logical.width) / PANGO_SCALE;
}

double text_line::capital_height() const {
  std::unique_ptr<PangoLayout, released> letter(pango_layout_copy(layout_.get()));
  pango_layout_set_text(letter.get(), "H", 1);
  PangoRectangle ink;
  pango_layout_line_get_extents(pango_layout_get_line_readonly(letter.get(), 0), &ink, nullptr);
  return static_cast<double>(-ink.y) / PANGO_SCALE;
}

Tzu_box_d2 text_line::ink() const {
  PangoRectangle box;
  pango_layout_line_get_extents(pango_layout_get_line_readonly(layout_.get(), 0), &box, nullptr);
  auto length = [](int units) { return static_cast<double>(units) / PANGO_SCALE; };
  return {length(box.x), length(box.y), length(box.x + box.width), length(box.y + box.height)};
}

void text_line::add_path(double x, double y) const {
  cairo_move_to(cairo_, x, y);
  pango_cairo_layout_line_path(cairo_, pango_layout_get_line_readonly(layout_.get(), 0));
}

void text_line::draw(double x, double y, double angle) const {
  cairo_save(cairo_);
  cairo_new_path(cairo_);
  cairo_translate(cairo_, x, y);
  cairo_rotate(cairo_, angle);
  cairo_move_to(cairo_, 0, 0);
  pango_cairo_show_layout_line(cairo_, pango_layout_get_line_readonly(layout_.get(), 0));
  cairo_new_path(cairo_);
  cairo_restore(cairo_);
}

}  // namespace zu::platform
