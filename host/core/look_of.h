#pragma once
// A layer's look, read back into what a person could have asked for.

#include <optional>
#include <string>
#include <vector>

#include "host/core/layer_look.h"

namespace zu::host {

/// The look that gives a layer what it has, as far as a `layer_look` can say it; nothing where its
/// classes leave gaps or its values are texts. What it cannot say, such as the widths of isolines,
/// is left out.
std::optional<layer_look> look_of(const layer& shown);

/// #rrggbb, or #rrggbbaa with aa an opacity.
std::string text_of_color(Tzu_color color);

/// The options of `zugrid render` that ask for a look; nothing if one of its names cannot be
/// written, since it has a comma in it.
std::optional<std::vector<std::string>> options_of(const layer_look& look);

}  // namespace zu::host
