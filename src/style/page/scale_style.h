#pragma once
// The page of one scale: its field, its tools, its rows, what no row holds.

#include "src/style/page/colorby_field.h"
#include "src/style/page/scale_outline.h"
#include "src/style/page/scale_toolbar.h"
#include "src/style/page/unclassified_style.h"

namespace zu::style::detail {

template <class model> class scale_style : public toolkit::with_element {
 public:
  /// `context` is the type of the layer.
  explicit scale_style(const std::wstring& context);

  model& scale() { return model_; }
  /// The manager is not owned; null is none. Tells `changed` of the model.
  void set(const data::open_reference& source, Tzu_stl_mngr* mngr);
  /// Fills a scale that has no rows from the data: by its own field, else by `field`, else by the
  /// first of the source.
  void fill_if_empty(const std::wstring& field);
  void reload_unclassified() { unclassified_.reload(); }
  void set_enabled(bool enabled);
  void assign_interpolate(bool interpolate) { interpolate_.assign(interpolate); }
  void show_interpolate(bool shown) { root_.set_row_visible(4, shown); }
  handle element() override { return handle_of<grid_layout_impl>(root_); }

  std::function<void()> on_change;  ///< of what the model does not tell
  std::function<void(bool)> on_interpolate;

 private:
  static constexpr bool has_field =
      !std::is_same_v<typename model::scale_traits, rule_scale_traits>;
  static model& with_context(model& m, const std::wstring& context) {
    m.context = context;
    return m;
  }

  model model_;
  colorby_field<model> field_;
  toolkit::grid_layout<2, 1> field_line_;
  toolkit::toolbar<scale_toolset<model>> tools_;
  style_context_menu<model> menu_;
  scale_outline<model> outline_;
  unclassified_style<model> unclassified_;
  toolkit::checkbox interpolate_{10312};
  toolkit::grid_layout<1, 5> root_;
  events::connection connection_;
};

// The tools take their keys from the model while they are made.
template <class model>
scale_style<model>::scale_style(const std::wstring& context)
    : field_(with_context(model_, context)),
      tools_(model_),
      menu_(model_),
      outline_(model_),
      unclassified_(model_) {
  field_.on_field = [this] { load_default_scale(model_); };
  unclassified_.on_change = [this] {
    if (on_change) on_change();
  };
  interpolate_.assign(false);
  interpolate_.on_state = [this](bool on) {
    if (on_interpolate) on_interpolate(on);
  };
  outline_.set_context_menu(&menu_);
  field_line_.place(field_).set_column_stretch(1);
  if constexpr (has_field)
    root_.place(field_line_);
  else
    root_.skip();
  root_.place(tools_).place(outline_).place(unclassified_).place(interpolate_);
  root_.set_row_stretch(2);
  // A file that was loaded brings its own field and "other".
  connection_ = model_.changed.connect([this] {
    field_.show_current();
    unclassified_.reload();
  });
}

template <class model>
void scale_style<model>::set(const data::open_reference& source, Tzu_stl_mngr* mngr) {
  model_.source = source;
  model_.mngr = mngr;
  if constexpr (has_field) field_.reload();
  model_.changed();
  outline_.tell_current();
}

template <class model> void scale_style<model>::fill_if_empty(const std::wstring& field) {
  using traits = typename model::scale_traits;
  if (model_.scale() == nullptr || traits::entry_count(model_.scale()) > 0) return;
  if constexpr (has_field) {
    if (model_.field().empty()) {
      if (field_.names().empty()) return;
      model_.set_field(field.empty() ? field_.names().front() : field);
    }
  }
  load_default_scale(model_);
}

template <class model> void scale_style<model>::set_enabled(bool enabled) {
  field_.set_enabled(enabled);
  outline_.set_enabled(enabled);
  unclassified_.set_enabled(enabled);
  interpolate_.set_enabled(enabled);
}

}  // namespace zu::style::detail
