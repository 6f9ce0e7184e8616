// Lines of equal value, traced by GDAL's contour generator.

#include <gdal_alg.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <cmath>
#include <future>
#include <limits>
#include <memory>
#include <new>
#include <numbers>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_prg/double_grid.h"
#include "platform/zuk_prg/vertices.h"

struct Tzu_cv_d2 {
  std::vector<std::unique_ptr<Tzu_ov_d2>> sets;
};

namespace zu::platform {
namespace {

/// From the generator's coordinates, in which node (0, 0) is the middle of a cell, to the map.
Tzu_matrix3x3 cell_to_map(const Tzu_mgrid2d_topology& t) {
  Tzu_affine_2d affine{t.x0, t.y0, t.dx, t.dy, t.azimuth * std::numbers::pi / 180.0};
  Tzu_matrix3x3 to_map, to_node{{{1, 0, -0.5}, {0, 1, -0.5}, {0, 0, 1}}};
  zu_matrix3x3_init_affine(&to_map, &affine);
  zu_matrix3x3_mult(&to_map, &to_map, &to_node);
  return to_map;
}

/// What the generator writes to: takes each line into the set of its level.
class line_taker final : public OGRLayer {
 public:
  static constexpr int level_field = 0;

  /// The lines of a level go to the set at its place.
  line_taker(const std::vector<double>& levels, const std::vector<Tzu_ov_d2*>& sets,
             const Tzu_matrix3x3& to_map)
      : levels_(levels), sets_(sets), to_map_(to_map), schema_(new OGRFeatureDefn("lines")) {
    schema_->Reference();
    OGRFieldDefn level("level", OFTReal);
    schema_->AddFieldDefn(&level);
  }
  ~line_taker() override { schema_->Release(); }

  OGRErr ICreateFeature(OGRFeature* feature) override {
    const OGRGeometry* shape = feature->GetGeometryRef();
    if (shape == nullptr || wkbFlatten(shape->getGeometryType()) != wkbLineString)
      return OGRERR_UNSUPPORTED_GEOMETRY_TYPE;
    return guarded(this, OGRERR_NOT_ENOUGH_MEMORY, [&](line_taker& self) {
      self.take(*shape->toLineString(), feature->GetFieldAsDouble(level_field));
      return OGRERR_NONE;
    });
  }
  OGRFeatureDefn* GetLayerDefn() override { return schema_; }
  int TestCapability(const char* capability) override {
    return EQUAL(capability, OLCSequentialWrite);
  }
  void ResetReading() override {}
  OGRFeature* GetNextFeature() override { return nullptr; }

 private:
  void take(const OGRLineString& line, double value) {
    // The nearest level: on their way through a text the generator's own may lose their last bit.
    auto above = std::lower_bound(levels_.begin(), levels_.end(), value);
    if (above == levels_.end() || (above != levels_.begin() && value - above[-1] < *above - value))
      --above;
    Tzu_ov_d2& set = *sets_[static_cast<std::size_t>(above - levels_.begin())];
    auto list = std::make_unique<Tzu_pv_d2>();
    list->vertices.resize(static_cast<std::size_t>(line.getNumPoints()));
    for (int i = 0; i < line.getNumPoints(); ++i) {
      Tzu_vtx_d2& vertex = list->vertices[static_cast<std::size_t>(i)];
      vertex = {line.getX(i), line.getY(i)};
      zu_vtx_d2_apply_matrix3x3(&vertex, &to_map_);
    }
    set.lists.push_back(std::move(list));
  }

