#pragma once
// The status bar: where the pointer is, the scale, the projection, and whether a picture is being
// drawn.

#include <QPointF>
#include <QStatusBar>
#include <optional>

#include "host/core/coordinate_text.h"

class QComboBox;
class QLabel;
class QProgressBar;
class QToolButton;

namespace zu::desktop {

class status_line final : public QStatusBar {
  Q_OBJECT

 public:
  explicit status_line(QWidget* parent = nullptr);

  /// A point of the scene, in the units chosen.
  void show_coordinates(double x, double y, bool inside);
  void set_units(host::coordinate_units units);
  /// The denominator of the map's scale, what is not above 0 shows none, and a pixel's size in
  /// units of the scene, by which coordinates get their decimals.
  void show_scale(double scale, double pixel);
  /// By its name; empty: none. Coordinates of another projection's scene go.
  void show_projection(const QString& text);
  /// Whether a picture is being drawn that takes its time.
  void show_busy(bool busy);

 Q_SIGNALS:
  void scale_chosen(double scale);
  void projection_wanted();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void retranslate();
  void take_scale();
  void say_coordinates();
  void reserve_coordinates();
  void say_what_scale_is();

  QLabel* coordinates_;
  QLabel* scale_title_;
  QComboBox* scale_;
  QToolButton* projection_;
  QProgressBar* busy_;
  host::coordinate_text texts_;
  host::coordinate_units units_ = host::coordinate_units::map;
  std::optional<QPointF> pointer_;  ///< where in the scene it is
  double shown_scale_ = 0, pixel_ = 0;
  QString shown_projection_;
};

/// "1:25000", "25000", "1 : 25 000", "0.5" of a section; nothing if it is no scale.
double scale_of_text(const QString& text);
QString text_of_scale(double scale);

}  // namespace zu::desktop
