#pragma once
// Where a point of a scene lies, in the units that a person has chosen.

#include <memory>
#include <optional>
#include <string>

#include "zu/platform/zuk_proj4_d2.h"

namespace zu::host {

enum class coordinate_units {
  map,      ///< those of the scene's projection
  degrees,  ///< longitude and latitude on WGS 84, "36.61934°E 55.78311°N"
  dms,      ///< the same in degrees, minutes and seconds, "36°37′09.6″E 55°46′59.2″N"
};

/// What stands behind degrees, in UTF-8.
struct compass_letters {
  std::string east, west, north, south;
};

class coordinate_text {
 public:
  /// The projection of the scene: "EPSG:n", a PROJ text or WKT; empty: none. The way to WGS 84 is
  /// looked up only if it is another one than before.
  void set_projection(const std::string& projection);

  /// A point of the scene, east first. `pixel` is the size of a pixel in the scene's units, 0 if
  /// none is known; degrees have 5 decimals and seconds one, about a metre, and more where a pixel
  /// is smaller. In units of the map where nothing leads to WGS 84.
  std::string text(double x, double y, double pixel, coordinate_units units,
                   const compass_letters& letters) const;

 private:
  struct place {
    double longitude, latitude;
  };
  std::optional<place> place_of(double x, double y) const;

  struct destroy {
    void operator()(Tzu_rpj_fb_d2* way) const { zu_rpj_fb_d2_destroy(way); }
  };
  std::string projection_;
  std::unique_ptr<Tzu_rpj_fb_d2, destroy> way_;  ///< null: none leads to WGS 84
};

/// A number without an exponent, with a decimal point, and with the decimals that tell a pixel from
/// the next; two if its size is not known.
std::string map_coordinate(double value, double pixel);

}  // namespace zu::host
