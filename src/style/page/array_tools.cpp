#include "src/style/page/array_tools.h"

#include "src/bundle/strings.h"
#include "src/style/page/pixels.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::style::detail {
namespace {

constexpr array_entry gradients[] = {
    {L"zu_common_style_tool_white_gray_grad", 0, 14521},
    {L"zu_common_style_tool_white_red_grad", 2, 14522},
    {L"zu_common_style_tool_white_yellow_grad", 4, 14523},
    {L"zu_common_style_tool_white_green_grad", 3, 14524},
    {L"zu_common_style_tool_white_blue_grad", 1, 14525},
    {L"zu_common_style_tool_blue_white_red_grad", 5, 14526},
    {L"zu_common_style_tool_red_white_blue_grad", 6, 14527},
    {L"zu_common_style_tool_green_white_brown_grad", 7, 14528},
    {L"zu_common_style_tool_vinous_white_black_grad", 25, 14529},
    {L"zu_common_style_tool_fresh_grad", 15, 14530},
    {L"zu_common_style_tool_calm_grad", 21, 14531},
    {L"zu_common_style_tool_red_grad", 22, 14532},
    {L"zu_common_style_tool_orange_yellow_grad", 23, 14533},
    {L"zu_common_style_tool_green_grad", 14, 14534},
    {L"zu_common_style_tool_turquoise_grad", 20, 14535},
    {L"zu_common_style_tool_blue_grad", 13, 14536},
    {L"zu_common_style_tool_violet_grad", 24, 14537},
    {L"zu_common_style_tool_rainbow_grad", 8, 14538},
    {L"zu_common_style_tool_gentle_rainbow_grad", 9, 14539},
    {L"zu_common_style_tool_height_light_grad", 17, 14540},
    {L"zu_common_style_tool_height_dark_grad", 18, 14541},
    {L"zu_common_style_tool_height_depth_grad", 19, 14542},
    {L"zu_common_style_tool_height_depth_grad_2", 27, 14543},
};

constexpr array_entry palettes[] = {
    {L"zu_common_style_tool_mineral_palette", 16, 14544},
    {L"zu_common_style_tool_fresh_palette", 15, 14530},
    {L"zu_common_style_tool_calm_palette", 21, 14531},
    {L"zu_common_style_tool_red_palette", 22, 14532},
    {L"zu_common_style_tool_orange_yellow_palette", 23, 14533},
    {L"zu_common_style_tool_green_palette", 14, 14534},
    {L"zu_common_style_tool_turquoise_palette", 20, 14535},
    {L"zu_common_style_tool_blue_palette", 13, 14536},
    {L"zu_common_style_tool_violet_palette", 24, 14537},
    {L"zu_common_style_tool_rainbow_palette", 8, 14538},
    {L"zu_common_style_tool_gentle_rainbow_palette", 9, 14539},
};

/// Columns of the strip: colours taken in turn are bars that can be told apart.
std::vector<Tzu_color> columns(spread taken, std::uint32_t width) {
  constexpr std::uint32_t bars = 6;
  return std::vector<Tzu_color>(taken == spread::ramp ? width : bars);
}

template <class tool>
int query_both(tool& object, const char* name, const void** table, void** instance) {
  const int difference =
      object.plain_interface<typename tool::shown_as>::query_interface(name, table, instance);
  return difference == 0
             ? 0
             : object.plain_interface<tool_pictures_impl>::query_interface(name, table, instance);
}

}  // namespace

std::span<const array_entry> gradient_entries() { return gradients; }
std::span<const array_entry> palette_entries() { return palettes; }

array_tool::array_tool(const array_entry& entry, spread taken,
                       std::function<void(std::int32_t)> apply)
    : tool(entry.text), array_(entry.array), taken_(taken) {
  on_execute = [apply = std::move(apply), id = entry.array] { apply(id); };
}

int array_tool::query_interface(const char* name, const void** table, void** instance) {
  return query_both(*this, name, table, instance);
}

void array_tool::visit(std::int32_t, std::uint32_t width, std::uint32_t height,
                       bitmap_visitor visitor) {
  std::vector<Tzu_color> strip = columns(taken_, width);
  if (zu_clr_arrays_generate_ex(array_, strip.size(), strip.data(),
                                static_cast<std::int32_t>(taken_)))
    visit_strip(strip, width, height, visitor);
}

int palettes_dyn_tools::query_interface(const char* name, const void** table, void** instance) {
  return query_both(*this, name, table, instance);
}

std::uint32_t palettes_dyn_tools::count() {
  return static_cast<std::uint32_t>(zu_clr_palettes_get_size(zu_get_user_palettes()));
}

void palettes_dyn_tools::item_text(std::uint32_t index, string_visitor visitor) {
  if (index >= count()) return;
  zu::detail::visitor_string_adapter<string_visitor> adapter(visitor);
  std::unique_ptr<Tzu_string_adp, void (*)(Tzu_string_adp*)> ended(adapter.adapter,
                                                                   &zu_string_adp_destroy);
  zu_clr_palette_get_wcaption(zu_clr_palettes_get_ptr(zu_get_user_palettes(), index),
                              adapter.adapter);
}

void palettes_dyn_tools::execute(std::uint32_t index) {
  if (index < count() && apply_) apply_(index);
}

void palettes_dyn_tools::visit(std::int32_t item, std::uint32_t width, std::uint32_t height,
                               bitmap_visitor visitor) {
  if (item < 0 || static_cast<std::uint32_t>(item) >= count()) return;
  Tzu_clr_palette* palette =
      zu_clr_palettes_get_ptr(zu_get_user_palettes(), static_cast<std::uint64_t>(item));
  if (zu_clr_palette_get_size(palette) == 0) return;
  std::vector<Tzu_color> strip = columns(taken_, width);
  zu_clr_arrays_generate_palette_ex(palette, strip.size(), strip.data(),
                                    static_cast<std::int32_t>(taken_));
  visit_strip(strip, width, height, visitor);
}

}  // namespace zu::style::detail
