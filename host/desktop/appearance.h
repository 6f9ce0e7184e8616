#pragma once
// How the program looks: light or dark, and the icons that go with it.

namespace zu::desktop {

enum class appearance { system, light, dark };

/// Puts a look in force for all windows. Of the system's look the colours are taken as they come;
/// the icons follow them.
void choose_appearance(appearance chosen);
/// Whether text is lighter than what it stands on.
bool is_dark();

}  // namespace zu::desktop
