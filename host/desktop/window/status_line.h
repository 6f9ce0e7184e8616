#pragma once
// The status bar: where the pointer is, the scale, the projection, and whether a picture is being
// drawn.

#include <QStatusBar>

class QComboBox;
class QLabel;
class QProgressBar;
class QToolButton;

namespace zu::desktop {

class status_line final : public QStatusBar {
  Q_OBJECT

 public:
  explicit status_line(QWidget* parent = nullptr);

  void show_coordinates(double x, double y, bool inside);
  /// The denominator of the map's scale; what is not above 0 shows none.
  void show_scale(double scale);
  /// By its name; empty: none.
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

  QLabel* coordinates_;
  QLabel* scale_title_;
  QComboBox* scale_;
  QToolButton* projection_;
  QProgressBar* busy_;
  double shown_scale_ = 0;
  QString shown_projection_;
};

/// A number without an exponent where it needs none, with a decimal point: 17 m of a coordinate are
/// told from 18 m, degrees from each other to about a metre.
QString coordinate_text(double value, double units_per_pixel);
/// "1:25000", "25000", "1 : 25 000", "0.5" of a section; nothing if it is no scale.
double scale_of_text(const QString& text);
QString text_of_scale(double scale);

}  // namespace zu::desktop
