#pragma once
// The page of a manager's one style for everything.

#include "src/style/page/legend_import.h"
#include "src/style/page/parameter_button.h"
#include "src/toolkit/buttons.h"

namespace zu::style::detail {

template <class style_traits> class simple_style : public toolkit::with_element {
 public:
  simple_style() {
    primary_.on_edited = selection_.on_edited = [this] {
      if (on_change) on_change();
    };
    import_.on_click = [this] {
      if (import_avl(mngr_) && on_import) on_import();
    };
    links_.place(primary_).place(selection_);
    root_.place(links_).place(import_).set_row_stretch(2);
    reload();
  }
  /// Not owned; null is none.
  void set(Tzu_stl_mngr* mngr) {
    mngr_ = mngr;
    reload();
  }
  void reload() {
    Tzu_stl_prm* prm = mngr_ != nullptr ? zu_stl_mngr_get_simple_sp_ptr(mngr_) : nullptr;
    primary_.show(prm);
    selection_.show(prm);
    set_enabled(enabled_);
  }
  void set_enabled(bool enabled) {
    enabled_ = enabled;
    primary_.set_enabled(enabled && mngr_ != nullptr);
    selection_.set_enabled(enabled && mngr_ != nullptr);
    import_.set_enabled(enabled && mngr_ != nullptr);
  }
  handle element() override { return handle_of<grid_layout_impl>(root_); }

  std::function<void()> on_change;
  std::function<void()> on_import;  ///< the whole manager is that of a legend

 private:
  Tzu_stl_mngr* mngr_ = nullptr;
  bool enabled_ = true;
  parameter_link<style_traits> primary_{14519, style::primary};
  parameter_link<style_traits> selection_{14520, style::selection};
  toolkit::button_link import_{10313};
  toolkit::grid_layout<2, 2> links_;
  toolkit::grid_layout<1, 3> root_;
};

}  // namespace zu::style::detail
