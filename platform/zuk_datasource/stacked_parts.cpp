#include "platform/zuk_datasource/stacked_parts.h"

#include <array>
#include <memory>

#include <cpl_string.h>
#include <gdal_priv.h>
#include <gdal_utils.h>

#include "platform/zuk_datasource/gdal_messages.h"

namespace zu::platform {
namespace {

constexpr std::size_t most_parts = 64;

struct shape {
  int nx = 0, ny = 0;
  std::array<double, 6> transform{};
  bool operator==(const shape&) const = default;
};

/// Size and place of a part of one band; an empty shape otherwise.
shape shape_of(const std::string& name) {
  std::unique_ptr<GDALDataset> part(GDALDataset::Open(name.c_str(), GDAL_OF_RASTER));
  shape found;
  if (!part || part->GetRasterCount() != 1) return found;
  found.nx = part->GetRasterXSize(), found.ny = part->GetRasterYSize();
  part->GetGeoTransform(found.transform.data());
  return found;
}

/// What stands behind the last colon: the variable.
std::string short_name(const std::string& name) {
  std::string last = name.substr(name.rfind(':') + 1);
  return last.rfind("//", 0) == 0 ? last.substr(2) : last;
}

}  // namespace

GDALDataset* stack_parts(const std::vector<std::string>& names) {
  if (names.size() < 2 || names.size() > most_parts) return nullptr;
  gdal_messages quiet;
  shape first = shape_of(names.front());
  if (first.nx == 0) return nullptr;
  CPLStringList list;
  for (const std::string& name : names) {
    if (shape_of(name) != first) return nullptr;
    list.AddString(name.c_str());
  }
  CPLStringList options;
  options.AddString("-separate");
  options.AddString("-allow_projection_difference");  // only some of the parts may tell theirs
  std::unique_ptr<GDALBuildVRTOptions, void (*)(GDALBuildVRTOptions*)> how(
      GDALBuildVRTOptionsNew(options.List(), nullptr), &GDALBuildVRTOptionsFree);
  int wrong_use = FALSE;
  auto* stack = GDALDataset::FromHandle(GDALBuildVRT("", static_cast<int>(names.size()), nullptr,
                                                     list.List(), how.get(), &wrong_use));
  if (stack == nullptr) return nullptr;
  if (stack->GetRasterCount() != static_cast<int>(names.size())) {
    GDALClose(GDALDataset::ToHandle(stack));
    return nullptr;
  }
  for (std::size_t i = 0; i < names.size(); ++i)
    stack->GetRasterBand(static_cast<int>(i) + 1)->SetDescription(short_name(names[i]).c_str());
  return stack;
}

}  // namespace zu::platform
