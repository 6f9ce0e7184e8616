// The settings of the two overlays.

#include <cmath>
#include <new>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/symbols.h"
#include "zu/platform/zuk_styles.h"

using zu::platform::guarded;

struct Tzu_hillshade_style {
  bool use = false;
  std::wstring field;
  double z_factor = 1.0;
  double altitude = 45.0, azimuth = 315.0;  // of the sun, degrees
  bool multidirectional = false;
  double part = 0.5;
};

struct Tzu_isoline_style {
  bool use = false;
  std::wstring field;
  double thin_step = 100.0, bold_step = 500.0;
  Tzu_pln_style thin = line_of_width(0.15), bold = line_of_width(0.35);

 private:
  static Tzu_pln_style line_of_width(double millimetres) {
    Tzu_pln_style line;
    line.line.width = millimetres;
    return line;
  }
};

namespace {

/// The style asked for, or a new one's values where there is none.
template <class style> const style& shown(const style* s) {
  static const style fresh;
  return s != nullptr ? *s : fresh;
}

bool is_step(double step) { return step > 0.0 && std::isfinite(step); }

/// The first multiple of `step` above `low`, in steps, and how many lie below `high`; 0 if there
/// are too many to draw or to tell apart.
int multiples_between(double step, double low, double high, double& first) {
  constexpr double most = 10000.0, farthest = 9007199254740992.0;  // 2^53: from there on k + 1 == k
  first = std::floor(low / step);
  double last = std::ceil(high / step);
  if (!(std::abs(first) < farthest && std::abs(last) < farthest)) return 0;
  // By the multiples themselves, which division may have placed on the other side.
  while (first * step <= low) first += 1.0;
  while (last * step >= high) last -= 1.0;
  double count = last - first + 1.0;
  return count >= 1.0 && count <= most ? static_cast<int>(count) : 0;
}

/// Within 1e-9 of a step, and what rounding may have done to so many steps.
bool is_multiple(double value, double step) {
  double steps = value / step;
  double tolerance = std::fmax(1e-9, 4e-16 * std::abs(steps));
  return std::abs(steps - std::round(steps)) <= tolerance;
}

}  // namespace

// --- Hillshade

Tzu_hillshade_style* zu_hillshade_style_create() { return new (std::nothrow) Tzu_hillshade_style; }
void zu_hillshade_style_destroy(Tzu_hillshade_style* style) { delete style; }
void zu_hillshade_style_assign(Tzu_hillshade_style* style, const Tzu_hillshade_style* from) {
  if (from != nullptr) guarded(style, [&](Tzu_hillshade_style& s) { s = *from; });
}
bool zu_hillshade_style_get_use(const Tzu_hillshade_style* style) { return shown(style).use; }
void zu_hillshade_style_set_use(Tzu_hillshade_style* style, bool value) {
  if (style != nullptr) style->use = value;
}
void zu_hillshade_style_get_propname(const Tzu_hillshade_style* style, Tzu_string_adp* adapter) {
  zu_string_adp_feed(adapter, shown(style).field.c_str());
}
void zu_hillshade_style_set_propname(Tzu_hillshade_style* style, const wchar_t* name) {
  guarded(style, [&](Tzu_hillshade_style& s) { s.field = name != nullptr ? name : L""; });
}
double zu_hillshade_style_get_z_coeff(const Tzu_hillshade_style* style) {
  return shown(style).z_factor;
}
void zu_hillshade_style_set_z_coeff(Tzu_hillshade_style* style, double value) {
  if (style != nullptr) style->z_factor = value;
}
double zu_hillshade_style_get_sun_slope_degree(const Tzu_hillshade_style* style) {
  return shown(style).altitude;
}
void zu_hillshade_style_set_sun_slope_degree(Tzu_hillshade_style* style, double value) {
  if (style != nullptr) style->altitude = value;
}
double zu_hillshade_style_get_sun_aspect_degree(const Tzu_hillshade_style* style) {
  return shown(style).azimuth;
}
void zu_hillshade_style_set_sun_aspect_degree(Tzu_hillshade_style* style, double value) {
  if (style != nullptr) style->azimuth = value;
}
bool zu_hillshade_style_get_multidir(const Tzu_hillshade_style* style) {
  return shown(style).multidirectional;
}
void zu_hillshade_style_set_multidir(Tzu_hillshade_style* style, bool value) {
  if (style != nullptr) style->multidirectional = value;
}
double zu_hillshade_style_get_part(const Tzu_hillshade_style* style) { return shown(style).part; }
void zu_hillshade_style_set_part(Tzu_hillshade_style* style, double value) {
  if (style != nullptr) style->part = value;
}

