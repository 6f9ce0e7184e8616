#pragma once
// Styles with settings from a seeded generator, and the text that a group writes of them.

#include <bit>
#include <cmath>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/zuk_styles/parameters.h"
#include "platform/zuk_xml_data/nodes.h"
#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_xml_data.h"

namespace tests {

template <auto destroy> struct destroyed_by {
  template <class object> void operator()(object* o) const { destroy(o); }
};
using manager_ptr = std::unique_ptr<Tzu_stl_mngr, destroyed_by<zu_stl_mngr_destroy>>;
using hillshade_ptr =
    std::unique_ptr<Tzu_hillshade_style, destroyed_by<zu_hillshade_style_destroy>>;
using isoline_ptr = std::unique_ptr<Tzu_isoline_style, destroyed_by<zu_isoline_style_destroy>>;
using zu::platform::node_ptr;

/// The types of managers, which are the keys of their files.
inline constexpr const char* manager_types[] = {"clr_mngr_style", "pnt_mngr_style",
                                                "pln_mngr_style", "pgn_mngr_style"};

class style_maker {
 public:
  explicit style_maker(unsigned seed) : random_(seed) {}

  int below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  bool flag() { return below(2) == 1; }
  double number() {
    static constexpr double odd[] = {0, -0.0, 5e-324, -1e308, HUGE_VAL, -HUGE_VAL, NAN};
    if (below(8) == 0) return odd[below(7)];
    return std::ldexp(static_cast<double>(random_()) - 2147483648.0, below(200) - 100);
  }
  double length() { return below(100000) / 1024.0; }
  std::wstring text() {
    static constexpr wchar_t letters[] = L"aZ09 _x<>&\"'\t\r\n\x01йЖ\u4E2D\U0001F30D";
    std::wstring made;
    for (int i = below(12); i > 0; --i) made += letters[below(std::size(letters) - 1)];
    return made;
  }
  /// Mostly none.
  std::int32_t level() { return flag() ? 0 : below(2001) - 1000; }
  Tzu_color color() {
    auto byte = [&] { return static_cast<std::uint8_t>(below(256)); };
    return {byte(), byte(), byte(), byte()};
  }
  Tzu_bpnt_style mark() {
    Tzu_bpnt_style made;
    made.use_figure = flag(), made.figure = below(zu_figure_count);
    made.symbol = static_cast<std::uint32_t>(1 + below(0xD7FF));
    made.font.family = text();
    made.color = color(), made.size = length();
    made.dx = length() - 50, made.dy = length() - 50, made.angle = length() - 50;
    made.render_level = level();
    return made;
  }
  Tzu_bpln_style stroke() {
    Tzu_bpln_style made;
    made.width = length();
    made.dashes.resize(static_cast<std::size_t>(below(zu_line_dashes + 1)));
    for (double& each : made.dashes) each = length();
    made.cap = below(3), made.join = below(3);
    made.color = color();
    made.render_level = level();
    return made;
  }
  /// Gives a base style layers, or none.
  void layer(zu::platform::with_complex& base, std::vector<std::string> types) {
    base.use_complex = flag();
    for (int i = below(4); i > 0; --i) {
      auto* layer = base.complex.made()->add_layer(
          types[static_cast<std::size_t>(below(static_cast<int>(types.size())))]);
      if (auto* point = std::get_if<Tzu_bpnt_style>(&layer->style)) *point = mark();
      if (auto* line = std::get_if<Tzu_bpln_style>(&layer->style)) *line = stroke();
      if (auto* fill = std::get_if<Tzu_bpgn_style>(&layer->style))
        fill->color = color(), fill->render_level = level();
    }
  }
  Tzu_bpnt_style layered_mark() {
    Tzu_bpnt_style made = mark();
    layer(made, {"pnt_figr_slr", "pnt_symb_slr"});
    return made;
  }
  Tzu_pnt_style point() {
    Tzu_pnt_style made;
    made.point = layered_mark(), made.visible = flag();
    return made;
  }
  Tzu_pln_style line() {
    Tzu_pln_style made;
    made.line = stroke();
    layer(made.line, {"pln_line_slr"});
    made.line_visible = flag(), made.number_visible = flag();
    if (flag()) made.vertex = layered_mark(), made.vertex_visible = flag();
    if (flag()) made.begin = layered_mark(), made.begin_visible = flag();
    if (flag()) made.end = layered_mark(), made.end_visible = flag();
    made.begin_turns = flag(), made.end_turns = flag();
    if (flag()) made.number.color = color(), made.number.size = length();
    made.number.render_level = level();
    return made;
  }
  Tzu_pgn_style polygon() {
    Tzu_pgn_style made;
    made.fill.color = color(), made.fill.render_level = level();
    layer(made.fill, {"pgn_fill_slr"});
    made.contour = stroke();
    layer(made.contour, {"pln_line_slr"});
    made.fill_visible = flag(), made.contour_visible = flag(), made.number_visible = flag();
    if (flag()) made.vertex = layered_mark(), made.vertex_visible = flag();
    if (flag()) made.number.color = color(), made.number.size = length();
    made.number.render_level = level();
    return made;
  }
  void fill(Tzu_stl_prm* style) {
    for (int i = 0; i < 2; ++i) {
      style->colors[i] = color();
      // The other kinds are of no use to a manager.
      if (type_ == "pnt_mngr_style") *zu_stl_prm_get_pnt_style_ptr(style, i) = point();
      if (type_ == "pln_mngr_style") *zu_stl_prm_get_pln_style_ptr(style, i) = line();
      if (type_ == "pgn_mngr_style") *zu_stl_prm_get_pgn_style_ptr(style, i) = polygon();
    }
  }
  void fill(Tzu_scale_prm* row) {
    row->visible = flag();
    fill(&row->style);
  }
  manager_ptr manager(const char* type) {
    manager_ptr made(zu_stl_mngr_create(type));
    type_ = type;
    zu_stl_mngr_set_mode(made.get(), below(4));
    zu_stl_mngr_set_use_render_levels(made.get(), flag());
    fill(zu_stl_mngr_get_simple_sp_ptr(made.get()));
    zu_stl_mngr_set_val_prop_name_w(made.get(), text().c_str());
    zu_stl_mngr_set_rng_prop_name_w(made.get(), text().c_str());
    fill(zu_stl_mngr_get_val_scale_ptr(made.get()));
    fill(zu_stl_mngr_get_rng_scale_ptr(made.get()));
    fill(zu_stl_mngr_get_rule_scale_ptr(made.get()));
    return made;
  }
  hillshade_ptr hillshade() {
    hillshade_ptr made(zu_hillshade_style_create());
    zu_hillshade_style_set_use(made.get(), flag());
    zu_hillshade_style_set_propname(made.get(), text().c_str());
    zu_hillshade_style_set_z_coeff(made.get(), number());
    zu_hillshade_style_set_sun_slope_degree(made.get(), number());
    zu_hillshade_style_set_sun_aspect_degree(made.get(), number());
    zu_hillshade_style_set_multidir(made.get(), flag());
    zu_hillshade_style_set_part(made.get(), number());
    return made;
  }
  isoline_ptr isolines() {
    isoline_ptr made(zu_isoline_style_create());
    zu_isoline_style_set_use(made.get(), flag());
    zu_isoline_style_set_propname(made.get(), text().c_str());
    zu_isoline_style_set_thin_step(made.get(), number());
    zu_isoline_style_set_bold_step(made.get(), number());
    Tzu_pln_style thin = line(), bold = line();
    zu_isoline_style_set_thin_style(made.get(), &thin);
    zu_isoline_style_set_bold_style(made.get(), &bold);
    return made;
  }

