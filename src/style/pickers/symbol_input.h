#pragma once
// A font and the character of it that a point is drawn with.

#include "src/style/pickers/charmap_input.h"
#include "src/toolkit/dropdown.h"

namespace zu::style {

class symbol_input : public toolkit::with_element {
 public:
  symbol_input();

  /// A font that the system does not have is shown by its name too.
  void assign(const Tzu_bpnt_style* from);
  /// Sets character and font together, and that they are used.
  void apply_to(Tzu_bpnt_style* to) const { characters_.apply_to(to); }
  void set_enabled(bool enabled);

  std::function<void()> on_change;  ///< a person chose another font or character

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void list_fonts();
  void select(const std::wstring& family);
  void chosen(const std::wstring& family);

  owned<zu_fnt_type_destroy> font_{zu_fnt_type_create()};
  std::vector<std::wstring> families_;
  toolkit::labeled_element<toolkit::dropdownex<std::wstring>> fonts_{10033};
  charmap_input characters_;
  toolkit::grid_layout<2, 1> font_row_;
  toolkit::grid_layout<1, 2> root_;
};

}  // namespace zu::style
