#pragma once
// What a person does with the mouse on a map, as calls of the mode in force or as moves of the
// hand. Places are pixels of the screen from the map's upper left corner.

#include <QPointF>
#include <Qt>
#include <functional>
#include <utility>

#include "host/desktop/map/mode_host.h"
#include "zu/platform/zuk_viewer2d.h"

namespace zu::desktop {

class map_pointer {
 public:
  /// `clicked` is told the scene point of a press that did not become a drag, while the hand is in
  /// force.
  map_pointer(Tzu_viewer2d* viewer, mode_host& modes, std::function<void(double, double)> clicked);

  /// The hand holds the map instead of the mode in force: with the middle button, or while Space is
  /// down.
  enum class grip { none, mode, hand };
  grip held() const { return grip_; }
  bool is_dragging() const { return grip_ != grip::none; }
  void set_hand_wanted(bool wanted) { hand_wanted_ = wanted; }
  bool is_hand_wanted() const { return hand_wanted_; }
  /// Moves of fewer pixels than this are none.
  void set_dead_zone(double pixels) { dead_zone_ = pixels; }

  void press(Qt::MouseButton button, Qt::KeyboardModifiers keys, QPointF at);
  void move(Qt::KeyboardModifiers keys, QPointF at);
  void release(Qt::MouseButton button, Qt::KeyboardModifiers keys, QPointF at);
  void double_click(Qt::MouseButton button, Qt::KeyboardModifiers keys, QPointF at);
  /// What was begun is not done: nothing of it stays to be seen, and the rest of the drag is
  /// nobody's.
  void cancel();

  point_2d scene_point(QPointF at) const;

 private:
  void move_map(QPointF by);

  Tzu_viewer2d* viewer_;
  mode_host& modes_;
  std::function<void(double, double)> clicked_;
  grip grip_ = grip::none;
  Qt::MouseButton button_ = Qt::NoButton;
  QPointF start_;
  bool has_moved_ = false;
  bool hand_wanted_ = false;
  double dead_zone_ = 3;
};

}  // namespace zu::desktop
