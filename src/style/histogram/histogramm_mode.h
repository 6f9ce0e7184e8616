#pragma once
// Boundaries on a histogram: caught, dragged, labelled, typed.

#include <string>
#include <vector>

#include "src/bundle/owned.h"
#include "src/viewer/viewer_extension_mode.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_tld_data.h"
#include "zu/platform/zuk_viewer2d.h"

namespace zu::element::detail {

class histogramm_viewer;

class histogramm_mode : public toolkit::viewer_extension_mode {
 public:
  enum : std::int32_t { boundary = 0, lower_end = 1, upper_end = 2, nothing = 3 };

  /// `owner` outlives this.
  explicit histogramm_mode(histogramm_viewer& owner) : owner_(owner) {}
  void set_viewer(Tzu_viewer* viewer) override { viewer_ = zu_viewer2d_safe_downcast(viewer); }
  void cursor(bitmap_visitor visitor) override;
  void draw(Izu_render* render) override;
  void hover(std::uint32_t flags, point_2d point) override;
  void press(std::uint32_t flags, point_2d point) override;
  void double_click(std::uint32_t flags, point_2d point) override;
  void drag(std::uint32_t flags, point_2d point) override;
  void release(std::uint32_t flags, point_2d point) override;

  std::int32_t cursor_kind() const { return cursor_kind_; }

 private:
  struct label {
    std::size_t bound;
    Tzu_box_d2 box;  // in millimetres of the viewer
  };

  void abandon() override;
  /// Numbers of the boundaries within reach of a place.
  std::vector<std::size_t> hit_bounds(double x) const;
  std::int32_t kind_of(const std::vector<std::size_t>& hit) const;
  std::int64_t hit_text(point_2d point) const;
  void choose_bound(double x);
  void set_kind(std::int32_t kind);

  histogramm_viewer& owner_;
  Tzu_viewer2d* viewer_ = nullptr;
  bool dragging_ = false;
  std::int32_t cursor_kind_ = nothing;
  point_2d press_point_;
  std::vector<std::size_t> hit_;    // at the press
  std::int64_t dragged_ = -1;       // the boundary that the drag has chosen
  std::vector<std::size_t> shown_;  // whose labels are in `labels_`
  owned<zu_boxes_d2_destroy> labels_{zu_boxes_d2_create()};
};

}  // namespace zu::element::detail
