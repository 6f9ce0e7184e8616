#pragma once
// What embedded maps need to know before an element asks for one.

#include "host/core/bundle.h"

namespace zu::desktop {

/// Whose layers embedded maps draw; null: none. The bundle must outlive all of them.
void serve_viewers(const host::bundle* services);

}  // namespace zu::desktop
