#pragma once
// Plane geometry: matrices, boxes, vertices, polylines, polygons, the triangle mesh, and grids of
// doubles with their contours and shades.

#include "zu/platform/zuk_basic.h"

// --- Records

typedef struct Tzu_vtx_d2 {
  double x, y;
} Tzu_vtx_d2;

typedef struct Tzu_box_d2 {
  double x0, y0, x1, y1;
} Tzu_box_d2;

/// Row-major, applied to column vectors: x' = m[0][0] x + m[0][1] y + m[0][2].
typedef struct Tzu_matrix3x3 {
  double m[3][3];
} Tzu_matrix3x3;

typedef struct Tzu_matrix4x4 {
  double m[4][4];
} Tzu_matrix4x4;

/// Placement of a local system: origin, spacing and a turn.
typedef struct Tzu_affine_2d {
  double x0, y0, dx, dy;
  double angle;  ///< radians, counter-clockwise
} Tzu_affine_2d;

// --- Matrices

ZU_API void zu_affine_2d_init_x0y0dxdy_angle(Tzu_affine_2d* out, double x0, double y0, double dx,
                                             double dy, double angle);
/// Whether it moves nothing: origin 0, spacings 1 and no turn, exactly.
ZU_API bool zu_affine_2d_is_identity(const Tzu_affine_2d* affine);
ZU_API double zu_grd2rad(double degrees);  ///< degrees to radians
ZU_API void zu_matrix3x3_init_affine(Tzu_matrix3x3* out, const Tzu_affine_2d* affine);
ZU_API void zu_matrix3x3_init_single(Tzu_matrix3x3* out);  ///< the identity
/// A turn about the point (x, y), counter-clockwise.
ZU_API void zu_matrix3x3_init_rotate_center(Tzu_matrix3x3* out, double x, double y, double radians);
/// Maps box to box, corner to corner. A side of `from` without length maps to the low side of `to`.
ZU_API void zu_matrix3x3_init_box2box(Tzu_matrix3x3* out, const Tzu_box_d2* from,
                                      const Tzu_box_d2* to);
/// a after b: `a` is applied to the result of `b`. `out` may be one of them.
ZU_API void zu_matrix3x3_mult(Tzu_matrix3x3* out, const Tzu_matrix3x3* a, const Tzu_matrix3x3* b);
/// False, and nothing changed, if the matrix has no inverse.
ZU_API bool zu_matrix3x3_invert_inplace(Tzu_matrix3x3* matrix);
ZU_API double zu_matrix3x3_determinant(const Tzu_matrix3x3* matrix);
ZU_API void zu_matrix4x4_init_matrix3x3(Tzu_matrix4x4* out, const Tzu_matrix3x3* matrix);

#ifdef __cplusplus
/// Transforms one point in place. The last row of the matrix is taken as 0 0 1.
ZU_HOT void zu_xy_apply_matrix3x3(double* x, double* y, const Tzu_matrix3x3* matrix) {
  const double(&m)[3][3] = matrix->m;
  double px = *x, py = *y;
  *x = m[0][0] * px + m[0][1] * py + m[0][2];
  *y = m[1][0] * px + m[1][1] * py + m[1][2];
}
#else
ZU_API void zu_xy_apply_matrix3x3(double* x, double* y, const Tzu_matrix3x3* matrix);
#endif

// --- Vertices and boxes

ZU_API void zu_vtx_d2_init_xy(Tzu_vtx_d2* out, double x, double y);
ZU_API void zu_vtx_d2_apply_matrix3x3(Tzu_vtx_d2* vertex, const Tzu_matrix3x3* matrix);
/// Keeps the corners in the order of the arguments.
ZU_API void zu_box_d2_init_xy(Tzu_box_d2* out, double x0, double y0, double x1, double y1);
/// Orders them: x0 <= x1, y0 <= y1.
ZU_API void zu_box_d2_make_xy(Tzu_box_d2* out, double x0, double y0, double x1, double y1);
/// Intersection of ordered boxes; false when it is empty. Boxes that only touch have an
/// intersection without area, which is empty.
ZU_API bool zu_box_d2_cross(const Tzu_box_d2* a, const Tzu_box_d2* b, Tzu_box_d2* out);
/// Widens it by a part of its own size on every side: 0.02 makes a margin of a fiftieth.
ZU_API void zu_box_d2_inflate_cf(Tzu_box_d2* box, double part);
ZU_API double zu_halfway(double a, double b);  ///< the middle of two numbers
/// All four corners, ordered again.
ZU_API void zu_box_d2_apply_matrix3x3(Tzu_box_d2* box, const Tzu_matrix3x3* matrix);

