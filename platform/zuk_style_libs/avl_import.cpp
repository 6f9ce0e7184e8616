// ArcView legends into style managers, and what conversions report to.

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_style_libs/arcview_legend.h"
#include "zu/platform/zuk_style_libs.h"

using zu::platform::arcview_legend;
using zu::platform::from_utf8;
using zu::platform::guarded;
using zu::platform::legend_class;
using zu::platform::legend_symbol;
using zu::platform::text_of;

struct Tgp_env_out {
  void (*sink)(const wchar_t* text, void* user);
  void* user;
};
struct Tgp_env {
  std::unique_ptr<Tgp_env_out> out;
};
struct Tgp_avl_to_stlmgr_params {
  std::wstring path;
  Tzu_stl_mngr* manager = nullptr;
};

namespace {

Tgp_env*& current_environment() {
  static Tgp_env* current = nullptr;
  return current;
}

void report(const std::wstring& text) {
  const Tgp_env* environment = current_environment();
  if (environment == nullptr || !environment->out || environment->out->sink == nullptr) return;
  environment->out->sink(text.c_str(), environment->out->user);
}

std::string content_of(const std::wstring& path) {
  constexpr std::streamoff longest = std::streamoff{64} << 20;
  std::string name = zu::platform::to_utf8(path);
  std::error_code unknown;
  if (!std::filesystem::exists(name, unknown)) throw std::runtime_error("no such file");
  if (!std::filesystem::is_regular_file(name, unknown))
    throw std::runtime_error("is not a regular file");
  std::ifstream file(name, std::ios::binary | std::ios::ate);
  std::streamoff size = file ? static_cast<std::streamoff>(file.tellg()) : -1;
  if (size < 0) throw std::runtime_error("cannot be opened");
  if (size > longest) throw std::runtime_error("is larger than 64 MiB");
  std::string content(static_cast<std::size_t>(size), '\0');
  file.seekg(0);
  if (!file.read(content.data(), size)) throw std::runtime_error("cannot be read");
  return content;
}

// --- Symbols

/// What a marker is drawn with that comes from a legend of another kind.
constexpr double usual_size = 2.0;

Tzu_color line_color(const legend_symbol& symbol) {
  return symbol.kind == legend_symbol::kinds::shade ? symbol.outline : symbol.color;
}

void style_point(Tzu_pnt_style* style, const legend_symbol& symbol) {
  Tzu_bpnt_style* base = zu_pnt_style_get_bpnt_style_ptr(style);
  bool marker = symbol.kind == legend_symbol::kinds::marker;
  zu_bpnt_style_set_use_complex(base, false);
  zu_bpnt_style_set_use_figure(base, true);
  zu_bpnt_style_set_figure(base, zu_figure_circle);
  zu_bpnt_style_set_color(base, symbol.color);
  zu_bpnt_style_set_size(base, marker ? symbol.size : usual_size);
  zu_bpnt_style_set_angle(base, marker ? symbol.angle : 0.0);
  zu_pnt_style_set_pnt_visible(style, true);
}

void style_base_line(Tzu_bpln_style* base, Tzu_color color, double width,
                     const std::vector<double>& dashes) {
  zu_bpln_style_set_use_complex(base, false);
  zu_bpln_style_set_color(base, color);
  zu_bpln_style_set_width(base, width);
  auto count = static_cast<std::int32_t>(std::min<std::size_t>(dashes.size(), zu_line_dashes));
  zu_bpln_style_set_dashes(base, count, dashes.data());
}

double line_width(const legend_symbol& symbol) {
  constexpr double usual = 0.2;
  if (symbol.kind == legend_symbol::kinds::line) return symbol.width;
  return symbol.kind == legend_symbol::kinds::shade ? symbol.outline_width : usual;
}

void style_line(Tzu_pln_style* style, const legend_symbol& symbol) {
  style_base_line(zu_pln_style_get_bpln_style_ptr(style), symbol.color, line_width(symbol),
                  symbol.dashes);
  zu_pln_style_set_pln_visible(style, true);
}

void style_polygon(Tzu_pgn_style* style, const legend_symbol& symbol) {
  constexpr std::uint8_t invisible = 255;
  Tzu_bpgn_style* base = zu_pgn_style_get_bpgn_style_ptr(style);
  zu_bpgn_style_set_use_complex(base, false);
  zu_bpgn_style_set_color(base, symbol.color);
  zu_pgn_style_set_pgn_visible(style, symbol.color.a != invisible);
  style_base_line(zu_pgn_style_get_bpln_style_ptr(style), line_color(symbol), line_width(symbol),
                  symbol.dashes);
  zu_pgn_style_set_pln_visible(style, line_color(symbol).a != invisible);
}

/// Gives the style that draws the look of a symbol, in the kind of the manager.
void style(const Tzu_stl_mngr* manager, Tzu_stl_prm* prm, const legend_symbol& symbol) {
  std::string_view type = zu_stl_mngr_get_style_type(manager);
  zu_stl_prm_clr_set_all(prm, symbol.color, 0);
  if (type == "pnt_mngr_style") style_point(zu_stl_prm_get_pnt_style_ptr(prm, 0), symbol);
  if (type == "pln_mngr_style") style_line(zu_stl_prm_get_pln_style_ptr(prm, 0), symbol);
  if (type == "pgn_mngr_style") style_polygon(zu_stl_prm_get_pgn_style_ptr(prm, 0), symbol);
}

void style_row(const Tzu_stl_mngr* manager, Tzu_scale_prm* row, const legend_class& one) {
  zu_scale_prm_set_visible(row, one.symbol.has_value());
  if (one.symbol) style(manager, zu_scale_prm_get_stl_prm_ptr(row), *one.symbol);
}

/// What no class holds is hidden if the legend does not say how it looks.
void style_other(const Tzu_stl_mngr* manager, Tzu_scale_prm* row, const arcview_legend& legend) {
  constexpr std::uint8_t invisible = 255;
  zu_scale_prm_set_visible(row, false);
  if (!legend.other || !legend.other->symbol) return;
  style_row(manager, row, *legend.other);
  zu_scale_prm_set_visible(row, legend.other->symbol->color.a != invisible);
}

// --- Scales

void fill_values(Tzu_stl_mngr* manager, const arcview_legend& legend) {
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
  if (!legend.field.empty()) zu_stl_mngr_set_val_prop_name_w(manager, legend.field.c_str());
  zu_val_scale_set_size(scale, 0);
  zu_val_scale_set_size(scale, legend.classes.size());
  if (zu_val_scale_get_size(scale) != legend.classes.size()) throw std::bad_alloc();
  for (std::uint64_t i = 0; i < legend.classes.size(); ++i) {
    const legend_class& one = legend.classes[i];
    std::wstring text = one.text.value_or(L"");
    if (!one.text && (one.minimum || one.maximum))
      text = text_of([&](Tzu_string_adp* adapter) {
        zu_round_digits_format_number(zu_no_rounding, one.minimum ? *one.minimum : *one.maximum,
                                      adapter);
      });
    zu_val_scale_set_text_w(scale, i, text.c_str());
    zu_val_scale_set_caption_w(scale, i, one.caption.c_str());
    style_row(manager, zu_val_scale_get_scale_prm_ptr(scale, i), one);
  }
  style_other(manager, zu_val_scale_get_other_prm_ptr(scale), legend);
  if (legend.other) zu_val_scale_set_other_caption_w(scale, legend.other->caption.c_str());
}

/// Upper ends of all classes, rising.
std::vector<double> upper_ends(const arcview_legend& legend) {
  std::vector<double> ends;
  for (const legend_class& each : legend.classes)
    if (each.maximum) ends.push_back(*each.maximum);
  std::sort(ends.begin(), ends.end());
  return ends;
}

/// A class of ArcView holds both its ends, ours the upper one alone: it begins where the class
/// before ends if what lies between is but a step of rounding (1 between whole numbers, a
/// thousandth of all classes else), and just below its own lower end if not.
double lower_end(const std::vector<double>& ends, const legend_class& one, double range) {
  if (!one.minimum) return -HUGE_VAL;
  double low = *one.minimum;
  auto above = std::upper_bound(ends.begin(), ends.end(), low);
  if (above != ends.begin() && one.minimum != one.maximum) {
    double before = *std::prev(above);
    bool whole = std::floor(low) == low && std::floor(before) == before;
    if (low - before <= range * 1e-3 || (whole && low - before <= 1.0)) return before;
  }
  // Next to 0 there are numbers too small to be read.
  return low != 0.0 ? std::nextafter(low, -HUGE_VAL) : range * -1e-12;
}

void fill_ranges(Tzu_stl_mngr* manager, const arcview_legend& legend) {
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  if (!legend.field.empty()) zu_stl_mngr_set_rng_prop_name_w(manager, legend.field.c_str());
  zu_rng_scale_set_size(scale, 0);
  zu_rng_scale_set_size(scale, legend.classes.size());
  if (zu_rng_scale_get_size(scale) != legend.classes.size()) throw std::bad_alloc();
  double low = HUGE_VAL, high = -HUGE_VAL;
  for (const legend_class& one : legend.classes) {
    low = std::min(low, one.minimum.value_or(low));
    high = std::max(high, one.maximum.value_or(high));
  }
  double range = high > low ? high - low : 1.0;
  std::vector<double> ends = upper_ends(legend);
  for (std::uint64_t i = 0; i < legend.classes.size(); ++i) {
    const legend_class& one = legend.classes[i];
    zu_rng_scale_set_min(scale, i, lower_end(ends, one, range));
    zu_rng_scale_set_max(scale, i, one.maximum.value_or(HUGE_VAL));
    zu_rng_scale_set_caption_w(scale, i, one.caption.c_str());
    style_row(manager, zu_rng_scale_get_scale_prm_ptr(scale, i), one);
  }
  zu_rng_scale_set_rng_type(scale, zu_range_manual);
  zu_rng_scale_set_min_value(scale, std::isfinite(low) ? low : 0.0);
  zu_rng_scale_set_max_value(scale, std::isfinite(high) ? high : 0.0);
  zu_scale_prm_set_visible(zu_rng_scale_get_min_prm_ptr(scale), false);
  zu_scale_prm_set_visible(zu_rng_scale_get_max_prm_ptr(scale), false);
  style_other(manager, zu_rng_scale_get_other_prm_ptr(scale), legend);
  if (legend.other) zu_rng_scale_set_other_caption_w(scale, legend.other->caption.c_str());
}

void fill(Tzu_stl_mngr* manager, const arcview_legend& legend) {
  if (legend.form == arcview_legend::forms::values) {
    fill_values(manager, legend);
    zu_stl_mngr_set_mode(manager, zu_style_value);
  } else if (legend.form == arcview_legend::forms::ranges) {
    fill_ranges(manager, legend);
    zu_stl_mngr_set_mode(manager, zu_style_range);
  } else {
    for (const legend_class& one : legend.classes)
      if (one.symbol) {
        style(manager, zu_stl_mngr_get_simple_sp_ptr(manager), *one.symbol);
        break;
      }
    zu_stl_mngr_set_mode(manager, zu_style_simple);
  }
}

void execute(const Tgp_avl_to_stlmgr_params& params) {
  if (params.manager == nullptr) throw std::runtime_error("there is no manager to fill");
  arcview_legend legend = zu::platform::legend_in(zu::platform::odb_file(content_of(params.path)));
  zu::platform::owned<zu_stl_mngr_destroy> fresh(
      zu_stl_mngr_create(zu_stl_mngr_get_style_type(params.manager)));
  if (!fresh) throw std::bad_alloc();
  zu_stl_mngr_assign(fresh.get(), params.manager);
  fill(fresh.get(), legend);
  zu_stl_mngr_assign(params.manager, fresh.get());
}

}  // namespace

