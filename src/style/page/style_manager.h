#pragma once
// The whole of a style manager as a person edits it: which of its styles draws, and a page for
// each.

#include "src/style/page/scale_style.h"
#include "src/style/page/simple_style.h"
#include "src/style/page/style_mode.h"

namespace zu::style {

template <class style_traits> class style_manager : public toolkit::with_element {
 public:
  using value_model = scale_model<style_traits, value_scale_traits>;
  using range_model = scale_model<style_traits, range_scale_traits>;
  using rule_model = scale_model<style_traits, rule_scale_traits>;

  /// `context` is the type of the layer.
  explicit style_manager(const std::wstring& context = L"grid_layer2d");

  /// Shows a manager, which is not owned; null is none. Nothing is written to it.
  void set(const data::open_reference& source, Tzu_stl_mngr* mngr);
  /// 0 disables everything.
  void set_enabled(std::uint32_t state);
  void assign_interpolate(bool interpolate);
  handle element() override { return handle_of<grid_layout_impl>(root_); }

  detail::scale_style<value_model>& values() { return values_; }
  detail::scale_style<range_model>& ranges() { return ranges_; }
  detail::scale_style<rule_model>& rules() { return rules_; }

  event<void()> changed;  ///< a person has changed something in the manager
  /// Unset: the pages show no box for it.
  std::function<void(bool)> on_interpolate;

 private:
  void mode_chosen();
  void show_page();
  void legend_imported();
  template <class page> void connect(page& p);

  Tzu_stl_mngr* mngr_ = nullptr;
  data::open_reference source_;
  bool is_setting_ = false;
  detail::style_mode<style_traits> mode_;
  detail::simple_style<style_traits> simple_;
  detail::scale_style<value_model> values_;
  detail::scale_style<range_model> ranges_;
  detail::scale_style<rule_model> rules_;
  toolkit::grid_layout<2, 1> mode_line_;
  toolkit::stack_layout<4> pages_;
  toolkit::grid_layout<1, 2> root_;
  std::vector<events::connection> connections_;
};

extern template class style_manager<color_style_traits>;
extern template class style_manager<point_style_traits>;
extern template class style_manager<line_style_traits>;

}  // namespace zu::style
