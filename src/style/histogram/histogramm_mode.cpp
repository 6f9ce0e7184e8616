#include "src/style/histogram/histogramm_mode.h"

#include <algorithm>
#include <cmath>

#include "src/bundle/strings.h"
#include "src/style/histogram/bound_dialog.h"
#include "src/style/histogram/histogramm_viewer.h"
#include "src/viewer/viewer2d_mode.h"

namespace zu::element::detail {
namespace {

constexpr double reach_mm = 5.0;

std::wstring label_of(const Tzu_rng_scale* scale, double value) {
  return text_of([&](Tzu_string_adp* adapter) {
    zu_round_digits_format_number(zu_rng_scale_get_round_digits(scale), value, adapter);
  });
}

}  // namespace

void histogramm_mode::cursor(bitmap_visitor visitor) {
  constexpr std::int32_t along_x = 109;
  if (cursor_kind_ != nothing) mode::detail::visit_cursor(along_x, visitor);
}

std::vector<std::size_t> histogramm_mode::hit_bounds(double x) const {
  double reach = zu_viewer2d_size_mm2cr_x(viewer_, reach_mm);
  std::vector<std::size_t> hit;
  std::vector<double> bounds = owner_.bounds();
  for (std::size_t i = 0; i < bounds.size(); ++i)
    if (std::fabs(bounds[i] - x) <= reach) hit.push_back(i);
  return hit;
}

std::int32_t histogramm_mode::kind_of(const std::vector<std::size_t>& hit) const {
  if (hit.empty()) return nothing;
  std::size_t last = owner_.bounds().size() - 1;
  bool inner = std::any_of(hit.begin(), hit.end(), [&](auto i) { return i != 0 && i != last; });
  if (inner) return boundary;
  return hit.front() == 0 ? lower_end : upper_end;
}

std::int64_t histogramm_mode::hit_text(point_2d point) const {
  std::int64_t at = zu_boxes_d2_includes(labels_.get(), zu_viewer2d_cr2mm_x(viewer_, point.x),
                                         zu_viewer2d_cr2mm_y(viewer_, point.y), 0);
  return at < 0 ? -1 : static_cast<std::int64_t>(shown_[static_cast<std::size_t>(at)]);
}

void histogramm_mode::set_kind(std::int32_t kind) {
  if (kind == cursor_kind_) return;
  cursor_kind_ = kind;
  tell_redraw();
}

void histogramm_mode::hover(std::uint32_t /*flags*/, point_2d point) {
  if (viewer_ == nullptr) return;
  histogramm_viewer::display_flags shown = owner_.display();
  if (shown.bars && shown.bounds && shown.handles) {
    std::int32_t kind = kind_of(hit_bounds(point.x));
    if (kind != nothing) return set_kind(kind);
  }
  hit_.clear();
  if (std::int64_t text = shown.texts ? hit_text(point) : -1; text >= 0)
    hit_.push_back(static_cast<std::size_t>(text));
  set_kind(nothing);
}

void histogramm_mode::press(std::uint32_t flags, point_2d point) {
  if (viewer_ == nullptr || (flags & pointer_left) == 0) return;
  histogramm_viewer::display_flags shown = owner_.display();
  bool catches = shown.bars && shown.bounds && shown.handles;
  hit_ = catches ? hit_bounds(point.x) : std::vector<std::size_t>();
  cursor_kind_ = kind_of(hit_);
  dragging_ = cursor_kind_ != nothing;
  dragged_ = -1;
  press_point_ = point;
}

/// Which of the boundaries under the pointer goes along: towards the right the next one, towards
/// the left the one before, so that none has to pass a neighbour.
void histogramm_mode::choose_bound(double x) {
  std::vector<double> bounds = owner_.bounds();
  hit_.erase(std::remove_if(hit_.begin(), hit_.end(), [&](auto i) { return i >= bounds.size(); }),
             hit_.end());
  if (hit_.empty()) return;
  if (x > press_point_.x) {
    auto next =
        std::find_if(hit_.begin(), hit_.end(), [&](auto i) { return bounds[i] >= press_point_.x; });
    std::size_t chosen = next != hit_.end() ? *next : hit_.back();
    for (std::size_t i : hit_)  // of equal ones the last is free to go
      if (i > chosen && bounds[i] == bounds[chosen]) chosen = i;
    dragged_ = static_cast<std::int64_t>(chosen);
  } else {
    auto before = std::find_if(hit_.rbegin(), hit_.rend(),
                               [&](auto i) { return bounds[i] <= press_point_.x; });
    std::size_t chosen = before != hit_.rend() ? *before : hit_.front();
    for (std::size_t i : hit_)
      if (bounds[i] == bounds[chosen]) chosen = std::min(chosen, i);
    dragged_ = static_cast<std::int64_t>(chosen);
  }
}

void histogramm_mode::drag(std::uint32_t flags, point_2d point) {
  if (viewer_ == nullptr || !dragging_ || (flags & pointer_left) == 0) return;
  if (dragged_ < 0) {
    double least = zu_viewer2d_size_mm2cr_x(viewer_, reach_mm);
    if (std::fabs(point.x - press_point_.x) < least) return;
    choose_bound(point.x);
  }
  if (dragged_ >= 0) owner_.set_bound(static_cast<std::size_t>(dragged_), point.x);
}

void histogramm_mode::release(std::uint32_t /*flags*/, point_2d /*point*/) { abandon(); }

void histogramm_mode::abandon() {
  dragging_ = false;
  dragged_ = -1;
  hit_.clear();
}

void histogramm_mode::double_click(std::uint32_t /*flags*/, point_2d point) {
  if (viewer_ == nullptr || !owner_.display().texts) return;
  std::int64_t text = hit_text(point);
  std::vector<double> bounds = owner_.bounds();
  if (text < 0 || static_cast<std::size_t>(text) >= bounds.size()) return;
  auto index = static_cast<std::size_t>(text);
  abandon();
  if (auto value = ask_for_bound(bounds, index)) owner_.set_bound(index, *value);
}

void histogramm_mode::draw(Izu_render* render) {
  zu_boxes_d2_clear(labels_.get());
  shown_.clear();
  if (viewer_ == nullptr || !owner_.display().texts) return;
  constexpr double height = 2.6;
  constexpr Tzu_color paper{255, 255, 255, 40};
  owned<zu_text_data_destroy> text(zu_text_data_create());
  zu_text_data_set_height(text.get(), height);
  zu_text_data_set_background(text.get(), &paper);
  std::vector<double> bounds = owner_.bounds();
  for (std::size_t i = 0; i < bounds.size(); ++i) {
    zu_text_data_set_wtext(text.get(), label_of(owner_.scale(), bounds[i]).c_str());
    zu_text_data_set_place(text.get(), bounds[i], 1, zu_anchor_low_center);
    Tzu_box_d2 page{};
    if (!zu_text_data_get_box_mm(text.get(), render, &page)) continue;
    double half = (page.x1 - page.x0) / 2, high = page.y1 - page.y0;
    double x = zu_viewer2d_cr2mm_x(viewer_, bounds[i]), y = zu_viewer2d_cr2mm_y(viewer_, 1);
    Tzu_box_d2 box{x - half, y, x + half, y + high};
    if (zu_boxes_d2_crosses(labels_.get(), &box, 0) >= 0) continue;
    zu_boxes_d2_add(labels_.get(), &box);
    shown_.push_back(i);
    zu_text_data_draw(text.get(), render);
  }
}

}  // namespace zu::element::detail
