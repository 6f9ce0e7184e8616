#include "src/viewer/select2d_modes.h"

#include <cmath>

#include "zu/platform/zuk_render.h"
#include "zu/platform/zuk_select.h"

namespace zu::mode::detail {
namespace {

constexpr std::uint8_t red = 30, green = 110, blue = 220;  // of what is being drawn

std::int32_t operation_of(std::int32_t remove, std::uint32_t flags) {
  return remove != 0 ? 2 : static_cast<std::int32_t>(flags & pointer_modifier_0);
}
bool turns_round(std::uint32_t flags) { return (flags & pointer_modifier_1) != 0; }

}  // namespace

void select2d_mode::go_on(point_2d point) {
  current_ = point;
  draw_rubber_box();
}

void select2d_mode::end(std::uint32_t flags, point_2d point) {
  std::int32_t operation = operation_of(remove_, flags);
  double sx = 0, sy = 0;
  zu_viewer2d_get_scale(viewer(), &sx, &sy);
  current_ = point;
  if (is_box())
    select_box(operation, flags, sx, sy);
  else
    select_point(operation, flags, sx, sy);
  zu_viewer2d_draw_xor_box(viewer(), nullptr);
  tell_redraw();
}

bool select2d_mode::is_box() const {
  constexpr double click_pixels = 2.0;
  double t = zu_viewer2d_size_px2cr(viewer(), click_pixels);
  return std::fabs(current_.x - start_.x) > t || std::fabs(current_.y - start_.y) > t;
}

void select2d_mode::select_point(std::int32_t operation, std::uint32_t flags, double sx,
                                 double sy) const {
  double delta = zu_options_get_mm_delta();
  double dx = zu_viewer2d_mm2cr_x(viewer(), delta), dy = zu_viewer2d_mm2cr_y(viewer(), delta);
  Tzu_box_d2 near{current_.x - dx, current_.y - dy, current_.x + dx, current_.y + dy};
  Tzu_vtx_d2 at{current_.x, current_.y};
  zu_execute_viewer2d_select_vtx_set_scale_ex(viewer(), &near, operation, &at,
                                              turns_round(flags) ? 1 : 0, sx, sy);
}

void select2d_mode::select_box(std::int32_t operation, std::uint32_t flags, double sx,
                               double sy) const {
  Tzu_box_d2 box;
  zu_box_d2_make_xy(&box, start_.x, start_.y, current_.x, current_.y);
  bool cross = (cross_ != 0) != turns_round(flags);
  if (cross)
    zu_execute_viewer2d_select_box_cross_set_scale(viewer(), &box, operation, sx, sy);
  else
    zu_execute_viewer2d_select_box_set_scale(viewer(), &box, operation, sx, sy);
}

// --- Vertices

vertex_select2d_mode::vertex_select2d_mode(std::int32_t remove, Tzu_viewer* viewer)
    : viewer2d_mode(viewer), vertices_(zu_ov_d2_add(objects_.get())), remove_(remove) {}

void vertex_select2d_mode::add(point_2d point) {
  Tzu_vtx_d2 v{point.x, point.y};
  zu_pv_d2_add_vtx(vertices_, &v);
}

void vertex_select2d_mode::press(std::uint32_t flags, point_2d point) {
  if (viewer() == nullptr || (flags & pointer_left) == 0) return;
  add_vertex(point);
}

void vertex_select2d_mode::hover(std::uint32_t /*flags*/, point_2d point) {
  std::int64_t index = rubber_vertex();
  if (viewer() == nullptr || index < 0) return;
  vertex(static_cast<std::uint64_t>(index)) = {point.x, point.y};
  tell_redraw();
}

void vertex_select2d_mode::double_click(std::uint32_t flags, point_2d /*point*/) {
  if (viewer() == nullptr || size() == 0) return;
  zu_pv_d2_delete_double(vertices_);
  double sx = 0, sy = 0;
  zu_viewer2d_get_scale(viewer(), &sx, &sy);
  zu_execute_viewer2d_select_geom_set_scale(viewer(), objects(), operation_of(remove_, flags),
                                            shape(flags), sx, sy);
  zu_pv_d2_clear(vertices_);
  tell_redraw();
}

void vertex_select2d_mode::abandon() { zu_pv_d2_clear(vertices_); }

polygon_select2d_mode::polygon_select2d_mode(std::int32_t remove, Tzu_viewer* viewer)
    : vertex_select2d_mode(remove, viewer) {
  constexpr std::uint8_t light = 200, opaque = 0;
  zu_bpgn_style_set_color(zu_pgn_style_get_bpgn_style_ptr(style_.get()), {red, green, blue, light});
  zu_bpln_style_set_color(zu_pgn_style_get_bpln_style_ptr(style_.get()),
                          {red, green, blue, opaque});
}

void polygon_select2d_mode::add_vertex(point_2d point) {
  std::uint64_t n = size();
  if (n == 0) {
    for (int i = 0; i < 3; ++i) add(point);
    return;
  }
  vertex(n - 2) = vertex(n - 1) = {point.x, point.y};
  Tzu_vtx_d2 first = vertex(0);
  add({first.x, first.y});
}

std::int32_t polygon_select2d_mode::shape(std::uint32_t flags) const {
  return turns_round(flags) ? zu_select_crossing : zu_select_inside;
}

void polygon_select2d_mode::draw(Izu_render* render) {
  if (attached()) zu_render_cr_pgn(render, objects(), style_.get());
}

polyline_select2d_mode::polyline_select2d_mode(std::int32_t remove, Tzu_viewer* viewer)
    : vertex_select2d_mode(remove, viewer) {
  constexpr double width = 0.4;
  Tzu_bpln_style* line = zu_pln_style_get_bpln_style_ptr(style_.get());
  zu_bpln_style_set_color(line, {red, green, blue, 0});
  zu_bpln_style_set_width(line, width);
}

void polyline_select2d_mode::add_vertex(point_2d point) {
  if (size() == 0)
    add(point);
  else
    vertex(size() - 1) = {point.x, point.y};  // wherever the pointer was seen last
  add(point);
}

std::int32_t polyline_select2d_mode::shape(std::uint32_t /*flags*/) const { return zu_select_line; }

void polyline_select2d_mode::draw(Izu_render* render) {
  if (attached()) zu_render_cr_pln(render, objects(), style_.get());
}

}  // namespace zu::mode::detail
