#pragma once
// The dialog of the person's own palettes.

#include <deque>

#include "src/style/page/array_tools.h"
#include "src/style/page/tool_list.h"
#include "src/style/palettes/palette_tables.h"
#include "src/toolkit/buttons.h"
#include "src/toolkit/toolbars.h"

namespace zu {
namespace style::detail {

/// What is done with palettes of a table.
class palette_tools : public tool_list {
 public:
  explicit palette_tools(palettes_table& table);
  /// Those that need a palette are of no use without one.
  void follow_choice();

 private:
  void save() const;
  void load();

  palettes_table& table_;
  toolkit::action_tool *remove_ = nullptr, *save_ = nullptr;
};

/// What is done with the colours of a palette.
class color_tools : public tool_list {
 public:
  explicit color_tools(colors_table& table);
  void follow_choice();

 private:
  colors_table& table_;
  std::deque<array_tool> arrays_;
  tool_list array_menu_{L"_import"};
  toolkit::action_tool *add_ = nullptr, *remove_ = nullptr, *invert_ = nullptr;
  toolkit::category_tool* import_ = nullptr;
};

}  // namespace style::detail

namespace dialog {

/// Edits a copy of a list.
class clr_palettes : public toolkit::with_element {
 public:
  static constexpr wchar_t id[] = L"zu_clr_palettes_dialog";
  static constexpr std::int32_t caption = 14515;

  explicit clr_palettes(const Tzu_clr_palettes* edited);
  const Tzu_clr_palettes* list() const { return list_.get(); }
  bool is_changed() const { return changed_; }

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void follow_choice();

  owned<zu_clr_palettes_destroy> list_;
  bool changed_ = false;
  style::detail::palettes_table palettes_;
  style::detail::colors_table colors_;
  toolkit::toolbar<style::detail::palette_tools> palette_bar_{palettes_};
  toolkit::toolbar<style::detail::color_tools> color_bar_{colors_};
  toolkit::button_box buttons_{toolkit::button_box::ok | toolkit::button_box::cancel};
  toolkit::grid_layout<1, 2> left_, right_;
  toolkit::grid_layout<2, 1> panes_;
  toolkit::grid_layout<1, 2> root_;
};

}  // namespace dialog

/// Has the person edit their palettes; what is accepted replaces the list and goes to its file, and
/// the person hears if it cannot. False if they did not accept.
bool run_clr_palettes_dialog();

}  // namespace zu
