#pragma once
// Selection by pointing into a viewer: which cells of a grid lie under a point, in a box, in a
// polygon or along a line. It goes to the table of the scene's active layer or, if no layer is
// active, of the topmost visible layer that has a table; other layers keep theirs.
//
// Ids are those of the source's rows: (slice * ny + y) * nx + x. A cell is the square about its
// node. A shape is brought into the grid's own indexes: by the inverse of the grid's matrix and,
// under reprojection, vertex by vertex with as many vertices between as its curves need; what has
// no place there falls away. Edges of cells are straight in the system of the source.

#include "zu/platform/zuk_viewer2d.h"

/// What becomes of the selection that there was.
enum Tzu_select_operation { zu_select_replace = 0, zu_select_add = 1, zu_select_remove = 2 };
enum Tzu_select_shape {
  zu_select_line = 4,      ///< cells that the lines pass through or touch
  zu_select_inside = 5,    ///< cells that lie in the polygon with all their area
  zu_select_crossing = 6,  ///< cells that the polygon touches
};

// The scale (metres of the scene a metre of the window) is for things of a size on paper; cells
// have none.

/// The cell under a point, or, if `all` is not 0, the cells that the box about it touches. A point
/// on the edge of two cells is in the one of higher indexes.
ZU_API void zu_execute_viewer2d_select_vtx_set_scale_ex(Tzu_viewer2d* viewer, const Tzu_box_d2* box,
                                                        int32_t operation, const Tzu_vtx_d2* point,
                                                        int32_t all, double sx, double sy);
/// Cells that lie in the box with all their area.
ZU_API void zu_execute_viewer2d_select_box_set_scale(Tzu_viewer2d* viewer, const Tzu_box_d2* box,
                                                     int32_t operation, double sx, double sy);
/// Cells that the box touches.
ZU_API void zu_execute_viewer2d_select_box_cross_set_scale(Tzu_viewer2d* viewer,
                                                           const Tzu_box_d2* box, int32_t operation,
                                                           double sx, double sy);
/// Cells by `Tzu_select_shape`. The lists of a polygon are its rings, closed or not: what is in an
/// odd number of them is inside. A ring without area has no inside.
ZU_API void zu_execute_viewer2d_select_geom_set_scale(Tzu_viewer2d* viewer,
                                                      const Tzu_ov_d2* objects, int32_t operation,
                                                      int32_t shape, double sx, double sy);
