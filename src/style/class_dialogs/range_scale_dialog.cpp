#include "src/style/class_dialogs/range_scale_dialog.h"

#include <algorithm>

#include "src/data/grid_datasource.h"
#include "src/style/class_dialogs/color_run.h"
#include "src/style/classes/field_sample.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/toolkit/dialog.h"
#include "zu/platform/zuk_msgs.h"

namespace zu {
namespace dialog {
namespace {

constexpr std::int32_t no_statistic_text = 10439, statistic_text = 10440;
constexpr std::uint32_t decimals = 6;

/// Null if there is none. One may be made while the dialog is open.
const Tzu_histogramm_data* histogram_of(Tzu_stat* stat) {
  bool valid = false;
  const Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat, &valid);
  return valid ? histogram : nullptr;
}

}  // namespace

range_scale::range_scale(Tzu_rng_scale* scale, Tzu_stat* stat, const data::open_reference& source,
                         const std::wstring& field)
    : scale_(scale),
      stat_(stat),
      trial_(zu_stl_mngr_create("clr_mngr_style")),
      quantiles_(known_,
                 [this](Tzu_rng_scale* to, std::uint32_t count, style::class_limits limits,
                        std::int32_t digits) {
                   style::set_quantiles(
                       to, {histogram_of(stat_), count, limits.minimum, limits.maximum, digits});
                 }),
      natural_(known_,
               [this](Tzu_rng_scale* to, std::uint32_t count, style::class_limits limits,
                      std::int32_t digits) {
                 build_natural(to, {known_.field, count, limits.minimum, limits.maximum, digits});
               }),
      geometrical_(known_,
                   [](Tzu_rng_scale* to, std::uint32_t count, style::class_limits limits,
                      std::int32_t digits) {
                     style::set_geometrical(to, {count, limits.minimum, limits.maximum, digits});
                   }),
      preview_(source, field, stat) {
  known_.source = source, known_.field = field;
  read_statistics();
  offer_methods();
  for (style::detail::method_page* page : pages_) {
    page->load(scale_);
    page->on_change = [this] { show_preview(); };
    stack_.place(*page);
  }
  choose(zu_rng_scale_get_rng_type(scale_));
  method_.assign_value(type_);
  method_.on_change = [this](std::int32_t type) { choose(type); };
  preview_.on_change = [this](const Tzu_rng_scale* dragged) { take_dragged(dragged); };
  buttons_.on_accept = [this] {
    build(scale_);
    return true;
  };
  information_.place(minimum_).place(maximum_).place(mean_).place(deviation_);
  information_.place(has_statistic_, 4);
  information_.cells().set_column_stretch(1).set_column_stretch(3);
  information_.cells().set_row_visible(2, !zu_stat_has_statistic(stat_));
  method_row_.place(method_).set_column_size(0, style::detail::label_width).set_column_stretch(1);
  root_.place(information_).place(method_row_).place(stack_).place(preview_).place(buttons_);
  root_.set_row_stretch(3);
}

void range_scale::read_statistics() {
  auto known = [&](auto ask) {
    bool valid = false;
    double value = ask(stat_, &valid);
    return valid ? value : 0.0;
  };
  known_.minimum = known(&zu_stat_get_minimum), known_.maximum = known(&zu_stat_get_maximum);
  known_.mean = known(&zu_stat_get_average), known_.deviation = known(&zu_stat_get_stddev);
  auto show = [](toolkit::floating_output& output, double value) {
    output.set_decimals(decimals);
    output.assign(value);
  };
  show(minimum_, known_.minimum), show(maximum_, known_.maximum);
  show(mean_, known_.mean), show(deviation_, known_.deviation);
  has_statistic_.set_text(zu_stat_has_statistic(stat_) ? statistic_text : no_statistic_text);
}

void range_scale::offer_methods() {
  bool has_data = known_.source.opener != nullptr;
  method_.add(10417, 0, zu_range_equal);
  if (has_data) method_.add(10421, 0, zu_range_natural).add(10419, 0, zu_range_deviation);
  method_.add(10420, 0, zu_range_logarithmic).add(10422, 0, zu_range_geometrical);
  method_.add(10423, 0, zu_range_manual);
}

void range_scale::show(std::int32_t type) {
  bool known = type >= 0 && type < static_cast<std::int32_t>(methods);
  type_ = known ? type : static_cast<std::int32_t>(zu_range_equal);
  stack_.assign(static_cast<std::uint32_t>(type_));
  preview_.offer_count(type_ == zu_range_manual);  // the other pages have a number of their own
}

void range_scale::choose(std::int32_t type) {
  show(type);
  show_preview();
}

void range_scale::show_preview() {
  zu_rng_scale_assign(trial(), scale_);
  build(trial());
  preview_.assign(trial());
}

void range_scale::build(Tzu_rng_scale* to) {
  const style::detail::color_run colors(to);
  pages_[static_cast<std::size_t>(type_)]->build(to);
  colors.spread_over(to);
}

void range_scale::build_natural(Tzu_rng_scale* to, const style::natural_params& params) {
  auto [minimum, maximum] = std::minmax(params.minimum, params.maximum);
  if (!sampled_ || sampled_->minimum != minimum || sampled_->maximum != maximum) {
    sampled_.reset();
    if (!style::sample_field(known_.source, params.field, minimum, maximum, nullptr, sample_))
      return style::set_natural_breaks(to, data::open_reference(), params);  // rounds alone
    sampled_ = {minimum, maximum};
  }
  style::set_natural_breaks(to, sample_, params);
}

void range_scale::take_dragged(const Tzu_rng_scale* scale) {
  manual_.load_rows(scale);
  show(zu_range_manual);
  method_.assign_value(type_);
}

}  // namespace dialog

namespace style {

bool run_range_scale_dialog(Tzu_rng_scale* scale, Tzu_stat* stat,
                            const data::open_reference& source, const std::wstring& field) {
  if (scale == nullptr || stat == nullptr) return false;
  dialog::range_scale dialog(scale, stat, source, field);
  return toolkit::run_dialog(dialog);
}

bool run_range_scale_dialog(Tzu_rng_scale* scale, const data::open_reference& source,
                            const std::wstring& field) {
  if (scale == nullptr) return false;
  owned<zu_stat_destroy> stat(zu_stat_create());
  if (source.opener != nullptr) {
    data::grid_datasource grid;
    if (!grid.open(source, data::open_read_only)) return false;
    std::int64_t index = grid.find_field(field);
    if (index < 0) return false;
    owned<zu_progress_destroy> progress(zu_progress_create(1));
    if (!grid.knows_statistics(index)) grid.read_statistics(index, 0, progress.get());
    if (!zu_progress_get_stopped(progress.get())) {
      grid.fill_stat(stat.get(), index);
      grid.read_histogram(stat.get(), index, progress.get());
    }
    if (zu_progress_get_stopped(progress.get())) return false;
  }
  return run_range_scale_dialog(scale, stat.get(), source, field);
}

}  // namespace style
}  // namespace zu
