#pragma once
// The record of a viewer of 2D scenes.

#include <optional>

#include "platform/zuk_viewer2d/view_history.h"
#include "zu/platform/zuk_viewer2d.h"

struct Tzu_viewer {
  virtual ~Tzu_viewer() = default;
  virtual Tzu_viewer2d* as_2d() { return nullptr; }
};

struct Tzu_viewer2d : Tzu_viewer {
  explicit Tzu_viewer2d(const Tzu_viewer2d_hooks& hooks) : hooks_(hooks) {}
  Tzu_viewer2d* as_2d() override { return this; }

  Tzu_scn_2d* scene = nullptr;
  int32_t wheel_mode = zu_wheel_zoom;

  void set_size(int32_t nx, int32_t ny, double dots_per_inch);
  void set_box(const Tzu_box_d2& box);
  /// Of the window; that of a unit square while it has no size.
  Tzu_box_d2 box() const;
  bool has_size() const { return window_.has_area(); }
  const zu::platform::window_size& window() const { return window_; }
  bool is_anisotropic() const { return anisotropic_; }
  void set_anisotropic(bool anisotropic);
  void set_scale(double sx, double sy);
  void wheel(double notches, double x, double y);
  zu::platform::view_history& history() { return history_; }
  const zu::platform::view_history& history() const { return history_; }
  /// Shows a step of the history.
  void show_step(const zu::platform::view& v);

  double units_per_mm_x() const { return view_.ux; }
  double units_per_mm_y() const { return view_.uy; }
  double units_per_pixel_x() const { return view_.ux / window_.dots; }
  double units_per_pixel_y() const { return view_.uy / window_.dots; }

  void redraw();
  void move_picture(int32_t dx, int32_t dy);
  void draw_box(const Tzu_box_i2* box);

 private:
  void show(const zu::platform::view& v);

  Tzu_viewer2d_hooks hooks_;
  zu::platform::window_size window_;
  zu::platform::view view_;
  zu::platform::view_history history_;
  std::optional<Tzu_box_d2> wanted_;  // until the window has a size
  bool anisotropic_ = false;
  bool wheel_turns_ = false;  // nothing came after the last turn of the wheel
};
