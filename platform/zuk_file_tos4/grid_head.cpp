#include "platform/zuk_file_tos4/grid_head.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "platform/zuk_file_tos4/database.h"
#include "zu/platform/zuk_file_tos4.h"

namespace zu::platform {
namespace {

constexpr std::int64_t largest_side = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t largest_tile_side = 65536, largest_tile = 1 << 20;  // 8 MiB of doubles
constexpr std::int64_t most_tiles = std::int64_t(1) << 48;
constexpr std::int64_t most_nodes = std::int64_t(1) << 62;
constexpr int most_levels = 30;
constexpr std::int64_t usual_tile_side = 256, usual_tile_of_a_row = 65536;

void require(bool good, const char* reason) {
  if (!good) throw pgrid_failure(reason);
}

std::int64_t parts(std::int64_t all, std::int64_t size) { return (all - 1) / size + 1; }

// Whether a number exists in a type; a cast of one that does not has no meaning.
template <class sample> bool fits(double value) {
  if constexpr (std::is_floating_point_v<sample>) {
    return true;
  } else {
    // The upper limit of 64 bits is no double; the next power of two is.
    double low = static_cast<double>(std::numeric_limits<sample>::min());
    double above = std::ldexp(1.0, std::numeric_limits<sample>::digits);
    return value >= low && value < above && value == std::trunc(value);
  }
}

template <class sample> std::vector<std::byte> bytes_of(const grid_property& property) {
  sample value{};
  if constexpr (std::is_floating_point_v<sample>) value = std::numeric_limits<sample>::quiet_NaN();
  if (property.has_nodata && fits<sample>(property.nodata)) {
    bool narrow =
        sizeof(sample) == 4 && std::isfinite(property.nodata) &&
        std::fabs(property.nodata) > static_cast<double>(std::numeric_limits<float>::max());
    if (!narrow) value = static_cast<sample>(property.nodata);
  }
  std::vector<std::byte> out(sizeof value);
  std::memcpy(out.data(), &value, sizeof value);
  return out;
}

}  // namespace

std::size_t sample_width(std::int32_t type) {
  static constexpr std::size_t widths[] = {0, 1, 1, 2, 2, 4, 4, 8, 8, 4, 8};
  return type >= 0 && type <= 10 ? widths[type] : 0;
}

void check(const grid_head& head) {
  require(head.type >= zu_tos4_not_placed && head.type <= zu_tos4_three_columns,
          "is of an unknown kind of grid");
  for (std::int64_t side : head.size)
    require(side >= 1 && side <= largest_side, "has an impossible size");
  require(head.size[0] * head.size[1] <= most_nodes / head.size[2], "has too many nodes");
  bool in_a_row =
      head.type != zu_tos4_not_placed && head.type != zu_tos4_plane && head.type != zu_tos4_volume;
  require(!in_a_row || (head.size[1] == 1 && head.size[2] == 1),
          "has more than one row of nodes that lie in a row");
  require(head.type != zu_tos4_plane || head.size[2] == 1, "has slices in two dimensions");
  for (int axis = 0; axis < 3; ++axis) {
    require(std::isfinite(head.origin[axis]), "has an origin that is no number");
    require(std::isfinite(head.spacing[axis]) && head.spacing[axis] != 0,
            "has an impossible spacing");
  }
  require(std::isfinite(head.azimuth), "has an azimuth that is no number");
  for (std::int64_t side : head.tile)
    require(side >= 1 && side <= largest_tile_side, "has an impossible size of tiles");
  require(head.tile[0] * head.tile[1] <= largest_tile, "has tiles that are too large");
  require(head.levels >= 0 && head.levels <= most_levels, "has too many overviews");
  require(head.projection.size() <= longest_projection, "has a projection that is too long");
  std::int64_t slice = parts(head.size[0], head.tile[0]) * parts(head.size[1], head.tile[1]);
  // All overviews together have no more tiles than a slice, and one more a level at each side.
  require(slice <= most_tiles / 4 / (most_levels + 1) / head.size[2], "has too many tiles");
}

void check(const grid_property& property) {
  require(property.slot >= 0 && property.slot < most_properties, "has too many properties");
  require(!property.name.empty(), "has a property without a name");
  require(property.name.size() <= longest_name && property.caption.size() <= longest_name,
          "has a name that is too long");
  require(sample_width(property.type) != 0, "has a property of an unknown type");
  require(property.role >= 0 && property.role <= 6, "has a property of an unknown kind");
  require(property.palette.size() <= longest_palette && property.palette.size() % 4 == 0,
          "has a broken palette");
  require(property.count >= 0, "has impossible statistics");
}

void plan_tiles(grid_head& head) {
  bool flat = head.size[1] > 1;
  for (int axis = 0; axis < 2; ++axis)
    head.tile[axis] = std::min(head.size[axis], flat ? usual_tile_side : usual_tile_of_a_row);
  bool uniform = head.type != zu_tos4_one_column && head.type != zu_tos4_two_columns &&
                 head.type != zu_tos4_three_columns;
  head.levels = 0;
  for (std::int64_t side =
           std::max(parts(head.size[0], head.tile[0]), parts(head.size[1], head.tile[1]));
       uniform && side > 1; side = parts(side, 2))
    ++head.levels;
}

std::vector<std::byte> empty_sample(const grid_property& property) {
  switch (property.type) {
    case 1:
      return bytes_of<std::uint8_t>(property);
    case 2:
      return bytes_of<std::int8_t>(property);
    case 3:
      return bytes_of<std::int16_t>(property);
    case 4:
      return bytes_of<std::uint16_t>(property);
    case 5:
      return bytes_of<std::int32_t>(property);
    case 6:
      return bytes_of<std::uint32_t>(property);
    case 7:
      return bytes_of<std::int64_t>(property);
    case 8:
      return bytes_of<std::uint64_t>(property);
    case 9:
      return bytes_of<float>(property);
    default:
      return bytes_of<double>(property);
  }
}

tile_plan::tile_plan(const grid_head& head) {
  for (int number = 0; number <= head.levels; ++number) {
    tile_level level{std::int64_t(1) << number, {}, {}, tiles_};
    for (int axis = 0; axis < 2; ++axis) {
      level.size[axis] = parts(head.size[axis], level.step);
      level.tiles[axis] = parts(level.size[axis], head.tile[axis]);
    }
    tiles_ += level.tiles[0] * level.tiles[1] * head.size[2];
    levels_.push_back(level);
  }
}

}  // namespace zu::platform
