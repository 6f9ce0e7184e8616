#include "platform/zuk_datasource/band_reader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <map>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/elements.h"
#include "platform/zuk_datasource/gdal_messages.h"
#include "zu/data_source.h"
#include "zu/platform/zuk_basic.h"

namespace zu::platform {

namespace {

// A direct read of the sampled cells pays from here on.
bool is_sparse(const grid_window& w) { return w.sample_x * w.sample_y * 4 <= w.nx * w.ny; }

bool fits(std::int64_t origin, std::uint64_t size, std::uint64_t all) {
  return origin >= 0 && size > 0 && static_cast<std::uint64_t>(origin) < all &&
         size <= all - static_cast<std::uint64_t>(origin);
}

constexpr double hair = 1e-10;

/// Rows or columns of a band that GDAL's nearest read takes from a window of it; columns by
/// repeated addition of the step.
std::vector<std::int64_t> cells_of_gdal(double origin, double size, std::uint64_t samples, int all,
                                        bool by_addition) {
  constexpr double epsilon = 1e-10;
  double step = size / static_cast<double>(samples), last = all - 1;
  double at = 0.5 * step + origin + epsilon;
  std::vector<std::int64_t> cells(samples);
  for (std::uint64_t i = 0; i < samples; ++i, at += step) {
    double cell = by_addition ? at : (static_cast<double>(i) + 0.5) * step + origin + epsilon;
    cells[i] = static_cast<std::int64_t>(std::min(std::max(0.0, cell), last));
  }
  return cells;
}

void turn_rows_over(std::byte* data, std::size_t rows, std::size_t row_bytes, std::size_t pitch) {
  std::vector<std::byte> kept(row_bytes);
  for (std::size_t low = 0, high = rows; low + 1 < high; ++low) {
    std::byte *a = data + low * pitch, *b = data + --high * pitch;
    std::memcpy(kept.data(), a, row_bytes);
    std::memcpy(a, b, row_bytes);
    std::memcpy(b, kept.data(), row_bytes);
  }
}

}  // namespace

std::vector<std::int64_t> sampled_rows(std::int64_t origin, std::uint64_t size,
                                       std::uint64_t samples) {
  std::vector<std::int64_t> out(samples);
  double step = static_cast<double>(size) / static_cast<double>(samples);
  for (std::uint64_t i = 0; i < samples; ++i)
    out[i] = static_cast<std::int64_t>((static_cast<double>(i) + 0.5) * step +
                                       static_cast<double>(origin) + hair);
  return out;
}

std::vector<std::int64_t> sampled_columns(std::int64_t origin, std::uint64_t size,
                                          std::uint64_t samples) {
  std::vector<std::int64_t> out(samples);
  double step = static_cast<double>(size) / static_cast<double>(samples);
  double at = 0.5 * step + static_cast<double>(origin) + hair;
  for (std::uint64_t i = 0; i < samples; ++i, at += step) out[i] = static_cast<std::int64_t>(at);
  // Added up, the last step may end a rounding beyond the window.
  std::int64_t last = origin + static_cast<std::int64_t>(size) - 1;
  for (std::uint64_t i = samples; i > 0 && out[i - 1] > last; --i) out[i - 1] = last;
  return out;
}

std::int32_t element_type_of(GDALRasterBand& band) {
  switch (band.GetRasterDataType()) {
    case GDT_Byte: {
      const char* sign = band.GetMetadataItem("PIXELTYPE", "IMAGE_STRUCTURE");
      return sign != nullptr && EQUAL(sign, "SIGNEDBYTE") ? element_int8 : element_uint8;
    }
    case GDT_Int16:
      return element_int16;
    case GDT_UInt16:
      return element_uint16;
    case GDT_Int32:
      return element_int32;
    case GDT_UInt32:
      return element_uint32;
    case GDT_Int64:
      return element_int64;
    case GDT_UInt64:
      return element_uint64;
    case GDT_Float32:
    case GDT_CInt16:
    case GDT_CFloat32:
      return element_float32;
    case GDT_Float64:
    case GDT_CInt32:
    case GDT_CFloat64:
      return element_float64;
    default:
      return element_none;
  }
}

GDALDataType gdal_type_of(std::int32_t element) {
  static constexpr GDALDataType types[] = {GDT_Unknown, GDT_Byte,    GDT_Byte,   GDT_Int16,
                                           GDT_UInt16,  GDT_Int32,   GDT_UInt32, GDT_Int64,
                                           GDT_UInt64,  GDT_Float32, GDT_Float64};
  return element >= 0 && element <= 10 ? types[element] : GDT_Unknown;
}

bool nodata_of(GDALRasterBand& band, double& out) {
  int has = FALSE;
  if (band.GetRasterDataType() == GDT_Int64)
    out = static_cast<double>(band.GetNoDataValueAsInt64(&has));
  else if (band.GetRasterDataType() == GDT_UInt64)
    out = static_cast<double>(band.GetNoDataValueAsUInt64(&has));
  else
    out = band.GetNoDataValue(&has);
  return has != FALSE;
}

// Where samples go, and as what.
struct band_reader::target {
  void* out;
  std::int32_t type;
  std::uint64_t column_stride, row_stride;

