#pragma once
// The legends that a project offers to scales: those of its layers that are styled by value.

#include <memory>

#include "zu/platform/zuk_style_libs.h"

namespace zu::host {

class project;

/// Makes the project the current one of the platform, for as long as it lives. Whoever asks for the
/// legends gets them as the layers are styled then.
class map_legends {
 public:
  /// The project outlives it.
  explicit map_legends(const project& of);

 private:
  struct destroyed {
    void operator()(Tzu_prj* project) const { zu_prj_destroy(project); }
  };
  std::unique_ptr<Tzu_prj, destroyed> offered_;
};

}  // namespace zu::host
