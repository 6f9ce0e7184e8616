#pragma once
// The map: shows the scene of a viewer, and makes sense of mouse and keys. What was drawn last
// stands on the window, moved or scaled, until a picture of the new box is there.

#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>
#include <utility>

#include "host/core/ground_unit.h"
#include "host/desktop/map/frame_drawing.h"
#include "host/desktop/map/map_pointer.h"
#include "host/desktop/map/scene_watch.h"

namespace zu::desktop {

class map_view : public QWidget {
  Q_OBJECT

 public:
  /// A map of a scene, which must outlive it.
  explicit map_view(host::scene& shown, QWidget* parent = nullptr);
  /// A map of whichever scene its viewer is given. Without services it shows no layers.
  explicit map_view(const host::bundle* services, QWidget* parent = nullptr);
  ~map_view() override;

  Tzu_viewer2d* viewer() const { return viewer_.get(); }

  /// The picture is old. Requests are gathered: however many come, one picture is drawn.
  void redraw();
  /// Draws to the end what is to be drawn, at once. Null as long as the map has no size.
  QImage picture();
  /// Whether the picture on show is whole and of the box that the map shows.
  bool is_up_to_date() const { return !is_stale_ && !drawing_ && !is_cut_short_; }

  // The visible box. A step of any of these can be taken back.
  std::optional<Tzu_box_d2> box() const;  ///< nothing before the map has a size and has shown any
  void zoom_to_all();                     ///< stays where it is if there is nothing to show
  void zoom_to(const Tzu_box_d2& box);    ///< a box without area gets some
  void zoom_in() { zoom_by(0.5); }
  void zoom_out() { zoom_by(2); }
  bool can_go_back() const { return zu_viewer2d_zoomhist_has_prev(viewer()); }
  bool can_go_forward() const { return zu_viewer2d_zoomhist_has_next(viewer()); }
  void go_back();
  void go_forward();
  /// Denominator of the scale along x in the middle of what is shown, for the ground that a unit of
  /// the projection is; 0 as long as there is none.
  double map_scale() const;
  void set_map_scale(double denominator);
  double units_a_pixel() const;  ///< of the scene, along x; 0 as long as there is no scale

  /// Whether each axis has a scale of its own. Sections decide it by themselves until it is set.
  bool has_own_axes() const { return zu_viewer2d_is_anisotropic(viewer()); }
  void set_own_axes(bool own);

  /// The modes of the viewer; empty: the left button moves the map.
  void set_extension(viewer_extension extension) { modes_.set_extension(extension); }
  /// Has a service make them and gives the tool bar that chooses them.
  handle use_extension(viewer_2d_extension_service service);
  const mode_host& modes() const { return modes_; }

 Q_SIGNALS:
  void view_changed();  ///< the box, or what can be gone back to
  void cursor_moved(double x, double y, bool inside);
  void clicked(double x, double y);  ///< by the hand, without a drag
  void drawn(double milliseconds);
  void mode_acted();  ///< a mode was given the end of a drag, a click or a double click

 protected:
  /// A map of layers that are given afterwards.
  explicit map_view(QWidget* parent);
  void set_layers(std::unique_ptr<map_layers> layers) { layers_ = std::move(layers); }

  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  struct ended {
    void operator()(Tzu_viewer2d* viewer) const { zu_viewer2d_destroy(viewer); }
  };

  Tzu_viewer2d_hooks hooks();
  void box_changed();
  void mode_changed();
  void mode_spoke();

  // Drawing.
  QSize pixels() const;
  bool can_draw() const { return isVisible() && !pixels().isEmpty(); }
  int delay() const;  ///< of the next picture, in milliseconds
  void ask_for_picture(int delay);
  void draw_some();
  bool draw_layer();
  void begin_drawing();
  void end_drawing();
  void stop_drawing();
  void follow_window();
  void follow_profile();
  QImage mode_picture();

  // Moving.
  bool handle_key(int key, Qt::KeyboardModifiers keys);
  void zoom_by(double factor);
  void move_by(double parts_x, double parts_y);
  void show_box(const Tzu_box_d2& box);
  void show_cursor();
  double metres_a_unit() const;
  QPointF pixel_at(QPointF position) const { return position * devicePixelRatioF(); }

  std::unique_ptr<Tzu_viewer2d, ended> viewer_;
  std::unique_ptr<map_layers> layers_;
  mode_host modes_;
  std::unique_ptr<map_pointer> pointer_;
  scene_watch watch_;

  map_frame frame_;
  QPoint shift_;  ///< of the frame, while it is dragged
  std::optional<Tzu_box_i2> rubber_box_;
  QImage mode_picture_;
  bool is_mode_picture_old_ = false;

  QTimer timer_;
  std::shared_ptr<frame_drawing> drawing_;
  double spent_ = 0;      ///< milliseconds on the drawing that goes on
  double last_cost_ = 0;  ///< of the last whole picture
  bool is_stale_ = true;  ///< the next picture has not been begun
  bool is_cut_short_ = false;
  bool is_wheeling_ = false;
  bool is_sizing_ = false;
  bool is_in_layer_ = false;
  std::optional<bool> own_axes_;  ///< set by a person
  bool has_box_ = false;          ///< somebody chose what to show
  QSize followed_;
  mutable host::ground_unit ground_;  ///< keeps what was looked up last
  std::optional<Tzu_box_d2> wanted_;  ///< chosen before the map had a size
};

}  // namespace zu::desktop
