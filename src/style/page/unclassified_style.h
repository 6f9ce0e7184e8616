#pragma once
// What no row of a scale holds: whether it is drawn, what it is called, its two styles.

#include "src/style/page/parameter_button.h"
#include "src/style/scale_model.h"
#include "src/toolkit/buttons.h"
#include "src/toolkit/inputs.h"
#include "src/toolkit/layouts.h"

namespace zu::style::detail {

template <class model> class unclassified_style : public toolkit::with_element {
 public:
  explicit unclassified_style(model& m) : model_(m) {
    visible_.on_state = [this](bool visible) {
      Tzu_scale_prm* other = model_.other_prm();
      if (other == nullptr) return;
      zu_scale_prm_set_visible(other, visible);
      enable_inputs(visible);
      tell();
    };
    caption_.set_width(8);
    caption_.on_commit = [this](const std::wstring& text) {
      model_.set_other_caption(text);
      tell();
    };
    primary_.on_edited = selection_.on_edited = [this] { tell(); };
    root_.place(visible_).place(caption_).place(primary_).place(selection_);
    root_.set_column_stretch(1);
    reload();
  }
  /// Shows what the model says now.
  void reload() {
    Tzu_scale_prm* other = model_.other_prm();
    const bool visible = other != nullptr && zu_scale_prm_get_visible(other);
    visible_.assign(visible);
    caption_.assign(model_.get_other_caption());
    primary_.show(zu_scale_prm_get_stl_prm_ptr(other));
    selection_.show(zu_scale_prm_get_stl_prm_ptr(other));
    enable_inputs(visible);
  }
  void set_enabled(bool enabled) {
    enabled_ = enabled;
    reload();
  }
  handle element() override { return handle_of<grid_layout_impl>(root_); }

  std::function<void()> on_change;

 private:
  void enable_inputs(bool visible) {
    visible_.set_enabled(enabled_ && model_.other_prm() != nullptr);
    caption_.set_enabled(enabled_ && visible);
    primary_.set_enabled(enabled_ && visible);
    selection_.set_enabled(enabled_ && visible);
  }
  void tell() {
    if (on_change) on_change();
  }

  model& model_;
  bool enabled_ = true;
  toolkit::checkbox visible_{14501};
  toolkit::input caption_;
  parameter_input<typename model::style_traits> primary_{14519, style::primary};
  parameter_input<typename model::style_traits> selection_{14520, style::selection};
  toolkit::grid_layout<4, 1> root_;
};

}  // namespace zu::style::detail
