#pragma once
// Legends of other programs.

#include "zu/platform/zuk_styles.h"

namespace zu::style::detail {

/// Has the person choose an ArcView legend and fills the manager from it. True if that worked; they
/// are told if it did not.
bool import_avl(Tzu_stl_mngr* mngr);

}  // namespace zu::style::detail
