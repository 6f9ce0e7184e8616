#pragma once
// The row of standard buttons of a dialog.

#include <QDialogButtonBox>
#include <vector>

#include "host/desktop/realiser/realised.h"

namespace zu::desktop {

/// In the order of the platform. A press that the element lets through ends the dialog around it,
/// if one runs; the button of role 16 never does.
class button_box_widget final : public realised<button_box_impl, QDialogButtonBox>,
                                private button_box_handler_impl {
 public:
  button_box_widget(handle element, QWidget* parent);
  ~button_box_widget() override;

  /// Whether the element lets the dialog be cancelled; true without a button for it.
  bool lets_cancel();

 protected:
  void heard(notice) override;

 private:
  void pressed(std::uint32_t role) override;
  void press(std::size_t index);

  struct entry {
    std::uint32_t role;
    QPushButton* button;
  };
  std::vector<entry> entries_;
};

}  // namespace zu::desktop
