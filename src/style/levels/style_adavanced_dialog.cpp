#include "src/style/levels/style_adavanced_dialog.h"

#include "src/toolkit/dialog.h"

namespace zu::dialog {

style_adavanced_dialog::style_adavanced_dialog(Tzu_stl_mngr* mngr)
    : mngr_(mngr), own_(zu_stl_mngr_create(zu_stl_mngr_get_style_type(mngr))) {
  zu_stl_mngr_assign(own_.get(), mngr_);
  levels_.set(own_.get());
  set_use(zu_stl_mngr_get_use_render_levels(own_.get()));
  use_.on_state = levels_.on_use = [this](bool use) { set_use(use); };
  buttons_.on_accept = [this] {
    take();
    return true;
  };
  root_.place(use_).place(levels_).place(buttons_);
  root_.set_row_stretch(1).set_column_stretch(0);
}

/// The mark of the frame says the same as that of the dialog.
void style_adavanced_dialog::set_use(bool use) {
  use_.assign(use);
  levels_.assign_use(use);
}

void style_adavanced_dialog::take() {
  if (own_ == nullptr) return;
  zu_stl_mngr_assign(mngr_, own_.get());
  zu_stl_mngr_set_use_render_levels(mngr_, use_.is_checked());
}

bool style_adavanced_dialog::run(Tzu_stl_mngr* mngr) {
  if (mngr == nullptr) return false;
  style_adavanced_dialog shown(mngr);
  return toolkit::run_dialog(shown);
}

}  // namespace zu::dialog
