// The block reader against a plain reading of the same numbers, for every pair of element types and
// each of its paths.

#include "src/data/block_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <map>
#include <vector>

#include "src/data/element.h"
#include "zu/polymorphic.h"

namespace {

using namespace zu;
using namespace zu::data;

constexpr std::int32_t nx = 10, ny = 7;

/// The number at a node, small enough for every type.
double number_at(std::uint64_t x, std::uint64_t y) {
  return static_cast<double>((y * nx + x) % 100);
}

template <class element> void store(void* buffer, std::uint64_t at, double value) {
  auto cast = static_cast<element>(value);
  std::memcpy(static_cast<char*>(buffer) + at * sizeof(element), &cast, sizeof cast);
}
template <class element> double load(const void* buffer, std::uint64_t at) {
  element value;
  std::memcpy(&value, static_cast<const char*>(buffer) + at * sizeof(element), sizeof value);
  return static_cast<double>(value);
}

struct type_access {
  void (*store)(void*, std::uint64_t, double);
  double (*load)(const void*, std::uint64_t);
};
const type_access access[] = {{},
                              {&store<std::uint8_t>, &load<std::uint8_t>},
                              {&store<std::int8_t>, &load<std::int8_t>},
                              {&store<std::int16_t>, &load<std::int16_t>},
                              {&store<std::uint16_t>, &load<std::uint16_t>},
                              {&store<std::int32_t>, &load<std::int32_t>},
                              {&store<std::uint32_t>, &load<std::uint32_t>},
                              {&store<std::int64_t>, &load<std::int64_t>},
                              {&store<std::uint64_t>, &load<std::uint64_t>},
                              {&store<float>, &load<float>},
                              {&store<double>, &load<double>}};

/// A grid and its one block, which knows tiles and, if told so, more.
struct tiled_source : polymorphic<data_source_impl>, polymorphic<grid_source_impl> {
  struct block : grid_block_impl {
    explicit block(tiled_source& owner) : source(owner) {}
    tiled_source& source;
    std::int32_t type() override { return source.type; }
    bool tile_size(std::uint64_t* three) override {
      three[0] = source.tile_width, three[1] = source.tile_height, three[2] = 1;
      return source.tells_tiles;
    }
    std::int32_t read_tile(std::uint64_t column, std::uint64_t row, void* buffer) override {
      ++source.reads[{column, row}];
      if (source.tile_result != 1) return source.tile_result;
      if (source.refuses_beyond &&
          (column * source.tile_width >= nx || row * source.tile_height >= ny))
        return 3;
      for (std::uint64_t j = 0; j < source.tile_height; ++j)
        for (std::uint64_t i = 0; i < source.tile_width; ++i)
          access[source.type].store(
              buffer, j * source.tile_width + i,
              number_at(column * source.tile_width + i, row * source.tile_height + j));
      return 1;
    }
    std::int32_t read_window(const std::int64_t*, const std::uint64_t*, void*, const std::uint64_t*,
                             std::int32_t, const std::uint64_t*) override {
      return source.window_result;
    }
    std::int32_t read_linear(std::uint64_t, std::uint64_t, void*, std::int32_t) override {
      return source.linear_result;
    }
    std::int32_t read_window_3d(const std::int64_t*, const std::uint64_t*, void*,
                                const std::uint64_t*, std::int32_t, const std::uint64_t*) override {
      return source.slice_result;
    }
    std::int32_t write_linear(std::uint64_t, std::uint64_t, const void*, std::uint64_t,
                              std::int32_t, std::int32_t) override {
      return source.write_result;
    }
  };

  bool sizes(std::int32_t* three) override {
    three[0] = nx, three[1] = ny, three[2] = 1;
    return true;
  }
  grid_block handle() { return handle_of<grid_block_impl>(only_block); }

  std::int32_t type = element_float64;
  std::uint64_t tile_width = 4, tile_height = 3;
  bool tells_tiles = true, refuses_beyond = false;
  std::int32_t tile_result = 1, window_result = 0, linear_result = 0, slice_result = 0,
               write_result = 0;
  std::map<std::pair<std::uint64_t, std::uint64_t>, int> reads;
  block only_block{*this};
};

struct reader_bench {
  tiled_source source;
  grid_datasource data;
  reader_bench() { data.attach(handle_of<data_source_impl>(source)); }

