#include "platform/zuk_datasource/georeference.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include <cpl_conv.h>
#include <cpl_minixml.h>
#include <cpl_string.h>
#include <gdal_priv.h>

namespace zu::platform {

namespace {

bool is_usable(const double (&g)[6]) {
  for (double number : g)
    if (!std::isfinite(number)) return false;
  return g[1] * g[5] - g[2] * g[4] != 0;
}

std::string wkt_of(const OGRSpatialReference* system) {
  char* text = nullptr;
  if (system == nullptr) return "";
  const char* const options[] = {"FORMAT=WKT2", nullptr};
  if (system->exportToWkt(&text) != OGRERR_NONE || text == nullptr || *text == 0) {
    CPLFree(text);
    text = nullptr;
    if (system->exportToWkt(&text, options) != OGRERR_NONE) return CPLFree(text), "";
  }
  std::string out = text;
  CPLFree(text);
  return out;
}

georeference_kind find_geotransform(GDALDataset& dataset, double (&g)[6], std::string& wkt) {
  if (dataset.GetGeoTransform(g) == CE_None && is_usable(g)) {
    wkt = wkt_of(dataset.GetSpatialRef());
    return georeference_kind::geotransform;
  }
  int points = dataset.GetGCPCount();
  if (points > 0 && GDALGCPsToGeoTransform(points, dataset.GetGCPs(), g, TRUE) && is_usable(g)) {
    wkt = wkt_of(dataset.GetGCPSpatialRef());
    return georeference_kind::control_points;
  }
  const double pixels[6] = {0, 1, 0, static_cast<double>(dataset.GetRasterYSize()), 0, -1};
  std::copy(pixels, pixels + 6, g);
  wkt = wkt_of(dataset.GetSpatialRef());
  return georeference_kind::none;
}

bool holds_geotransform(const char* aux_file) {
  CPLXMLTreeCloser tree(CPLParseXMLFile(aux_file));
  return tree.get() != nullptr && (CPLSearchXMLNode(tree.get(), "GeoTransform") != nullptr ||
                                   CPLSearchXMLNode(tree.get(), "GCPList") != nullptr);
}

/// World files end in a w ("tfw", "wld"), after which GDAL lists one only if it took it.
bool places_its_neighbour(const char* file) {
  std::string ending = CPLGetExtension(file);
  for (char& c : ending) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return ending == "wld" || ending == "tab" || ending == "hdr" ||
         (ending.size() >= 3 && ending.size() <= 5 && ending.back() == 'w');
}

}  // namespace

std::string georeference_file_of(GDALDataset& dataset) {
  char** files = dataset.GetFileList();
  std::string found = dataset.GetDescription();
  for (int i = 1; i < CSLCount(files); ++i)
    if (places_its_neighbour(files[i])) found = files[i];
  // What was said later, beside the file, holds before what the file and its neighbours say.
  for (int i = 1; i < CSLCount(files); ++i)
    if (EQUAL(CPLGetExtension(files[i]), "xml") && holds_geotransform(files[i])) found = files[i];
  CSLDestroy(files);
  return found;
}

georeference georeference_of(GDALDataset& dataset) {
  georeference out;
  double g[6] = {};
  out.kind = find_geotransform(dataset, g, out.wkt);
  out.rows_run_south = g[5] < 0;
  double rows = dataset.GetRasterYSize(), columns = dataset.GetRasterXSize();
  double first = out.rows_run_south ? rows - 0.5 : 0.5, down = out.rows_run_south ? -1 : 1;
  out.matrix = {g[1], down * g[2], g[0] + 0.5 * g[1] + first * g[2],
                g[4], down * g[5], g[3] + 0.5 * g[4] + first * g[5],
                0,    0,           1};
  double x[4], y[4];
  for (int corner = 0; corner < 4; ++corner) {
    double px = corner & 1 ? columns : 0, py = corner & 2 ? rows : 0;
    x[corner] = g[0] + px * g[1] + py * g[2];
    y[corner] = g[3] + px * g[4] + py * g[5];
  }
  out.box = {*std::min_element(x, x + 4), *std::min_element(y, y + 4), *std::max_element(x, x + 4),
             *std::max_element(y, y + 4)};
  return out;
}

std::array<double, 6> geotransform_of(const std::array<double, 9>& m, bool rows_run_south,
                                      int rows) {
  double down = rows_run_south ? -1 : 1, first = rows_run_south ? rows - 0.5 : 0.5;
  double g2 = down * m[1], g5 = down * m[4];
  return {m[2] - 0.5 * m[0] - first * g2, m[0], g2, m[5] - 0.5 * m[3] - first * g5, m[3], g5};
}

}  // namespace zu::platform
