#pragma once
// Where a dataset lies: the matrix from grid indexes, with rows from the south.

#include <array>
#include <string>

class GDALDataset;

namespace zu::platform {

enum class georeference_kind { none, geotransform, control_points };

struct georeference {
  georeference_kind kind = georeference_kind::none;
  bool rows_run_south = true;      ///< in the file; its last row is then presented first
  std::array<double, 9> matrix{};  ///< row-major; index (0, 0) maps to the middle of its cell
  std::array<double, 4> box{};     ///< outer edge of the cells: x0, y0, x1, y1, ordered
  std::string wkt;                 ///< coordinate system; empty if none
};

/// A dataset without a place gets pixel coordinates: x to the right, y up, from 0.
georeference georeference_of(GDALDataset& dataset);

/// The file that the place of a placed dataset was read from: the dataset's own, or one beside it
/// (a world file, an .aux.xml, a header).
std::string georeference_file_of(GDALDataset& dataset);

/// The inverse of the above: six numbers of a geotransform from a matrix.
std::array<double, 6> geotransform_of(const std::array<double, 9>& matrix, bool rows_run_south,
                                      int rows);

}  // namespace zu::platform
