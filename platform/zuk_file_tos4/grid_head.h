#pragma once
// What a grid file says of its grid and properties, and which tile is where. Every number is
// checked before anything is counted with it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zu::platform {

struct grid_head {
  std::int32_t type = 0;  ///< Tzu_tos4_grid_type
  std::array<std::int64_t, 3> size{1, 1, 1};
  std::array<double, 3> origin{0, 0, 0}, spacing{1, 1, 1};
  double azimuth = 0;                                  ///< degrees
  std::array<std::int64_t, 2> tile{256, 256};          ///< nodes of a tile in x and y
  int levels = 0;                                      ///< overviews: 2, 4, 8 … times coarser
  std::string projection;                              ///< UTF-8
  std::array<std::int64_t, 3> coordinate{-1, -1, -1};  ///< slots of coordinate columns

  std::int64_t nodes() const { return size[0] * size[1] * size[2]; }
};

struct grid_property {
  std::int64_t slot = 0;
  std::string name, caption;
  std::int32_t type = 0, role = 0;
  bool has_nodata = false;
  double nodata = 0;
  std::vector<std::byte> palette;  ///< red, green, blue, transparency of each entry
  bool has_stat = false;           ///< exact
  double minimum = 0, maximum = 0, mean = 0, stddev = 0;
  std::int64_t count = 0;  ///< valid nodes
};

constexpr std::int64_t most_properties = 4096;
constexpr std::size_t longest_name = 4096, longest_projection = 1 << 20;
constexpr std::size_t longest_palette = 65536 * 4;

/// Bytes of a sample of type 1 to 10; 0 for any other number.
std::size_t sample_width(std::int32_t type);

/// Throws `pgrid_failure` with the first thing that cannot be.
void check(const grid_head& head);
void check(const grid_property& property);

/// Tiles and overviews that suit a grid of this size and type.
void plan_tiles(grid_head& head);

/// NoData, NaN or 0 as one sample of the property: what a tile that is not there is full of.
std::vector<std::byte> empty_sample(const grid_property& property);

/// One level of a property: the nodes themselves (0), or every 2^level-th of them.
struct tile_level {
  std::int64_t step;                 ///< 2^level
  std::array<std::int64_t, 2> size;  ///< samples
  std::array<std::int64_t, 2> tiles;
  std::int64_t first;  ///< number of its first tile within the property

  /// Index along an axis of `nodes` nodes from which sample `i` was taken: the middle of its step.
  std::int64_t node_of(std::int64_t i, std::int64_t nodes) const {
    std::int64_t node = i * step + step / 2;
    return node < nodes ? node : nodes - 1;
  }
};

class tile_plan {
 public:
  explicit tile_plan(const grid_head& head);  ///< of a checked head

  const tile_level& level(int number) const { return levels_[static_cast<std::size_t>(number)]; }
  int levels() const { return static_cast<int>(levels_.size()); }  ///< with the nodes themselves
  std::int64_t tiles() const { return tiles_; }                    ///< of one property
  std::int64_t id(std::int64_t slot, int level, std::int64_t z, std::int64_t y,
                  std::int64_t x) const {
    const tile_level& l = levels_[static_cast<std::size_t>(level)];
    return slot * tiles_ + l.first + (z * l.tiles[1] + y) * l.tiles[0] + x;
  }

 private:
  std::vector<tile_level> levels_;
  std::int64_t tiles_ = 0;
};

}  // namespace zu::platform
