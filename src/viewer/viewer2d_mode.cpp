#include "src/viewer/viewer2d_mode.h"

#include "src/bundle/bitmaps.h"

namespace zu::mode::detail {
namespace {

class cursor_picture final : public bitmap_impl {
 public:
  explicit cursor_picture(std::int32_t id) : id_(id) {}
  void pixels(bytes_visitor visitor) override { get_bitmap_of_basic(id_, visitor); }
  std::int32_t id() override { return id_; }

 private:
  std::int32_t id_;
};

}  // namespace

void visit_cursor(std::int32_t id, bitmap_visitor visitor) {
  cursor_picture picture(id);
  call<&bitmap_visitor_impl::visit>(visitor, handle_of<bitmap_impl>(picture));
}

void drag2d_mode::press(std::uint32_t flags, point_2d point) {
  if (viewer() == nullptr || (flags & pointer_left) == 0) return;
  dragging_ = true;
  begin(point);
}

void drag2d_mode::drag(std::uint32_t flags, point_2d point) {
  if (viewer() != nullptr && dragging_ && (flags & pointer_left) != 0) go_on(point);
}

// No flag tells which button went up.
void drag2d_mode::release(std::uint32_t flags, point_2d point) {
  if (viewer() == nullptr || !dragging_) return;
  dragging_ = false;
  end(flags, point);
}

void drag2d_mode::abandon() {
  if (dragging_) zu_viewer2d_draw_xor_box(viewer(), nullptr);
  dragging_ = false;
}

void drag2d_mode::draw_rubber_box() {
  auto x = [&](const point_2d& p) {
    return static_cast<std::int32_t>(zu_viewer2d_cr2px_x(viewer(), p.x));
  };
  auto y = [&](const point_2d& p) {
    return static_cast<std::int32_t>(zu_viewer2d_cr2px_y(viewer(), p.y));
  };
  Tzu_box_i2 box;
  zu_box_i2_make_xy(&box, x(start_), y(start_), x(current_), y(current_));
  zu_viewer2d_draw_xor_box(viewer(), &box);
}

}  // namespace zu::mode::detail