 private:
  void fill(Tzu_val_scale* scale) {
    zu_val_scale_set_size(scale, static_cast<std::uint64_t>(below(6)));
    for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i) {
      zu_val_scale_set_text_w(scale, i, text().c_str());
      zu_val_scale_set_caption_w(scale, i, text().c_str());
      fill(zu_val_scale_get_scale_prm_ptr(scale, i));
    }
    zu_val_scale_set_other_caption_w(scale, text().c_str());
    fill(zu_val_scale_get_other_prm_ptr(scale));
  }
  void fill(Tzu_rng_scale* scale) {
    zu_rng_scale_set_size(scale, static_cast<std::uint64_t>(below(6)));
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i) {
      zu_rng_scale_set_min(scale, i, number());
      zu_rng_scale_set_max(scale, i, number());
      zu_rng_scale_set_caption_w(scale, i, text().c_str());
      fill(zu_rng_scale_get_scale_prm_ptr(scale, i));
    }
    zu_rng_scale_set_min_value(scale, number());
    zu_rng_scale_set_max_value(scale, number());
    zu_rng_scale_set_min_caption_w(scale, text().c_str());
    zu_rng_scale_set_max_caption_w(scale, text().c_str());
    zu_rng_scale_set_other_caption_w(scale, text().c_str());
    zu_rng_scale_set_rng_type(scale, below(7));
    zu_rng_scale_set_round_digits(scale, below(41) - 30);
    zu_rng_scale_set_deviation_coeff(scale, number());
    fill(zu_rng_scale_get_min_prm_ptr(scale));
    fill(zu_rng_scale_get_max_prm_ptr(scale));
    fill(zu_rng_scale_get_other_prm_ptr(scale));
  }

  std::mt19937 random_;
  std::string_view type_;
};

