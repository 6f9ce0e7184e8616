#include "platform/zuk_proj4_d2/reprojector.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "platform/zuk_basic/utf8.h"

namespace zu::platform {
namespace {

/// Points along each edge of a box, besides its corner.
constexpr int edge_points = 21;

struct context_ended {
  void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
};

/// What one thread keeps; the operations go before their context.
struct thread_store {
  std::unique_ptr<PJ_CONTEXT, context_ended> context{proj_context_create()};
  std::map<std::pair<std::wstring, std::wstring>, operation> operations;
};

thread_store& store() {
  thread_local thread_store kept;
  return kept;
}

operation make_operation(const std::wstring& source, const std::wstring& target) {
  operation made;
  if (source.empty() || target.empty()) return made;
  pj_ptr from = coordinate_system(source), to = coordinate_system(target);
  if (!from || !to) return made;
  made.valid = true;
  if (source == target ||
      proj_is_equivalent_to_with_ctx(proj_context(), from.get(), to.get(),
                                     PJ_COMP_EQUIVALENT_EXCEPT_AXIS_ORDER_GEOGCRS) != 0)
    return made;
  pj_ptr way(
      proj_create_crs_to_crs_from_pj(proj_context(), from.get(), to.get(), nullptr, nullptr));
  if (way) made.way.reset(proj_normalize_for_visualization(proj_context(), way.get()));
  made.valid = made.way != nullptr;
  return made;
}

bool is_finite(const Tzu_vtx_d2& vertex) {
  return std::isfinite(vertex.x) && std::isfinite(vertex.y);
}

void apply_matrix(std::vector<Tzu_vtx_d2>& vertices, const Tzu_matrix3x3& matrix) {
  for (Tzu_vtx_d2& vertex : vertices)
    if (is_finite(vertex)) zu_vtx_d2_apply_matrix3x3(&vertex, &matrix);
}

}  // namespace

PJ_CONTEXT* proj_context() {
  PJ_CONTEXT* context = store().context.get();
  proj_log_level(context, PJ_LOG_NONE);
  return context;
}

pj_ptr coordinate_system(const std::wstring& text, std::string* reason) {
  std::string narrow = to_utf8(text);
  // A PROJ text without its type would be an operation, not a system.
  if (narrow.find("+proj=") != std::string::npos && narrow.find("type=crs") == std::string::npos)
    narrow += " +type=crs";
  pj_ptr made(proj_create(proj_context(), narrow.c_str()));
  if (!made) {
    int error = proj_context_errno(proj_context());
    if (reason != nullptr) *reason = proj_context_errno_string(proj_context(), error);
  } else if (proj_is_crs(made.get()) == 0) {
    made.reset();
    if (reason != nullptr) *reason = "it is no coordinate system";
  }
  return made;
}

const operation& operation_between(const std::wstring& source, const std::wstring& target) {
  auto key = std::make_pair(source, target);
  auto found = store().operations.find(key);
  if (found == store().operations.end())
    found = store().operations.emplace(std::move(key), make_operation(source, target)).first;
  return found->second;
}

bool reprojector::init(const std::wstring& source, const std::wstring& target) {
  operation_ = &operation_between(source, target);
  return operation_->valid;
}

void reprojector::set_affine(const Tzu_matrix3x3& matrix) {
  affine_ = affine_back_ = matrix;
  affine_inverts_ = zu_matrix3x3_invert_inplace(&affine_back_);
}

void reprojector::project(std::vector<Tzu_vtx_d2>& vertices, bool forward) const {
  if (!is_needed() || vertices.empty()) return;
  proj_errno_reset(operation_->way.get());
  std::size_t stride = sizeof(Tzu_vtx_d2), count = vertices.size();
  proj_trans_generic(operation_->way.get(), forward ? PJ_FWD : PJ_INV, &vertices[0].x, stride,
                     count, &vertices[0].y, stride, count, nullptr, 0, 0, nullptr, 0, 0);
  for (Tzu_vtx_d2& vertex : vertices)
    if (!is_finite(vertex)) vertex = {HUGE_VAL, HUGE_VAL};
}

bool reprojector::apply(std::vector<Tzu_vtx_d2>& vertices, bool forward) const {
  if (forward) project(vertices, true);
  if (use_affine_) {
    if (!forward && !affine_inverts_) return false;
    apply_matrix(vertices, forward ? affine_ : affine_back_);
  }
  if (!forward) project(vertices, false);
  return std::any_of(vertices.begin(), vertices.end(), is_finite);
}

bool reprojector::apply(Tzu_box_d2& box, bool forward) const {
  std::vector<Tzu_vtx_d2> edge;
  double width = box.x1 - box.x0, height = box.y1 - box.y0;
  for (int i = 0; i <= edge_points; ++i) {
    double share = static_cast<double>(i) / edge_points;
    double x = i == edge_points ? box.x1 : box.x0 + width * share;
    double y = i == edge_points ? box.y1 : box.y0 + height * share;
    edge.insert(edge.end(), {{x, box.y0}, {x, box.y1}, {box.x0, y}, {box.x1, y}});
  }
  if (!apply(edge, forward)) return false;
  edge.erase(std::remove_if(edge.begin(), edge.end(),
                            [](const Tzu_vtx_d2& vertex) { return !is_finite(vertex); }),
             edge.end());
  auto [low_x, high_x] = std::minmax_element(
      edge.begin(), edge.end(), [](const Tzu_vtx_d2& a, const Tzu_vtx_d2& b) { return a.x < b.x; });
  auto [low_y, high_y] = std::minmax_element(
      edge.begin(), edge.end(), [](const Tzu_vtx_d2& a, const Tzu_vtx_d2& b) { return a.y < b.y; });
  box = {low_x->x, low_y->y, high_x->x, high_y->y};
  return true;
}

}  // namespace zu::platform
