#pragma once
// The distribution of a field's values as bars, with the boundaries of a range scale to be dragged.

#include <string>
#include <vector>

#include "src/bundle/owned.h"
#include "src/data/generic_datasource.h"
#include "src/style/histogram/histogramm_mode.h"
#include "src/style/histogram/histogramm_tools.h"
#include "src/viewer/viewer2d.h"
#include "zu/platform/zuk_plot_lr2d.h"
#include "zu/platform/zuk_stat.h"

namespace zu::element::detail {

class histogramm_viewer : public viewer2d {
 public:
  /// What the mode may show and catch.
  struct display_flags {
    bool bars = false, bounds = false, handles = true, texts = true;
  };

  histogramm_viewer();
  ~histogramm_viewer() override;

  /// Whose values the tool counts; the histogram on show stays.
  void set_source(const data::open_reference& source, const std::wstring& field);
  /// Where the histogram is kept, not owned; null takes it away. One that is there shows at once.
  void set_stat(Tzu_stat* stat);
  /// Counts the values, unless the statistics hold a histogram already. Nothing shows if the source
  /// does not open or has no such field.
  void make_histogramm();

  /// Boundaries and colours on show; copied. No handler runs.
  void assign(const Tzu_rng_scale* scale);
  /// Whether the tool shows that splits the range into equal classes.
  void offer_count(bool offered) { toolbar_.tools().bounds_count.set_visible(offered); }
  /// What is on show, with what a person changed. Owned by this.
  Tzu_rng_scale* scale() const;

  /// The ends of all classes in their order: one more than classes, or none.
  std::vector<double> bounds() const;
  /// Moves a boundary of a person's, no further than its neighbours.
  void set_bound(std::size_t index, double value);
  /// Divides what lies between the outer boundaries into so many equal classes.
  void set_count(std::int32_t count);
  display_flags display() const;

  /// A person has changed the boundaries.
  std::function<void()> on_change;

  handle element() override { return handle_of<grid_layout_impl>(layout_); }

 private:
  void prepare_scene();
  void show_bounds();
  void changed_by_person();

  data::open_reference source_;
  std::wstring field_;
  Tzu_stat* stat_ = nullptr;
  owned<zu_lr2d_destroy> bars_{zu_lr2d_create(ZU_PLOT_HISTOGRAM_LR2D)};
  owned<zu_lr2d_destroy> lines_{zu_lr2d_create(ZU_PLOT_LINE_LR2D)};
  histogramm_mode mode_{*this};
  toolkit::toolbar<histogramm_tools> toolbar_;
  toolkit::grid_layout<1, 2> layout_;
};

}  // namespace zu::element::detail
