#include <algorithm>
#include <cmath>

#include "zu/platform/zuk_prg.h"

void zu_affine_2d_init_x0y0dxdy_angle(Tzu_affine_2d* out, double x0, double y0, double dx,
                                      double dy, double angle) {
  *out = {x0, y0, dx, dy, angle};
}

bool zu_affine_2d_is_identity(const Tzu_affine_2d* affine) {
  return affine->x0 == 0.0 && affine->y0 == 0.0 && affine->dx == 1.0 && affine->dy == 1.0 &&
         affine->angle == 0.0;
}

double zu_grd2rad(double degrees) { return degrees * (std::acos(-1.0) / 180.0); }

void zu_matrix3x3_init_affine(Tzu_matrix3x3* out, const Tzu_affine_2d* affine) {
  double c = std::cos(affine->angle), s = std::sin(affine->angle);
  *out = {{{affine->dx * c, -affine->dy * s, affine->x0},
           {affine->dx * s, affine->dy * c, affine->y0},
           {0, 0, 1}}};
}

void zu_matrix3x3_init_single(Tzu_matrix3x3* out) { *out = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}; }

void zu_matrix3x3_init_rotate_center(Tzu_matrix3x3* out, double x, double y, double radians) {
  double c = std::cos(radians), s = std::sin(radians);
  *out = {{{c, -s, x - c * x + s * y}, {s, c, y - s * x - c * y}, {0, 0, 1}}};
}

void zu_matrix3x3_init_box2box(Tzu_matrix3x3* out, const Tzu_box_d2* from, const Tzu_box_d2* to) {
  double width = from->x1 - from->x0, height = from->y1 - from->y0;
  double sx = width != 0.0 ? (to->x1 - to->x0) / width : 0.0;
  double sy = height != 0.0 ? (to->y1 - to->y0) / height : 0.0;
  *out = {{{sx, 0, to->x0 - from->x0 * sx}, {0, sy, to->y0 - from->y0 * sy}, {0, 0, 1}}};
}

void zu_matrix3x3_mult(Tzu_matrix3x3* out, const Tzu_matrix3x3* a, const Tzu_matrix3x3* b) {
  Tzu_matrix3x3 product;
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j)
      product.m[i][j] = a->m[i][0] * b->m[0][j] + a->m[i][1] * b->m[1][j] + a->m[i][2] * b->m[2][j];
  *out = product;
}

double zu_matrix3x3_determinant(const Tzu_matrix3x3* matrix) {
  const double(&m)[3][3] = matrix->m;
  return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
         m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
         m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

bool zu_matrix3x3_invert_inplace(Tzu_matrix3x3* matrix) {
  double determinant = zu_matrix3x3_determinant(matrix);
  if (determinant == 0.0 || !std::isfinite(determinant)) return false;
  const double(&m)[3][3] = matrix->m;
  auto cofactor = [&](int a, int b, int c, int d) {
    return (m[a / 3][a % 3] * m[b / 3][b % 3] - m[c / 3][c % 3] * m[d / 3][d % 3]) / determinant;
  };
  // Indexes of m counted row by row.
  Tzu_matrix3x3 inverse = {{{cofactor(4, 8, 5, 7), cofactor(2, 7, 1, 8), cofactor(1, 5, 2, 4)},
                            {cofactor(5, 6, 3, 8), cofactor(0, 8, 2, 6), cofactor(2, 3, 0, 5)},
                            {cofactor(3, 7, 4, 6), cofactor(1, 6, 0, 7), cofactor(0, 4, 1, 3)}}};
  for (const auto& row : inverse.m)
    for (double term : row)
      if (!std::isfinite(term)) return false;
  *matrix = inverse;
  return true;
}

void zu_matrix4x4_init_matrix3x3(Tzu_matrix4x4* out, const Tzu_matrix3x3* matrix) {
  const double(&m)[3][3] = matrix->m;
  *out = {{{m[0][0], m[0][1], 0, m[0][2]},
           {m[1][0], m[1][1], 0, m[1][2]},
           {0, 0, 1, 0},
           {m[2][0], m[2][1], 0, m[2][2]}}};
}

void zu_vtx_d2_init_xy(Tzu_vtx_d2* out, double x, double y) { *out = {x, y}; }

void zu_vtx_d2_apply_matrix3x3(Tzu_vtx_d2* vertex, const Tzu_matrix3x3* matrix) {
  zu_xy_apply_matrix3x3(&vertex->x, &vertex->y, matrix);
}

void zu_box_d2_init_xy(Tzu_box_d2* out, double x0, double y0, double x1, double y1) {
  *out = {x0, y0, x1, y1};
}

void zu_box_d2_make_xy(Tzu_box_d2* out, double x0, double y0, double x1, double y1) {
  *out = {std::min(x0, x1), std::min(y0, y1), std::max(x0, x1), std::max(y0, y1)};
}

bool zu_box_d2_cross(const Tzu_box_d2* a, const Tzu_box_d2* b, Tzu_box_d2* out) {
  Tzu_box_d2 common{std::max(a->x0, b->x0), std::max(a->y0, b->y0), std::min(a->x1, b->x1),
                    std::min(a->y1, b->y1)};
  *out = common;
  return common.x0 < common.x1 && common.y0 < common.y1;
}

void zu_box_d2_inflate_cf(Tzu_box_d2* box, double part) {
  if (box == nullptr) return;
  double x = (box->x1 - box->x0) * part, y = (box->y1 - box->y0) * part;
  *box = {box->x0 - x, box->y0 - y, box->x1 + x, box->y1 + y};
}
double zu_halfway(double a, double b) { return a + (b - a) * 0.5; }
void zu_box_d2_apply_matrix3x3(Tzu_box_d2* box, const Tzu_matrix3x3* matrix) {
  double x[4] = {box->x0, box->x1, box->x0, box->x1};
  double y[4] = {box->y0, box->y0, box->y1, box->y1};
  for (int i = 0; i < 4; ++i) zu_xy_apply_matrix3x3(&x[i], &y[i], matrix);
  *box = {*std::min_element(x, x + 4), *std::min_element(y, y + 4), *std::max_element(x, x + 4),
          *std::max_element(y, y + 4)};
}

// Keeps the library's own copy of what the header defines.
[[gnu::used]] static const auto exported_apply = &zu_xy_apply_matrix3x3;
