#pragma once
// An open grid file: its head, its properties, and its tiles, read and written in place.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/zuk_file_tos4/database.h"
#include "platform/zuk_file_tos4/grid_head.h"
#include "platform/zuk_io/atomic_file.h"

namespace zu::platform {

/// Nodes of one slice.
struct node_box {
  std::int64_t x, y, nx, ny, z;
};

/// All failures throw `pgrid_failure`. Not for two threads at once.
class pgrid_file {
 public:
  /// Opens a file that exists, to read or to edit.
  pgrid_file(const std::string& path, access mode);
  /// Makes a new one; it is seen at `path` once it is committed, and otherwise leaves nothing.
  /// Tiles and levels of the head are planned here.
  pgrid_file(const std::string& path, grid_head head);
  ~pgrid_file();

  const grid_head& head() const { return head_; }
  const tile_plan& plan() const { return plan_; }
  const std::vector<grid_property>& properties() const { return properties_; }
  bool can_write() const { return base_ != nullptr && base_->mode() != access::read; }

  std::size_t add_property(grid_property property);  ///< the slot is chosen here; gives the index
  void set_head(const grid_head& head);              ///< place, projection and columns; sizes stay
  void set_property(std::size_t index, const grid_property& property);  ///< name, look, statistics

  /// The file does not change between construction and destruction; and tiles are found faster.
  class reading {
   public:
    explicit reading(pgrid_file& file);
    ~reading();
    reading(const reading&) = delete;
    reading& operator=(const reading&) = delete;

   private:
    pgrid_file* file_;  // null inside another transaction
  };
  /// A whole tile, rows in order; padded at the far edges. Valid until the next call. Inside a
  /// reading.
  const std::byte* tile(std::size_t property, int level, std::int64_t z, std::int64_t y,
                        std::int64_t x);
  std::size_t tile_bytes(std::size_t property) const;

  struct seen_tile {
    const std::byte* samples;  ///< as of `tile`
    std::int64_t nx, ny;       ///< samples in it that are no padding
    double share;              ///< of the tiles, with this one
  };
  /// Shows the tiles of a level that are there; false if `see` gave false. Inside a reading.
  bool for_tiles(std::size_t property, int level, const std::function<bool(const seen_tile&)>& see);

  /// One edit; undone unless committed, and then all that it stands in is too. Statistics of what
  /// it writes are dropped.
  class edit {
   public:
    explicit edit(pgrid_file& file);
    ~edit();
    edit(const edit&) = delete;
    edit& operator=(const edit&) = delete;
    void commit();

   private:
    pgrid_file& file_;
    bool open_, committed_ = false;
  };
  /// Dense rows of samples of the property's own type, into the nodes and the overviews. Inside an
  /// edit or while the file is made.
  void write(std::size_t property, const node_box& box, const std::byte* samples);
  /// The same along the row order of the whole grid, both inside an edit or a reading of their own.
  void write_run(std::size_t property, std::int64_t start, std::int64_t count,
                 const std::byte* samples);
  void read_run(std::size_t property, std::int64_t start, std::int64_t count, std::byte* samples);

  void commit();  ///< of a new file; it is closed by that

 private:
  struct held_tile {
    std::int64_t id = 0;
    std::size_t property = 0;
    std::vector<std::byte> samples;
    bool changed = false;
  };
  using held_tiles = std::list<held_tile>;  // the latest used first

  database& base();  // throws once a new file is in its place
  void prepare();
  void read_all();
  void forget_statistics(std::size_t property);
  held_tile& hold(std::size_t property, std::int64_t id);
  void load(held_tile& tile);
  void store(held_tile& tile);
  void store_changed();
  void finish();  // the transaction
  void forget_tiles();
  void write_level(std::size_t property, int level, const node_box& box, const std::byte* samples);
  const grid_property& at(std::size_t property) const;
  void check_run(std::int64_t start, std::int64_t count) const;
  template <class work> void for_boxes_of_run(std::int64_t start, std::int64_t count, work w) const;

  std::unique_ptr<atomic_file> temporary_;  // of a new file
  std::unique_ptr<database> base_;
  grid_head head_;
  tile_plan plan_{grid_head()};
  std::vector<grid_property> properties_;
  std::vector<std::vector<std::byte>> empty_;  // a sample of each property
  std::unique_ptr<statement> select_, insert_, remove_, version_;
  held_tiles held_;
  std::unordered_map<std::int64_t, held_tiles::iterator> by_id_;
  std::size_t held_bytes_ = 0;
  std::int64_t seen_version_ = -1;
  bool spoiled_ = false;  // a part of the transaction failed: none of it may stay
};

}  // namespace zu::platform
