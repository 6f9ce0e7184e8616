#pragma once
// The records of vertex lists and sets of them.

#include <memory>
#include <optional>
#include <vector>

#include "zu/platform/zuk_prg.h"

struct Tzu_pv_d2 {
  std::vector<Tzu_vtx_d2> vertices;
};

struct Tzu_ov_d2 {
  std::vector<std::unique_ptr<Tzu_pv_d2>> lists;  // a list keeps its address while others are added
  std::optional<double> level;
};
