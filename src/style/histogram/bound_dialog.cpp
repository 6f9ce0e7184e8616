#include "src/style/histogram/bound_dialog.h"

#include <limits>

#include "src/bundle/dialogs.h"
#include "src/toolkit/buttons.h"
#include "src/toolkit/dialog.h"
#include "src/toolkit/labeled.h"
#include "src/toolkit/numbers.h"

namespace zu::element::detail {
namespace {

class bound_dialog : public toolkit::with_element {
 public:
  static constexpr std::int32_t caption = 13453;

  bound_dialog(double value, double low, double high) : value_(value) {
    constexpr std::uint32_t decimals = 6;
    current_.set_decimals(decimals);
    current_.assign(value);
    wanted_.set_decimals(decimals);
    wanted_.assign(value);
    wanted_.validate = [low, high](double v) { return v >= low && v <= high; };
    buttons_.on_accept = [this] {
      value_ = wanted_.value();
      return true;
    };
    fields_.place(wanted_).place(current_).set_column_stretch(1);
    root_.place(fields_).place(buttons_);
  }
  double value() const { return value_; }
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  double value_;
  toolkit::labeled_element<toolkit::floating_input> wanted_{13453};
  toolkit::labeled_element<toolkit::floating_output> current_{13454};
  toolkit::button_box buttons_{toolkit::button_box::default_ok | toolkit::button_box::cancel};
  toolkit::grid_layout<2, 2> fields_;
  toolkit::grid_layout<1, 2> root_;
};

}  // namespace

std::optional<double> ask_for_bound(const std::vector<double>& bounds, std::size_t index) {
  constexpr double all = std::numeric_limits<double>::max();
  double low = index > 0 ? bounds[index - 1] : -all;
  double high = index + 1 < bounds.size() ? bounds[index + 1] : all;
  bound_dialog content(bounds[index], low, high);
  toolkit::detail::dialog_docker<bound_dialog> docker(content);
  using runner = util::detail::modal_dialog_service_factory<dialog::nameless>;
  if (runner::run(handle_of<docker_impl>(docker)) == 0) return {};
  return content.value();
}

}  // namespace zu::element::detail
