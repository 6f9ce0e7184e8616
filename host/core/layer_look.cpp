#include "host/core/layer_look.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "host/core/failure.h"
#include "host/core/scale_files.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_palettes.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu::host {
namespace {

constexpr char profile_type[] = "tos_grid_lr1d";
constexpr char slice_type[] = "tos_slice_lr2d";

/// Array 5 runs from blue through white to red.
constexpr std::int32_t default_colors = 5;

constexpr wchar_t unique_values_cut[] =
    L"the field has more than 1000 values; the others show as those that no value holds";

void paint(Tzu_scale_prm* row, Tzu_color color, bool visible) {
  zu_scale_prm_set_visible(row, visible);
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(row), color, 0);
}

void paint_other(Tzu_scale_prm* row, const layer_look& look) {
  paint(row, look.other.value_or(Tzu_color{128, 128, 128, 0}), look.other.has_value());
}

void spread_colors(const layer_look& look, std::vector<Tzu_color>& colors) {
  const std::int32_t array = look.gradient.value_or(default_colors);
  zu_clr_arrays_generate_ex(array, colors.size(), colors.data(), zu_clr_arrays_is_of_kinds(array));
}

std::size_t colored_field(const layer_look& look, const source& data) {
  return look.field.empty() ? data.default_field() : data.find(look.field).value();
}

/// Boundaries of equal intervals between the limits of the field.
std::vector<double> equal_intervals(const source& data, std::size_t field, std::size_t classes) {
  std::optional<Tzu_field_stat> stat = data.limits(field);
  double low = stat ? stat->minimum : 0.0, high = stat ? stat->maximum : 0.0;
  double step = (high - low) / static_cast<double>(classes);
  std::vector<double> breaks;
  for (std::size_t i = 0; i <= classes; ++i) breaks.push_back(low + static_cast<double>(i) * step);
  return breaks;
}

void set_breaks(const std::vector<double>& breaks, Tzu_rng_scale* scale) {
  zu_rng_scale_set_size(scale, breaks.size() - 1);
  zu_rng_scale_set_min_value(scale, breaks.front());
  zu_rng_scale_set_max_value(scale, breaks.back());
  for (std::size_t i = 0; i + 1 < breaks.size(); ++i) {
    zu_rng_scale_set_min(scale, i, breaks[i]);
    zu_rng_scale_set_max(scale, i, breaks[i + 1]);
  }
}

/// What the classes are called. Limits of many digits are left to the legend, which shows some.
void set_captions(Tzu_rng_scale* scale) {
  constexpr std::size_t most_digits = 9;
  bool all_short = true;
  auto number = [&](double value) {
    std::wstring text = text_of([&](Tzu_string_adp* a) {
      zu_round_digits_format_number(zu_rng_scale_get_round_digits(scale), value, a);
    });
    all_short = all_short && text.size() <= most_digits;
    return text;
  };
  const std::uint64_t size = zu_rng_scale_get_size(scale);
  for (std::uint64_t i = 0; i < size; ++i) number(zu_rng_scale_get_max(scale, i));
  constexpr std::int32_t below = 621, above = 622;  // texts of the platform
  const std::wstring lower = zu_res_get_wstr(below) + number(zu_rng_scale_get_min_value(scale));
  const std::wstring upper = zu_res_get_wstr(above) + number(zu_rng_scale_get_max_value(scale));
  if (!all_short) return;
  zu_rng_scale_set_min_caption_w(scale, lower.c_str());
  zu_rng_scale_set_max_caption_w(scale, upper.c_str());
  for (std::uint64_t i = 0; i < size; ++i) zu_rng_scale_set_default_caption(scale, i);
}

