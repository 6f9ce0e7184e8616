#include "platform/zuk_xml_data/symbols.h"

#include <tuple>
#include <type_traits>
#include <variant>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_xml_data/nodes.h"
#include "platform/zuk_xml_data/values.h"

namespace zu::platform {
namespace {

constexpr std::size_t most_layers = 1000;
constexpr std::int32_t caps = 3, joins = 3;

// --- Base styles, without their layers

/// Level 0 is not written: what uses no levels reads as it always did.
void save_level(Tzu_xnode* node, std::int32_t level) {
  if (level != 0) zu_xnode_set_attr_int_w(node, L"render_level", level);
}

void load_level(Tzu_xnode* node, std::int32_t& level) {
  std::int64_t read = zu_xnode_get_attr_int_w(node, L"render_level", level);
  if (read >= INT32_MIN && read <= INT32_MAX) level = static_cast<std::int32_t>(read);
}

void save_fields(Tzu_xnode* node, const Tzu_bpnt_style& point) {
  zu_xnode_set_attr_bool_w(node, L"use_figure", point.use_figure);
  zu_xnode_set_attr_int_w(node, L"figure", point.figure);
  zu_xnode_set_attr_int_w(node, L"symbol", point.symbol);
  zu_xnode_set_attr_wstr(node, L"font", point.font.family.c_str());
  save_color(node, L"color", point.color);
  zu_xnode_set_attr_dbl_w(node, L"size", point.size);
  zu_xnode_set_attr_dbl_w(node, L"dx", point.dx);
  zu_xnode_set_attr_dbl_w(node, L"dy", point.dy);
  zu_xnode_set_attr_dbl_w(node, L"angle", point.angle);
  save_level(node, point.render_level);
}

void load_fields(Tzu_xnode* node, Tzu_bpnt_style& point) {
  load_flag(node, L"use_figure", point.use_figure);
  load_choice(node, L"figure", point.figure, zu_figure_count);
  std::int64_t letter = zu_xnode_get_attr_int_w(node, L"symbol", point.symbol);
  bool half = letter >= 0xD800 && letter < 0xE000;
  if (letter > 0 && letter <= 0x10FFFF && !half) point.symbol = static_cast<std::uint32_t>(letter);
  load_text(node, L"font", point.font.family);
  load_color(node, L"color", point.color);
  load_length(node, L"size", point.size);
  load_number(node, L"dx", point.dx);
  load_number(node, L"dy", point.dy);
  load_number(node, L"angle", point.angle);
  load_level(node, point.render_level);
}

void save_fields(Tzu_xnode* node, const Tzu_bpln_style& line) {
  zu_xnode_set_attr_dbl_w(node, L"width", line.width);
  save_lengths(node, L"dashes", line.dashes);
  zu_xnode_set_attr_int_w(node, L"cap", line.cap);
  zu_xnode_set_attr_int_w(node, L"join", line.join);
  save_color(node, L"color", line.color);
  save_level(node, line.render_level);
}

void load_fields(Tzu_xnode* node, Tzu_bpln_style& line) {
  load_length(node, L"width", line.width);
  load_lengths(node, L"dashes", line.dashes, zu_line_dashes);
  load_choice(node, L"cap", line.cap, caps);
  load_choice(node, L"join", line.join, joins);
  load_color(node, L"color", line.color);
  load_level(node, line.render_level);
}

void save_fields(Tzu_xnode* node, const Tzu_bpgn_style& fill) {
  save_color(node, L"color", fill.color);
  save_level(node, fill.render_level);
}

void load_fields(Tzu_xnode* node, Tzu_bpgn_style& fill) {
  load_color(node, L"color", fill.color);
  load_level(node, fill.render_level);
}

// --- Layers

void save_complex(Tzu_xnode* node, const with_complex& base) {
  if (base.use_complex) zu_xnode_set_attr_bool_w(node, L"use_complex", true);
  const Tzu_cpx_style* complex = base.complex.get();
  if (complex == nullptr || complex->layers.empty()) return;
  node_ptr group(zu_xnode_add_node_w(node, L"complex"));
  for (const style_layer& layer : complex->layers) {
    node_ptr written(zu_xnode_add_node_w(group.get(), L"layer"));
    zu_xnode_set_attr_wstr(written.get(), L"type", from_utf8(layer.type).c_str());
    std::visit([&](const auto& style) { save_fields(written.get(), style); }, layer.style);
  }
}

/// A layer of a type that is unknown or of another kind is left out, and so is what is more than a
/// thousand.
void load_complex(Tzu_xnode* node, with_complex& base) {
  load_flag(node, L"use_complex", base.use_complex);
  node_ptr group(zu_xnode_get_node_w(node, L"complex"));
  node_ptr layer(zu_xnode_get_node_w(group.get(), L"layer"));
  for (; layer; layer.reset(zu_xnode_next_node_w(layer.get()))) {
    Tzu_cpx_style* complex = base.complex.made();
    if (complex->layers.size() >= most_layers) return;
    style_layer* added = complex->add_layer(to_utf8(attribute(layer.get(), L"type")));
    if (added != nullptr)
      std::visit([&](auto& style) { load_fields(layer.get(), style); }, added->style);
  }
}

template <class base> void save_base(Tzu_xnode* node, const base& style) {
  save_fields(node, style);
  save_complex(node, style);
}
template <class base> void load_base(Tzu_xnode* node, base& style) {
  load_fields(node, style);
  load_complex(node, style);
}

// --- Parts that most styles have as new ones have them

auto fields_of(const Tzu_bpnt_style& p) {
  return std::tie(p.use_figure, p.figure, p.symbol, p.font, p.color.r, p.color.g, p.color.b,
                  p.color.a, p.size, p.dx, p.dy, p.angle, p.use_complex, p.render_level);
}
bool is_as(const Tzu_bpnt_style& fresh, const Tzu_bpnt_style& point) {
  const Tzu_cpx_style* complex = point.complex.get();
  return fields_of(point) == fields_of(fresh) && (complex == nullptr || complex->layers.empty());
}

/// A symbol at vertices or an end, and that of a new style; `turns` may be null.
void save_mark(Tzu_xnode* node, const wchar_t* key, const Tzu_bpnt_style& mark,
               const Tzu_bpnt_style& fresh, bool visible, const bool* turns) {
  if (is_as(fresh, mark) && !visible && (turns == nullptr || *turns)) return;
  node_ptr group(zu_xnode_add_node_w(node, key));
  zu_xnode_set_attr_bool_w(group.get(), L"visible", visible);
  if (turns != nullptr) zu_xnode_set_attr_bool_w(group.get(), L"turns", *turns);
  save_base(group.get(), mark);
}

void load_mark(Tzu_xnode* node, const wchar_t* key, Tzu_bpnt_style& mark, bool& visible,
               bool* turns) {
  node_ptr group(zu_xnode_get_node_w(node, key));
  if (!group) return;
  load_flag(group.get(), L"visible", visible);
  if (turns != nullptr) load_flag(group.get(), L"turns", *turns);
  load_base(group.get(), mark);
}

void save_number(Tzu_xnode* node, const Tzu_bnum_style& number) {
  static const Tzu_bnum_style fresh;
  auto fields = [](const Tzu_bnum_style& n) {
    return std::tie(n.color.r, n.color.g, n.color.b, n.color.a, n.size, n.render_level);
  };
  if (fields(number) == fields(fresh)) return;
  node_ptr group(zu_xnode_add_node_w(node, L"number"));
  save_color(group.get(), L"color", number.color);
  zu_xnode_set_attr_dbl_w(group.get(), L"size", number.size);
  save_level(group.get(), number.render_level);
}

void load_number(Tzu_xnode* node, Tzu_bnum_style& number) {
  node_ptr group(zu_xnode_get_node_w(node, L"number"));
  load_color(group.get(), L"color", number.color);
  load_length(group.get(), L"size", number.size);
  load_level(group.get(), number.render_level);
}

}  // namespace

void save_point(Tzu_xnode* node, const Tzu_pnt_style& style) {
  zu_xnode_set_attr_bool_w(node, L"visible", style.visible);
  save_base(node, style.point);
}

void load_point(Tzu_xnode* node, Tzu_pnt_style& style) {
  load_flag(node, L"visible", style.visible);
  load_base(node, style.point);
}

void save_line(Tzu_xnode* node, const Tzu_pln_style& style) {
  static const Tzu_pln_style fresh;
  save_base(node, style.line);
  zu_xnode_set_attr_bool_w(node, L"visible", style.line_visible);
  zu_xnode_set_attr_bool_w(node, L"label", style.number_visible);
  save_mark(node, L"vertices", style.vertex, fresh.vertex, style.vertex_visible, nullptr);
  save_mark(node, L"beginning", style.begin, fresh.begin, style.begin_visible, &style.begin_turns);
  save_mark(node, L"end", style.end, fresh.end, style.end_visible, &style.end_turns);
  save_number(node, style.number);
}

void load_line(Tzu_xnode* node, Tzu_pln_style& style) {
  load_base(node, style.line);
  load_flag(node, L"visible", style.line_visible);
  load_flag(node, L"label", style.number_visible);
  load_mark(node, L"vertices", style.vertex, style.vertex_visible, nullptr);
  load_mark(node, L"beginning", style.begin, style.begin_visible, &style.begin_turns);
  load_mark(node, L"end", style.end, style.end_visible, &style.end_turns);
  load_number(node, style.number);
}

void save_polygon(Tzu_xnode* node, const Tzu_pgn_style& style) {
  static const Tzu_pgn_style fresh;
  save_base(node, style.fill);
  zu_xnode_set_attr_bool_w(node, L"visible", style.fill_visible);
  zu_xnode_set_attr_bool_w(node, L"label", style.number_visible);
  node_ptr contour(zu_xnode_add_node_w(node, L"contour"));
  save_base(contour.get(), style.contour);
  zu_xnode_set_attr_bool_w(contour.get(), L"visible", style.contour_visible);
  save_mark(node, L"vertices", style.vertex, fresh.vertex, style.vertex_visible, nullptr);
  save_number(node, style.number);
}

void load_polygon(Tzu_xnode* node, Tzu_pgn_style& style) {
  load_base(node, style.fill);
  load_flag(node, L"visible", style.fill_visible);
  load_flag(node, L"label", style.number_visible);
  if (node_ptr contour(zu_xnode_get_node_w(node, L"contour")); contour) {
    load_base(contour.get(), style.contour);
    load_flag(contour.get(), L"visible", style.contour_visible);
  }
  load_mark(node, L"vertices", style.vertex, style.vertex_visible, nullptr);
  load_number(node, style.number);
}

}  // namespace zu::platform
