#pragma once
// Elements that are pictures.

#include <functional>

#include "src/toolkit/element.h"

namespace zu::toolkit {

/// A picture of its owner's; millimetres from the low left corner.
class canvas : public mixed<canvas_impl, with_hint, with_enabled> {
 public:
  using pointer_handler = std::function<void(std::uint32_t flags, point_2d)>;

  explicit canvas(double width = 0, double height = 0) : width_(width), height_(height) {}
  void set_extent(double width, double height) {
    bool changed = replace(width_, width);
    if (replace(height_, height) || changed) redraw();
  }

  double width() override { return width_; }
  double height() override { return height_; }
  void draw(Tzu_drwc* page) override {
    if (on_draw) on_draw(page);
  }
  void hover(std::uint32_t flags, point_2d at) override { tell(on_hover, flags, at); }
  void press(std::uint32_t flags, point_2d at) override { tell(on_press, flags, at); }
  void drag(std::uint32_t flags, point_2d at) override { tell(on_drag, flags, at); }
  void release(std::uint32_t flags, point_2d at) override { tell(on_release, flags, at); }
  void double_click(std::uint32_t flags, point_2d at) override { tell(on_double_click, flags, at); }

  std::function<void(Tzu_drwc*)> on_draw;
  pointer_handler on_hover, on_press, on_drag, on_release, on_double_click;

 private:
  static void tell(const pointer_handler& handler, std::uint32_t flags, point_2d at) {
    if (handler) handler(flags, at);
  }

  double width_, height_;
};

/// Bars with two limits that a person drags.
class histogram : public element_base<histogram_impl> {
 public:
  /// Not owned; null is none. The same ones again are told too: their numbers may be others.
  void set_bins(const Tzu_histogramm_data* bins) {
    bins_ = bins;
    tell_list();
  }
  void set_show(std::int32_t show) {
    if (replace(show_, show)) redraw();
  }
  void assign(double minimum, double maximum) {
    bool changed = replace(minimum_, minimum);
    if (replace(maximum_, maximum) || changed) tell_value();
  }

  std::int32_t show() override { return show_; }
  void visit_histogram(histogram_data_visitor visitor) override {
    if (bins_ != nullptr) call<&histogram_data_visitor_impl::visit>(visitor, bins_);
  }
  double minimum() override { return minimum_; }
  double maximum() override { return maximum_; }
  void set_range(double minimum, double maximum) override {
    minimum_ = minimum, maximum_ = maximum;
    if (on_range) on_range(minimum, maximum);
  }

  std::function<void(double minimum, double maximum)> on_range;

 private:
  const Tzu_histogramm_data* bins_ = nullptr;
  double minimum_ = 0, maximum_ = 1;
  std::int32_t show_ = 1;
};

}  // namespace zu::toolkit
