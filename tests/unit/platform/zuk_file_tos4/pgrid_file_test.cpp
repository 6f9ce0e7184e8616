#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "platform/zuk_file_tos4/pgrid_file.h"
#include "platform/zuk_file_tos4/tables.h"
#include "tests/unit/platform/taken_text.h"
#include "tests/unit/platform/zuk_datasource/test_grids.h"
#include "zu/platform/zuk_file_tos4.h"

using namespace test_grids;
using namespace zu::platform;
using tests::text_of;

namespace {

grid_head plane(std::int64_t nx, std::int64_t ny, std::int64_t nz = 1) {
  grid_head head;
  head.type = nz > 1 ? zu_tos4_volume : zu_tos4_plane;
  head.size = {nx, ny, nz};
  return head;
}

grid_property property(const char* name, std::int32_t type) {
  grid_property out;
  out.name = name, out.type = type;
  return out;
}

template <class cell> const std::byte* bytes(const std::vector<cell>& cells) {
  return reinterpret_cast<const std::byte*>(cells.data());
}

/// A committed file of one property with these nodes.
template <class cell>
std::string made(const std::string& path, const grid_head& head, const grid_property& p,
                 const std::vector<cell>& cells) {
  pgrid_file file(path, head);
  file.add_property(p);
  file.write_run(0, 0, static_cast<std::int64_t>(cells.size()), bytes(cells));
  file.commit();
  return path;
}

template <class cell> std::vector<cell> read_all(pgrid_file& file, std::size_t p = 0) {
  std::vector<cell> out(static_cast<std::size_t>(file.head().nodes()), cell(77));
  file.read_run(p, 0, file.head().nodes(), reinterpret_cast<std::byte*>(out.data()));
  return out;
}

std::string refusal(const std::function<void()>& work) {
  try {
    work();
  } catch (const pgrid_failure& failure) {
    return failure.what();
  }
  return "";
}

// --- Round trips

struct kind {
  const char* name;
  grid_head head;
};
const kind kinds[] = {
    {"one node", plane(1, 1)},        {"one row", plane(70000, 1)},
    {"one column", plane(1, 600)},    {"less than a tile", plane(31, 17)},
    {"whole tiles", plane(512, 256)}, {"a node more than tiles", plane(257, 513)},
    {"a volume", plane(300, 20, 5)},
};

template <class cell> void come_back(std::int32_t type) {
  std::mt19937_64 random(static_cast<std::uint64_t>(type));
  for (const kind& each : kinds) {
    SCOPED_TRACE(each.name);
    folder f;
    std::vector<cell> cells(static_cast<std::size_t>(each.head.nodes()));
    for (cell& value : cells) {
      std::uint64_t bits = random();
      std::memcpy(&value, &bits, sizeof value);  // any bits, also those of no number
    }
    pgrid_file file(made(f.at("a.pgrid"), each.head, property("p", type), cells), access::read);
    std::vector<cell> back = read_all<cell>(file);
    EXPECT_EQ(std::memcmp(back.data(), cells.data(), cells.size() * sizeof(cell)), 0);
    EXPECT_EQ(file.properties()[0].type, type);
    EXPECT_EQ(f.names(), std::vector<std::string>{"a.pgrid"});
  }
}

TEST(pgrid_file, nodes_of_all_types_come_back_bit_by_bit) {
  come_back<std::uint8_t>(1);
  come_back<std::int8_t>(2);
  come_back<std::int16_t>(3);
  come_back<std::uint16_t>(4);
  come_back<std::int32_t>(5);
  come_back<std::uint32_t>(6);
  come_back<std::int64_t>(7);
  come_back<std::uint64_t>(8);
  come_back<float>(9);
  come_back<double>(10);
}

TEST(pgrid_file, head_and_properties_come_back) {
  folder f;
  grid_head head = plane(300, 300, 2);
  head.origin = {1.5, -2.25, 0.1}, head.spacing = {0.1, -3, 7}, head.azimuth = 12.5;
  head.projection = "EPSG:32637";
  grid_property p = property("h\xC3\xB6he", 9);
  p.caption = "\xD0\x92", p.role = 5, p.has_nodata = true;
  p.nodata = std::numeric_limits<double>::quiet_NaN();
  p.palette.assign(8, std::byte(9));
  p.has_stat = true, p.minimum = -1, p.maximum = 2, p.mean = 0.5, p.stddev = 0.1, p.count = 7;
  {
    pgrid_file file(f.at("a.pgrid"), head);
    EXPECT_EQ(file.add_property(p), 0u);
    EXPECT_EQ(file.add_property(property("b", 1)), 1u);
    file.commit();
  }
  pgrid_file file(f.at("a.pgrid"), access::read);
  EXPECT_EQ(file.head().type, zu_tos4_volume);
  EXPECT_EQ(file.head().size, head.size);
  EXPECT_EQ(file.head().origin, head.origin);
  EXPECT_EQ(file.head().spacing, head.spacing);
  EXPECT_EQ(file.head().azimuth, 12.5);
  EXPECT_EQ(file.head().projection, "EPSG:32637");
  ASSERT_EQ(file.properties().size(), 2u);
  const grid_property& back = file.properties()[0];
  EXPECT_EQ(back.name, p.name);
  EXPECT_EQ(back.caption, p.caption);
  EXPECT_EQ(back.role, 5);
  EXPECT_TRUE(back.has_nodata && std::isnan(back.nodata));
  EXPECT_EQ(back.palette, p.palette);
  EXPECT_TRUE(back.has_stat);
  EXPECT_EQ(back.stddev, 0.1);
  EXPECT_EQ(back.count, 7);
  EXPECT_FALSE(file.properties()[1].has_stat);
  EXPECT_FALSE(file.properties()[1].has_nodata);
}

// --- What is not there

struct missing {
  std::int32_t type;
  bool has_nodata;
  double nodata, expected;
};

TEST(pgrid_file, nodes_never_written_are_nodata_and_cost_nothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const missing cases[] = {{3, true, -9999, -9999},
                           {3, false, 0, 0},
                           {1, true, -9999, 0},
                           {10, true, 1e300, 1e300},
                           {9, false, 0, nan},
                           {9, true, 1e300, nan},
                           {8, true, 18446744073709551616.0, 0}};
  for (const missing& each : cases) {
    folder f;
    grid_property p = property("p", each.type);
    p.has_nodata = each.has_nodata, p.nodata = each.nodata;
    {
      pgrid_file file(f.at("a.pgrid"), plane(100000000, 100000000));
      file.add_property(p);
      file.commit();
    }
    EXPECT_LT(std::filesystem::file_size(f.at("a.pgrid")), 1u << 20);
    pgrid_file file(f.at("a.pgrid"), access::read);
    alignas(8) std::byte cell[8];
    file.read_run(0, 9999999999999999, 1, cell);
    double value = 0;
    if (each.type == 1) value = static_cast<double>(std::to_integer<int>(cell[0]));
    if (each.type == 3) value = *reinterpret_cast<std::int16_t*>(cell);
    if (each.type == 8) value = static_cast<double>(*reinterpret_cast<std::uint64_t*>(cell));
    if (each.type == 9) value = *reinterpret_cast<float*>(cell);
    if (each.type == 10) value = *reinterpret_cast<double*>(cell);
    EXPECT_TRUE(value == each.expected || (std::isnan(value) && std::isnan(each.expected)))
        << each.type << ": " << value;
  }
}

TEST(pgrid_file, a_tile_that_becomes_nodata_is_taken_out) {
  folder f;
  std::vector<std::int16_t> cells(100, 5);
  grid_property p = property("p", 3);
  p.has_nodata = true, p.nodata = -1;
  made(f.at("a.pgrid"), plane(10, 10), p, cells);
  auto tiles = [&] {
    return database(f.at("a.pgrid"), access::read).number("SELECT count(*) FROM tile");
  };
  EXPECT_EQ(tiles(), 1);
  std::vector<std::int16_t> none(100, -1);
  pgrid_file(f.at("a.pgrid"), access::edit).write_run(0, 0, 100, bytes(none));
  EXPECT_EQ(tiles(), 0);
}

// --- Overviews

TEST(pgrid_file, an_overview_holds_the_middle_node_of_each_step) {
  for (auto [nx, ny] : {std::pair{1000, 600}, {1025, 257}, {515, 1}, {70001, 1}, {3, 700}}) {
    folder f;
    std::vector<std::int32_t> cells(static_cast<std::size_t>(nx) * ny);
    for (std::size_t i = 0; i < cells.size(); ++i) cells[i] = static_cast<std::int32_t>(i);
    pgrid_file file(made(f.at("a.pgrid"), plane(nx, ny), property("p", 5), cells), access::read);
    for (int level = 1; level < file.plan().levels(); ++level) {
      const tile_level& l = file.plan().level(level);
      EXPECT_EQ(l.size[0], (nx + l.step - 1) / l.step);
      pgrid_file::reading state(file);
      for (std::int64_t y = 0; y < l.size[1]; ++y)
        for (std::int64_t x = 0; x < l.size[0]; ++x) {
          std::int64_t across = file.head().tile[0], down = file.head().tile[1];
          const std::byte* tile = file.tile(0, level, 0, y / down, x / across);
          std::int32_t got;
          std::memcpy(&got, tile + (y % down * across + x % across) * 4, 4);
          std::int64_t from_x = std::min<std::int64_t>(x * l.step + l.step / 2, nx - 1);
          std::int64_t from_y = std::min<std::int64_t>(y * l.step + l.step / 2, ny - 1);
          ASSERT_EQ(got, from_y * nx + from_x)
              << nx << " level " << level << ": " << x << ", " << y;
        }
    }
  }
}

TEST(pgrid_file, an_edit_anywhere_reaches_the_overviews) {
  folder f;
  const int nx = 601, ny = 530;
  std::vector<std::int32_t> cells(nx * ny, 0);
  made(f.at("a.pgrid"), plane(nx, ny), property("p", 5), cells);
  std::mt19937 random(3);
  pgrid_file edited(f.at("a.pgrid"), access::edit);
  for (int i = 0; i < 60; ++i) {
    auto start = static_cast<std::size_t>(random() % (nx * ny));
    auto count = std::min<std::size_t>(random() % 3000 + 1, cells.size() - start);
    std::vector<std::int32_t> some(count, i + 1);
    std::copy(some.begin(), some.end(), cells.begin() + static_cast<std::ptrdiff_t>(start));
    edited.write_run(0, static_cast<std::int64_t>(start), static_cast<std::int64_t>(count),
                     bytes(some));
  }
  pgrid_file same(made(f.at("b.pgrid"), plane(nx, ny), property("p", 5), cells), access::read);
  pgrid_file::reading one(edited), two(same);
  for (int level = 0; level < same.plan().levels(); ++level) {
    const tile_level& l = same.plan().level(level);
    for (std::int64_t y = 0; y < l.tiles[1]; ++y)
      for (std::int64_t x = 0; x < l.tiles[0]; ++x)
        EXPECT_EQ(std::memcmp(edited.tile(0, level, 0, y, x), same.tile(0, level, 0, y, x),
                              same.tile_bytes(0)),
                  0)
            << level << ": " << x << ", " << y;
  }
}

// --- Edits

TEST(pgrid_file, an_edit_in_place_is_read_by_who_has_the_file_open) {
  folder f;
  std::vector<float> cells(600 * 3, 1);
  made(f.at("a.pgrid"), plane(600, 3), property("p", 9), cells);
  pgrid_file reader(f.at("a.pgrid"), access::read), writer(f.at("a.pgrid"), access::edit);
  EXPECT_EQ(read_all<float>(reader), cells);
  std::vector<float> some = {7, 8, 9};
  writer.write_run(0, 599, 3, bytes(some));
  cells[599] = 7, cells[600] = 8, cells[601] = 9;
  EXPECT_EQ(read_all<float>(reader), cells);
  EXPECT_EQ(read_all<float>(writer), cells);
  EXPECT_EQ(f.names(), std::vector<std::string>{"a.pgrid"});
}

TEST(pgrid_file, an_edit_that_is_not_committed_did_not_happen) {
  folder f;
  std::vector<float> cells(30, 1), others(30, 2);
  grid_property p = property("p", 9);
  made(f.at("a.pgrid"), plane(10, 3), p, cells);
  pgrid_file file(f.at("a.pgrid"), access::edit);
  p.has_stat = true, p.maximum = 1;
  file.set_property(0, p);
  {
    pgrid_file::edit change(file);
    file.write_run(0, 0, 30, bytes(others));
    EXPECT_EQ(read_all<float>(file), others);
    EXPECT_FALSE(file.properties()[0].has_stat);
  }
  EXPECT_EQ(read_all<float>(file), cells);
  EXPECT_TRUE(file.properties()[0].has_stat);
}

TEST(pgrid_file, an_edit_drops_the_statistics_of_what_it_writes) {
  folder f;
  std::vector<float> cells(30, 1);
  grid_property p = property("p", 9), q = property("q", 9);
  p.has_stat = q.has_stat = true;
  {
    pgrid_file file(f.at("a.pgrid"), plane(10, 3));
    file.add_property(p), file.add_property(q);
    file.commit();
  }
  pgrid_file(f.at("a.pgrid"), access::edit).write_run(1, 4, 1, bytes(cells));
  pgrid_file file(f.at("a.pgrid"), access::read);
  EXPECT_TRUE(file.properties()[0].has_stat);
  EXPECT_FALSE(file.properties()[1].has_stat);
}

TEST(pgrid_file, nodes_outside_are_refused) {
  folder f;
  std::vector<float> cells(30, 1);
  made(f.at("a.pgrid"), plane(10, 3), property("p", 9), cells);
  pgrid_file file(f.at("a.pgrid"), access::edit);
  EXPECT_EQ(refusal([&] { file.write_run(0, 1, 30, bytes(cells)); }), "has no such nodes");
  EXPECT_EQ(refusal([&] { file.write_run(0, -1, 1, bytes(cells)); }), "has no such nodes");
  EXPECT_EQ(refusal([&] { file.write_run(1, 0, 1, bytes(cells)); }), "has no such property");
  EXPECT_EQ(refusal([&] { file.write(0, {0, 0, 1, 1, 1}, bytes(cells)); }), "has no such nodes");
  EXPECT_EQ(read_all<float>(file), cells);
}

TEST(pgrid_file, one_open_for_reading_is_not_written) {
  folder f;
  std::vector<float> cells(30, 1);
  made(f.at("a.pgrid"), plane(10, 3), property("p", 9), cells);
  pgrid_file file(f.at("a.pgrid"), access::read);
  EXPECT_EQ(refusal([&] { file.write_run(0, 0, 1, bytes(cells)); }), "is open for reading alone");
  EXPECT_EQ(refusal([&] { file.set_head(plane(10, 3)); }), "is open for reading alone");
}

TEST(pgrid_file, opens_in_a_folder_that_cannot_be_written) {
  folder f;
  std::vector<float> cells(30, 1);
  made(f.at("a.pgrid"), plane(10, 3), property("p", 9), cells);
  std::filesystem::permissions(f.at("a.pgrid"), std::filesystem::perms::owner_read);
  std::filesystem::permissions(f.at(""), std::filesystem::perms(0500));
  {
    pgrid_file file(f.at("a.pgrid"), access::read);
    EXPECT_EQ(read_all<float>(file), cells);
    EXPECT_EQ(f.names(), std::vector<std::string>{"a.pgrid"});
  }
  std::filesystem::permissions(f.at(""), std::filesystem::perms(0700));
}

TEST(pgrid_file, an_edit_of_which_a_part_failed_does_not_stay) {
  folder f;
  std::vector<float> cells(30, 1), others(30, 2);
  made(f.at("a.pgrid"), plane(10, 3), property("p", 9), cells);
  pgrid_file file(f.at("a.pgrid"), access::edit);
  {
    pgrid_file::edit change(file);
    file.write_run(0, 0, 30, bytes(others));
    { pgrid_file::edit part(file); }
    EXPECT_EQ(refusal([&] { change.commit(); }), "a part of it could not be written");
  }
  EXPECT_EQ(read_all<float>(file), cells);
  file.write_run(0, 0, 30, bytes(others));
  EXPECT_EQ(read_all<float>(file), others);
}

// --- Making

TEST(pgrid_file, one_that_is_not_committed_leaves_nothing) {
  folder f;
  std::vector<float> cells(30, 1), old(6, 4);
  made(f.at("old.pgrid"), plane(3, 2), property("p", 9), old);
  for (const char* name : {"a.pgrid", "old.pgrid"}) {
    pgrid_file file(f.at(name), plane(10, 3));
    file.add_property(property("p", 9));
    file.write_run(0, 0, 30, bytes(cells));
  }
  EXPECT_EQ(f.names(), std::vector<std::string>{"old.pgrid"});
  pgrid_file file(f.at("old.pgrid"), access::read);
  EXPECT_EQ(read_all<float>(file), old);
}

TEST(pgrid_file, impossible_grids_are_not_made) {
  struct {
    const char* reason;
    std::function<void(grid_head&)> spoil;
  } cases[] = {
      {"has an impossible size", [](grid_head& h) { h.size[0] = 0; }},
      {"has an impossible size", [](grid_head& h) { h.size[2] = -5; }},
      {"has an impossible size", [](grid_head& h) { h.size[1] = std::int64_t(1) << 31; }},
      {"has too many nodes",
       [](grid_head& h) {
         h.size = {1 << 30, 1 << 30, 1 << 30};
       }},
      {"has too many tiles",
       [](grid_head& h) {
         h.size = {1 << 30, 1, 1 << 30};
       }},
      {"has an impossible spacing", [](grid_head& h) { h.spacing[1] = 0; }},
      {"has an impossible spacing", [](grid_head& h) { h.spacing[2] = INFINITY; }},
      {"has an origin that is no number", [](grid_head& h) { h.origin[0] = NAN; }},
      {"has an azimuth that is no number", [](grid_head& h) { h.azimuth = NAN; }},
      {"is of an unknown kind of grid", [](grid_head& h) { h.type = 7; }},
      {"is of an unknown kind of grid", [](grid_head& h) { h.type = -1; }},
      {"has more than one row of nodes that lie in a row", [](grid_head& h) { h.type = 1; }},
      {"has slices in two dimensions", [](grid_head& h) { h.type = 3; }},
  };
  for (auto& each : cases) {
    folder f;
    grid_head head = plane(4, 3, 2);
    each.spoil(head);
    EXPECT_EQ(refusal([&] { pgrid_file(f.at("a.pgrid"), head); }), each.reason);
    EXPECT_TRUE(f.names().empty());
  }
}

TEST(pgrid_file, impossible_properties_are_not_added) {
  folder f;
  pgrid_file file(f.at("a.pgrid"), plane(4, 3));
  file.add_property(property("p", 9));
  EXPECT_EQ(refusal([&] { file.add_property(property("p", 9)); }),
            "has two properties of one name");
  EXPECT_EQ(refusal([&] { file.add_property(property("", 9)); }), "has a property without a name");
  EXPECT_EQ(refusal([&] { file.add_property(property("q", 11)); }),
            "has a property of an unknown type");
  EXPECT_EQ(refusal([&] { file.add_property(property("q", 0)); }),
            "has a property of an unknown type");
  EXPECT_EQ(file.properties().size(), 1u);
}

// --- Plain functions

TEST(tos4_functions, make_read_and_edit_a_grid_with_coordinate_columns) {
  folder f;
  std::wstring path = wide(f.at("a.pgrid"));
  Tzu_tos4_grid grid{zu_tos4_two_columns, {3, 1, 1}, {0, 0, 0}, {1, 1, 1}, 0, nullptr};
  Tzu_tos4_file* file = zu_tos4_file_create_w(path.c_str(), &grid);
  ASSERT_NE(file, nullptr);
  const wchar_t* names[] = {L"z", L"x", L"y"};
  for (int i = 0; i < 3; ++i) {
    Tzu_tos4_prop prop{names[i], L"caption", 10, 0, false, 0};
    EXPECT_EQ(zu_tos4_file_add_prop(file, &prop), i);
  }
  EXPECT_TRUE(zu_tos4_file_set_coord_prop(file, 0, 1));
  EXPECT_TRUE(zu_tos4_file_set_coord_prop(file, 1, 2));
  EXPECT_FALSE(zu_tos4_file_set_coord_prop(file, 1, 3));
  const double z[] = {5, 6, 7};
  EXPECT_TRUE(zu_tos4_file_write(file, 0, 0, 3, z));
  EXPECT_FALSE(zu_tos4_file_write(file, 0, 1, 3, z));
  EXPECT_TRUE(zu_tos4_file_commit(file));
  EXPECT_FALSE(zu_tos4_file_commit(file));
  zu_tos4_file_close(file);

  file = zu_tos4_file_open_w(path.c_str(), 1);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(zu_tos4_get_grid_type(file), zu_tos4_two_columns);
  EXPECT_EQ(zu_tos4_get_prop_count(file), 3u);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_tos4_get_prop_name_w(file, 1, a); }), L"x");
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_tos4_get_prop_name_w(file, 3, a); }), L"");
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_tos4_get_prop_caption_w(file, 1, a); }),
            L"caption");
  EXPECT_EQ(zu_tos4_get_coord_prop(file, 0), 1);
  EXPECT_EQ(zu_tos4_get_coord_prop(file, 1), 2);
  EXPECT_EQ(zu_tos4_get_coord_prop(file, 2), -1);
  double back[3] = {};
  EXPECT_TRUE(zu_tos4_file_read(file, 0, 0, 3, back));
  EXPECT_EQ(back[2], 7);
  EXPECT_FALSE(zu_tos4_file_read(file, 0, 0, 4, back));
  EXPECT_FALSE(zu_tos4_file_write(file, 0, 0, 3, z));
  zu_tos4_file_close(file);

  file = zu_tos4_file_open_w(path.c_str(), 0);
  EXPECT_TRUE(zu_tos4_file_write(file, 0, 2, 1, z));
  zu_tos4_file_close(file);
  file = zu_tos4_file_open_w(path.c_str(), 1);
  EXPECT_TRUE(zu_tos4_file_read(file, 0, 2, 1, back));
  EXPECT_EQ(back[0], 5);
  zu_tos4_file_close(file);
}

TEST(tos4_functions, null_and_failure_give_nothing_and_a_reason) {
  EXPECT_EQ(zu_tos4_file_open_w(nullptr, 1), nullptr);
  EXPECT_EQ(zu_tos4_file_create_w(L"/tmp/a.pgrid", nullptr), nullptr);
  EXPECT_EQ(zu_tos4_get_grid_type(nullptr), 0);
  EXPECT_EQ(zu_tos4_get_prop_count(nullptr), 0u);
  EXPECT_EQ(zu_tos4_get_coord_prop(nullptr, 0), -1);
  EXPECT_FALSE(zu_tos4_file_commit(nullptr));
  zu_tos4_file_close(nullptr);
  EXPECT_EQ(zu_tos4_file_open_w(L"/nowhere/a.pgrid", 1), nullptr);
  EXPECT_EQ(text_of([](Tzu_string_adp* a) { zu_problems_get(L"/nowhere/a.pgrid", 0, a); }),
            L"no such file");
  zu_problems_clear(L"/nowhere/a.pgrid");
}

}  // namespace
