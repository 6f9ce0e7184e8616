#pragma once
// The dialog that makes the rows of a value scale from the values of a field.

#include "src/style/classes/unique_values.h"
#include "src/toolkit/buttons.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/labels.h"

namespace zu::dialog {

/// Works on a scale of a caller's, which it changes when the person accepts.
class value_scale : public toolkit::with_element {
 public:
  static constexpr wchar_t id[] = L"zu_common_plugin_value_scale_dialog";
  static constexpr std::int32_t caption = 10450;

  value_scale(Tzu_val_scale* scale, const data::open_reference& source, const std::wstring& field);

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void offer_fields();
  void load();
  void enable_params();
  void take();

  Tzu_val_scale* scale_;
  data::open_reference source_;
  std::wstring field_;  // whose values are shown

  toolkit::labeled_element<toolkit::dropdownex<std::wstring>> fields_{10310};
  style::value_scale_cache_outline values_;
  toolkit::label_ex count_;
  toolkit::grid_layout<2, 1> field_row_;
  toolkit::groupbox<1, 3> values_group_{10451};
  toolkit::radiogroup<1, 2> way_{10452};
  toolkit::checkbox add_{10456}, remove_{10457}, change_captions_{10458};
  toolkit::labeled_element<toolkit::dropdownex<std::wstring>> captions_field_{10459};
  toolkit::groupbox_span<2, 4> params_{10455};
  toolkit::button_box buttons_{toolkit::button_box::ok | toolkit::button_box::cancel};
  toolkit::grid_layout<1, 4> root_;
};

}  // namespace zu::dialog
