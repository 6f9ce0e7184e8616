#pragma once
// Modes that select what is in a box, at a point, in a polygon or along a line.

#include "src/bundle/owned.h"
#include "src/viewer/viewer2d_mode.h"

namespace zu::mode {
namespace detail {

/// The first modifier adds to the selection; the second turns "inside" and "crossing" round, and
/// lets a click take all that is near.
class select2d_mode : public drag2d_mode {
 public:
  explicit select2d_mode(std::int32_t remove, Tzu_viewer* viewer)
      : drag2d_mode(viewer), remove_(remove) {}
  /// Whether a box takes what crosses it, and not only what is inside.
  void set_cross(bool cross) { cross_ = cross ? 1 : 0; }

 private:
  void begin(point_2d point) override { start_ = current_ = point; }
  void go_on(point_2d point) override;
  void end(std::uint32_t flags, point_2d point) override;
  bool is_box() const;
  void select_point(std::int32_t operation, std::uint32_t flags, double sx, double sy) const;
  void select_box(std::int32_t operation, std::uint32_t flags, double sx, double sy) const;

  std::int32_t remove_, cross_ = 0;
};

/// Vertices, one by a press; the last but what closes the list hangs on the pointer. A double click
/// selects.
class vertex_select2d_mode : public viewer2d_mode {
 public:
  vertex_select2d_mode(std::int32_t remove, Tzu_viewer* viewer);
  void hover(std::uint32_t flags, point_2d point) override;
  void press(std::uint32_t flags, point_2d point) override;
  void double_click(std::uint32_t flags, point_2d point) override;

 protected:
  void add(point_2d point);
  std::uint64_t size() const { return zu_pv_d2_get_size(vertices_); }
  Tzu_vtx_d2& vertex(std::uint64_t index) { return zu_pv_d2_get_arr(vertices_)[index]; }
  const Tzu_ov_d2* objects() const { return objects_.get(); }

 private:
  virtual void add_vertex(point_2d point) = 0;
  /// Index of the vertex at the pointer; below 0 if there is none.
  virtual std::int64_t rubber_vertex() const = 0;
  virtual std::int32_t shape(std::uint32_t flags) const = 0;
  void abandon() override;

  owned<zu_ov_d2_destroy> objects_{zu_ov_d2_create()};
  Tzu_pv_d2* vertices_;  // in the objects
  std::int32_t remove_;
};

/// The ring ends in a copy of its first vertex.
class polygon_select2d_mode : public vertex_select2d_mode {
 public:
  explicit polygon_select2d_mode(std::int32_t remove = 0, Tzu_viewer* viewer = nullptr);
  void draw(Izu_render* render) override;

 private:
  void add_vertex(point_2d point) override;
  std::int64_t rubber_vertex() const override { return static_cast<std::int64_t>(size()) - 2; }
  std::int32_t shape(std::uint32_t flags) const override;

  owned<zu_pgn_style_destroy> style_{zu_pgn_style_create()};
};

class polyline_select2d_mode : public vertex_select2d_mode {
 public:
  explicit polyline_select2d_mode(std::int32_t remove = 0, Tzu_viewer* viewer = nullptr);
  void draw(Izu_render* render) override;

 private:
  void add_vertex(point_2d point) override;
  std::int64_t rubber_vertex() const override { return static_cast<std::int64_t>(size()) - 1; }
  std::int32_t shape(std::uint32_t flags) const override;

  owned<zu_pln_style_destroy> style_{zu_pln_style_create()};
};

}  // namespace detail

/// A selection in place of the former one, or added to it.
class select2d_append : public detail::select2d_mode {
 public:
  explicit select2d_append(Tzu_viewer* viewer = nullptr) : select2d_mode(0, viewer) {}
};

/// Takes what is selected out of the selection.
class select2d_remove : public detail::select2d_mode {
 public:
  explicit select2d_remove(Tzu_viewer* viewer = nullptr) : select2d_mode(1, viewer) {}
};

}  // namespace zu::mode
