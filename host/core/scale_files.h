#pragma once
// Scales in files: those of scale pages, and legends of ArcView, which are read alone.

#include <string>

#include "zu/platform/zuk_styles.h"

namespace zu::host {

/// Whether a name has the ending of a file that `load_scale` reads.
bool is_scale_file(const std::string& path);
/// Fills a manager with the scale of a file and sets its mode: ranges ("._rg"), values ("._vl") or
/// what a legend of ArcView (".avl") is; grids are not drawn by rules. Throws `failure` with the
/// file and the reason; the manager is then as it was.
void load_scale(const std::string& path, Tzu_stl_mngr* manager);
/// Writes the scale in use, whose kind the name must have: "._rg" or "._vl". Throws
/// `failure`.
void save_scale(const std::string& path, const Tzu_stl_mngr* manager);

}  // namespace zu::host