  std::int32_t read(std::int64_t ox, std::int64_t oy, std::uint64_t sx, std::uint64_t sy,
                    std::uint64_t nsx, std::uint64_t nsy, std::int32_t type,
                    std::uint64_t column_stride = 0, std::uint64_t row_stride = 0) {
    std::int64_t origin[] = {ox, oy};
    std::uint64_t size[] = {sx, sy}, sample[] = {nsx, nsy}, strides[] = {column_stride, row_stride};
    buffer.assign(8 * 1000, '\x5a');
    bool dense = column_stride == 0 && row_stride == 0;
    return read_window(data, source.handle(), origin, size, buffer.data(), sample, type,
                       dense ? nullptr : strides);
  }
  double at(std::int32_t type, std::uint64_t index) {
    return access[type].load(buffer.data(), index);
  }
  std::vector<char> buffer;
};

TEST(block_reader, reads_every_type_into_every_type_on_each_path) {
  struct {
    const char* path;
    std::uint64_t tile_width, sx, sy, nsx, nsy;
    std::int64_t ox, oy;
  } const paths[] = {{"row run", nx, nx, 5, nx, 5, 0, 1},
                     {"row run of a part", nx, 6, 5, 6, 5, 3, 1},
                     {"tile walk", 4, 7, 5, 7, 5, 2, 1},
                     {"sampled down", 4, 9, 6, 4, 3, 1, 0},
                     {"sampled up", 4, 3, 2, 7, 5, 5, 4}};
  for (const auto& p : paths)
    for (std::int32_t from = 1; from <= 10; ++from)
      for (std::int32_t to = 1; to <= 10; ++to) {
        reader_bench b;
        b.source.type = from;
        b.source.tile_width = p.tile_width;
        ASSERT_EQ(b.read(p.ox, p.oy, p.sx, p.sy, p.nsx, p.nsy, to), 1);
        for (std::uint64_t j = 0; j < p.nsy; ++j)
          for (std::uint64_t i = 0; i < p.nsx; ++i) {
            auto x = static_cast<std::uint64_t>(static_cast<double>(p.ox) +
                                                (i + 0.5) * p.sx / static_cast<double>(p.nsx));
            auto y = static_cast<std::uint64_t>((j + 0.5) * p.sy / static_cast<double>(p.nsy) +
                                                static_cast<double>(p.oy));
            ASSERT_EQ(b.at(to, j * p.nsx + i), number_at(x, y))
                << p.path << " " << from << " to " << to << " at " << i << ", " << j;
          }
        for (const auto& [tile, count] : b.source.reads) ASSERT_EQ(count, 1) << p.path;
      }
}

TEST(block_reader, a_sample_of_one_by_one_reads_the_node_in_the_middle) {
  reader_bench b;
  ASSERT_EQ(b.read(2, 1, 5, 3, 1, 1, element_float64), 1);
  EXPECT_EQ(b.at(element_float64, 0), number_at(4, 2));
  EXPECT_EQ(b.source.reads.size(), 1u);
}

TEST(block_reader, one_more_sample_than_nodes_is_sampled_and_repeats_one) {
  reader_bench b;
  ASSERT_EQ(b.read(0, 0, 3, 1, 4, 1, element_float64), 1);
  EXPECT_EQ(b.at(element_float64, 0), 0);
  EXPECT_EQ(b.at(element_float64, 1), 1);
  EXPECT_EQ(b.at(element_float64, 2), 1);
  EXPECT_EQ(b.at(element_float64, 3), 2);
}

TEST(block_reader, strides_leave_what_lies_between_alone) {
  for (std::uint64_t tile_width : {4u, 10u}) {
    reader_bench b;
    b.source.tile_width = tile_width;
    ASSERT_EQ(b.read(0, 0, 3, 2, 3, 2, element_uint8, 2, 10), 1);
    EXPECT_EQ(b.at(element_uint8, 0), number_at(0, 0));
    EXPECT_EQ(b.at(element_uint8, 2), number_at(1, 0));
    EXPECT_EQ(b.at(element_uint8, 14), number_at(2, 1));
    EXPECT_EQ(b.buffer[1], '\x5a');
    EXPECT_EQ(b.buffer[5], '\x5a');
    EXPECT_EQ(b.buffer[15], '\x5a');
    ASSERT_EQ(b.read(0, 0, 4, 2, 2, 2, element_uint8, 3, 0), 1);
    EXPECT_EQ(b.at(element_uint8, 3), number_at(3, 0));
    EXPECT_EQ(b.at(element_uint8, 6), number_at(1, 1));
  }
}

TEST(block_reader, the_sources_own_read_comes_first_and_its_result_passes_through) {
  for (std::int32_t result : {1, 2, 7}) {
    reader_bench b;
    b.source.window_result = result;
    EXPECT_EQ(b.read(0, 0, 3, 2, 3, 2, element_float64), result);
    EXPECT_TRUE(b.source.reads.empty());
  }
}

TEST(block_reader, says_that_a_read_is_impossible) {
  const std::function<void(reader_bench&)> spoilers[] = {
      [](reader_bench& b) { b.source.type = 0; }, [](reader_bench& b) { b.source.type = 11; },
      [](reader_bench& b) { b.source.tells_tiles = false; },
      [](reader_bench& b) { b.source.tile_width = 0; },
      [](reader_bench& b) { b.source.tile_height = 0; },
      // A tile of more bytes than can be counted.
      [](reader_bench& b) { b.source.tile_width = b.source.tile_height = std::uint64_t{1} << 32; }};
  for (const auto& spoil : spoilers) {
    reader_bench b;
    spoil(b);
    EXPECT_EQ(b.read(0, 0, 3, 2, 3, 2, element_float64), 2);
  }
  reader_bench b;
  EXPECT_EQ(b.read(0, 0, 3, 2, 3, 2, element_none), 2);
  std::int64_t origin[] = {0, 0};
  std::uint64_t size[] = {1, 1};
  char byte;
  EXPECT_EQ(read_window(b.data, grid_block(), origin, size, &byte, size, 1, nullptr), 0);
  grid_datasource unbound;
  EXPECT_EQ(read_window(unbound, b.source.handle(), origin, size, &byte, size, 1, nullptr), 0);
}

TEST(block_reader, a_window_at_the_far_edge_is_read_and_one_beyond_is_left_to_the_source) {
  for (std::uint64_t tile_width : {4u, 10u}) {
    reader_bench b;
    b.source.tile_width = tile_width;
    ASSERT_EQ(b.read(nx - 2, ny - 1, 2, 1, 2, 1, element_int32), 1);
    EXPECT_EQ(b.at(element_int32, 0), number_at(nx - 2, ny - 1));
    EXPECT_EQ(b.at(element_int32, 1), number_at(nx - 1, ny - 1));
    b.source.reads.clear();
    b.source.refuses_beyond = true;
    EXPECT_EQ(b.read(nx - 2, ny - 1, 20, 1, 20, 1, element_int32), 3);
    EXPECT_EQ(b.read(0, 0, 3, 20, 3, 20, element_int32), 3);
    EXPECT_EQ(b.read(nx - 2, 0, 20, 1, 10, 1, element_int32), 3);
    EXPECT_EQ(b.read(-1, 0, 3, 1, 3, 1, element_int32), 2);
    EXPECT_EQ(b.read(0, -1, 3, 1, 1, 1, element_int32), 2);
  }
}

TEST(block_reader, a_failing_tile_gives_its_own_result) {
  for (std::int32_t result : {0, 2, 9})
    for (std::uint64_t samples : {3u, 2u}) {
      reader_bench b;
      b.source.tile_result = result;
      EXPECT_EQ(b.read(0, 0, 3, 2, samples, 2, element_float64), result);
    }
}

TEST(block_reader, a_slice_has_no_way_but_the_sources_own) {
  reader_bench b;
  std::int64_t origin[] = {0, 0, 0};
  std::uint64_t size[] = {1, 1, 1};
  double value;
  EXPECT_EQ(read_window_3d(b.source.handle(), origin, size, &value, size, 10, nullptr), 0);
  EXPECT_TRUE(b.source.reads.empty());
  b.source.slice_result = 1;
  EXPECT_EQ(read_window_3d(b.source.handle(), origin, size, &value, size, 10, nullptr), 1);
}

TEST(block_reader, a_linear_read_goes_on_in_the_next_row_and_reads_a_tile_once) {
  for (std::uint64_t tile_width : {4u, 10u}) {
    reader_bench b;
    b.source.tile_width = tile_width;
    std::vector<float> values(40, -1);
    ASSERT_EQ(read_linear(b.data, b.source.handle(), 7, 30, values.data(), element_float32), 1);
    for (std::uint64_t i = 0; i < 30; ++i) EXPECT_EQ(values[i], 7.0f + i);
    EXPECT_EQ(values[30], -1);
    for (const auto& [tile, count] : b.source.reads) EXPECT_EQ(count, 1);
  }
  reader_bench b;
  b.source.linear_result = 5;
  double value;
  EXPECT_EQ(read_linear(b.data, b.source.handle(), 0, 1, &value, 10), 5);
  EXPECT_EQ(read_linear(b.data, grid_block(), 0, 1, &value, 10), 0);
}

TEST(block_reader, a_refused_write_is_impossible) {
  reader_bench b;
  double value = 1;
  EXPECT_EQ(write_linear(b.source.handle(), 0, 1, &value, 10), 2);
  b.source.write_result = 1;
  EXPECT_EQ(write_linear(b.source.handle(), 0, 1, &value, 10), 1);
  EXPECT_EQ(write_linear(grid_block(), 0, 1, &value, 10), 0);
}

TEST(element, widths_follow_the_table) {
  const std::size_t widths[] = {0, 1, 1, 2, 2, 4, 4, 8, 8, 4, 8, 0};
  for (std::int32_t code = -1; code <= 11; ++code)
    EXPECT_EQ(element_width(code), code < 0 ? 0 : widths[code]) << code;
}

/// A value of type `from` as `to`.
template <class element> double cast(element value, std::int32_t from, std::int32_t to) {
  char out[8] = {};
  convert(&value, from, 0, out, to, 0, 1);
  return access[to].load(out, 0);
}

TEST(element, integers_are_cut_to_their_low_bytes_and_nothing_is_clamped) {
  EXPECT_EQ(cast(std::int32_t{300}, element_int32, element_uint8), 44);
  EXPECT_EQ(cast(std::int16_t{-1}, element_int16, element_uint16), 65535);
  EXPECT_EQ(cast(std::uint8_t{200}, element_uint8, element_int8), -56);
  EXPECT_EQ(cast(300.7, element_float64, element_uint8), 44);
  EXPECT_EQ(cast(-1.9, element_float64, element_int32), -1);
  EXPECT_EQ(cast(-1.0f, element_float32, element_uint8), 255);
  EXPECT_EQ(cast(1e19, element_float64, element_uint64), 1e19);
  EXPECT_EQ(cast(-9999.0, element_float64, element_int16), -9999);
}

// Intel 64 manual, CVTTSD2SI: a result that does not fit is the lowest number of the register.
TEST(element, a_floating_value_that_does_not_fit_becomes_what_the_machine_makes_of_it) {
  constexpr double lowest32 = -2147483648.0, lowest64 = -9223372036854775808.0;
  const double nan = std::nan("");
  struct {
    double value;
    std::int32_t to;
    double result;
  } const cases[] = {
      {nan, element_int32, lowest32},
      {nan, element_int64, lowest64},
      {nan, element_uint8, 0},
      {nan, element_uint64, 9223372036854775808.0},
      {3e9, element_int32, lowest32},
      {-2147483648.9, element_int32, lowest32},
      {2147483647.9, element_int32, 2147483647},
      {3e9, element_uint32, 3e9},
      {-1.0, element_uint32, 4294967295.0},
      {4294967297.0, element_uint32, 1},
      {1e10, element_int16, 0},  // 10,000,000,000 ends in 0xe400, but a 32-bit register is lost
      {2147483647.0, element_int16, -1},
      {1e300, element_int64, lowest64},
      {1e300, element_uint8, 0},
      {1e19, element_uint64, 1e19},
      {2e19, element_uint64, 0},
      {-1e300, element_uint64, 9223372036854775808.0},
      {-HUGE_VAL, element_int32, lowest32},
  };
  for (const auto& c : cases)
    EXPECT_EQ(cast(c.value, element_float64, c.to), c.result) << c.value << " to " << c.to;
  EXPECT_EQ(cast(-3.4028235e38f, element_float32, element_int32), lowest32);
  EXPECT_EQ(cast(2147483648.0f, element_float32, element_int32), lowest32);
}

}  // namespace
