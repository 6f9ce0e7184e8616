#pragma once
// Scales out of files: what was saved from a scale page, and legends of ArcView.

#include <string>

#include "zu/platform/zuk_styles.h"

namespace zu::host {

/// Fills a manager with the scale of a file and sets its mode: ranges ("._rg"), values ("._vl"),
/// rules ("._rl") or what a legend of ArcView (".avl") is. Throws `failure` with the file and the
/// reason; the manager is then as it was.
void load_scale(const std::string& path, Tzu_stl_mngr* manager);

}  // namespace zu::host
