#pragma once
// How long a unit of a scene is on the ground.

#include <string>

namespace zu::host {

class ground_unit {
 public:
  /// The projection of the scene: "EPSG:n", a PROJ text or WKT. What is empty or not understood has
  /// metres. Looked up only if it is another one than before.
  void set_projection(const std::string& projection);

  /// Metres of a unit eastwards at a y of the scene. A degree of longitude is the shorter the
  /// farther its parallel lies from the equator; beyond 89 degrees it is that of 89.
  double metres(double y) const;

 private:
  std::string projection_;
  double unit_ = 1;  ///< in metres, or in radians
  bool is_angle_ = false;
};

}  // namespace zu::host