Tgp_env* gp_env_create() { return new (std::nothrow) Tgp_env; }
void gp_env_destroy(Tgp_env* environment) {
  if (current_environment() == environment) current_environment() = nullptr;
  delete environment;
}
Tgp_env_out* gp_env_out_create(void (*sink)(const wchar_t* text, void* user), void* user) {
  return new (std::nothrow) Tgp_env_out{sink, user};
}
void gp_env_out_set(Tgp_env* environment, Tgp_env_out* out) {
  std::unique_ptr<Tgp_env_out> held(out);
  if (environment != nullptr) environment->out = std::move(held);
}
Tgp_env* gp_env_main_get_env() { return current_environment(); }
void gp_env_main_set_env(Tgp_env* environment) { current_environment() = environment; }

Tgp_avl_to_stlmgr_params* gp_avl_to_stlmgr_params_create() {
  return new (std::nothrow) Tgp_avl_to_stlmgr_params;
}
void gp_avl_to_stlmgr_params_destroy(Tgp_avl_to_stlmgr_params* params) { delete params; }
void gp_avl_to_stlmgr_params_set_filename_w(Tgp_avl_to_stlmgr_params* params, const wchar_t* path) {
  guarded(params, [&](auto& p) { p.path = path != nullptr ? path : L""; });
}
void gp_avl_to_stlmgr_params_set_stl_mngr(Tgp_avl_to_stlmgr_params* params, Tzu_stl_mngr* manager) {
  if (params != nullptr) params->manager = manager;
}
int32_t gp_avl_to_stlmngr_execute(Tgp_avl_to_stlmgr_params* params) {
  constexpr int32_t failed = 1;
  return guarded(params, failed, [](const Tgp_avl_to_stlmgr_params& p) {
    try {
      execute(p);
      return 0;
    } catch (const std::bad_alloc&) {
      report(p.path + L": not enough memory");
    } catch (const std::runtime_error& problem) {
      report(p.path + L": " + from_utf8(problem.what()));
    }
    return failed;
  });
}
