#pragma once
// What modes of 2D viewers share.

#include "src/viewer/viewer_extension_mode.h"
#include "zu/platform/zuk_viewer2d.h"

namespace zu::mode::detail {

/// Gives a mode's cursor by its number.
void visit_cursor(std::int32_t id, bitmap_visitor visitor);

/// Acts on one viewer, and does nothing without it.
class viewer2d_mode : public toolkit::viewer_extension_mode {
 public:
  explicit viewer2d_mode(Tzu_viewer* viewer = nullptr) { viewer2d_mode::set_viewer(viewer); }
  void set_viewer(Tzu_viewer* viewer) override { viewer_ = zu_viewer2d_safe_downcast(viewer); }

 protected:
  Tzu_viewer2d* viewer() const { return viewer_; }

 private:
  Tzu_viewer2d* viewer_ = nullptr;
};

/// Pressed, dragged and released with the left button.
class drag2d_mode : public viewer2d_mode {
 public:
  using viewer2d_mode::viewer2d_mode;
  void press(std::uint32_t flags, point_2d point) final;
  void drag(std::uint32_t flags, point_2d point) final;
  void release(std::uint32_t flags, point_2d point) final;

 protected:
  /// The rubber box between start and current point, in place of the former one.
  void draw_rubber_box();

  point_2d start_, current_;

 private:
  // Of a viewer that is there.
  virtual void begin(point_2d point) = 0;
  virtual void go_on(point_2d point) = 0;
  virtual void end(std::uint32_t flags, point_2d point) = 0;
  void abandon() override;

  bool dragging_ = false;
};

}  // namespace zu::mode::detail
