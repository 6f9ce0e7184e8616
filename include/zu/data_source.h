#pragma once
// Data sources: what a driver of the platform serves and the bundle reads. Positions in the lists
// are fixed; a position that nobody in this system calls is `unused`.

#include <cstdint>

#include "zu/handle.h"
#include "zu/strings.h"

namespace zu {

/// Element types of a block.
enum element_type : std::int32_t {
  element_none = 0,
  element_uint8 = 1,
  element_int8 = 2,
  element_int16 = 3,
  element_uint16 = 4,
  element_int32 = 5,
  element_uint32 = 6,
  element_int64 = 7,
  element_uint64 = 8,
  element_float32 = 9,
  element_float64 = 10,
};

/// Colour role of a band; 0 has no colour meaning.
enum band_role : std::int32_t {
  role_none = 0,
  role_red = 1,
  role_green = 2,
  role_blue = 3,
  role_alpha = 4,
  role_gray = 5,
  role_palette = 6,
};

/// Fields of any source, grid or table.
struct data_source_impl : plain_interface<data_source_impl> {
  static constexpr char name[] = "zu_data_source_interface_23";
  virtual void release() {}  ///< whoever opened the source ends it
  virtual bool has_capability(std::int32_t) { return false; }
  /// Outer box x0, y0, x1, y1 in source coordinates; `force` allows it to be computed.
  virtual bool extent(double* /*box*/, bool /*force*/) { return false; }
  virtual std::int64_t field_count() { return 0; }
  virtual void field_name(std::int64_t, string_visitor) {}
  /// What a person reads for the name; no call if there is nothing else to read.
  virtual void field_caption(std::int64_t, string_visitor) {}
  virtual bool find_field(const wchar_t* /*exact name*/, std::int64_t* /*index*/) { return false; }
  virtual void get_projection(string_visitor) {}  ///< WKT or PROJ text; no call if there is none
  virtual bool set_projection(const wchar_t*) { return false; }  ///< stores it with the file
  using operations =
      in_order<&data_source_impl::release, unused, &data_source_impl::has_capability,
               &data_source_impl::extent, unused, unused, unused, &data_source_impl::field_count,
               &data_source_impl::field_name, &data_source_impl::field_caption, unused, unused,
               unused, unused, unused, unused, unused, &data_source_impl::find_field,
               &data_source_impl::get_projection, &data_source_impl::set_projection>;
};
using data_source = of<data_source_impl>;

/// Distinct numbers, in any order, some at a time.
struct floatings_visitor_impl : plain_interface<floatings_visitor_impl> {
  static constexpr char name[] = "zu_floatings_visitor_interface_0";
  virtual void visit(const double*, std::uint64_t /*count*/) {}
  using operations = in_order<&floatings_visitor_impl::visit>;
};
using floatings_visitor = of<floatings_visitor_impl>;

/// A histogram: counts of `classes` equal classes between the field's minimum and maximum.
struct histogram_visitor_impl : plain_interface<histogram_visitor_impl> {
  static constexpr char name[] = "zu_histogram_visitor_interface_0";
  virtual void visit(std::uint64_t /*classes*/, const std::int64_t* /*counts*/) {}
  using operations = in_order<&histogram_visitor_impl::visit>;
};
using histogram_visitor = of<histogram_visitor_impl>;

/// Statistics that a source keeps of itself; false where it would have to read for them. For its
/// histogram alone it reads if need be.
struct stat_source_impl : plain_interface<stat_source_impl> {
  static constexpr char name[] = "zu_stat_source_interface_9";
  virtual bool minimum(std::int64_t /*field*/, double*) { return false; }
  virtual bool maximum(std::int64_t, double*) { return false; }
  virtual bool mean(std::int64_t, double*) { return false; }
  virtual bool stddev(std::int64_t, double*) { return false; }
  virtual bool unique_numbers(std::int64_t, std::int64_t /*limit, -1 none*/, floatings_visitor) {
    return false;
  }
  virtual bool unique_texts(std::int64_t, std::int64_t, string_visitor) { return false; }
  virtual bool histogram(std::int64_t, histogram_visitor) { return false; }
  using operations =
      in_order<unused, &stat_source_impl::minimum, &stat_source_impl::maximum,
               &stat_source_impl::mean, &stat_source_impl::stddev, unused, unused, unused, unused,
               &stat_source_impl::unique_numbers, &stat_source_impl::unique_texts, unused, unused,
               &stat_source_impl::histogram>;
};
using stat_source = of<stat_source_impl>;

/// One band, read in windows, lines or tiles. Results of reads: 1 success, 0 not supported (the
/// caller may read tiles instead), anything else a failure.
struct grid_block_impl : plain_interface<grid_block_impl> {
  static constexpr char name[] = "zu_grid_block_interface_9";
  virtual void release() {}
  virtual std::int32_t type() { return element_none; }  ///< element type of the tiles
  virtual bool tile_size(std::uint64_t* /*three*/) { return false; }
  /// NoData of the band; the eight-byte word is written as a double, whatever `type` is.
  virtual bool nodata(std::int32_t /*type*/, double*) { return false; }
  virtual void set_read_mode(std::uint32_t) {}
  /// `count` elements from `start` in row order, as `type`.
  virtual std::int32_t read_linear(std::uint64_t /*start*/, std::uint64_t /*count*/,
                                   void* /*buffer*/, std::int32_t /*type*/) {
    return 0;
  }
  virtual std::int32_t write_linear(std::uint64_t /*start*/, std::uint64_t /*count*/,
                                    const void* /*buffer*/, std::uint64_t /*buffer count*/,
                                    std::int32_t /*type*/, std::int32_t /*zero*/) {
    return 0;
  }
  /// Nearest samples of the window origin[2], size[2], as sample[2] elements of `type`. strides[2]:
  /// column and row stride of the buffer in elements, 0 dense; null is dense.
  virtual std::int32_t read_window(const std::int64_t* /*origin*/, const std::uint64_t* /*size*/,
                                   void* /*buffer*/, const std::uint64_t* /*sample*/,
                                   std::int32_t /*type*/, const std::uint64_t* /*strides*/) {
    return 0;
  }
  /// The same with three numbers each; origin[2] is the slice.
  virtual std::int32_t read_window_3d(const std::int64_t*, const std::uint64_t*, void*,
                                      const std::uint64_t*, std::int32_t, const std::uint64_t*) {
    return 0;
  }
  /// One whole tile in the block's own type; a tile at the far edge is padded to the tile size.
  virtual std::int32_t read_tile(std::uint64_t /*column*/, std::uint64_t /*row*/, void*) {
    return 0;
  }
  using operations =
      in_order<&grid_block_impl::release, &grid_block_impl::type, unused,
               &grid_block_impl::tile_size, &grid_block_impl::nodata, unused, unused,
               &grid_block_impl::set_read_mode, unused, unused, &grid_block_impl::read_linear,
               unused, &grid_block_impl::write_linear, unused, &grid_block_impl::read_window,
               unused, &grid_block_impl::read_window_3d, unused, unused, unused,
               &grid_block_impl::read_tile>;
};
using grid_block = of<grid_block_impl>;

struct grid_block_visitor_impl : plain_interface<grid_block_visitor_impl> {
  static constexpr char name[] = "zu_grid_block_visitor_interface_9";
  virtual void visit(grid_block) {}  ///< the receiver releases the block
  using operations = in_order<&grid_block_visitor_impl::visit>;
};
using grid_block_visitor = of<grid_block_visitor_impl>;

struct grid_palette_impl : plain_interface<grid_palette_impl> {
  static constexpr char name[] = "zu_grid_palette_interface_1";
  virtual void release() {}
  virtual std::int64_t size() { return 0; }
  /// Red, green, blue and transparency (0 opaque) of an entry; false if there is no such entry.
  /// Rows of a picture are filled side by side: it is called from several threads at once.
  virtual bool color(std::int64_t /*index*/, std::uint8_t* /*four bytes*/) { return false; }
  using operations =
      in_order<&grid_palette_impl::release, &grid_palette_impl::size, &grid_palette_impl::color>;
};
using grid_palette = of<grid_palette_impl>;

struct grid_palette_visitor_impl : plain_interface<grid_palette_visitor_impl> {
  static constexpr char name[] = "zu_grid_palette_visitor_interface_1";
  virtual void visit(grid_palette) {}  ///< the receiver releases the palette
  using operations = in_order<&grid_palette_visitor_impl::visit>;
};
using grid_palette_visitor = of<grid_palette_visitor_impl>;

/// The grid side of a source. Rows from the south; index (0, 0) is the middle of the first cell.
struct grid_source_impl : plain_interface<grid_source_impl> {
  static constexpr char name[] = "zu_grid_source_interface_20";
  virtual std::int32_t grid_type() { return 0; }
  virtual bool sizes(std::int32_t* /*nx, ny, nz*/) { return false; }
  /// Row-major 3x3 matrix from grid indexes to source coordinates, azimuth included.
  virtual bool matrix3x3(double* /*nine*/) { return false; }
  virtual bool matrix4x4(double* /*sixteen*/) { return false; }
  virtual bool get_origin(double* /*three*/) { return false; }
  virtual bool set_origin(const double* /*three*/) { return false; }
  virtual bool get_spacing(double* /*three*/) { return false; }
  virtual bool set_spacing(const double* /*three*/) { return false; }
  virtual double azimuth() { return 0; }  ///< degrees
  virtual std::int32_t sample_type(std::int64_t /*band*/) { return element_none; }
  virtual std::int32_t color_role(std::int64_t /*band*/) { return role_none; }
  virtual bool palette(std::int64_t /*band*/, grid_palette_visitor) { return false; }
  virtual bool block(std::int64_t /*band*/, grid_block_visitor) { return false; }
  virtual bool row_ids(grid_block_visitor) { return false; }  ///< ids are (z * ny + y) * nx + x
  using operations = in_order<
      unused, unused, unused, unused, &grid_source_impl::grid_type, &grid_source_impl::sizes,
      &grid_source_impl::matrix3x3, unused, &grid_source_impl::matrix4x4, unused,
      &grid_source_impl::get_origin, &grid_source_impl::set_origin, &grid_source_impl::get_spacing,
      &grid_source_impl::set_spacing, &grid_source_impl::azimuth, unused, unused, unused, unused,
      unused, unused, unused, unused, unused, unused, unused, unused, unused,
      &grid_source_impl::sample_type, unused, &grid_source_impl::color_role, unused, unused, unused,
      &grid_source_impl::palette, &grid_source_impl::block, &grid_source_impl::row_ids>;
};
using grid_source = of<grid_source_impl>;

}  // namespace zu