/// All that a style holds, asked of the style itself, to hold what was read against what was
/// written.
class facts {
 public:
  explicit facts(Tzu_stl_mngr* m) {
    add(zu_stl_mngr_get_mode(m));
    add(zu_stl_mngr_get_use_render_levels(m));
    add(*zu_stl_mngr_get_simple_sp_ptr(m));
    add([&](Tzu_string_adp* a) { zu_stl_mngr_get_val_prop_name_w(m, a); });
    add([&](Tzu_string_adp* a) { zu_stl_mngr_get_rng_prop_name_w(m, a); });
    add(zu_stl_mngr_get_val_scale_ptr(m));
    add(zu_stl_mngr_get_rng_scale_ptr(m));
    add(zu_stl_mngr_get_rule_scale_ptr(m));
  }
  explicit facts(const Tzu_pnt_style& style) { add(style); }
  explicit facts(const Tzu_pln_style& style) { add(style); }
  explicit facts(const Tzu_pgn_style& style) { add(style); }
  explicit facts(const Tzu_hillshade_style* s) {
    add([&](Tzu_string_adp* a) { zu_hillshade_style_get_propname(s, a); });
    for (double each :
         {zu_hillshade_style_get_z_coeff(s), zu_hillshade_style_get_sun_slope_degree(s),
          zu_hillshade_style_get_sun_aspect_degree(s), zu_hillshade_style_get_part(s)})
      add(each);
    add(zu_hillshade_style_get_use(s));
    add(zu_hillshade_style_get_multidir(s));
  }
  explicit facts(const Tzu_isoline_style* s) {
    add([&](Tzu_string_adp* a) { zu_isoline_style_get_propname(s, a); });
    add(zu_isoline_style_get_use(s));
    add(zu_isoline_style_get_thin_step(s));
    add(zu_isoline_style_get_bold_step(s));
    Tzu_pln_style line;
    zu_isoline_style_get_thin_style(s, &line);
    add(line);
    zu_isoline_style_get_bold_style(s, &line);
    add(line);
  }
  bool operator==(const facts&) const = default;