void set_range_scale(const layer_look& look, const source& data, std::size_t field,
                     Tzu_rng_scale* scale) {
  if (look.classes)
    build_classes(look.builder, *look.classes, data, field, scale);
  else if (!look.breaks.empty())
    set_breaks(look.breaks, scale);
  else
    set_breaks(equal_intervals(data, field, default_classes), scale), set_captions(scale);
  std::size_t classes = zu_rng_scale_get_size(scale);
  if (!look.colors.empty() && look.colors.size() != classes && look.colors.size() != classes + 2)
    throw failure(data.name(), "has " + std::to_string(classes) + " classes, which take as many " +
                                   "colours or two more; these are " +
                                   std::to_string(look.colors.size()));
  bool tails = look.colors.size() != classes;
  std::vector<Tzu_color> colors = look.colors;
  if (colors.empty()) {
    colors.resize(classes + 2);
    spread_colors(look, colors);
  } else if (!tails) {
    colors.insert(colors.begin(), colors.front());
    colors.push_back(colors.back());
  }
  paint(zu_rng_scale_get_min_prm_ptr(scale), colors.front(), tails);
  paint(zu_rng_scale_get_max_prm_ptr(scale), colors.back(), tails);
  for (std::size_t i = 0; i < classes; ++i) {
    paint(zu_rng_scale_get_scale_prm_ptr(scale, i), colors[i + 1], true);
  }
  paint_other(zu_rng_scale_get_other_prm_ptr(scale), look);
}

void set_value_scale(const layer_look& look, Tzu_val_scale* scale) {
  zu_val_scale_set_size(scale, look.values.size());
  for (std::size_t i = 0; i < look.values.size(); ++i) {
    zu_val_scale_set_text_w(scale, i, wide(look.values[i].first).c_str());
    paint(zu_val_scale_get_scale_prm_ptr(scale, i), look.values[i].second, true);
  }
  paint_other(zu_val_scale_get_other_prm_ptr(scale), look);
}

/// A row for each value of the field, coloured by an array.
void set_unique_values(const layer_look& look, const source& data, std::size_t field,
                       Tzu_val_scale* scale) {
  if (!fill_unique_values(look.builder, data, field, scale))
    zu_problems_add(wide(data.name()).c_str(), zu_problem_part, unique_values_cut);
  std::vector<Tzu_color> colors(zu_val_scale_get_size(scale));
  spread_colors(look, colors);
  for (std::size_t i = 0; i < colors.size(); ++i)
    paint(zu_val_scale_get_scale_prm_ptr(scale, i), colors[i], true);
  paint_other(zu_val_scale_get_other_prm_ptr(scale), look);
}

void set_table(const layer_look& look, const source& data, std::size_t field,
               Tzu_stl_mngr* manager) {
  std::wstring name = wide(data.fields().at(field).name);
  std::optional<Tzu_field_stat> stat;
  if (look.table->has_shares()) stat = data.limits(field);
  apply_color_table(*look.table,
                    stat ? std::pair(stat->minimum, stat->maximum) : std::pair(0.0, 0.0), manager);
  bool by_values = zu_stl_mngr_get_mode(manager) == zu_style_value;
  (by_values ? zu_stl_mngr_set_val_prop_name_w : zu_stl_mngr_set_rng_prop_name_w)(manager,
                                                                                  name.c_str());
  if (look.other)
    paint(by_values ? zu_val_scale_get_other_prm_ptr(zu_stl_mngr_get_val_scale_ptr(manager))
                    : zu_rng_scale_get_other_prm_ptr(zu_stl_mngr_get_rng_scale_ptr(manager)),
          *look.other, true);
}

std::string field_in_use(const Tzu_stl_mngr* manager) {
  return narrow(
      text_of([&](Tzu_string_adp* adapter) { zu_stl_mngr_get_prop_name_w(manager, adapter); }));
}

/// The scale of a file colours the field that is asked for, else its own if the source has that.
void set_scale_of_file(const layer_look& look, const source& data, Tzu_stl_mngr* manager) {
  load_scale(look.scale_file, manager);
  if (look.field.empty() && data.find(field_in_use(manager))) return;
  std::wstring name = wide(data.fields().at(colored_field(look, data)).name);
  zu_stl_mngr_set_val_prop_name_w(manager, name.c_str());
  zu_stl_mngr_set_rng_prop_name_w(manager, name.c_str());
}

