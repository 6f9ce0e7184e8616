#pragma once
// The dialog that makes class boundaries from the values of a field.

#include <array>
#include <optional>

#include "src/bundle/owned.h"
#include "src/style/class_dialogs/boundaries_preview.h"
#include "src/style/class_dialogs/manual_page.h"

namespace zu::dialog {

/// Works on a scale of a caller's, which it changes when the person accepts.
class range_scale : public toolkit::with_element {
 public:
  static constexpr wchar_t id[] = L"zu_common_plugin_range_scale_dialog";
  static constexpr std::int32_t caption = 10450;

  range_scale(Tzu_rng_scale* scale, Tzu_stat* stat, const data::open_reference& source,
              const std::wstring& field);

  handle element() override { return toolkit::handle_of_element(root_); }
  /// What the preview shows and OK would make of the scale. Owned by this.
  Tzu_rng_scale* trial() const { return zu_stl_mngr_get_rng_scale_ptr(trial_.get()); }

 private:
  static constexpr std::size_t methods = 7;

  void read_statistics();
  void offer_methods();
  void choose(std::int32_t type);
  void show(std::int32_t type);
  void show_preview();
  /// The classes of the page on show, in the colours that the scale has.
  void build(Tzu_rng_scale* to);
  void build_natural(Tzu_rng_scale* to, const style::natural_params& params);
  void take_dragged(const Tzu_rng_scale* scale);

  Tzu_rng_scale* scale_;
  Tzu_stat* stat_;
  style::detail::known_field known_;
  std::int32_t type_ = 0;
  owned<zu_stl_mngr_destroy> trial_;  // its scale shows what would be built
  // Of natural breaks, read when they are first asked for and again for other limits, so that what
  // shows is what will be built.
  std::optional<style::class_limits> sampled_;
  std::vector<double> sample_;

  toolkit::labeled_element<toolkit::floating_output> minimum_{10412}, maximum_{10413}, mean_{10414},
      deviation_{10415};
  toolkit::label has_statistic_;
  toolkit::groupbox_span<4, 3> information_{10411};
  toolkit::labeled_element<toolkit::dropdownex<std::int32_t>> method_{10416};
  style::detail::equal_page equal_{known_};
  style::detail::deviation_page by_deviation_{known_};
  style::detail::logarithmic_page logarithmic_{known_};
  style::detail::limits_page quantiles_, natural_, geometrical_;
  style::detail::manual_page manual_{known_};
  std::array<style::detail::method_page*, methods> pages_{
      &equal_, &by_deviation_, &logarithmic_, &quantiles_, &natural_, &geometrical_, &manual_};
  toolkit::stack_layout<methods> stack_;
  style::detail::boundaries_preview preview_;
  toolkit::button_box buttons_{toolkit::button_box::ok | toolkit::button_box::cancel};
  toolkit::grid_layout<2, 1> method_row_;
  toolkit::grid_layout<1, 5> root_;
};

}  // namespace zu::dialog
