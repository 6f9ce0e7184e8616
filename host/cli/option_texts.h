#pragma once
// The texts of options: numbers, lists, colours. Each throws `usage_error`, naming the option.
// Numbers have a point in every locale.

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "host/core/layer_look.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_prg.h"

namespace zu::cli {

/// Parts between commas; blanks around them are dropped, and an empty part is refused.
std::vector<std::string> parts_of(const std::string& option, const std::string& text);
double number_of(const std::string& option, const std::string& text);
std::vector<double> numbers_of(const std::string& option, const std::string& text);
/// #rrggbb or #rrggbbaa, aa an opacity; the result's `a` is a transparency.
Tzu_color color_of(const std::string& option, const std::string& text);
std::vector<Tzu_color> colors_of(const std::string& option, const std::string& text);
/// WxH, 1 to 32767 each.
std::pair<std::uint64_t, std::uint64_t> size_of(const std::string& option, const std::string& text);
/// x0,y0,x1,y1 with x0 < x1 and y0 < y1.
Tzu_box_d2 box_of(const std::string& option, const std::string& text);
/// MIN,MAX with MIN < MAX.
std::pair<double, double> limits_of(const std::string& option, const std::string& text);
/// B0,…,Bn rising, at least two.
std::vector<double> breaks_of(const std::string& option, const std::string& text);
/// V=COLOR,…; each V is a number, and its text is kept.
std::vector<std::pair<std::string, Tzu_color>> values_of(const std::string& option,
                                                         const std::string& text);

/// Number of an array of colours.
std::int32_t gradient_of(const std::string& option, const std::string& text);

/// Refuses what is no coordinate system.
void check_projection(const std::string& option, const std::string& text);
/// What stands for an overlay's settings where none are given.
inline constexpr char as_it_comes[] = "default";
/// The command line with `as_it_comes` given to each --hillshade, --isolines and --legend that is
/// followed by no settings, so that a source may stand behind it.
std::vector<std::string> with_settings(const std::vector<std::string>& arguments);
/// z=…,altitude=…,azimuth=…,part=…,field=…,multidirectional; or `as_it_comes`.
host::hillshade_look hillshade_of(const std::string& option, const std::string& text);
/// thin=…,bold=…,field=…,label; or `as_it_comes`.
host::isoline_look isolines_of(const std::string& option, const std::string& text);

}  // namespace zu::cli
