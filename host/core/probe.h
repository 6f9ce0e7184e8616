#pragma once
// What lies at a point of a scene, as the information tool shows it.

#include <string>
#include <utility>
#include <vector>

#include "host/core/layer.h"

namespace zu::host {

struct object_info {
  std::string title;
  std::vector<std::pair<std::string, std::string>> values;  ///< name and value
};

/// What a layer has at a point of the scene: the cell whose area holds it. Empty if nothing is
/// there.
std::vector<object_info> probe(const bundle& services, const layer& asked, double x, double y);

}  // namespace zu::host