// --- Vertex lists (pv) and sets of them (ov)

typedef struct Tzu_pv_d2 Tzu_pv_d2;
ZU_API Tzu_pv_d2* zu_pv_d2_create(void);
ZU_API void zu_pv_d2_destroy(Tzu_pv_d2* list);
ZU_API void zu_pv_d2_assign(Tzu_pv_d2* list, const Tzu_pv_d2* from);
ZU_API void zu_pv_d2_add_vtx(Tzu_pv_d2* list, const Tzu_vtx_d2* vertex);
ZU_API uint64_t zu_pv_d2_get_size(const Tzu_pv_d2* list);
/// The vertices, not owned, until the list changes.
ZU_API Tzu_vtx_d2* zu_pv_d2_get_arr(Tzu_pv_d2* list);
ZU_API void zu_pv_d2_clear(Tzu_pv_d2* list);
/// Takes out every vertex that stands at the place of the one before it.
ZU_API void zu_pv_d2_delete_double(Tzu_pv_d2* list);
/// A new list of some of the vertices, the first and the last among them, from whose line no vertex
/// is further off than `tolerance` (Douglas and Peucker 1973, Cartographica 10(2), p. 112). The
/// caller destroys it; null for null or out of memory.
ZU_API Tzu_pv_d2* zu_pv_d2_chord_simplify(const Tzu_pv_d2* list, double tolerance);
ZU_API void zu_pv_d2_apply_matrix3x3(Tzu_pv_d2* list, const Tzu_matrix3x3* matrix);

/// Polylines or polygon rings.
typedef struct Tzu_ov_d2 Tzu_ov_d2;
ZU_API Tzu_ov_d2* zu_ov_d2_create(void);
ZU_API void zu_ov_d2_destroy(Tzu_ov_d2* set);
ZU_API void zu_ov_d2_assign(Tzu_ov_d2* set, const Tzu_ov_d2* from);
ZU_API Tzu_pv_d2* zu_ov_d2_add(Tzu_ov_d2* set);  ///< adds an empty list and gives it
ZU_API void zu_ov_d2_clear(Tzu_ov_d2* set);      ///< its level is forgotten too
/// The value along all its lines, in the unit of the field traced, which may be drawn as a number.
ZU_API void zu_ov_d2_set_level(Tzu_ov_d2* set, double level);
ZU_API bool zu_ov_d2_get_level(const Tzu_ov_d2* set, double* level);    ///< false if there is none
ZU_API uint64_t zu_ov_d2_get_size(const Tzu_ov_d2* set);                ///< lists in the set
ZU_API Tzu_pv_d2* zu_ov_d2_get_pv_ptr(Tzu_ov_d2* set, uint64_t index);  ///< null if there is none
ZU_API void zu_ov_d2_apply_matrix3x3(Tzu_ov_d2* set, const Tzu_matrix3x3* matrix);

// --- Triangle mesh

/// A map from a regular lattice of source vertices to target vertices, linear in each triangle.
/// The head holds the run of pixels that the scan is in.
typedef struct Tzu_trimesh_d2 {
  double x, y;    ///< target point of the run's first pixel
  double dx, dy;  ///< target step of one pixel
  int64_t done;   ///< pixels of the run given so far
  int64_t count;  ///< pixels of the run
  bool covered;   ///< a triangle covers the run
} Tzu_trimesh_d2;

