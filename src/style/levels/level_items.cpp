#include "src/style/levels/level_items.h"

#include <string_view>

#include "src/bundle/texts.h"
#include "src/style/scale_traits.h"
#include "src/style/style_traits.h"

namespace zu::style::detail {
namespace {

namespace text {
constexpr std::int32_t single = 13603, line = 13604, beginning = 13605, end = 13606, fill = 13607,
                       contour = 13608, vertices = 13609, number = 13610, simple = 13612,
                       other = 14501;
}

// --- The base styles by their kinds

Tzu_bpnt_style* main_part(Tzu_pnt_style* s) { return zu_pnt_style_get_bpnt_style_ptr(s); }
Tzu_bpln_style* main_part(Tzu_pln_style* s) { return zu_pln_style_get_bpln_style_ptr(s); }
Tzu_bpgn_style* main_part(Tzu_pgn_style* s) {
  zu_pgn_style_set_pln_visible(s, false);  // it is a sample of the fill alone
  return zu_pgn_style_get_bpgn_style_ptr(s);
}

void assign(Tzu_bpnt_style* to, const Tzu_bpnt_style* from) { zu_bpnt_style_assign(to, from); }
void assign(Tzu_bpln_style* to, const Tzu_bpln_style* from) { zu_bpln_style_assign(to, from); }
void assign(Tzu_bpgn_style* to, const Tzu_bpgn_style* from) { zu_bpgn_style_assign(to, from); }

bool use_complex(const Tzu_bpnt_style* s) { return zu_bpnt_style_get_use_complex(s); }
bool use_complex(const Tzu_bpln_style* s) { return zu_bpln_style_get_use_complex(s); }
bool use_complex(const Tzu_bpgn_style* s) { return zu_bpgn_style_get_use_complex(s); }
void set_use_complex(Tzu_bpnt_style* s) { zu_bpnt_style_set_use_complex(s, true); }
void set_use_complex(Tzu_bpln_style* s) { zu_bpln_style_set_use_complex(s, true); }
void set_use_complex(Tzu_bpgn_style* s) { zu_bpgn_style_set_use_complex(s, true); }
Tzu_cpx_style* complex_of(Tzu_bpnt_style* s) { return zu_bpnt_style_get_complex_style(s); }
Tzu_cpx_style* complex_of(Tzu_bpln_style* s) { return zu_bpln_style_get_complex_style(s); }
Tzu_cpx_style* complex_of(Tzu_bpgn_style* s) { return zu_bpgn_style_get_complex_style(s); }
template <class base> Tzu_style_lrs* layers_of(base* s) {
  return zu_cpx_style_get_style_lrs_ptr(complex_of(s));
}

std::int32_t level_of(const Tzu_bpnt_style* s) { return zu_bpnt_style_get_render_level(s); }
std::int32_t level_of(const Tzu_bpln_style* s) { return zu_bpln_style_get_render_level(s); }
std::int32_t level_of(const Tzu_bpgn_style* s) { return zu_bpgn_style_get_render_level(s); }
void set_level_of(Tzu_bpnt_style* s, std::int32_t l) { zu_bpnt_style_set_render_level(s, l); }
void set_level_of(Tzu_bpln_style* s, std::int32_t l) { zu_bpln_style_set_render_level(s, l); }
void set_level_of(Tzu_bpgn_style* s, std::int32_t l) { zu_bpgn_style_set_render_level(s, l); }

/// A sample of a new style whose main part `prepare` has set up.
template <class base_kind, class function>
bool sample(std::uint64_t width, std::uint64_t height, double dots_per_mm, Tzu_dib* out,
            const function& prepare) {
  auto shown = base_kind::kind::create();
  if (shown.get() == nullptr) return false;
  prepare(main_part(shown.get()));
  return base_kind::kind::preview(shown.get(), width, height, dots_per_mm, out);
}

/// The name of a layer's type; the type itself for one that has no name here.
std::wstring layer_name(const Tzu_style_lr* layer) {
  static constexpr struct {
    std::string_view type;
    std::int32_t text;
  } names[] = {{"pnt_figr_slr", 10345}, {"pnt_geom_slr", 10405}, {"pnt_symb_slr", 10347},
               {"pnt_text_slr", 10395}, {"pln_line_slr", 10348}, {"pln_tplt_slr", 10352},
               {"pln_cart_slr", 10409}, {"pgn_fill_slr", 10349}, {"pgn_htch_slr", 10350},
               {"pgn_spot_slr", 10351}};
  std::string_view type = zu_style_lr_get_type(layer);
  for (const auto& known : names)
    if (known.type == type) return load_text(known.text);
  return {type.begin(), type.end()};
}

// --- What bears a level

template <class base_kind> class simple_item : public base_item {
 public:
  using base = typename base_kind::base;
  simple_item(base* part, bool shows) : base_item(load_text(text::simple), shows), part_(part) {}
  bool has_level() const override { return true; }
  std::int32_t level() const override { return level_of(part_); }
  void set_level(std::int32_t level) override { set_level_of(part_, level); }
  bool draw(std::uint64_t width, std::uint64_t height, double dots_per_mm, Tzu_dib* out) override {
    return sample<base_kind>(width, height, dots_per_mm, out,
                             [&](base* shown) { assign(shown, part_); });
  }

 private:
  base* part_;
};

template <class base_kind> class layer_item : public base_item {
 public:
  using base = typename base_kind::base;
  layer_item(Tzu_style_lr* layer, bool shows)
      : base_item(layer_name(layer), shows), layer_(layer) {}
  bool has_level() const override { return true; }
  std::int32_t level() const override { return zu_style_lr_get_render_level(layer_); }
  void set_level(std::int32_t level) override { zu_style_lr_set_render_level(layer_, level); }
  bool draw(std::uint64_t width, std::uint64_t height, double dots_per_mm, Tzu_dib* out) override {
    return sample<base_kind>(width, height, dots_per_mm, out, [&](base* shown) {
      set_use_complex(shown);
      zu_style_lr_assign(zu_style_lrs_add_lr(layers_of(shown), zu_style_lr_get_type(layer_)),
                         layer_);
    });
  }

 private:
  Tzu_style_lr* layer_;
};

}  // namespace

// --- Parts

template <class base_kind>
base_style_item<base_kind>::base_style_item(std::int32_t text, base* part, bool shows)
    : bstyle_item(load_text(text), shows), part_(part) {}

template <class base_kind>
bool base_style_item<base_kind>::draw(std::uint64_t width, std::uint64_t height, double dots_per_mm,
                                      Tzu_dib* out) {
  return sample<base_kind>(width, height, dots_per_mm, out,
                           [&](base* shown) { assign(shown, part_); });
}

template <class base_kind> void base_style_item<base_kind>::fill() {
  if (!use_complex(part_)) return add<simple_item<base_kind>>(part_, shows());
  Tzu_style_lrs* layers = layers_of(part_);
  for (std::uint64_t i = 0; i < zu_style_lrs_get_size(layers); ++i)
    add<layer_item<base_kind>>(zu_style_lrs_get_lr_ptr(layers, i), shows());
}

bnum_item::bnum_item(Tzu_bnum_style* part, bool shows)
    : bstyle_item(load_text(text::number), shows), part_(part) {}

// --- Styles

void pnt_style_item::fill() {
  add<bpnt_item>(text::vertices, zu_pnt_style_get_bpnt_style_ptr(style_),
                 zu_pnt_style_get_pnt_visible(style_));
}

void pln_style_item::fill() {
  add<bpln_item>(text::line, zu_pln_style_get_bpln_style_ptr(style_),
                 zu_pln_style_get_pln_visible(style_));
  add<bpnt_item>(text::vertices, zu_pln_style_get_bpnt_style_ptr(style_),
                 zu_pln_style_get_pnt_visible(style_));
  add<bpnt_item>(text::beginning, zu_pln_style_get_bbeg_style_ptr(style_),
                 zu_pln_style_get_beg_visible(style_));
  add<bpnt_item>(text::end, zu_pln_style_get_bend_style_ptr(style_),
                 zu_pln_style_get_end_visible(style_));
  add<bnum_item>(zu_pln_style_get_bnum_style_ptr(style_), zu_pln_style_get_num_visible(style_));
}

void pgn_style_item::fill() {
  add<bpgn_item>(text::fill, zu_pgn_style_get_bpgn_style_ptr(style_),
                 zu_pgn_style_get_pgn_visible(style_));
  add<bpln_item>(text::contour, zu_pgn_style_get_bpln_style_ptr(style_),
                 zu_pgn_style_get_pln_visible(style_));
  add<bpnt_item>(text::vertices, zu_pgn_style_get_bpnt_style_ptr(style_),
                 zu_pgn_style_get_pnt_visible(style_));
  add<bnum_item>(zu_pgn_style_get_bnum_style_ptr(style_), zu_pgn_style_get_num_visible(style_));
}

// --- The manager

void mngr_item::fill() {
  switch (zu_stl_mngr_get_mode(mngr_)) {
    case zu_style_simple:
      return add_style(load_text(text::single), zu_stl_mngr_get_simple_sp_ptr(mngr_));
    case zu_style_value:
      return add_rows<value_scale_traits>();
    case zu_style_range:
      return add_rows<range_scale_traits>();
    case zu_style_rule:
      return add_rows<rule_scale_traits>();
    default:
      return;
  }
}

/// Rows by their captions; one without a caption by what it holds.
template <class scale_traits> void mngr_item::add_rows() {
  auto* scale = scale_traits::scale(mngr_);
  if (scale == nullptr) return;
  for (std::int64_t row = 0; row < scale_traits::row_count(scale); ++row) {
    std::wstring caption = scale_traits::caption(scale, row);
    add_style(caption.empty() ? scale_traits::key_text(scale, row) : caption,
              zu_scale_prm_get_stl_prm_ptr(scale_traits::row(scale, row)));
  }
  std::wstring other = scale_traits::other_caption(scale);
  add_style(other.empty() ? load_text(text::other) : other,
            zu_scale_prm_get_stl_prm_ptr(scale_traits::other(scale)));
}

void mngr_item::add_style(std::wstring text, Tzu_stl_prm* prm) {
  std::string_view type = zu_stl_mngr_get_style_type(mngr_);
  if (type == point_style_traits::manager_key)
    add<pnt_style_item>(std::move(text), zu_stl_prm_get_pnt_style_ptr(prm, primary));
  else if (type == line_style_traits::manager_key)
    add<pln_style_item>(std::move(text), zu_stl_prm_get_pln_style_ptr(prm, primary));
  else if (type == "pgn_mngr_style")
    add<pgn_style_item>(std::move(text), zu_stl_prm_get_pgn_style_ptr(prm, primary));
}

}  // namespace zu::style::detail
