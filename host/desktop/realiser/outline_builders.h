#pragma once
// Lists, trees and tables in the realiser's table.

#include <span>

#include "host/desktop/realiser/realiser.h"

namespace zu::desktop {

std::span<const builder> outline_builders();

}  // namespace zu::desktop