/// Both lists run over the same lattice, columns outermost, both rising; at least 2 by 2 vertices
/// with equal steps. A triangle with a target vertex that is not finite is missing. Null if the
/// lists are no lattice. The lists are copied.
ZU_API Tzu_trimesh_d2* zu_trimesh_d2_create(const Tzu_pv_d2* target, const Tzu_pv_d2* source);
ZU_API void zu_trimesh_d2_destroy(Tzu_trimesh_d2* mesh);
/// Starts a scan at source point (x, -y): the row is given negated.
ZU_API void zu_trimesh_d2_init(Tzu_trimesh_d2* mesh, double x, double y);
/// Goes to the next run of the row: sets the head with done 0 and count at least 1.
ZU_API void zu_trimesh_d2_next_run(Tzu_trimesh_d2* mesh);

#ifdef __cplusplus
/// Target point of the next pixel of the row, one source unit further each time; false, and the
/// outputs as they were, where no triangle covers it.
ZU_HOT bool zu_trimesh_d2_scan(Tzu_trimesh_d2* mesh, double* x, double* y) {
  if (mesh->done == mesh->count) zu_trimesh_d2_next_run(mesh);
  double step = static_cast<double>(mesh->done++);
  if (!mesh->covered) return false;
  *x = mesh->x + step * mesh->dx;
  *y = mesh->y + step * mesh->dy;
  return true;
}
#else
ZU_API bool zu_trimesh_d2_scan(Tzu_trimesh_d2* mesh, double* x, double* y);
#endif

// --- Double grids

/// Where the nodes of a grid lie: node (x, y) is at the origin plus x and y spacings, and all of it
/// is turned about the origin. A spacing may be negative: then rows or columns run the other way.
typedef struct Tzu_mgrid2d_topology {
  double x0, y0, dx, dy;
  double azimuth;  ///< degrees, counter-clockwise
} Tzu_mgrid2d_topology;

/// A grid of doubles in memory. A node without a value holds a quiet NaN.
typedef struct Tzu_mgrid2d {
  double* nodes;  ///< row by row; null until the grid is initialised
  uint64_t nx, ny;
} Tzu_mgrid2d;

ZU_API Tzu_mgrid2d* zu_dbl_mgrid2d_create(void);    ///< without nodes; null if out of memory
ZU_API void zu_mgrid2d_destroy(Tzu_mgrid2d* grid);  ///< null is ignored
/// Takes nx * ny nodes, whose values are undefined until they are set. False, and the grid has no
/// nodes, if a side is 0, a spacing is 0, a number of the topology is not finite, or there is no
/// memory.
ZU_API bool zu_mgrid2d_init(Tzu_mgrid2d* grid, uint64_t nx, uint64_t ny,
                            const Tzu_mgrid2d_topology* topology);
ZU_API uint64_t zu_mgrid2d_get_nx(const Tzu_mgrid2d* grid);  ///< 0 for null
ZU_API uint64_t zu_mgrid2d_get_ny(const Tzu_mgrid2d* grid);  ///< 0 for null
/// Least and largest finite value; false, and the outputs as they were, if no node has one.
ZU_API bool zu_mgrid2d_min_max(const Tzu_mgrid2d* grid, double* minimum, double* maximum);

#ifdef __cplusplus
/// Stores one node; x < nx and y < ny are the caller's duty.
ZU_HOT void zu_mgrid2d_set_dbl(Tzu_mgrid2d* grid, uint64_t x, uint64_t y, double value) {
  grid->nodes[y * grid->nx + x] = value;
}
/// Reads one node; x < nx and y < ny are the caller's duty.
ZU_HOT double zu_mgrid2d_get_dbl(const Tzu_mgrid2d* grid, uint64_t x, uint64_t y) {
  return grid->nodes[y * grid->nx + x];
}
#else
ZU_API void zu_mgrid2d_set_dbl(Tzu_mgrid2d* grid, uint64_t x, uint64_t y, double value);
ZU_API double zu_mgrid2d_get_dbl(const Tzu_mgrid2d* grid, uint64_t x, uint64_t y);
#endif