void set_style(const layer_look& look, const source& data, Tzu_stl_mngr* manager) {
  if (!look.scale_file.empty()) return set_scale_of_file(look, data, manager);
  if (look.simple) {
    zu_stl_mngr_set_mode(manager, zu_style_simple);
    Tzu_stl_prm* simple = zu_stl_mngr_get_simple_sp_ptr(manager);
    zu_stl_prm_clr_set_all(simple, *look.simple, 0);
    zu_bpln_style_set_color(
        zu_pln_style_get_bpln_style_ptr(zu_stl_prm_get_pln_style_ptr(simple, 0)), *look.simple);
    return;
  }
  std::size_t field = colored_field(look, data);
  if (look.table) return set_table(look, data, field, manager);
  std::wstring name = wide(data.fields().at(field).name);
  if (!look.values.empty() || look.unique_values) {
    zu_stl_mngr_set_mode(manager, zu_style_value);
    zu_stl_mngr_set_val_prop_name_w(manager, name.c_str());
    Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
    if (look.unique_values)
      set_unique_values(look, data, field, scale);
    else
      set_value_scale(look, scale);
  } else {
    zu_stl_mngr_set_mode(manager, zu_style_range);
    zu_stl_mngr_set_rng_prop_name_w(manager, name.c_str());
    set_range_scale(look, data, field, zu_stl_mngr_get_rng_scale_ptr(manager));
  }
}

void set_channel(Tzu_clr_channel* channel, const layer_look& look, const source& data,
                 std::size_t field) {
  zu_clr_channel_set_prop_name_w(channel, wide(data.fields().at(field).name).c_str());
  if (look.limits) {
    zu_clr_channel_set_limits(channel, look.limits->first, look.limits->second);
  } else if (std::optional<Tzu_field_stat> stat = data.limits(field)) {
    zu_clr_channel_set_limits(channel, stat->minimum, stat->maximum);
  }
}

/// The first channels that a person finds who goes over to them: red, green and blue are the bands
/// of these roles, else the first three, gray that of its role, else the first. The limits of bytes
/// are those of a new channel; others are so wide that the panel cuts them to the data when it has
/// read them, which is not done here.
void set_first_channels(const source& data, Tzu_rgb_channels* channels) {
  constexpr double widest = std::numeric_limits<float>::max();
  std::vector<const field*> bands;
  for (const field& f : data.fields())
    if (f.role != role_alpha) bands.push_back(&f);
  if (bands.empty()) return;
  struct wish {
    band_role role;
    std::size_t band;  // without one of that role
    Tzu_clr_channel* channel;
  };
  for (const wish& of : {wish{role_red, 0, zu_rgb_channels_get_red(channels)},
                         wish{role_green, 1, zu_rgb_channels_get_green(channels)},
                         wish{role_blue, 2, zu_rgb_channels_get_blue(channels)},
                         wish{role_gray, 0, zu_rgb_channels_get_gray(channels)}}) {
    auto own = std::find_if(bands.begin(), bands.end(),
                            [&](const field* f) { return f->role == of.role; });
    const field& shown = own != bands.end() ? **own : *bands[std::min(of.band, bands.size() - 1)];
    zu_clr_channel_set_prop_name_w(of.channel, wide(shown.name).c_str());
    if (shown.info.type != element_uint8) zu_clr_channel_set_limits(of.channel, -widest, widest);
  }
}

void set_channels(draw_type draw, const layer_look& look, const source& data,
                  Tzu_rgb_channels* channels) {
  if (draw == draw_type::image || draw == draw_type::scale) set_first_channels(data, channels);
  if (draw == draw_type::gray)
    set_channel(zu_rgb_channels_get_gray(channels), look, data, colored_field(look, data));
  if (draw != draw_type::rgb) return;
  Tzu_clr_channel* three[] = {zu_rgb_channels_get_red(channels),
                              zu_rgb_channels_get_green(channels),
                              zu_rgb_channels_get_blue(channels)};
  for (std::size_t i = 0; i < 3; ++i)
    set_channel(
        three[i], look, data,
        look.rgb.empty() ? std::min(i, data.fields().size() - 1) : data.find(look.rgb[i]).value());
}

