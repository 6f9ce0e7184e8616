#pragma once
// Where the cells of a layer lie in its scene.

#include <optional>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_select/cell_scan.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu::platform {

class layer_lattice {
 public:
  /// Nothing for a layer that shows no cells, or whose source does not open.
  static std::optional<layer_lattice> of(const Izu_layer* layer);

  lattice_size size() const { return size_; }
  std::uint64_t first_id() const { return first_id_; }
  /// A point of the scene in cells; nothing where it has no place.
  std::optional<Tzu_vtx_d2> place(Tzu_vtx_d2 point) const;
  /// Lines of the scene in cells, off by at most a hundredth of one.
  vertices place_line(const vertices& line) const;
  /// The same of a ring; what is far from the layer is cut off first.
  vertices place_ring(const vertices& ring) const;

 private:
  void place_between(const Tzu_vtx_d2& from, const Tzu_vtx_d2& to, int depth, vertices& out) const;

  lattice_size size_;
  std::uint64_t first_id_ = 0;
  Tzu_matrix3x3 to_cells_{};
  owned<zu_rpj_fb_d2_destroy> reprojection_;  // null if none is needed
  std::optional<Tzu_box_d2> around_;          // the layer and a margin, in the scene
};

}  // namespace zu::platform
