#pragma once
// The dialog that asks where the traces of a SEG-Y file lie.

#include <string>

#include "src/toolkit/buttons.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/inputs.h"
#include "zu/platform/zuk_file_segy.h"

namespace zu {
namespace dialog {

class segy_params : public toolkit::with_element {
 public:
  static constexpr wchar_t id[] = L"zu_segy_params_dialog";
  static constexpr std::int32_t caption = 350;

  explicit segy_params(std::wstring path);

  void fill(const Tzu_segy_prms* record);
  /// Estimates the record from what was set; false if the units are no number or nothing fits.
  bool take(Tzu_segy_prms* record);

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  toolkit::labeled_element<toolkit::output> file_{361};
  toolkit::labeled_element<toolkit::dropdownex<std::int32_t>> coord_source_{351};
  toolkit::labeled_element<toolkit::assisted_input> units_{357};
  toolkit::checkbox simplify_{359};
  toolkit::button_box buttons_{toolkit::button_box::ok | toolkit::button_box::cancel};
  toolkit::grid_layout<2, 4> fields_;
  toolkit::grid_layout<1, 3> root_;
};

}  // namespace dialog

/// Asks a person for the parameters of a file, beginning with those stored with it, and stores what
/// was chosen. False, and a message if nothing fits, where there are none.
bool choose_segy_params(const wchar_t* path, Tzu_segy_prms* record);

}  // namespace zu
