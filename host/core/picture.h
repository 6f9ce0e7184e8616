#pragma once
// A scene drawn into a picture.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/core/scene.h"

namespace zu::host {

/// What a picture is drawn on. All but the screen's are accurate: drawn in tiles with full
/// precision.
enum class page_kind { screen, print, pdf, svg };

/// What a picture shows.
struct picture_request {
  std::uint64_t nx = 1024, ny = 768;
  bool sized = false;  ///< a person asked for that size
  page_kind kind = page_kind::screen;
  std::optional<Tzu_box_d2> extent;  ///< none: all layers
  std::optional<Tzu_color> background;
  double dots_per_inch = 96;
};

struct drawn_picture {
  struct ended {
    void operator()(Tzu_drwc* page) const { zu_drwc_destroy(page); }
  };
  std::unique_ptr<Tzu_drwc, ended> page;
  std::optional<Tzu_box_d2> box;        ///< what it shows, if it is a map
  std::vector<std::string> shortfalls;  ///< what could not be read, a line each; the rest is drawn
  std::vector<std::string> unplaced;    ///< sources without a projection in a scene that has one
  bool empty = false;                   ///< no layer left anything on it
};

/// The box widened about its centre to the shape of nx by ny.
Tzu_box_d2 widened(const Tzu_box_d2& box, std::uint64_t nx, std::uint64_t ny);

/// A page without a map, with its background.
drawn_picture empty_page(const picture_request& request);

/// Draws all layers, the lowest first. Throws `failure` if one of them cannot be drawn.
drawn_picture draw(const scene& shown, const picture_request& request);

}  // namespace zu::host