  void* at(std::uint64_t column, std::uint64_t row) const {
    return static_cast<std::byte*>(out) +
           (row * row_stride + column * column_stride) * element_width(type);
  }
};

band_reader::band_reader(dataset_ptr dataset, int band, bool rows_run_south, std::wstring name)
    : dataset_(std::move(dataset)),
      band_(*dataset_->gdal().GetRasterBand(band)),
      index_(band - 1),
      rows_run_south_(rows_run_south),
      name_(std::move(name)),
      type_(element_type_of(band_)),
      columns_(static_cast<std::uint64_t>(band_.GetXSize())),
      rows_(static_cast<std::uint64_t>(band_.GetYSize())) {}

std::int64_t band_reader::file_row(std::int64_t row) const {
  return rows_run_south_ ? static_cast<std::int64_t>(rows_) - 1 - row : row;
}

void band_reader::keep(const std::string& reason, std::int32_t kind) {
  zu_problems_add(name_.c_str(), kind, from_utf8(reason).c_str());
}

std::int32_t band_reader::read(const grid_window& w, void* out, std::int32_t type,
                               std::uint64_t column_stride, std::uint64_t row_stride) {
  constexpr std::uint64_t most_samples = std::numeric_limits<int>::max();
  if (type_ == element_none || element_width(type) == 0 || out == nullptr ||
      !fits(w.x, w.nx, columns_) || !fits(w.y, w.ny, rows_) || w.sample_x == 0 || w.sample_y == 0 ||
      w.sample_x > most_samples || w.sample_y > most_samples)
    return read_impossible;
  target to{out, type, column_stride == 0 ? 1 : column_stride, row_stride};
  if (to.row_stride == 0) to.row_stride = to.column_stride * w.sample_x;

  gdal_messages said;
  bool good = true;
  std::size_t width = element_width(type_), row_bytes = w.sample_x * width;
  if (type == type_ && to.column_stride == 1) {
    good = read_native(w, out, to.row_stride);
    if (good && rows_run_south_)
      turn_rows_over(static_cast<std::byte*>(out), w.sample_y, row_bytes, to.row_stride * width);
  } else {
    auto native = std::make_unique_for_overwrite<std::byte[]>(w.sample_y * row_bytes);
    good = read_native(w, native.get(), w.sample_x);
    for (std::uint64_t row = 0; good && row < w.sample_y; ++row)
      convert_elements(native.get() + (rows_run_south_ ? w.sample_y - 1 - row : row) * row_bytes,
                       type_, 1, to.at(0, row), type, static_cast<std::ptrdiff_t>(to.column_stride),
                       w.sample_x);
  }
  return good ? read_done : salvage(w, to, said.reason(dataset_->path(), "unknown reason"));
}

bool band_reader::read_native(const grid_window& w, void* out, std::uint64_t row_stride) {
  std::size_t width = element_width(type_), pitch = row_stride * width;
  std::int64_t top = rows_run_south_ ? file_row(w.y + static_cast<std::int64_t>(w.ny) - 1) : w.y;
  GDALRasterIOExtraArg options;
  INIT_RASTERIO_EXTRA_ARG(options);
  if (rows_run_south_ && w.sample_y != w.ny) {
    // A sample between two cells belongs to the one with the higher presented row, also when the
    // rows are counted from the other end.
    constexpr double less = 1e-6;
    options.bFloatingPointWindowValidity = TRUE;
    options.dfXOff = static_cast<double>(w.x), options.dfXSize = static_cast<double>(w.nx);
    options.dfYOff = static_cast<double>(top) - less, options.dfYSize = static_cast<double>(w.ny);
  }
  if (row_stride == w.sample_x && is_sparse(w) &&
      (band_.GetOverviewCount() > 0 ? read_overview(w, top, options, out) : read_sampled(w, out)))
    return true;
  CPLErr result = band_.RasterIO(
      GF_Read, static_cast<int>(w.x), static_cast<int>(top), static_cast<int>(w.nx),
      static_cast<int>(w.ny), out, static_cast<int>(w.sample_x), static_cast<int>(w.sample_y),
      gdal_type_of(type_), static_cast<GSpacing>(width), static_cast<GSpacing>(pitch), &options);
  return result == CE_None;
}

bool band_reader::read_sampled(const grid_window& w, void* out) {
  plain_tiff_band* plain = dataset_->plain_band(index_, -1);
  if (plain == nullptr) return false;
  std::vector<std::int64_t> rows = sampled_rows(w.y, w.ny, w.sample_y);
  if (rows_run_south_) {
    for (std::int64_t& row : rows) row = file_row(row);
    std::reverse(rows.begin(), rows.end());
  }
  return plain->sample(sampled_columns(w.x, w.nx, w.sample_x), rows, out, element_width(type_));
}

// The cells that GDAL would take, from the overview that it would take.
bool band_reader::read_overview(const grid_window& w, std::int64_t top,
                                GDALRasterIOExtraArg options, void* out) {
  int x = static_cast<int>(w.x), y = static_cast<int>(top);
  int nx = static_cast<int>(w.nx), ny = static_cast<int>(w.ny);
  int level = GDALBandGetBestOverviewLevel2(&band_, x, y, nx, ny, static_cast<int>(w.sample_x),
                                            static_cast<int>(w.sample_y), &options);
  plain_tiff_band* plain = level >= 0 ? dataset_->plain_band(index_, level) : nullptr;
  if (plain == nullptr) return false;
  bool exact = options.bFloatingPointWindowValidity != FALSE;
  GDALRasterBand& overview = *band_.GetOverview(level);
  return plain->sample(cells_of_gdal(exact ? options.dfXOff : x, exact ? options.dfXSize : nx,
                                     w.sample_x, overview.GetXSize(), true),
                       cells_of_gdal(exact ? options.dfYOff : y, exact ? options.dfYSize : ny,
                                     w.sample_y, overview.GetYSize(), false),
                       out, element_width(type_));
}

// Reads block by block at full resolution what can be read of a window that could not.
std::int32_t band_reader::salvage(const grid_window& w, const target& to,
                                  const std::string& reason) {
  std::string cut = truncation_of(band_, dataset_->path());
  if (!cut.empty()) return keep(cut, zu_problem_read), read_failed;
  double fill = 0;
  if (!nodata_of(band_, fill))
    fill = to.type == element_float32 || to.type == element_float64
               ? std::numeric_limits<double>::quiet_NaN()
               : 0;
  int block_x = 0, block_y = 0;
  band_.GetBlockSize(&block_x, &block_y);
  std::vector<std::int64_t> xs = sampled_columns(w.x, w.nx, w.sample_x);
  std::vector<std::int64_t> ys = sampled_rows(w.y, w.ny, w.sample_y);
  std::map<std::int64_t, std::vector<std::uint64_t>> columns, rows;  // samples by block
  for (std::uint64_t i = 0; i < w.sample_x; ++i) columns[xs[i] / block_x].push_back(i);
  for (std::uint64_t i = 0; i < w.sample_y; ++i) rows[file_row(ys[i]) / block_y].push_back(i);

  std::size_t width = element_width(type_);
  auto line = static_cast<std::size_t>(block_x);
  std::vector<std::byte> block(line * static_cast<std::size_t>(block_y) * width);
  bool any = false;
  for (auto& [down, row_samples] : rows)
    for (auto& [across, column_samples] : columns) {
      std::int64_t x0 = across * block_x, y0 = down * block_y;
      auto nx = static_cast<int>(std::min<std::int64_t>(block_x, band_.GetXSize() - x0));
      auto ny = static_cast<int>(std::min<std::int64_t>(block_y, band_.GetYSize() - y0));
      bool good =
          band_.RasterIO(GF_Read, static_cast<int>(x0), static_cast<int>(y0), nx, ny, block.data(),
                         nx, ny, gdal_type_of(type_), static_cast<GSpacing>(width),
                         static_cast<GSpacing>(line * width), nullptr) == CE_None;
      any = any || good;
      for (std::uint64_t row : row_samples) {
        std::int64_t y = file_row(ys[row]) - y0;
        for (std::uint64_t column : column_samples) {
          std::int64_t x = xs[column] - x0;
          const std::byte* cell =
              block.data() +
              (static_cast<std::size_t>(y) * line + static_cast<std::size_t>(x)) * width;
          const void* from = good ? static_cast<const void*>(cell) : &fill;
          convert_elements(from, good ? type_ : element_float64, 1, to.at(column, row), to.type, 1,
                           1);
        }
      }
    }
  keep("a tile cannot be read: " + reason, any ? zu_problem_part : zu_problem_read);
  return any ? read_done : read_failed;
}

}  // namespace zu::platform