  const std::vector<double>& levels_;
  const std::vector<Tzu_ov_d2*>& sets_;
  const Tzu_matrix3x3 to_map_;
  OGRFeatureDefn* schema_;
};

/// The grid as a band; what is not finite becomes its NoData.
std::unique_ptr<GDALDataset> dataset_of(const Tzu_mgrid2d& grid) {
  constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int16_t>::max());
  if (grid.nx > most || grid.ny > most) return nullptr;
  GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("MEM");
  if (driver == nullptr) return nullptr;
  int nx = static_cast<int>(grid.nx), ny = static_cast<int>(grid.ny);
  std::unique_ptr<GDALDataset> made(driver->Create("", nx, ny, 1, GDT_Float64, nullptr));
  if (!made) return nullptr;
  double cells[6] = {0, 1, 0, 0, 0, 1};  // without one, rows would run downwards
  if (made->SetGeoTransform(cells) != CE_None) return nullptr;
  std::vector<double> values(grid.nodes, grid.nodes + grid.nx * grid.ny);
  for (double& value : values)
    if (!std::isfinite(value)) value = std::numeric_limits<double>::quiet_NaN();
  if (made->GetRasterBand(1)->RasterIO(GF_Write, 0, 0, nx, ny, values.data(), nx, ny, GDT_Float64,
                                       0, 0, nullptr) != CE_None)
    return nullptr;
  return made;
}

bool rising(const std::vector<double>& levels) {
  for (std::size_t i = 0; i < levels.size(); ++i)
    if (!std::isfinite(levels[i]) || (i > 0 && levels[i] <= levels[i - 1])) return false;
  return true;
}

/// Every `step`th level from `first` on, into the sets of those levels.
bool trace_some(const Tzu_mgrid2d& grid, const std::vector<double>& levels, std::size_t first,
                std::size_t step, Tzu_cv_d2& out) {
  CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);  // of this thread alone
  std::vector<double> some;
  std::vector<Tzu_ov_d2*> sets;
  for (std::size_t i = first; i < levels.size(); i += step) {
    some.push_back(levels[i]);
    sets.push_back(out.sets[i].get());
  }
  if (some.empty()) return true;
  std::vector<double> unconst = some;  // as the generator takes them
  std::unique_ptr<GDALDataset> dataset = dataset_of(grid);
  if (!dataset) return false;
  line_taker taker(some, sets, cell_to_map(whole(grid).topology));
  return GDALContourGenerate(dataset->GetRasterBand(1), 0.0, 0.0, static_cast<int>(some.size()),
                             unconst.data(), true, std::numeric_limits<double>::quiet_NaN(),
                             OGRLayer::ToHandle(&taker), -1, line_taker::level_field, nullptr,
                             nullptr) == CE_None;
}

/// Levels know nothing of each other, so that every second one can be traced beside the others.
bool trace(const Tzu_mgrid2d& grid, const std::vector<double>& levels, Tzu_cv_d2& out) {
  constexpr std::uint64_t worth_a_thread = 10'000;  // nodes
  // Once and for all, since it writes what all threads share.
  [[maybe_unused]] static const bool registered = (GDALAllRegister(), true);
  for (double level : levels) {
    out.sets.push_back(std::make_unique<Tzu_ov_d2>());
    out.sets.back()->level = level;
  }
  if (grid.nx * grid.ny < worth_a_thread) return trace_some(grid, levels, 0, 1, out);
  auto odd = std::async([&] { return trace_some(grid, levels, 1, 2, out); });
  bool even = trace_some(grid, levels, 0, 2, out);
  return odd.get() && even;
}

}  // namespace
}  // namespace zu::platform

using zu::platform::guarded;

Tzu_cv_d2* zu_cv_d2_create() { return new (std::nothrow) Tzu_cv_d2; }
void zu_cv_d2_destroy(Tzu_cv_d2* list) { delete list; }
uint64_t zu_cv_d2_get_size(const Tzu_cv_d2* list) {
  return list != nullptr ? list->sets.size() : 0;
}
Tzu_ov_d2* zu_cv_d2_get_ov_ptr(Tzu_cv_d2* list, uint64_t index) {
  return index < zu_cv_d2_get_size(list) ? list->sets[index].get() : nullptr;
}

bool zu_mgrid2d_isolines(const Tzu_mgrid2d* grid, const Tzu_dbls* levels, Tzu_cv_d2* out) {
  if (out == nullptr) return false;
  out->sets.clear();
  if (!zu::platform::has_nodes(grid) || levels == nullptr) return false;
  bool traced = guarded(out, false, [&](Tzu_cv_d2& o) {
    std::vector<double> values;
    for (uint64_t i = 0; i < zu_dbls_get_size(levels); ++i)
      values.push_back(zu_dbls_get(levels, i));
    return zu::platform::rising(values) && zu::platform::trace(*grid, values, o);
  });
  if (!traced) out->sets.clear();
  return traced;
}
