#pragma once
// The dialog of the settings of a style manager that its page does not show: render levels.

#include "src/style/levels/levels_element.h"
#include "src/toolkit/buttons.h"

namespace zu::dialog {

/// Edits a copy of a manager, which gets it back when the person accepts.
class style_adavanced_dialog : public toolkit::with_element {
 public:
  static constexpr wchar_t id[] = L"zu_common_plugin_style_adavanced_dialog";
  static constexpr std::int32_t caption = 13600;

  explicit style_adavanced_dialog(Tzu_stl_mngr* mngr);
  /// True if the person accepted; the manager is as it was if not, or for null.
  static bool run(Tzu_stl_mngr* mngr);

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void set_use(bool use);
  void take();

  Tzu_stl_mngr* mngr_;
  owned<zu_stl_mngr_destroy> own_;
  toolkit::checkbox use_{13601};
  style::levels_element levels_;
  toolkit::button_box buttons_{toolkit::button_box::ok | toolkit::button_box::cancel};
  toolkit::grid_layout<1, 3> root_;
};

}  // namespace zu::dialog
