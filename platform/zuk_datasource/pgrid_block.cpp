#include "platform/zuk_datasource/pgrid_block.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/band_reader.h"
#include "platform/zuk_datasource/elements.h"
#include "zu/platform/zuk_basic.h"

namespace zu::platform {
namespace {

constexpr std::uint64_t converted_at_once = 65536;

bool fits(std::int64_t origin, std::uint64_t size, std::int64_t all) {
  return origin >= 0 && size > 0 && origin < all &&
         size <= static_cast<std::uint64_t>(all - origin);
}

/// The coarsest level that still has a sample for each one wanted. A window rounded to whole nodes
/// may lack a few.
int level_for(const tile_plan& plan, const std::uint64_t* size, const std::uint64_t* sample) {
  constexpr double short_by = 1.01;
  auto allows = [&](int axis, double step) {
    return size[axis] == 1 ||
           static_cast<double>(size[axis]) * short_by >= step * static_cast<double>(sample[axis]);
  };
  int level = 0;
  while (level + 1 < plan.levels()) {
    auto step = static_cast<double>(plan.level(level + 1).step);
    if (!allows(0, step) || !allows(1, step)) break;
    ++level;
  }
  return level;
}

/// Samples from `from` whose offsets stand in `cells`, as dense elements of one width.
template <class element>
void gather(const std::byte* from, const std::int64_t* cells, std::size_t count, std::byte* to) {
  for (std::size_t i = 0; i < count; ++i, to += sizeof(element))
    std::memcpy(to, from + static_cast<std::size_t>(cells[i]) * sizeof(element), sizeof(element));
}

void gather(const std::byte* from, const std::int64_t* cells, std::size_t count, std::byte* to,
            std::size_t width) {
  switch (width) {
    case 1:
      return gather<std::uint8_t>(from, cells, count, to);
    case 2:
      return gather<std::uint16_t>(from, cells, count, to);
    case 4:
      return gather<std::uint32_t>(from, cells, count, to);
    default:
      return gather<std::uint64_t>(from, cells, count, to);
  }
}

}  // namespace

struct pgrid_block::slice_window {
  int level;
  std::int64_t z;
  std::vector<std::int64_t> columns, rows;  // of the level, in order
  std::byte* out;
  std::int32_t type;
  std::uint64_t column_stride, row_stride;
};

pgrid_block::pgrid_block(pgrid_ptr file, std::size_t property, std::wstring name)
    : file_(std::move(file)),
      property_(property),
      name_(std::move(name)),
      type_(file_->properties()[property].type) {}

template <class work> std::int32_t pgrid_block::kept(std::int32_t kind, work w) {
  try {
    w();
    return read_done;
  } catch (const std::exception& failure) {
    zu_problems_add(name_.c_str(), kind, from_utf8(failure.what()).c_str());
    return read_failed;
  }
}

bool pgrid_block::tile_size(std::uint64_t* three) {
  three[0] = static_cast<std::uint64_t>(file_->head().tile[0]);
  three[1] = static_cast<std::uint64_t>(file_->head().tile[1]);
  three[2] = 1;
  return true;
}

bool pgrid_block::nodata(std::int32_t, double* out) {
  const grid_property& property = file_->properties()[property_];
  if (property.has_nodata) *out = property.nodata;
  return property.has_nodata;
}

// --- Runs

std::int32_t pgrid_block::read_linear(std::uint64_t start, std::uint64_t count, void* buffer,
                                      std::int32_t type) {
  auto all = static_cast<std::uint64_t>(file_->head().nodes());
  std::size_t width = element_width(type), own = element_width(type_);
  if (buffer == nullptr || width == 0 || start > all || count > all - start) return read_impossible;
  return kept(zu_problem_read, [&] {
    auto* out = static_cast<std::byte*>(buffer);
    if (type == type_)
      return file_->read_run(property_, static_cast<std::int64_t>(start),
                             static_cast<std::int64_t>(count), out);
    pgrid_file::reading state(*file_);
    std::vector<std::byte> some(std::min(count, converted_at_once) * own);
    for (std::uint64_t done = 0, n; done < count; done += n) {
      n = std::min(count - done, converted_at_once);
      file_->read_run(property_, static_cast<std::int64_t>(start + done),
                      static_cast<std::int64_t>(n), some.data());
      convert_elements(some.data(), type_, 1, out + done * width, type, 1, n);
    }
  });
}

std::int32_t pgrid_block::write_linear(std::uint64_t start, std::uint64_t count, const void* buffer,
                                       std::uint64_t buffer_count, std::int32_t type,
                                       std::int32_t) {
  auto all = static_cast<std::uint64_t>(file_->head().nodes());
  std::size_t width = element_width(type), own = element_width(type_);
  if (buffer == nullptr || width == 0 || start > all || count > all - start || buffer_count < count)
    return read_impossible;
  return kept(zu_problem_write, [&] {
    auto* from = static_cast<const std::byte*>(buffer);
    pgrid_file::edit change(*file_);
    std::vector<std::byte> some(std::min(count, converted_at_once) * own);
    for (std::uint64_t done = 0, n; done < count; done += n) {
      n = std::min(count - done, converted_at_once);
      convert_elements(from + done * width, type, 1, some.data(), type_, 1, n);
      file_->write_run(property_, static_cast<std::int64_t>(start + done),
                       static_cast<std::int64_t>(n), some.data());
    }
    change.commit();
  });
}

// --- Windows

void pgrid_block::read_slice(const slice_window& w) {
  const std::int64_t across = file_->head().tile[0], down = file_->head().tile[1];
  const std::size_t own = element_width(type_), width = element_width(w.type);
  std::vector<std::byte> some(w.columns.size() * own);
  std::vector<std::int64_t> in_tile(w.columns);
  for (std::int64_t& column : in_tile) column %= across;
  for (std::size_t row = 0, next_row; row < w.rows.size(); row = next_row) {
    std::int64_t ty = w.rows[row] / down;
    for (next_row = row; next_row < w.rows.size() && w.rows[next_row] / down == ty;) ++next_row;
    for (std::size_t column = 0, next; column < w.columns.size(); column = next) {
      std::int64_t tx = w.columns[column] / across;
      for (next = column; next < w.columns.size() && w.columns[next] / across == tx;) ++next;
      const std::byte* tile = file_->tile(property_, w.level, w.z, ty, tx);
      std::size_t count = next - column;
      bool dense = w.columns[next - 1] - w.columns[column] == static_cast<std::int64_t>(count) - 1;
      for (std::size_t i = row; i < next_row; ++i) {
        const std::byte* line = tile + static_cast<std::size_t>(w.rows[i] % down * across) * own;
        const std::byte* from = line + static_cast<std::size_t>(in_tile[column]) * own;
        if (!dense) {
          gather(line, &in_tile[column], count, some.data(), own);
          from = some.data();
        }
        convert_elements(from, type_, 1,
                         w.out + (i * w.row_stride + column * w.column_stride) * width, w.type,
                         static_cast<std::ptrdiff_t>(w.column_stride), count);
      }
    }
  }
}

std::int32_t pgrid_block::read_window(const std::int64_t* origin, const std::uint64_t* size,
                                      void* buffer, const std::uint64_t* sample, std::int32_t type,
                                      const std::uint64_t* strides) {
  const std::int64_t first_slice[] = {origin[0], origin[1], 0};
  const std::uint64_t one_size[] = {size[0], size[1], 1}, one_sample[] = {sample[0], sample[1], 1};
  return read_window_3d(first_slice, one_size, buffer, one_sample, type, strides);
}

// The strides are those of columns and rows; slices follow each other densely.
std::int32_t pgrid_block::read_window_3d(const std::int64_t* origin, const std::uint64_t* size,
                                         void* buffer, const std::uint64_t* sample,
                                         std::int32_t type, const std::uint64_t* strides) {
  constexpr std::uint64_t most_samples = std::numeric_limits<std::int32_t>::max();
  const auto& all = file_->head().size;
  if (buffer == nullptr || element_width(type) == 0) return read_impossible;
  for (int axis = 0; axis < 3; ++axis)
    if (!fits(origin[axis], size[axis], all[static_cast<std::size_t>(axis)]) || sample[axis] == 0 ||
        sample[axis] > most_samples)
      return read_impossible;
  return kept(zu_problem_read, [&] {
    int level = level_for(file_->plan(), size, sample);
    slice_window w{level,
                   0,
                   sampled_columns(origin[0], size[0], sample[0]),
                   sampled_rows(origin[1], size[1], sample[1]),
                   static_cast<std::byte*>(buffer),
                   type,
                   strides == nullptr || strides[0] == 0 ? 1 : strides[0],
                   strides == nullptr ? 0 : strides[1]};
    if (w.row_stride == 0) w.row_stride = w.column_stride * sample[0];
    for (std::int64_t& column : w.columns) column >>= level;
    for (std::int64_t& row : w.rows) row >>= level;
    pgrid_file::reading state(*file_);
    for (std::int64_t z : sampled_rows(origin[2], size[2], sample[2])) {
      w.z = z;
      read_slice(w);
      w.out += w.row_stride * sample[1] * element_width(type);
    }
  });
}

std::int32_t pgrid_block::read_tile(std::uint64_t column, std::uint64_t row, void* buffer) {
  const tile_level& nodes = file_->plan().level(0);
  if (buffer == nullptr || column >= static_cast<std::uint64_t>(nodes.tiles[0]) ||
      row >= static_cast<std::uint64_t>(nodes.tiles[1]))
    return read_impossible;
  return kept(zu_problem_read, [&] {
    pgrid_file::reading state(*file_);
    std::memcpy(buffer,
                file_->tile(property_, 0, 0, static_cast<std::int64_t>(row),
                            static_cast<std::int64_t>(column)),
                file_->tile_bytes(property_));
  });
}

bool pgrid_palette::color(std::int64_t index, std::uint8_t* four) {
  if (index < 0 || index >= size()) return false;
  std::memcpy(four, colors_.data() + index * 4, 4);
  return true;
}

}  // namespace zu::platform
