#pragma once
// A scale of a manager, with its field, as a group.

#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_styles.h"

namespace zu::platform {

// Into an empty group, and from a group into the scale of a new manager. False if there are too
// many rows; the scale is then half read.
void save_range_scale(Tzu_xnode* group, const Tzu_stl_mngr* manager);
bool load_range_scale(Tzu_xnode* group, Tzu_stl_mngr* manager);
void save_value_scale(Tzu_xnode* group, const Tzu_stl_mngr* manager);
bool load_value_scale(Tzu_xnode* group, Tzu_stl_mngr* manager);
/// The rows of a value scale whose texts are rules; there is no field.
void save_rule_scale(Tzu_xnode* group, const Tzu_stl_mngr* manager);
bool load_rule_scale(Tzu_xnode* group, Tzu_stl_mngr* manager);

}  // namespace zu::platform
