// What is computed of a band by reading all of it, in chunks of one tile.

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <new>
#include <stdexcept>

#include "src/data/block_reader.h"
#include "src/data/grid_datasource.h"
#include "src/data/nodata_test.h"

namespace zu::data {
namespace {

// Of a read, in place of the source's own results.
constexpr std::int32_t read_stopped = 3;

/// Doubles of one tile.
using chunk_buffer = std::vector<double>;

/// Numbers met not long ago, so that those of a field of few values are sought in a tree once.
class recent_numbers {
 public:
  recent_numbers() : places_(std::size_t{1} << bits) {}
  /// False for a number that surely came before.
  bool is_new(double number) {
    std::uint64_t word = 0;
    std::memcpy(&word, &number, sizeof word);
    // Knuth, The Art of Computer Programming 3, 6.4: multiplicative hashing.
    place& at = places_[(word * 0x9E3779B97F4A7C15U) >> (64 - bits)];
    if (at.used && at.word == word) return false;
    at = {word, true};
    return true;
  }

 private:
  static constexpr unsigned bits = 12;
  struct place {
    std::uint64_t word = 0;
    bool used = false;
  };
  std::vector<place> places_;
};

/// Elements of a tile; 0 if the block gives none or they cannot be counted.
std::uint64_t tile_elements(grid_block block, bool unit_without) {
  std::uint64_t tile[3] = {1, 1, 1};
  if (!call<&grid_block_impl::tile_size>(block, tile) && !unit_without) return 0;
  return tile[0] * tile[1] * tile[2];
}

bool allocate(chunk_buffer& buffer, std::uint64_t elements) {
  try {
    buffer.resize(elements);
  } catch (const std::bad_alloc&) {
    return false;
  } catch (const std::length_error&) {
    return false;
  }
  return true;
}

}  // namespace

/// Reads a field linearly and calls `take(samples, count, test)` for each chunk until it says
/// false. The result of the last read; nothing without a block, 2 without a buffer, 3 if stopped.
template <class function>
std::optional<std::int32_t> grid_datasource::each_chunk(std::int64_t field, bool unit_tile_without,
                                                        const function& take) {
  owned_block block;
  if (!get_block(field, block)) return {};
  chunk_buffer buffer;
  if (!allocate(buffer, tile_elements(block.get(), unit_tile_without))) return 2;
  std::int32_t grid[3] = {0, 0, 0};
  sizes(grid);
  std::uint64_t total = static_cast<std::uint64_t>(grid[0]) * static_cast<std::uint64_t>(grid[1]) *
                        static_cast<std::uint64_t>(grid[2]);
  nodata_test test = nodata_test::of(block.get(), element_float64);
  std::int32_t result = 1;
  for (std::uint64_t start = 0; start < total;) {
    std::uint64_t count = std::min<std::uint64_t>(buffer.size(), total - start);
    if (count == 0) return result;
    if (!show(start, total)) return read_stopped;
    result = read_linear(*this, block.get(), start, count, buffer.data(), element_float64);
    if (result != 1 || !take(buffer.data(), count, test)) return result;
    start += count;
  }
  return result;
}

void grid_datasource::compute_basic_stat(std::int64_t field, field_statistics& record) {
  field_statistics found;
  found.minimum = std::numeric_limits<double>::max();
  found.maximum = -std::numeric_limits<double>::max();
  double sum = 0.0;
  auto result = each_chunk(
      field, false, [&](const double* samples, std::uint64_t count, const nodata_test& test) {
        for (std::uint64_t i = 0; i < count; ++i) {
          if (!test.valid(samples[i])) continue;
          found.minimum = std::min(found.minimum, samples[i]);
          found.maximum = std::max(found.maximum, samples[i]);
          sum += samples[i];
          ++found.count;
        }
        return true;
      });
  if (!result) return;
  record.minimum = found.count != 0 ? found.minimum : 0.0;
  record.maximum = found.count != 0 ? found.maximum : 0.0;
  record.mean = found.count != 0 ? sum / static_cast<double>(found.count) : 0.0;
  record.count = found.count;
  record.basic_done = true;
}

void grid_datasource::compute_stddev(std::int64_t field, field_statistics& record) {
  double sum = 0.0;
  auto result = each_chunk(
      field, false, [&](const double* samples, std::uint64_t count, const nodata_test& test) {
        for (std::uint64_t i = 0; i < count; ++i) {
          if (!test.valid(samples[i])) continue;
          double off = samples[i] - record.mean;
          sum += off * off;
        }
        return true;
      });
  if (!result) return;
  record.stddev = std::sqrt(record.count > 1 ? sum / static_cast<double>(record.count - 1) : sum);
  record.stddev_done = true;
}

void grid_datasource::count_unique(std::int64_t field, field_statistics& record) {
  std::set<double> numbers;
  field_unique_numbers(field, -1, numbers);
  record.distinct = numbers.size();
  record.distinct_done = true;
}

bool grid_datasource::field_values(std::int64_t field, std::vector<double>& out) {
  auto result = each_chunk(
      field, false, [&](const double* samples, std::uint64_t count, const nodata_test& test) {
        std::copy_if(samples, samples + count, std::back_inserter(out),
                     [&](double sample) { return test.valid(sample); });
        return true;
      });
  return result.has_value();
}

bool grid_datasource::field_value_texts(std::int64_t field, std::vector<std::wstring>& out) {
  std::vector<double> values;
  if (!field_values(field, values)) return false;
  std::transform(values.begin(), values.end(), std::back_inserter(out), number_text);
  return true;
}

bool grid_datasource::field_unique_numbers(std::int64_t field, std::int64_t limit,
                                           std::set<double>& out) {
  recent_numbers seen;
  // The limit is looked at after a whole chunk only.
  auto result = each_chunk(
      field, true, [&](const double* samples, std::uint64_t count, const nodata_test& test) {
        for (std::uint64_t i = 0; i < count; ++i)
          if (seen.is_new(samples[i]) && test.valid(samples[i])) out.insert(samples[i]);
        return limit < 0 || out.size() < static_cast<std::uint64_t>(limit);
      });
  return result == 1;
}

bool grid_datasource::field_unique_texts(std::int64_t field, std::int64_t limit,
                                         std::vector<std::wstring>& out) {
  std::set<double> numbers;
  bool read = field_unique_numbers(field, limit, numbers);
  std::transform(numbers.begin(), numbers.end(), std::back_inserter(out), number_text);
  return read;
}

bool grid_datasource::field_groups(const std::vector<std::int64_t>& fields, std::int64_t limit,
                                   group_map& out) {
  struct reader {
    owned_block block;
    nodata_test test;
    chunk_buffer samples;
  };
  std::vector<reader> readers(fields.size());
  std::uint64_t chunk = 0;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (!get_block(fields[i], readers[i].block)) return false;
    readers[i].test = nodata_test::of(readers[i].block.get(), element_float64);
    std::uint64_t elements = tile_elements(readers[i].block.get(), true);
    chunk = i == 0 ? elements : std::min(chunk, elements);
  }
  std::int32_t grid[3] = {0, 0, 0};
  if (readers.empty() || chunk == 0 || !sizes(grid)) return false;
  for (reader& r : readers)
    if (!allocate(r.samples, chunk)) return false;
  std::uint64_t total = static_cast<std::uint64_t>(grid[0]) * static_cast<std::uint64_t>(grid[1]) *
                        static_cast<std::uint64_t>(grid[2]);
  recent_numbers seen;
  for (std::uint64_t start = 0; start < total; start += chunk) {
    std::uint64_t count = std::min(chunk, total - start);
    if (!show(start, total)) return false;
    for (reader& r : readers)
      if (read_linear(*this, r.block.get(), start, count, r.samples.data(), element_float64) != 1)
        return false;
    for (std::uint64_t i = 0; i < count; ++i) {
      double number = readers[0].samples[i];
      if (!seen.is_new(number) || !readers[0].test.valid(number)) continue;
      auto [entry, is_new] = out.try_emplace(number_text(number));
      if (!is_new) continue;
      for (std::size_t other = 1; other < readers.size(); ++other)
        if (readers[other].test.valid(readers[other].samples[i]))
          entry->second.push_back(number_text(readers[other].samples[i]));
    }
    if (limit >= 0 && out.size() >= static_cast<std::uint64_t>(limit)) break;
  }
  return true;
}

}  // namespace zu::data