void zu_hillshade_style_get_params(const Tzu_hillshade_style* style, Tzu_hillshade_params* params) {
  const Tzu_hillshade_style& s = shown(style);
  zu_hillshade_params_set_z_factor(params, s.z_factor);
  zu_hillshade_params_set_sun(params, s.altitude, s.azimuth);
  zu_hillshade_params_set_multidirectional(params, s.multidirectional);
}

// --- Isolines

Tzu_isoline_style* zu_isoline_style_create() { return new (std::nothrow) Tzu_isoline_style; }
void zu_isoline_style_destroy(Tzu_isoline_style* style) { delete style; }
void zu_isoline_style_assign(Tzu_isoline_style* style, const Tzu_isoline_style* from) {
  if (from != nullptr) guarded(style, [&](Tzu_isoline_style& s) { s = *from; });
}
bool zu_isoline_style_get_use(const Tzu_isoline_style* style) { return shown(style).use; }
void zu_isoline_style_set_use(Tzu_isoline_style* style, bool value) {
  if (style != nullptr) style->use = value;
}
void zu_isoline_style_get_propname(const Tzu_isoline_style* style, Tzu_string_adp* adapter) {
  zu_string_adp_feed(adapter, shown(style).field.c_str());
}
void zu_isoline_style_set_propname(Tzu_isoline_style* style, const wchar_t* name) {
  guarded(style, [&](Tzu_isoline_style& s) { s.field = name != nullptr ? name : L""; });
}
double zu_isoline_style_get_thin_step(const Tzu_isoline_style* style) {
  return shown(style).thin_step;
}
void zu_isoline_style_set_thin_step(Tzu_isoline_style* style, double value) {
  if (style != nullptr) style->thin_step = value;
}
double zu_isoline_style_get_bold_step(const Tzu_isoline_style* style) {
  return shown(style).bold_step;
}
void zu_isoline_style_set_bold_step(Tzu_isoline_style* style, double value) {
  if (style != nullptr) style->bold_step = value;
}
void zu_isoline_style_get_thin_style(const Tzu_isoline_style* style, Tzu_pln_style* out) {
  zu_pln_style_assign(out, &shown(style).thin);
}
void zu_isoline_style_set_thin_style(Tzu_isoline_style* style, const Tzu_pln_style* line) {
  if (style != nullptr) zu_pln_style_assign(&style->thin, line);
}
void zu_isoline_style_get_bold_style(const Tzu_isoline_style* style, Tzu_pln_style* out) {
  zu_pln_style_assign(out, &shown(style).bold);
}
void zu_isoline_style_set_bold_style(Tzu_isoline_style* style, const Tzu_pln_style* line) {
  if (style != nullptr) zu_pln_style_assign(&style->bold, line);
}
bool zu_isoline_style_get_label(const Tzu_isoline_style* style) {
  return shown(style).bold.number_visible;
}
void zu_isoline_style_set_label(Tzu_isoline_style* style, bool value) {
  if (style != nullptr) style->bold.number_visible = value;
}

bool zu_isoline_style_get_levels(const Tzu_isoline_style* style, double minimum, double maximum,
                                 Tzu_dbls* levels, Tzu_bits* bold) {
  zu_dbls_clear(levels);
  zu_bits_clear(bold);
  const Tzu_isoline_style& s = shown(style);
  double first = 0.0;
  int count = is_step(s.thin_step) ? multiples_between(s.thin_step, minimum, maximum, first) : 0;
  for (int i = 0; i < count; ++i) {
    double level = (first + i) * s.thin_step;
    if (!zu_dbls_add(levels, level) ||
        !zu_bits_add(bold, is_step(s.bold_step) && is_multiple(level, s.bold_step))) {
      zu_dbls_clear(levels);
      zu_bits_clear(bold);
      return false;
    }
  }
  return count > 0;
}
