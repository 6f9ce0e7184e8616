#pragma once
// Modes that change which box a viewer shows: one machine, filled from a row each.

#include "src/viewer/viewer2d_mode.h"

namespace zu::mode {
namespace detail {

enum class zoom2d_action { inside, outside, pan };
/// The axes along which a mode acts; the other one keeps what it shows.
enum class zoom2d_axes { both, vertical, horizontal };

struct zoom2d_kind {
  std::int32_t cursor;
  zoom2d_action action;
  zoom2d_axes axes;
};

/// Middle and half sizes of a box that was drawn.
struct zoom2d_extent {
  double cx, cy, dx, dy;
};
/// The box of two points; if they are nearer than 4 pixels along an axis, a quarter of the visible
/// box to every side of their middle.
zoom2d_extent zoom_extent(Tzu_viewer2d* viewer, point_2d start, point_2d current,
                          const Tzu_box_d2& visible);

class zoom2d_mode : public drag2d_mode {
 public:
  explicit zoom2d_mode(const zoom2d_kind& kind, Tzu_viewer* viewer)
      : drag2d_mode(viewer), kind_(kind) {}
  void cursor(bitmap_visitor visitor) override;

 private:
  void begin(point_2d point) override;
  void go_on(point_2d point) override;
  void end(std::uint32_t flags, point_2d point) override;

  /// Moves the free coordinates of the current point.
  void follow(point_2d point);
  Tzu_box_d2 visible() const;
  Tzu_box_d2 inside(const Tzu_box_d2& visible) const;
  Tzu_box_d2 outside(const Tzu_box_d2& visible) const;
  Tzu_box_d2 panned(const Tzu_box_d2& visible) const;
  void move_picture() const;
  bool moves_x() const { return kind_.axes != zoom2d_axes::vertical; }
  bool moves_y() const { return kind_.axes != zoom2d_axes::horizontal; }

  const zoom2d_kind& kind_;
};

template <zoom2d_kind kind> class zoom2d : public zoom2d_mode {
 public:
  explicit zoom2d(Tzu_viewer* viewer = nullptr) : zoom2d_mode(row, viewer) {}

 private:
  static constexpr zoom2d_kind row = kind;
};

template <std::int32_t cursor, zoom2d_action action, zoom2d_axes axes>
using zoom2d_row = zoom2d<zoom2d_kind{cursor, action, axes}>;

}  // namespace detail

using zoom2d_inside =
    detail::zoom2d_row<101, detail::zoom2d_action::inside, detail::zoom2d_axes::both>;
using zoom2d_inside_v =
    detail::zoom2d_row<104, detail::zoom2d_action::inside, detail::zoom2d_axes::vertical>;
using zoom2d_inside_h =
    detail::zoom2d_row<105, detail::zoom2d_action::inside, detail::zoom2d_axes::horizontal>;
using zoom2d_outside =
    detail::zoom2d_row<102, detail::zoom2d_action::outside, detail::zoom2d_axes::both>;
using zoom2d_outside_v =
    detail::zoom2d_row<106, detail::zoom2d_action::outside, detail::zoom2d_axes::vertical>;
using zoom2d_outside_h =
    detail::zoom2d_row<107, detail::zoom2d_action::outside, detail::zoom2d_axes::horizontal>;
using zoom2d_pan = detail::zoom2d_row<103, detail::zoom2d_action::pan, detail::zoom2d_axes::both>;
using zoom2d_pan_v =
    detail::zoom2d_row<108, detail::zoom2d_action::pan, detail::zoom2d_axes::vertical>;
using zoom2d_pan_h =
    detail::zoom2d_row<109, detail::zoom2d_action::pan, detail::zoom2d_axes::horizontal>;

}  // namespace zu::mode