 private:
  void add(double number) { all_ += std::to_wstring(std::bit_cast<std::uint64_t>(number)) + L'|'; }
  template <class function> auto add(function ask) -> decltype(ask(nullptr)) {
    all_ += text_of(ask) + L'|';
  }
  void add(Tzu_color c) {
    for (int each : {c.r, c.g, c.b, c.a}) add(each);
  }
  void add_all(std::initializer_list<double> numbers) {
    for (double each : numbers) add(each);
  }
  void add_fields(const Tzu_bpnt_style& p) {
    add_all({p.use_figure + 0.0, p.figure + 0.0, p.symbol + 0.0, p.size, p.dx, p.dy, p.angle,
             p.render_level + 0.0});
    all_ += p.font.family + L'|';
    add(p.color);
  }
  void add_fields(const Tzu_bpln_style& line) {
    add_all({line.width, line.cap + 0.0, line.join + 0.0, line.dashes.size() + 0.0,
             line.render_level + 0.0});
    for (double each : line.dashes) add(each);
    add(line.color);
  }
  void add_fields(const Tzu_bpgn_style& fill) {
    add(fill.color);
    add(fill.render_level);
  }
  void add(const Tzu_bnum_style& number) {
    add(number.color);
    add_all({number.size, number.render_level + 0.0});
  }
  template <class base> void add_base(const base& style) {
    add_fields(style);
    add(style.use_complex);
    const Tzu_cpx_style* complex = style.complex.get();
    if (complex == nullptr) return;
    for (const auto& layer : complex->layers) {
      all_.append(layer.type.begin(), layer.type.end());
      std::visit([&](const auto& simple) { add_fields(simple); }, layer.style);
    }
  }
  void add(const Tzu_pnt_style& style) {
    add_base(style.point);
    add(style.visible);
  }
  void add(const Tzu_pln_style& line) {
    add_base(line.line);
    for (const Tzu_bpnt_style* each : {&line.vertex, &line.begin, &line.end}) add_base(*each);
    for (bool each : {line.line_visible, line.vertex_visible, line.begin_visible, line.end_visible,
                      line.number_visible, line.begin_turns, line.end_turns})
      add(each);
    add(line.number);
  }
  void add(const Tzu_pgn_style& polygon) {
    add_base(polygon.fill);
    add_base(polygon.contour);
    add_base(polygon.vertex);
    for (bool each : {polygon.fill_visible, polygon.contour_visible, polygon.vertex_visible,
                      polygon.number_visible})
      add(each);
    add(polygon.number);
  }
  void add(const Tzu_stl_prm& style) {
    zu::platform::style_parameters copy(style);  // of which symbols may be made
    for (int i = 0; i < 2; ++i) {
      add(style.colors[i]);
      add(*zu_stl_prm_get_pnt_style_ptr(&copy, i));
      add(*zu_stl_prm_get_pln_style_ptr(&copy, i));
      add(*zu_stl_prm_get_pgn_style_ptr(&copy, i));
    }
  }
  void add(const Tzu_scale_prm* row) {
    add(row->visible);
    add(row->style);
  }
  void add(Tzu_val_scale* scale) {
    for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i) {
      add([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, i, a); });
      add([&](Tzu_string_adp* a) { zu_val_scale_get_caption_w(scale, i, a); });
      add(zu_val_scale_get_scale_prm_ptr(scale, i));
    }
    add([&](Tzu_string_adp* a) { zu_val_scale_get_other_caption_w(scale, a); });
    add(zu_val_scale_get_other_prm_ptr(scale));
  }
  void add(Tzu_rng_scale* scale) {
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i) {
      add(zu_rng_scale_get_min(scale, i));
      add(zu_rng_scale_get_max(scale, i));
      add([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(scale, i, a); });
      add(zu_rng_scale_get_scale_prm_ptr(scale, i));
    }
    for (double each :
         {zu_rng_scale_get_min_value(scale), zu_rng_scale_get_max_value(scale),
          zu_rng_scale_get_rng_type(scale) + 0.0, zu_rng_scale_get_round_digits(scale) + 0.0,
          zu_rng_scale_get_deviation_coeff(scale)})
      add(each);
    add([&](Tzu_string_adp* a) { zu_rng_scale_get_min_caption_w(scale, a); });
    add([&](Tzu_string_adp* a) { zu_rng_scale_get_max_caption_w(scale, a); });
    add([&](Tzu_string_adp* a) { zu_rng_scale_get_other_caption_w(scale, a); });
    add(zu_rng_scale_get_min_prm_ptr(scale));
    add(zu_rng_scale_get_max_prm_ptr(scale));
    add(zu_rng_scale_get_other_prm_ptr(scale));
  }

  std::wstring all_;
};

/// The whole text of a tree in which `save` has written under the root.
template <class function> std::wstring written_by(function&& save) {
  node_ptr root(zu_xnode_create_root_w(L"r"));
  save(root.get());
  return text_of([&](Tzu_string_adp* a) { zu_xnode_get_text(root.get(), a); });
}

/// A tree as a file gives it: written as text and read.
template <class function> node_ptr read_back(function&& save) {
  std::wstring wide = written_by(save);
  std::string bytes(wide.begin(), wide.end());
  return node_ptr(zu_xnode_read(bytes.data(), bytes.size(), nullptr));
}

}  // namespace tests