/// As the layer itself decides it: every band is a byte with a colour role.
bool makes_image(const source& data) {
  return std::all_of(data.fields().begin(), data.fields().end(), [](const field& f) {
    return f.role != role_none && f.info.type == element_uint8;
  });
}

draw_type drawn_as(const layer_look& look, draw_type own) {
  if (look.draw) return *look.draw;
  if (!look.rgb.empty()) return draw_type::rgb;
  return look.styles_a_scale() ? draw_type::scale : own;
}

/// Fields that something besides colours is made of; empty names stand for the coloured one.
std::vector<std::string> overlay_fields(const layer_look& look) {
  std::vector<std::string> fields;
  if (look.hillshade) fields.push_back(look.hillshade->field);
  if (look.isolines) fields.push_back(look.isolines->field);
  return fields;
}

std::size_t overlay_field(const std::string& named, const layer_look& look, const source& data) {
  return named.empty() ? colored_field(look, data) : data.find(named).value();
}

void set_hillshade(const layer_look& look, const source& data, Tzu_hillshade_style* style) {
  zu_hillshade_style_set_use(style, look.hillshade.has_value());
  if (!look.hillshade) return;
  const hillshade_look& shade = *look.hillshade;
  const field& of = data.fields().at(overlay_field(shade.field, look, data));
  zu_hillshade_style_set_propname(style, wide(of.name).c_str());
  zu_hillshade_style_set_z_coeff(style, shade.z_factor);
  zu_hillshade_style_set_sun_slope_degree(style, shade.altitude);
  zu_hillshade_style_set_sun_aspect_degree(style, shade.azimuth);
  zu_hillshade_style_set_multidir(style, shade.multidirectional);
  zu_hillshade_style_set_part(style, shade.part);
}

/// 1, 2 or 5 times a power of ten, so that it goes into the range some 20 times.
double even_step(double range) {
  double wanted = range / 20, power = std::pow(10.0, std::floor(std::log10(wanted)));
  for (double times : {1.0, 2.0, 5.0})
    if (power * times >= wanted) return power * times;
  return power * 10;
}

/// Thin and bold step: bold is five times thin.
std::pair<double, double> isoline_steps(const isoline_look& lines, const source& data,
                                        std::size_t field) {
  if (lines.thin) return {*lines.thin, lines.bold.value_or(*lines.thin * 5)};
  if (lines.bold) return {*lines.bold / 5, *lines.bold};
  std::optional<Tzu_field_stat> stat = data.limits(field);
  double range = stat ? stat->maximum - stat->minimum : 0.0;
  bool suits = range >= default_thin_step && range <= default_thin_step * 300;
  if (suits || !(range > 0.0) || !std::isfinite(range))
    return {default_thin_step, default_bold_step};
  double step = even_step(range);
  return {step, step * 5};
}

void set_isolines(const layer_look& look, const source& data, Tzu_isoline_style* style) {
  zu_isoline_style_set_use(style, look.isolines.has_value());
  if (!look.isolines) return;
  std::size_t field = overlay_field(look.isolines->field, look, data);
  zu_isoline_style_set_propname(style, wide(data.fields().at(field).name).c_str());
  auto [thin, bold] = isoline_steps(*look.isolines, data, field);
  zu_isoline_style_set_thin_step(style, thin);
  zu_isoline_style_set_bold_step(style, bold);
  zu_isoline_style_set_label(style, look.isolines->label);
}

/// Why the fields that a look names are not those of a source.
std::string why_not_of_fields(const layer_look& look, const source& data) {
  std::vector<std::string> wanted = look.rgb;
  if (!look.field.empty()) wanted.push_back(look.field);
  bool colors_a_field =
      drawn_as(look, makes_image(data) ? draw_type::image : draw_type::scale) != draw_type::image &&
      look.draw != draw_type::rgb && look.rgb.empty();
  for (const std::string& name : overlay_fields(look)) {
    if (!name.empty())
      wanted.push_back(name);
    else if (!colors_a_field)
      return "colours no field; name that of the hillshade or the isolines: field=NAME";
  }
  for (const std::string& name : wanted) {
    if (data.find(name)) continue;
    std::string reason = "has no field \"" + name + "\"; its fields are: ";
    for (const field& f : data.fields()) {
      if (&f != &data.fields().front()) reason += ", ";
      reason += f.name;
    }
    return reason;
  }
  return {};
}

}  // namespace

