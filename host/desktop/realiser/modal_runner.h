#pragma once
// Dialogs of a bundle.

#include <QDialog>
#include <QString>

#include "zu/services.h"

class QPushButton;

namespace zu::desktop {

class button_box_widget;
class realised_docker;

/// Runs the dockers of one dialog of a bundle, each in a window over the active one. The size that
/// a person gave the window is kept under the dialog's id.
class modal_runner final : public modal_dialog_runner_impl {
 public:
  explicit modal_runner(QString id) : id_(std::move(id)) {}
  modal_dialog_runner runner() {
    return modal_dialog_runner(handle_of<modal_dialog_runner_impl>(*this));
  }

  /// Non-zero if the person accepted. Closing the window cancels.
  int run(handle panel) override;

 private:
  QString id_;
};

/// The window of such a dialog. One without a row of buttons gets "Close".
class element_dialog final : public QDialog {
  Q_OBJECT

 public:
  element_dialog(handle panel, QWidget* parent);
  ~element_dialog() override;

  /// Asks the dialog's cancel button, which may refuse.
  void reject() override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* close_box();

  realised_docker* panel_;
  button_box_widget* buttons_;  // null: "Close" stands in their place
  QPushButton* close_ = nullptr;
};

}  // namespace zu::desktop
