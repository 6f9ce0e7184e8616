#pragma once
// What this program is.

#include <QDialog>

namespace zu::desktop {

class about_dialog final : public QDialog {
  Q_OBJECT

 public:
  static void ask(QWidget* parent);
  explicit about_dialog(QWidget* parent = nullptr);
};

}  // namespace zu::desktop
