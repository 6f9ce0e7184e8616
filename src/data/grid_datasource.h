#pragma once
// A source that holds a grid: its sizes and matrix, its bands with their roles and palettes, its
// blocks, and the statistics of a band.

#include <cstdint>
#include <optional>
#include <utility>

#include "src/data/generic_datasource.h"

namespace zu::data {

/// Kind of topology.
enum grid_type : std::int32_t {
  grid_none = 0,
  grid_uniform1d = 1,
  grid_coord_x = 2,
  grid_uniform2d = 3,
  grid_coord_xy = 4,
  grid_uniform3d = 5,
  grid_coord_xyz = 6,
};

/// A block or palette that is released with its holder.
template <class interface> class released {
 public:
  released() = default;
  released(released&& other) noexcept : held_(std::exchange(other.held_, {})) {}
  released& operator=(released&& other) noexcept {
    if (this != &other) reset(std::exchange(other.held_, {}));
    return *this;
  }
  ~released() { reset(); }
  void reset(of<interface> next = {}) {
    call<&interface::release>(held_);
    held_ = next;
  }
  of<interface> get() const { return held_; }

 private:
  of<interface> held_;
};
using owned_block = released<grid_block_impl>;
using owned_palette = released<grid_palette_impl>;

class grid_datasource : public generic_datasource {
 public:
  grid_datasource() = default;
  ~grid_datasource() override;

  void compute_basic_stat(std::int64_t field, field_statistics& record) override;
  void compute_stddev(std::int64_t field, field_statistics& record) override;
  void count_unique(std::int64_t field, field_statistics& record) override;
  bool bind(const std::wstring& name, int mode) override;
  void unbind() override;
  bool field_values(std::int64_t field, std::vector<double>& out) override;
  bool field_value_texts(std::int64_t field, std::vector<std::wstring>& out) override;
  bool field_groups(const std::vector<std::int64_t>& fields, std::int64_t limit,
                    group_map& out) override;
  bool field_unique_numbers(std::int64_t field, std::int64_t limit, std::set<double>& out) override;
  bool field_unique_texts(std::int64_t field, std::int64_t limit,
                          std::vector<std::wstring>& out) override;
  bool attach(handle source) override;

  std::int32_t grid_type() const;
  bool sizes(std::int32_t* three) const;
  bool matrix(Tzu_matrix3x3& index_to_source) const;
  /// The source's own, else the plane's one lifted.
  bool matrix(Tzu_matrix4x4& index_to_source) const;
  bool get_origin(double* three) const;
  bool set_origin(const double* three);
  /// 1.0 each, and false, if the source has none.
  bool get_spacing(double* three) const;
  bool set_spacing(const double* three);
  double azimuth() const;  ///< degrees

  std::int32_t sample_type(std::int64_t band) const;
  std::int32_t color_role(std::int64_t band) const;
  std::int64_t find_band_of_role(std::int32_t role) const;  ///< the first; -1 if there is none
  bool get_block(std::int64_t band, owned_block& out) const;
  bool get_row_ids(owned_block& out) const;
  bool get_palette(std::int64_t band, owned_palette& out) const;

 private:
  template <class function>
  std::optional<std::int32_t> each_chunk(std::int64_t field, bool unit_tile_without,
                                         const function& take);

  grid_source grid_;
};

}  // namespace zu::data
