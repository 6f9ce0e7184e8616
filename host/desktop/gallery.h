#pragma once
// The gallery of controls: a dialog of a bundle in which every kind of element stands in every
// state.

#include <QString>

#include "host/core/bundle.h"

namespace zu::desktop {

/// Shows the gallery until it is closed. With a path, its pages are drawn into one picture and it
/// closes by itself. Throws `host::failure` if no bundle has a gallery or the file cannot be
/// written.
void show_gallery(const host::bundle& services, const QString& picture);

}  // namespace zu::desktop
