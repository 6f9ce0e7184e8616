#include "platform/zuk_styles/color_arrays.h"

#include <cstring>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::platform {
namespace {

using stops = std::initializer_list<std::uint32_t>;  // 0xrrggbb

struct described {
  const char* name;
  stops colors;
  ramp_form form;
  bool of_kinds = false;
};

/// By number. The tones and the arrays of several hues were laid out in OKLab, with lightness in
/// equal steps where they run one way, and the colours rounded to bytes.
const described table[] = {
    // From white to the named colour, for quantities that begin at nothing.
    {"white_gray", {0xffffff, 0x404040}, ramp_form::even},
    {"white_blue", {0xffffff, 0x0000ff}, ramp_form::even},
    {"white_red", {0xffffff, 0xff0000}, ramp_form::even},
    {"white_green", {0xffffff, 0x008000}, ramp_form::even},
    {"white_yellow", {0xffffff, 0xffff00}, ramp_form::even},
    // Below and above a middle. These two are what a grid without a style of its own has been
    // drawn with from the beginning, and stay so to the byte.
    {"blue_white_red", {0x0000ff, 0xffffff, 0xff0000}, ramp_form::bytes},
    {"red_white_blue", {0xff0000, 0xffffff, 0x0000ff}, ramp_form::bytes},
    // Both ends are equally dark, so that neither side weighs more.
    {"green_white_brown", {0x0e6106, 0x77b870, 0xffffff, 0xcf976a, 0x7a3c14}, ramp_form::halves},
    // Hues in the order of the spectrum, lightest at yellow; blue and red are left dark enough to
    // be told from the cyan and yellow beside them.
    {"rainbow",
     {0x0d31e2, 0x0889c8, 0x09c2ca, 0x59de65, 0xebe61b, 0xfa8f19, 0xea2221},
     ramp_form::even},
    // The same way at under half the chroma: ink and lines stay legible above it.
    {"gentle_rainbow",
     {0x7581c2, 0x5aa8d4, 0x5bc8c8, 0x98daa5, 0xe7da8b, 0xeeae7b, 0xd6857f},
     ramp_form::even},
    // All hues at one lightness, and round to the first again: for directions and other values that
    // turn round.
    {"hue_circle",
     {0xed8b8b, 0xdf9a53, 0xafb151, 0x66c189, 0x24c1c9, 0x65b2f1, 0xaa9df1, 0xd98dc9},
     ramp_form::ring},
    // Dark to light through cool hues, then through hot ones: they rise in lightness alone as much
    // as in hue, and are read without telling red from green.
    {"tidal",
     {0x19123d, 0x1b3370, 0x006086, 0x048b91, 0x46b68c, 0xa4d76a, 0xfcf47e},
     ramp_form::even},
    {"ember",
     {0x0f051d, 0x3b0d53, 0x860257, 0xc52b30, 0xe56f17, 0xf2af48, 0xf9f0ba},
     ramp_form::even},
    // Tones of one hue, light to dark, most colourful between.
    {"blue",
     {0xebf7ff, 0xa2d8fe, 0x58b5fe, 0x1b8eec, 0x1669c3, 0x1c478f, 0x1b2b54},
     ramp_form::even},
    {"green",
     {0xe7ffd0, 0xafe38b, 0x7bc358, 0x49a234, 0x1b801f, 0x015b1c, 0x063818},
     ramp_form::even},
    // Lemon through leaf to water, the yellows light and the blues dark.
    {"fresh",
     {0xf8fbbc, 0xdff57b, 0xa7e954, 0x53d277, 0x10a995, 0x067f94, 0x135298},
     ramp_form::even},
    // Kinds rather than amounts: light and dark, warm and cool by turns, so that neighbours differ.
    {"mineral",
     {0x1f8a5b, 0xf0dd5a, 0xb5352a, 0x8fd3cf, 0x6b4396, 0xe39a2d, 0x2a5caa, 0xeeb9c0, 0x5b6e3a,
      0xd6cf9a, 0x7a4a25, 0x3fb6b0, 0x4d4f57},
     ramp_form::spread,
     true},
    // Land from the plain to the snow: green, yellow, brown, then the pale of ice.
    {"height_light",
     {0x8fc48a, 0xbfdc9a, 0xeef0b5, 0xf3d9a0, 0xdfb887, 0xc49a7a, 0xd8c6bd, 0xf7f4f2},
     ramp_form::even},
    {"height_dark",
     {0x0d4f36, 0x2f7a43, 0x86a04a, 0xd3bc62, 0xb98543, 0x8a5630, 0x6e4a3d, 0xa49893, 0xf5f3f1},
     ramp_form::even},
    // Water below the middle, deepest darkest, and land above: the shore is a break, not a mixture.
    {"height_depth",
     {0x1d3f7c, 0x2f5f9f, 0x4b82bf, 0x6fa6d6, 0xa9d2ec, 0xdff1f8, 0x8fc48a, 0xeef0b5, 0xf3d9a0,
      0xc49a7a, 0xd8c6bd, 0xf7f4f2},
     ramp_form::broken},
    {"turquoise",
     {0xd6fffb, 0x8de2de, 0x4ec1bf, 0x049f9f, 0x07797b, 0x035658, 0x033538},
     ramp_form::even},
    // Muted: sand, moss, slate and plum, with little chroma beside the lightness.
    {"calm",
     {0xfaf4e4, 0xdfd9b3, 0xaac8a3, 0x77aea3, 0x598c9c, 0x50638c, 0x4f3562},
     ramp_form::even},
    {"red",
     {0xfff1f1, 0xffbdbb, 0xff8181, 0xeb474f, 0xbe2531, 0x8a161e, 0x521615},
     ramp_form::even},
    {"orange_yellow",
     {0xfcf9bd, 0xefd46c, 0xe3ac0f, 0xc98803, 0xac6706, 0x8e4701, 0x63341d},
     ramp_form::even},
    {"violet",
     {0xfaf1ff, 0xe5bfff, 0xcb8cfe, 0xa862ea, 0x7f45c2, 0x573090, 0x322255},
     ramp_form::even},
    // Amplitudes of sections: troughs in wine, peaks in ink. Each half is even for itself.
    {"vinous_white_black", {0x800020, 0xffffff, 0x000000}, ramp_form::halves},
    // Equally dark ends of hues that no common kind of colour vision takes for one another.
    {"violet_white_orange", {0x4d2090, 0x9882d4, 0xffffff, 0xca7e31, 0x673200}, ramp_form::halves},
    // As "height_depth", for dark grounds and printed sheets: an ocean and its mountains.
    {"height_depth_2",
     {0x071c3f, 0x0b3a75, 0x1566a8, 0x2f86c2, 0x55aedb, 0x9fdcf0, 0x14683c, 0x6da047, 0xd9c868,
      0xc48a45, 0x8a5230, 0xffffff},
     ramp_form::broken},
};

color_array made(const described& from) {
  std::vector<Tzu_color> colors;
  for (std::uint32_t c : from.colors)
    colors.push_back({static_cast<std::uint8_t>(c >> 16), static_cast<std::uint8_t>(c >> 8),
                      static_cast<std::uint8_t>(c), 0});
  color_ramp ramp(colors, from.form);
  return {from.name, std::move(colors), std::move(ramp), from.of_kinds};
}

}  // namespace

