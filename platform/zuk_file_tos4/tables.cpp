#include "platform/zuk_file_tos4/tables.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <set>

namespace zu::platform {
namespace {

constexpr std::int64_t application = 0x5A504744;  // "ZPGD"
constexpr std::int64_t version = 1;
constexpr std::size_t longest_head = 100;  // of SQLite's header

constexpr const char* tables[] = {
    "CREATE TABLE grid (id INTEGER PRIMARY KEY CHECK (id = 1), type INTEGER NOT NULL,"
    " nx INTEGER NOT NULL, ny INTEGER NOT NULL, nz INTEGER NOT NULL,"
    " x0 REAL NOT NULL, y0 REAL NOT NULL, z0 REAL NOT NULL,"
    " dx REAL NOT NULL, dy REAL NOT NULL, dz REAL NOT NULL, azimuth REAL NOT NULL,"
    " tile_x INTEGER NOT NULL, tile_y INTEGER NOT NULL, levels INTEGER NOT NULL,"
    " projection TEXT NOT NULL, x_slot INTEGER, y_slot INTEGER, z_slot INTEGER)",
    "CREATE TABLE property (slot INTEGER PRIMARY KEY, name TEXT NOT NULL, caption TEXT NOT NULL,"
    " type INTEGER NOT NULL, role INTEGER NOT NULL, nodata BLOB, palette BLOB,"
    " minimum REAL, maximum REAL, mean REAL, stddev REAL, count INTEGER)",
    "CREATE TABLE tile (id INTEGER PRIMARY KEY, samples BLOB NOT NULL)"};

enum class found { nothing, something_else, file };

// A pipe that is opened would be waited for.
found what_stands_at(const std::string& path) {
  struct stat status;
  if (path.empty() || stat(path.c_str(), &status) != 0) return found::nothing;
  return S_ISREG(status.st_mode) ? found::file : found::something_else;
}

bool first_bytes(const std::string& path, std::array<unsigned char, longest_head>& out) {
  std::ifstream file(path, std::ios::binary);
  return static_cast<bool>(file.read(reinterpret_cast<char*>(out.data()), longest_head));
}

bool is_ours(const std::array<unsigned char, longest_head>& head) {
  static constexpr char magic[] = "SQLite format 3";
  std::int64_t id = 0;
  for (std::size_t i = 68; i < 72; ++i) id = id << 8 | head[i];
  return std::memcmp(head.data(), magic, sizeof magic) == 0 && id == application;
}

// NaN and infinities are no values of SQLite's; eight bytes hold them all.
std::array<std::byte, 8> bytes_of(double value) {
  std::array<std::byte, 8> out;
  std::memcpy(out.data(), &value, sizeof value);
  return out;
}

double double_of(std::span<const std::byte> bytes) {
  double value = 0;
  if (bytes.size() != sizeof value) throw pgrid_failure("has a broken NoData value");
  std::memcpy(&value, bytes.data(), sizeof value);
  return value;
}

}  // namespace

bool is_pgrid(const std::string& path) {
  std::array<unsigned char, longest_head> head;
  return what_stands_at(path) == found::file && first_bytes(path, head) && is_ours(head);
}

void check_first_bytes(const std::string& path) {
  std::array<unsigned char, longest_head> head;
  found here = what_stands_at(path);
  if (here == found::nothing) throw pgrid_failure("no such file");
  if (here == found::something_else) throw pgrid_failure("is not a regular file");
  if (!first_bytes(path, head) || !is_ours(head)) throw pgrid_failure("is no grid file");
  // A write-ahead log would make files beside it as soon as it is looked at.
  if (head[18] != 1 || head[19] != 1) throw pgrid_failure("keeps its edits in a write-ahead log");
}

void make_tables(database& base) {
  base.run(("PRAGMA application_id = " + std::to_string(application)).c_str());
  base.run(("PRAGMA user_version = " + std::to_string(version)).c_str());
  for (const char* table : tables) base.run(table);
}

void check_tables(database& base, const std::string& path) {
  std::int64_t found = base.number("PRAGMA user_version");
  if (found > version) throw pgrid_failure("was written by a newer version of the program");
  if (found < version) throw pgrid_failure("is no grid file");
  std::int64_t bytes = base.number("PRAGMA page_count") * base.number("PRAGMA page_size");
  struct stat status;
  if (stat(path.c_str(), &status) != 0 || status.st_size < bytes)
    throw pgrid_failure("is cut short");
  // Views, virtual tables and computed columns would run what the file says.
  if (base.number("SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND rootpage > 0 "
                  "AND name IN ('grid', 'property', 'tile')") != 3)
    throw pgrid_failure("lacks a table");
  if (base.number("SELECT (SELECT count(*) FROM pragma_table_xinfo('grid') WHERE hidden <> 0)"
                  " + (SELECT count(*) FROM pragma_table_xinfo('property') WHERE hidden <> 0)"
                  " + (SELECT count(*) FROM pragma_table_xinfo('tile') WHERE hidden <> 0)") != 0)
    throw pgrid_failure("has a computed column");
}

grid_head read_head(database& base) {
  statement row(base.get(),
                "SELECT type, nx, ny, nz, x0, y0, z0, dx, dy, dz, azimuth, tile_x, tile_y, levels,"
                " projection, x_slot, y_slot, z_slot FROM grid WHERE id = 1");
  if (!row.step()) throw pgrid_failure("lacks the grid");
  auto small = [&](int column) {
    std::int64_t value = row.integer(column);
    return static_cast<int>(std::clamp<std::int64_t>(value, -1, 1000));
  };
  grid_head head;
  head.type = small(0);
  for (int axis = 0; axis < 3; ++axis) {
    head.size[axis] = row.integer(1 + axis);
    head.origin[axis] = row.real(4 + axis);
    head.spacing[axis] = row.real(7 + axis);
    if (!row.is_null(15 + axis)) head.coordinate[axis] = row.integer(15 + axis);
  }
  head.azimuth = row.real(10);
  for (int axis = 0; axis < 2; ++axis) head.tile[axis] = row.integer(11 + axis);
  head.levels = small(13);
  head.projection = row.text(14, longest_projection);
  check(head);
  return head;
}

std::vector<grid_property> read_properties(database& base, const grid_head& head) {
  statement row(base.get(),
                "SELECT slot, name, caption, type, role, nodata, palette, minimum, maximum, mean,"
                " stddev, count FROM property ORDER BY slot");
  std::vector<grid_property> all;
  std::set<std::string> names;
  while (row.step()) {
    grid_property p;
    p.slot = row.integer(0);
    p.name = row.text(1, longest_name), p.caption = row.text(2, longest_name);
    p.type = static_cast<std::int32_t>(std::clamp<std::int64_t>(row.integer(3), 0, 1000));
    p.role = static_cast<std::int32_t>(std::clamp<std::int64_t>(row.integer(4), -1, 1000));
    p.has_nodata = !row.is_null(5);
    if (p.has_nodata) p.nodata = double_of(row.blob(5));
    if (!row.is_null(6)) {
      auto colors = row.blob(6);
      p.palette.assign(colors.begin(), colors.end());
    }
    p.has_stat = true;
    for (int column = 7; column <= 11; ++column) p.has_stat = p.has_stat && !row.is_null(column);
    if (p.has_stat) {
      p.minimum = row.real(7), p.maximum = row.real(8);
      p.mean = row.real(9), p.stddev = row.real(10);
      p.count = row.integer(11);
    }
    check(p);
    if (!names.insert(p.name).second) throw pgrid_failure("has two properties of one name");
    all.push_back(std::move(p));
  }
  for (std::int64_t slot : head.coordinate)
    if (slot != -1 && std::none_of(all.begin(), all.end(),
                                   [&](const grid_property& p) { return p.slot == slot; }))
      throw pgrid_failure("lacks a coordinate column");
  return all;
}

void store_head(database& base, const grid_head& head) {
  check(head);
  statement row(base.get(),
                "INSERT OR REPLACE INTO grid VALUES (1, ?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10,"
                " ?11, ?12, ?13, ?14, ?15, ?16, ?17, ?18)");
  row.bind(1, std::int64_t(head.type));
  for (int axis = 0; axis < 3; ++axis) {
    row.bind(2 + axis, head.size[axis]);
    row.bind(5 + axis, head.origin[axis]);
    row.bind(8 + axis, head.spacing[axis]);
    if (head.coordinate[axis] >= 0) row.bind(16 + axis, head.coordinate[axis]);
  }
  row.bind(11, head.azimuth);
  row.bind(12, head.tile[0]).bind(13, head.tile[1]).bind(14, std::int64_t(head.levels));
  row.bind(15, std::string_view(head.projection));
  row.run();
}

void store_property(database& base, const grid_property& p) {
  check(p);
  statement row(base.get(),
                "INSERT OR REPLACE INTO property VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10,"
                " ?11, ?12)");
  row.bind(1, p.slot).bind(2, std::string_view(p.name)).bind(3, std::string_view(p.caption));
  row.bind(4, std::int64_t(p.type)).bind(5, std::int64_t(p.role));
  std::array<std::byte, 8> nodata = bytes_of(p.nodata);
  if (p.has_nodata) row.bind(6, std::span<const std::byte>(nodata));
  if (!p.palette.empty()) row.bind(7, std::span<const std::byte>(p.palette));
  if (p.has_stat)
    row.bind(8, p.minimum).bind(9, p.maximum).bind(10, p.mean).bind(11, p.stddev).bind(12, p.count);
  row.run();
}

}  // namespace zu::platform
