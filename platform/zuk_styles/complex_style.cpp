#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/symbols.h"

using zu::platform::complex_part;
using zu::platform::guarded;
using zu::platform::style_layer;

// --- The part of a base style

complex_part::complex_part(const complex_part& other)
    : kind_(other.kind_),
      style_(other.style_ ? std::make_unique<Tzu_cpx_style>(*other.style_) : nullptr) {}
complex_part::complex_part(complex_part&& other) noexcept = default;
complex_part& complex_part::operator=(const complex_part& other) {
  if (this != &other) *this = complex_part(other);
  return *this;
}
complex_part& complex_part::operator=(complex_part&& other) noexcept = default;
complex_part::~complex_part() = default;

Tzu_cpx_style* complex_part::made() {
  if (!style_) style_ = std::make_unique<Tzu_cpx_style>(Tzu_cpx_style{{kind_, {}}});
  return style_.get();
}

const Tzu_cpx_style* zu::platform::with_complex::drawn_complex() const {
  const Tzu_cpx_style* layers = use_complex ? complex.get() : nullptr;
  return layers != nullptr && !layers->layers.empty() ? layers : nullptr;
}

// --- Layers

namespace {

constexpr std::string_view kinds[] = {"pnt", "pln", "pgn"};

/// A new layer of that type; its base style is none of a point if the type is unknown.
bool make_layer(const std::string& type, style_layer& layer) {
  layer.type = type;
  if (type == "pnt_figr_slr") return true;
  if (type == "pnt_symb_slr") {
    std::get<Tzu_bpnt_style>(layer.style).use_figure = false;
    return true;
  }
  if (type == "pln_line_slr") layer.style = Tzu_bpln_style();
  if (type == "pgn_fill_slr") layer.style = Tzu_bpgn_style();
  return layer.style.index() > 0;
}

/// The largest of a length over the layers that have it.
template <class base> double largest(const Tzu_cpx_style& style, double base::*length) {
  double most = 0.0;
  for (const style_layer& layer : style.layers)
    if (auto* simple = std::get_if<base>(&layer.style)) most = std::max(most, simple->*length);
  return most;
}

template <class base, class change> void for_each_layer(Tzu_cpx_style& style, change c) {
  for (style_layer& layer : style.layers)
    if (auto* simple = std::get_if<base>(&layer.style)) c(*simple);
}

}  // namespace

style_layer* Tzu_style_lrs::add_layer(const std::string& type) {
  style_layer made;
  if (type.compare(0, kind.size(), kind) != 0 || !make_layer(type, made)) return nullptr;
  layers.push_back(std::move(made));
  return &layers.back();
}

// --- The plain functions

Tzu_cpx_style* zu_cpx_style_create(const char* kind) {
  std::string_view name = kind != nullptr ? kind : "";
  if (std::find(std::begin(kinds), std::end(kinds), name) == std::end(kinds)) return nullptr;
  return new (std::nothrow) Tzu_cpx_style{{std::string(name), {}}};
}
void zu_cpx_style_destroy(Tzu_cpx_style* style) { delete style; }
void zu_cpx_style_assign(Tzu_cpx_style* style, const Tzu_cpx_style* from) {
  if (from == nullptr) return;
  guarded(style, [&](Tzu_cpx_style& s) {
    if (s.kind == from->kind) s.layers = std::vector<style_layer>(from->layers);
  });
}

double zu_cpx_pnt_style_get_point_size(const Tzu_cpx_style* style) {
  return style != nullptr ? largest(*style, &Tzu_bpnt_style::size) : 0.0;
}
void zu_cpx_pnt_style_set_point_size(Tzu_cpx_style* style, double millimetres) {
  double now = zu_cpx_pnt_style_get_point_size(style);
  if (style == nullptr) return;
  for_each_layer<Tzu_bpnt_style>(*style, [&](Tzu_bpnt_style& s) {
    if (now > 0.0)
      for (double* length : {&s.size, &s.dx, &s.dy}) *length *= millimetres / now;
    else
      s.size = millimetres;
  });
}
double zu_cpx_pln_style_get_line_width(const Tzu_cpx_style* style) {
  return style != nullptr ? largest(*style, &Tzu_bpln_style::width) : 0.0;
}
void zu_cpx_pln_style_set_line_width(Tzu_cpx_style* style, double millimetres) {
  double now = zu_cpx_pln_style_get_line_width(style);
  if (style == nullptr) return;
  for_each_layer<Tzu_bpln_style>(*style, [&](Tzu_bpln_style& s) {
    s.width = now > 0.0 ? s.width * (millimetres / now) : millimetres;
  });
}
bool zu_cpx_pgn_style_get_color(const Tzu_cpx_style* style, Tzu_color* color) {
  if (style == nullptr || color == nullptr) return false;
  for (const style_layer& layer : style->layers)
    if (auto* fill = std::get_if<Tzu_bpgn_style>(&layer.style)) {
      *color = fill->color;
      return true;
    }
  return false;
}
void zu_cpx_pgn_style_set_color(Tzu_cpx_style* style, Tzu_color color) {
  if (style == nullptr) return;
  for (style_layer& layer : style->layers)
    if (auto* fill = std::get_if<Tzu_bpgn_style>(&layer.style)) {
      fill->color = color;
      return;
    }
}

Tzu_style_lrs* zu_cpx_style_get_style_lrs_ptr(Tzu_cpx_style* style) { return style; }
uint64_t zu_style_lrs_get_size(const Tzu_style_lrs* layers) {
  return layers != nullptr ? layers->layers.size() : 0;
}
Tzu_style_lr* zu_style_lrs_get_lr_ptr(Tzu_style_lrs* layers, uint64_t index) {
  return index < zu_style_lrs_get_size(layers) ? &layers->layers[index] : nullptr;
}
Tzu_style_lr* zu_style_lrs_add_lr(Tzu_style_lrs* layers, const char* type) {
  if (type == nullptr) return nullptr;
  return guarded(layers, static_cast<Tzu_style_lr*>(nullptr),
                 [&](Tzu_style_lrs& l) { return l.add_layer(type); });
}
const char* zu_style_lr_get_type(const Tzu_style_lr* layer) {
  return layer != nullptr ? layer->type.c_str() : "";
}
void zu_style_lr_assign(Tzu_style_lr* layer, const Tzu_style_lr* from) {
  if (from == nullptr) return;
  guarded(layer, [&](Tzu_style_lr& l) {
    if (l.type == from->type) l = Tzu_style_lr(*from);
  });
}
int32_t zu_style_lr_get_render_level(const Tzu_style_lr* layer) {
  if (layer == nullptr) return 0;
  return std::visit([](const auto& simple) { return simple.render_level; }, layer->style);
}
void zu_style_lr_set_render_level(Tzu_style_lr* layer, int32_t level) {
  if (layer != nullptr)
    std::visit([&](auto& simple) { simple.render_level = level; }, layer->style);
}