std::span<const color_array> color_arrays() {
  static const std::vector<color_array> all = [] {
    std::vector<color_array> arrays;
    for (const described& each : table) arrays.push_back(made(each));
    return arrays;
  }();
  return all;
}

const color_array* find_color_array(std::int32_t id) {
  std::span<const color_array> all = color_arrays();
  bool is_there = id >= 0 && static_cast<std::size_t>(id) < all.size();
  return is_there ? &all[static_cast<std::size_t>(id)] : nullptr;
}

}  // namespace zu::platform

using zu::platform::color_array;
using zu::platform::guarded;

bool zu_clr_arrays_generate_ex(int32_t id, uint64_t count, Tzu_color* colors, int32_t flag) {
  return guarded(colors, false, [&](Tzu_color& first) {
    const color_array* array = zu::platform::find_color_array(id);
    if (array == nullptr) return false;
    flag == 0 ? spread(array->ramp, count, &first)
              : zu::platform::repeat(array->colors, count, &first);
    return true;
  });
}
int32_t zu_clr_arrays_get_count() {
  return static_cast<int32_t>(zu::platform::color_arrays().size());
}
const char* zu_clr_arrays_get_name(int32_t id) {
  const color_array* array = zu::platform::find_color_array(id);
  return array != nullptr ? array->name : nullptr;
}
bool zu_clr_arrays_is_of_kinds(int32_t id) {
  const color_array* array = zu::platform::find_color_array(id);
  return array != nullptr && array->of_kinds;
}
int32_t zu_clr_arrays_find(const char* name) {
  for (int32_t id = 0; name != nullptr && id < zu_clr_arrays_get_count(); ++id)
    if (std::strcmp(zu_clr_arrays_get_name(id), name) == 0) return id;
  return -1;
}
