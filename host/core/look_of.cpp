#include "host/core/look_of.h"

#include <charconv>
#include <cmath>

#include "host/core/numbers.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu::host {
namespace {

std::string name_from(void (*get)(const Tzu_stl_mngr*, Tzu_string_adp*), const Tzu_stl_mngr* from) {
  return narrow(text_of([&](Tzu_string_adp* a) { get(from, a); }));
}

/// One that shows nothing stands for a row that is hidden.
Tzu_color color_of(Tzu_scale_prm* row) {
  Tzu_color color = *zu_stl_prm_get_clr_style_ptr(zu_scale_prm_get_stl_prm_ptr(row), 0);
  if (!zu_scale_prm_get_visible(row)) color.a = 255;
  return color;
}

void read_other(Tzu_scale_prm* row, layer_look& look) {
  if (zu_scale_prm_get_visible(row)) look.other = color_of(row);
}

bool read_ranges(Tzu_rng_scale* scale, layer_look& look) {
  std::uint64_t count = zu_rng_scale_get_size(scale);
  if (count == 0) return false;
  look.breaks = {zu_rng_scale_get_min(scale, 0)};
  Tzu_scale_prm *lower = zu_rng_scale_get_min_prm_ptr(scale),
                *upper = zu_rng_scale_get_max_prm_ptr(scale);
  look.colors = {color_of(lower)};
  for (std::uint64_t i = 0; i < count; ++i) {
    if (zu_rng_scale_get_min(scale, i) != look.breaks.back()) return false;
    double limit = zu_rng_scale_get_max(scale, i);
    if (!(limit > look.breaks.back())) return false;
    look.breaks.push_back(limit);
    look.colors.push_back(color_of(zu_rng_scale_get_scale_prm_ptr(scale, i)));
  }
  look.colors.push_back(color_of(upper));
  bool lower_hidden = !zu_scale_prm_get_visible(lower);
  bool upper_hidden = !zu_scale_prm_get_visible(upper);
  if (lower_hidden && upper_hidden) look.colors = {look.colors.begin() + 1, look.colors.end() - 1};
  read_other(zu_rng_scale_get_other_prm_ptr(scale), look);
  return (lower_hidden || zu_rng_scale_get_min_value(scale) == look.breaks.front()) &&
         (upper_hidden || zu_rng_scale_get_max_value(scale) == look.breaks.back());
}

bool is_number(const std::string& text) {
  double value = 0;
  auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  return read.ec == std::errc() && read.ptr == text.data() + text.size() && std::isfinite(value);
}

bool read_values(Tzu_val_scale* scale, layer_look& look) {
  for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i) {
    std::string text =
        narrow(text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, i, a); }));
    if (!is_number(text)) return false;
    look.values.emplace_back(text, color_of(zu_val_scale_get_scale_prm_ptr(scale, i)));
  }
  read_other(zu_val_scale_get_other_prm_ptr(scale), look);
  return !look.values.empty();
}

bool read_scale(Tzu_stl_mngr* manager, layer_look& look) {
  switch (zu_stl_mngr_get_mode(manager)) {
    case zu_style_range:
      look.field = name_from(&zu_stl_mngr_get_rng_prop_name_w, manager);
      return read_ranges(zu_stl_mngr_get_rng_scale_ptr(manager), look);
    case zu_style_value:
      look.field = name_from(&zu_stl_mngr_get_val_prop_name_w, manager);
      return read_values(zu_stl_mngr_get_val_scale_ptr(manager), look);
    default:
      look.simple = *zu_stl_prm_get_clr_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager), 0);
      return true;
  }
}

std::string field_of(const Tzu_clr_channel* channel) {
  return narrow(text_of([&](Tzu_string_adp* a) { zu_clr_channel_get_prop_name_w(channel, a); }));
}

bool read_channels(draw_type draw, Tzu_rgb_channels* channels, layer_look& look) {
  std::vector<const Tzu_clr_channel*> all = {zu_rgb_channels_get_gray(channels)};
  if (draw == draw_type::rgb)
    all = {zu_rgb_channels_get_red(channels), zu_rgb_channels_get_green(channels),
           zu_rgb_channels_get_blue(channels)};
  look.limits = {zu_clr_channel_get_minimum(all[0]), zu_clr_channel_get_maximum(all[0])};
  for (const Tzu_clr_channel* each : all) {
    if (draw == draw_type::rgb) look.rgb.push_back(field_of(each));
    if (zu_clr_channel_get_minimum(each) != look.limits->first ||
        zu_clr_channel_get_maximum(each) != look.limits->second)
      return false;
  }
  if (draw == draw_type::gray) look.field = field_of(all[0]);
  return look.limits->first < look.limits->second;
}

