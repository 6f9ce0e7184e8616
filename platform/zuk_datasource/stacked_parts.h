#pragma once
// A container whose parts lie on one another, such as the variables of a netCDF file, as one grid.

#include <string>
#include <vector>

class GDALDataset;

namespace zu::platform {

/// One dataset with a band for each part, named by the part; the caller closes it. Null unless all
/// parts have one band and the same size and place.
GDALDataset* stack_parts(const std::vector<std::string>& names);

}  // namespace zu::platform
