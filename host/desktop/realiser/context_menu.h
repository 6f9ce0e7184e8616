#pragma once
// Menus at the pointer.

#include "zu/tools.h"

class QWidget;

namespace zu::desktop {

/// Opens the menu of an element where the person asks for one in its control. What is in it is
/// asked each time.
void offer_context_menu(QWidget* control, of<context_menu_impl> menu);

}  // namespace zu::desktop