/// A list of polyline sets.
typedef struct Tzu_cv_d2 Tzu_cv_d2;
ZU_API Tzu_cv_d2* zu_cv_d2_create(void);                   ///< empty; null if out of memory
ZU_API void zu_cv_d2_destroy(Tzu_cv_d2* list);             ///< null is ignored
ZU_API uint64_t zu_cv_d2_get_size(const Tzu_cv_d2* list);  ///< 0 for null
ZU_API Tzu_ov_d2* zu_cv_d2_get_ov_ptr(Tzu_cv_d2* list, uint64_t index);  ///< null if there is none

/// Traces the lines of equal value between the nodes, in the coordinates of the topology. Set i of
/// the result holds the lines of level i and bears that level; it is empty if no line has it. A
/// closed line ends where it began. Lines go on, straight, for half a spacing beyond the outermost
/// nodes and beside nodes without a value, so that those of adjoining grids meet. Levels are finite
/// and rise; false, and an empty result, if they do not, if the grid has no nodes or more than
/// 32,767 in a direction, or if there is no memory.
ZU_API bool zu_mgrid2d_isolines(const Tzu_mgrid2d* grid, const Tzu_dbls* levels, Tzu_cv_d2* out);

/// How a grid is lit.
typedef struct Tzu_hillshade_params Tzu_hillshade_params;
/// z factor 1, sun at 45 degrees above the horizon and azimuth 315; null if out of memory.
ZU_API Tzu_hillshade_params* zu_hillshade_params_create(void);
ZU_API void zu_hillshade_params_destroy(Tzu_hillshade_params* params);  ///< null is ignored
/// Factor on the values, so that they have the unit of x and y.
ZU_API void zu_hillshade_params_set_z_factor(Tzu_hillshade_params* params, double factor);
/// Where the sun is: degrees above the horizon, and degrees clockwise from the y axis (the north of
/// a map), whichever way rows run.
ZU_API void zu_hillshade_params_set_sun(Tzu_hillshade_params* params, double altitude,
                                        double azimuth);
/// Light from 225, 270, 315 and 360 degrees together, each weighed by the squared sine of the angle
/// to the aspect of the slope (U.S. Geological Survey, Open-File Report 92-422); the azimuth of the
/// sun then has no effect.
ZU_API void zu_hillshade_params_set_multidirectional(Tzu_hillshade_params* params, bool use);

/// Shades of a grid's relief, 1 (in the dark) to 255 (facing the light), as a grid of the same size
/// and topology. The gradient (p, q) is Horn's (1981, Proc. IEEE 69(1), p. 14) times the z factor;
/// the shade is 1 + 254 * max(0, (sin h - cos h (q cos a - p sin a)) / sqrt(1 + p² + q²)) with the
/// sun at height h and azimuth a, where p falls to the east and q rises to the north. At the frame
/// the gradient is one-sided. A node without a value, and one with such a neighbour, has no shade.
/// False if the grid is not at least 2 by 2, a parameter is not finite, `out` is null or the grid
/// itself, or there is no memory.
ZU_API bool zu_mgrid2d_hillshade(const Tzu_mgrid2d* grid, const Tzu_hillshade_params* params,
                                 Tzu_mgrid2d* out);

// --- Lists of boxes

typedef struct Tzu_boxes_d2 Tzu_boxes_d2;
ZU_API Tzu_boxes_d2* zu_boxes_d2_create(void);  ///< empty; null if out of memory
ZU_API void zu_boxes_d2_destroy(Tzu_boxes_d2* list);
ZU_API void zu_boxes_d2_clear(Tzu_boxes_d2* list);
ZU_API bool zu_boxes_d2_add(Tzu_boxes_d2* list, const Tzu_box_d2* box);  ///< false: no memory
ZU_API uint64_t zu_boxes_d2_get_size(const Tzu_boxes_d2* list);
/// Number of the first box from `start` on that holds the point, its edges included; -1: none.
ZU_API int64_t zu_boxes_d2_includes(const Tzu_boxes_d2* list, double x, double y, uint64_t start);
/// The same for a box that shares area with the given one.
ZU_API int64_t zu_boxes_d2_crosses(const Tzu_boxes_d2* list, const Tzu_box_d2* box, uint64_t start);