void read_overlays(const layer& shown, layer_look& look) {
  const Tzu_hillshade_style* shade = shown.hillshade_style();
  if (shade != nullptr && zu_hillshade_style_get_use(shade)) {
    hillshade_look& read = look.hillshade.emplace();
    read.field =
        narrow(text_of([&](Tzu_string_adp* a) { zu_hillshade_style_get_propname(shade, a); }));
    read.z_factor = zu_hillshade_style_get_z_coeff(shade);
    read.altitude = zu_hillshade_style_get_sun_slope_degree(shade);
    read.azimuth = zu_hillshade_style_get_sun_aspect_degree(shade);
    read.part = zu_hillshade_style_get_part(shade);
    read.multidirectional = zu_hillshade_style_get_multidir(shade);
  }
  const Tzu_isoline_style* lines = shown.isoline_style();
  if (lines != nullptr && zu_isoline_style_get_use(lines)) {
    isoline_look& read = look.isolines.emplace();
    read.field =
        narrow(text_of([&](Tzu_string_adp* a) { zu_isoline_style_get_propname(lines, a); }));
    read.thin = zu_isoline_style_get_thin_step(lines);
    read.bold = zu_isoline_style_get_bold_step(lines);
    read.label = zu_isoline_style_get_label(lines);
  }
}

/// Option and value, in one word where the value could be taken for an option.
void add(std::vector<std::string>& options, const std::string& option, const std::string& value) {
  if (value.front() == '-') return options.push_back(option + "=" + value);
  options.push_back(option);
  options.push_back(value);
}

std::string list_of(const std::vector<std::string>& parts) {
  std::string all;
  for (const std::string& each : parts) all += (all.empty() ? "" : ",") + each;
  return all;
}

void add_scale(const layer_look& look, std::vector<std::string>& options) {
  std::vector<std::string> parts;
  for (double each : look.breaks) parts.push_back(text_of_number(each));
  if (!parts.empty()) add(options, "--breaks", list_of(parts));
  parts.clear();
  for (Tzu_color each : look.colors) parts.push_back(text_of_color(each));
  if (!parts.empty()) add(options, "--colors", list_of(parts));
  parts.clear();
  for (const auto& [value, color] : look.values)
    parts.push_back(value + "=" + text_of_color(color));
  if (!parts.empty()) add(options, "--values", list_of(parts));
  if (look.simple) add(options, "--simple", text_of_color(*look.simple));
  if (look.other) add(options, "--other", text_of_color(*look.other));
}

void add_overlays(const layer_look& look, std::vector<std::string>& options) {
  if (const auto& shade = look.hillshade) {
    std::vector<std::string> parts = {
        "z=" + text_of_number(shade->z_factor), "altitude=" + text_of_number(shade->altitude),
        "azimuth=" + text_of_number(shade->azimuth), "part=" + text_of_number(shade->part)};
    if (!shade->field.empty()) parts.push_back("field=" + shade->field);
    if (shade->multidirectional) parts.emplace_back("multidirectional");
    add(options, "--hillshade", list_of(parts));
  }
  if (const auto& lines = look.isolines) {
    std::vector<std::string> parts;
    if (lines->thin) parts.push_back("thin=" + text_of_number(*lines->thin));
    if (lines->bold) parts.push_back("bold=" + text_of_number(*lines->bold));
    if (!lines->field.empty()) parts.push_back("field=" + lines->field);
    if (lines->label) parts.emplace_back("label");
    add(options, "--isolines", parts.empty() ? "default" : list_of(parts));
  }
}

bool can_be_listed(const std::string& name) {
  return name.find(',') == std::string::npos &&
         (name.empty() || (name.front() != ' ' && name.back() != ' '));
}

}  // namespace

std::string text_of_color(Tzu_color color) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text = "#";
  auto opacity = static_cast<std::uint8_t>(255 - color.a);
  for (std::uint8_t byte : {color.r, color.g, color.b, opacity})
    text += {digits[byte >> 4], digits[byte & 15]};
  return opacity == 255 ? text.substr(0, 7) : text;
}

std::optional<layer_look> look_of(const layer& shown) {
  layer_look look;
  draw_settings settings = shown.settings();
  look.transparency = settings.transparency;
  look.interpolate = settings.interpolate;
  bool read = true;
  if (settings.draw == draw_type::scale)
    read = shown.style_manager() == nullptr || read_scale(shown.style_manager(), look);
  else
    look.draw = settings.draw;
  if (settings.draw == draw_type::gray || settings.draw == draw_type::rgb)
    read = read_channels(settings.draw, settings.channels.get(), look);
  read_overlays(shown, look);
  if (shown.type() == "tos_slice_lr2d") look.slice = zu_tos_slice_lr2d_get_zslice(shown.entity());
  return read ? std::optional(look) : std::nullopt;
}

std::optional<std::vector<std::string>> options_of(const layer_look& look) {
  static constexpr const char* draws[] = {"scale", "image", "gray", "rgb"};
  std::vector<std::string> listed = look.rgb;
  if (look.hillshade) listed.push_back(look.hillshade->field);
  if (look.isolines) listed.push_back(look.isolines->field);
  for (const std::string& name : listed)
    if (!can_be_listed(name)) return {};
  std::vector<std::string> options;
  if (look.draw) add(options, "--draw", draws[static_cast<int>(*look.draw)]);
  if (!look.field.empty()) add(options, "--field", look.field);
  if (!look.rgb.empty()) add(options, "--rgb", list_of(look.rgb));
  if (look.limits)
    add(options, "--limits",
        text_of_number(look.limits->first) + "," + text_of_number(look.limits->second));
  add_scale(look, options);
  if (look.interpolate) options.emplace_back("--interpolate");
  if (look.transparency != 0) add(options, "--transparency", std::to_string(look.transparency));
  add_overlays(look, options);
  if (look.slice) add(options, "--slice", std::to_string(*look.slice));
  return options;
}

}  // namespace zu::host
