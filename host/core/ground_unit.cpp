#include "host/core/ground_unit.h"

#include <algorithm>
#include <cmath>

#include "host/core/texts.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu::host {
namespace {

// WGS 84, as the EPSG registry has it (ellipsoid 7030).
constexpr double equator_radius = 6378137, flattening = 1 / 298.257223563;
constexpr double eccentricity_2 = flattening * (2 - flattening);
constexpr double farthest = 89;  // degrees from the equator

}  // namespace

void ground_unit::set_projection(const std::string& projection) {
  if (projection == projection_) return;
  projection_ = projection;
  is_angle_ = false;
  unit_ = zu_pj_get_unit_w(wide(projection).c_str(), &is_angle_);
  if (!(unit_ > 0)) unit_ = 1, is_angle_ = false;
}

double ground_unit::metres(double y) const {
  if (!is_angle_) return unit_;
  const double limit = farthest * std::acos(-1.0) / 180;
  const double latitude = std::clamp(y * unit_, -limit, limit);
  // Snyder 1987, Map Projections: A Working Manual (USGS PP 1395), p. 25, eq. 4-21.
  return unit_ * equator_radius * std::cos(latitude) /
         std::sqrt(1 - eccentricity_2 * std::pow(std::sin(latitude), 2));
}

}  // namespace zu::host
