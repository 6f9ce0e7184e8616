#pragma once
// Operations between coordinate systems, kept by their pair of texts: making one costs
// milliseconds.

#include <proj.h>

#include <memory>
#include <string>

#include "platform/zuk_prg/vertices.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu::platform {

struct proj_ended {
  void operator()(PJ* object) const { proj_destroy(object); }
};
using pj_ptr = std::unique_ptr<PJ, proj_ended>;

/// The thread's own context; it prints nothing.
PJ_CONTEXT* proj_context();
/// A coordinate system from "EPSG:n", a PROJ text or WKT; null, with the reason, if it is none.
pj_ptr coordinate_system(const std::wstring& text, std::string* reason = nullptr);

/// A way between two systems, x always east. `way` is null where none is needed or none leads.
struct operation {
  bool valid = false;
  pj_ptr way;
};
/// The one of the pair, made on first use; it belongs to the thread.
const operation& operation_between(const std::wstring& source, const std::wstring& target);

class reprojector {
 public:
  bool init(const std::wstring& source, const std::wstring& target);
  bool is_needed() const { return operation_ != nullptr && operation_->way != nullptr; }
  void use_affine(bool use) { use_affine_ = use; }
  void set_affine(const Tzu_matrix3x3& matrix);

  bool apply(std::vector<Tzu_vtx_d2>& vertices, bool forward) const;
  bool apply(Tzu_box_d2& box, bool forward) const;

 private:
  void project(std::vector<Tzu_vtx_d2>& vertices, bool forward) const;

  const operation* operation_ = nullptr;
  bool use_affine_ = false, affine_inverts_ = true;
  Tzu_matrix3x3 affine_{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  Tzu_matrix3x3 affine_back_{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
};

}  // namespace zu::platform