std::string why_not(const layer_look& look, const layer& dressed) {
  const source& data = dressed.data();
  if (data.fields().empty()) return "has no fields";
  if (dressed.type() == profile_type) {
    bool plain = look.colors_nothing_but_lines();
    return plain ? "" : "is a profile, drawn as curves: of the styles it takes --simple alone";
  }
  if (look.draw == draw_type::image && !makes_image(data)) return "its bands make no image";
  if (look.slice) {
    std::int32_t sizes[3] = {0, 0, 1};
    call<&grid_source_impl::sizes>(data.grid(), sizes);
    if (dressed.type() != slice_type) return "has no slices";
    if (*look.slice < 0 || *look.slice >= sizes[2])
      return "has slices 0 to " + std::to_string(sizes[2] - 1);
  }
  return why_not_of_fields(look, data);
}

void apply_look(const layer_look& look, layer& dressed) {
  const source& data = dressed.data();
  if (std::string reason = why_not(look, dressed); !reason.empty())
    throw failure(data.name(), reason);
  if (dressed.type() == profile_type) {
    if (look.simple) set_style(look, data, dressed.style_manager());
    return;
  }
  draw_settings settings = dressed.settings();
  settings.draw = drawn_as(look, settings.draw);
  settings.transparency = look.transparency;
  settings.interpolate = look.interpolate;
  settings.channels.reset(zu_rgb_channels_create());
  set_channels(settings.draw, look, data, settings.channels.get());
  dressed.set_settings(settings);
  if (look.slice) zu_tos_slice_lr2d_set_zslice(dressed.entity(), *look.slice);
  Tzu_stl_mngr* styles = dressed.style_manager();
  bool has_scale = styles != nullptr && zu_stl_mngr_get_mode(styles) != zu_style_simple;
  if (settings.draw == draw_type::scale && styles != nullptr &&
      (look.styles_a_scale() || !has_scale))
    set_style(look, data, styles);
  if (Tzu_hillshade_style* style = dressed.hillshade_style()) set_hillshade(look, data, style);
  if (Tzu_isoline_style* style = dressed.isoline_style()) set_isolines(look, data, style);
}

void load_colors(const std::string& file, layer& dressed) {
  Tzu_stl_mngr* styles = dressed.style_manager();
  const source& data = dressed.data();
  if (styles == nullptr || data.fields().empty())
    throw failure(dressed.source_name(), "is not coloured by a scale");
  layer_look look;
  if (is_scale_file(file))
    look.scale_file = file;
  else
    look.table = read_color_table(file);
  if (std::string field = field_in_use(styles); look.table && data.find(field)) look.field = field;
  set_style(look, data, styles);
  if (dressed.type() == profile_type) return;
  draw_settings settings = dressed.settings();
  settings.draw = draw_type::scale;
  dressed.set_settings(settings);
}

void save_colors(const std::string& file, const layer& dressed) {
  Tzu_stl_mngr* styles = dressed.style_manager();
  if (styles == nullptr || zu_stl_mngr_get_mode(styles) == zu_style_simple)
    throw failure(dressed.source_name(), "is not coloured by a scale");
  if (is_scale_file(file)) return save_scale(file, styles);
  if (zu_stl_mngr_get_mode(styles) != zu_style_range)
    throw failure(file, "a colour table holds classes; single values go into a \"._vl\" file");
  write_color_table(file, zu_stl_mngr_get_rng_scale_ptr(styles));
}

void dress(scene& dressed, const layer_look& look) {
  layer_look plain;
  plain.transparency = look.transparency;
  std::string refusal;
  bool taken = false;
  for (const auto& each : dressed.layers()) {
    std::string reason = why_not(look, *each);
    taken = taken || reason.empty();
    if (refusal.empty() && !reason.empty()) refusal = each->data().name() + ": " + reason;
    apply_look(reason.empty() ? look : plain, *each);
  }
  if (!taken) throw failure(refusal);
}

}  // namespace zu::host
