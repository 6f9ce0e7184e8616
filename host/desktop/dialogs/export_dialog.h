#pragma once
// A picture of the scene for a file: which, how large and with what around it.

#include <QColor>
#include <QDialog>
#include <functional>
#include <optional>

#include "host/core/export.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace zu::desktop {

struct export_request {
  QString path;
  host::page_request page;
};

/// The format follows from the name's ending and sets it. The size keeps the shape of the window's
/// picture until a person lets go of it or chooses a sheet of paper.
class export_dialog final : public QDialog {
  Q_OBJECT

 public:
  /// Nothing if the person declined. `seen` is the picture on screen: its size, box, dots an inch
  /// and background; `name` is that of the file, without folder and ending.
  static std::optional<export_request> ask(QWidget* parent, const host::page_request& seen,
                                           const QString& name);

  export_dialog(const host::page_request& seen, const QString& name, QWidget* parent = nullptr);

  export_request request() const;
  void accept() override;

  /// Whether a file that stands there may be replaced; asks the person.
  std::function<bool(const QString& path)> may_replace;

 private:
  void add_rows();
  void connect_rows();
  void browse();
  void format_chosen();
  void path_edited();
  void side_changed(bool is_width);
  void paper_chosen();
  void show_state();
  double shape() const;

  host::page_request seen_;
  QString replaced_;  // may be replaced: the file dialog has asked
  QColor color_;
  QLineEdit* path_;
  QPushButton *browse_, *color_button_, *ok_;
  QComboBox *format_, *sheet_, *legend_;
  QSpinBox *width_, *height_;
  QDoubleSpinBox* dots_;
  QCheckBox *keep_shape_, *transparent_, *accurate_;
  QRadioButton *as_seen_, *all_layers_;
  QLabel *paper_, *problem_;
};

}  // namespace zu::desktop
