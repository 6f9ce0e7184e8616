// Files that are broken, hostile, or were being edited when the program was killed.

#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <random>

#include "platform/zuk_file_tos4/pgrid_file.h"
#include "tests/unit/platform/zuk_datasource/test_grids.h"
#include "zu/platform/zuk_file_tos4.h"

using namespace test_grids;
using namespace zu::platform;

namespace {

constexpr int nx = 700, ny = 520;

std::string made(const std::string& path) {
  grid_head head;
  head.type = zu_tos4_plane;
  head.size = {nx, ny, 1};
  grid_property p;
  p.name = "p", p.type = 5;
  pgrid_file file(path, head);
  file.add_property(p);
  p.name = "q";
  file.add_property(p);
  std::vector<std::int32_t> cells(nx * ny, 1);
  file.write_run(0, 0, nx * ny, reinterpret_cast<const std::byte*>(cells.data()));
  file.commit();
  return path;
}

/// Changes a file as another program would, without our care.
void change(const std::string& path, const std::string& sql) {
  sqlite3* base = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &base), SQLITE_OK);
  char* error = nullptr;
  EXPECT_EQ(sqlite3_exec(base, sql.c_str(), nullptr, nullptr, &error), SQLITE_OK) << error;
  sqlite3_close(base);
}

/// Opens the file and reads all that is in it; the reason if that cannot be done.
std::string refusal(const std::string& path, bool overviews = true) {
  try {
    pgrid_file file(path, access::read);
    pgrid_file::reading state(file);
    for (std::size_t p = 0; p < file.properties().size(); ++p)
      for (int level = 0; level < (overviews ? file.plan().levels() : 1); ++level)
        file.for_tiles(p, level, [](const pgrid_file::seen_tile&) { return true; });
  } catch (const pgrid_failure& failure) {
    return failure.what();
  }
  return "";
}

struct damage {
  const char* sql;
  const char* reason;
};

class broken_tables : public testing::TestWithParam<damage> {};

TEST_P(broken_tables, are_refused_with_a_reason) {
  folder f;
  std::string path = made(f.at("a.pgrid"));
  ASSERT_EQ(refusal(path), "");
  change(path, GetParam().sql);
  EXPECT_EQ(refusal(path), GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    pgrid_file, broken_tables,
    testing::Values(
        damage{"UPDATE grid SET nx = 0", "has an impossible size"},
        damage{"UPDATE grid SET nx = -1", "has an impossible size"},
        damage{"UPDATE grid SET ny = 9223372036854775807", "has an impossible size"},
        damage{"UPDATE grid SET nz = 2", "has slices in two dimensions"},
        damage{"UPDATE grid SET type = 5, nx = 2147483647, ny = 2147483647, nz = 2147483647",
               "has too many nodes"},
        damage{"UPDATE grid SET nx = 2147483647, ny = 2147483647, tile_x = 1, tile_y = 1",
               "has too many tiles"},
        damage{"UPDATE grid SET nx = 'many'", "holds a value of a wrong type"},
        damage{"UPDATE grid SET nx = 7.5", "holds a value of a wrong type"},
        damage{"UPDATE grid SET x0 = 9e999", "holds a value of a wrong type"},
        damage{"UPDATE grid SET dy = 'one'", "holds a value of a wrong type"},
        damage{"UPDATE grid SET dx = 0", "has an impossible spacing"},
        damage{"UPDATE grid SET type = 7", "is of an unknown kind of grid"},
        damage{"UPDATE grid SET type = 4294967299", "is of an unknown kind of grid"},
        damage{"UPDATE grid SET type = 1", "has more than one row of nodes that lie in a row"},
        damage{"UPDATE grid SET tile_x = 0", "has an impossible size of tiles"},
        damage{"UPDATE grid SET tile_x = 1000000000", "has an impossible size of tiles"},
        damage{"UPDATE grid SET tile_x = 65536, tile_y = 65536", "has tiles that are too large"},
        damage{"UPDATE grid SET tile_x = 255", "has a tile of a wrong size"},
        damage{"UPDATE grid SET levels = 31", "has too many overviews"},
        damage{"UPDATE grid SET levels = -1", "has too many overviews"},
        damage{"UPDATE grid SET projection = x'00'", "holds a value of a wrong type"},
        damage{"UPDATE grid SET projection = printf('%.*c', 2000000, 'x')",
               "holds a text that is too long"},
        damage{"UPDATE grid SET x_slot = 5", "lacks a coordinate column"},
        damage{"DELETE FROM grid", "lacks the grid"},
        damage{"UPDATE property SET type = 0", "has a property of an unknown type"},
        damage{"UPDATE property SET type = 11", "has a property of an unknown type"},
        damage{"UPDATE property SET type = 10 WHERE slot = 0", "has a tile of a wrong size"},
        damage{"UPDATE property SET name = 'q'", "has two properties of one name"},
        damage{"UPDATE property SET name = '' WHERE slot = 0", "has a property without a name"},
        damage{"UPDATE property SET role = 9", "has a property of an unknown kind"},
        damage{"UPDATE property SET slot = -1 WHERE slot = 0", "has too many properties"},
        damage{"UPDATE property SET slot = 4096 WHERE slot = 0", "has too many properties"},
        damage{"UPDATE property SET nodata = x'0000'", "has a broken NoData value"},
        damage{"UPDATE property SET nodata = -9999", "holds a value of a wrong type"},
        damage{"UPDATE property SET palette = x'000000'", "has a broken palette"},
        damage{"UPDATE property SET palette = zeroblob(400000)", "has a broken palette"},
        damage{"UPDATE property SET minimum = 1, maximum = 9e999, mean = 1, stddev = 1, count = 1",
               "holds a value of a wrong type"},
        damage{"UPDATE tile SET samples = x''", "has a tile of a wrong size"},
        damage{"UPDATE tile SET samples = zeroblob(length(samples) + 1)",
               "has a tile of a wrong size"},
        damage{"UPDATE tile SET samples = 'text'", "holds a value of a wrong type"},
        damage{"UPDATE tile SET samples = zeroblob(17000000)", "holds something too large"},
        damage{"DROP TABLE tile", "lacks a table"}, damage{"DROP TABLE property", "lacks a table"},
        damage{"ALTER TABLE tile RENAME TO t; CREATE VIEW tile AS SELECT * FROM t",
               "lacks a table"},
        damage{"ALTER TABLE grid ADD COLUMN more AS (zeroblob(1000000000))",
               "has a computed column"},
        damage{"PRAGMA user_version = 2", "was written by a newer version of the program"},
        damage{"PRAGMA user_version = 0", "is no grid file"},
        damage{"PRAGMA application_id = 1", "is no grid file"},
        damage{"PRAGMA journal_mode = WAL", "keeps its edits in a write-ahead log"}));

TEST(pgrid_file, that_is_none_is_refused) {
  folder f;
  std::ofstream(f.at("empty.pgrid"));
  std::ofstream(f.at("text.pgrid")) << std::string(200, 'x');
  std::filesystem::create_directory(f.at("folder.pgrid"));
  ASSERT_EQ(mkfifo(f.at("pipe.pgrid").c_str(), 0600), 0);
  change(f.at("other.pgrid"), "CREATE TABLE grid (id)");
  EXPECT_EQ(refusal(f.at("empty.pgrid")), "is no grid file");
  EXPECT_EQ(refusal(f.at("text.pgrid")), "is no grid file");
  EXPECT_EQ(refusal(f.at("other.pgrid")), "is no grid file");
  EXPECT_EQ(refusal(f.at("folder.pgrid")), "is not a regular file");
  EXPECT_EQ(refusal(f.at("pipe.pgrid")), "is not a regular file");
  EXPECT_EQ(refusal(f.at("none.pgrid")), "no such file");
  EXPECT_EQ(refusal(""), "no such file");
}

TEST(pgrid_file, cut_short_anywhere_is_refused) {
  folder f;
  std::string path = made(f.at("a.pgrid"));
  auto size = std::filesystem::file_size(path);
  for (std::uintmax_t left : {size - 1, size - 65536, size / 2, std::uintmax_t(131072),
                              std::uintmax_t(65536), std::uintmax_t(100), std::uintmax_t(99)}) {
    std::filesystem::copy_file(path, f.at("b.pgrid"),
                               std::filesystem::copy_options::overwrite_existing);
    std::filesystem::resize_file(f.at("b.pgrid"), left);
    EXPECT_NE(refusal(f.at("b.pgrid")), "") << left;
  }
}

TEST(pgrid_file, with_changed_bytes_does_no_harm) {
  folder f;
  std::ifstream in(made(f.at("a.pgrid")), std::ios::binary);
  const std::string good{std::istreambuf_iterator<char>(in), {}};
  std::mt19937 random(1);
  // The pages of tables and of tile headers; the rest is samples.
  std::vector<std::size_t> starts;
  for (std::size_t page = 0; page < good.size(); page += 65536) starts.push_back(page);
  for (int round = 0; round < 300; ++round) {
    std::string bad = good;
    for (int i = 0; i < 4; ++i) {
      std::size_t page = starts[random() % std::min<std::size_t>(starts.size(), 6)];
      std::size_t at = random() % 2 == 0 ? random() % 200 : 65535 - random() % 1500;
      bad[std::min(page + at, bad.size() - 1)] = static_cast<char>(random());
    }
    std::ofstream(f.at("b.pgrid"), std::ios::binary) << bad;
    refusal(f.at("b.pgrid"));
  }
}

TEST(pgrid_file, a_name_that_sqlite_would_take_for_something_else_is_a_path) {
  folder f;
  made(f.at("file:a.pgrid"));
  auto before = std::filesystem::current_path();
  std::filesystem::current_path(f.at(""));
  EXPECT_EQ(refusal("file:a.pgrid"), "");
  EXPECT_EQ(refusal(":memory:"), "no such file");
  std::filesystem::current_path(before);
}

// --- Killed in the middle of an edit

/// The value that all nodes have; -1 if they differ or cannot be read.
std::int32_t value_of_all(const std::string& path) {
  try {
    pgrid_file file(path, access::read);
    std::int32_t value = -1;
    bool same = true, first = true;
    pgrid_file::reading state(file);
    for (int level = 0; level < file.plan().levels(); ++level) {
      const tile_level& l = file.plan().level(level);
      file.for_tiles(0, level, [&](const pgrid_file::seen_tile& tile) {
        for (std::int64_t y = 0; y < tile.ny; ++y)
          for (std::int64_t x = 0; x < tile.nx; ++x) {
            std::int32_t here;
            std::memcpy(&here, tile.samples + (y * file.head().tile[0] + x) * 4, 4);
            if (first) value = here, first = false;
            same = same && here == value;
          }
        return l.step > 0;
      });
    }
    return same ? value : -1;
  } catch (const pgrid_failure& failure) {
    ADD_FAILURE() << failure.what();
    return -1;
  }
}

[[noreturn]] void edit_for_ever(const std::string& path, std::int32_t from, int ready) {
  try {
    pgrid_file file(path, access::edit);
    std::vector<std::int32_t> cells(nx * ny);
    for (std::int32_t value = from;; ++value) {
      std::fill(cells.begin(), cells.end(), value);
      file.write_run(0, 0, nx * ny, reinterpret_cast<const std::byte*>(cells.data()));
      if (write(ready, &value, sizeof value) != sizeof value) _exit(1);
    }
  } catch (...) {
    _exit(2);
  }
}

TEST(pgrid_file, killed_in_the_middle_of_an_edit_it_is_in_a_whole_state) {
  folder f;
  std::string path = made(f.at("a.pgrid"));
  std::mt19937 random(7);
  int broken_off = 0;
  for (int round = 0; round < 40; ++round) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    pid_t child = fork();
    if (child == 0) edit_for_ever(path, 1000 * (round + 1), ends[1]);
    close(ends[1]);
    std::int32_t committed = 0;
    ASSERT_EQ(read(ends[0], &committed, sizeof committed), ssize_t(sizeof committed));
    usleep(random() % 20000);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    for (std::int32_t next; read(ends[0], &next, sizeof next) == sizeof next;) committed = next;
    close(ends[0]);
    broken_off += std::filesystem::exists(path + "-journal") ? 1 : 0;
    // The one after may have been committed before it was told of.
    std::int32_t value = value_of_all(path);
    EXPECT_TRUE(value == committed || value == committed + 1) << value << " after " << committed;
  }
  EXPECT_GT(broken_off, 0) << "no edit was hit in its middle";
  // A journal that was begun and holds nothing yet stays until the next edit.
  {
    pgrid_file file(path, access::edit);
    std::vector<std::int32_t> cells(nx * ny, 1);
    file.write_run(0, 0, nx * ny, reinterpret_cast<const std::byte*>(cells.data()));
  }
  EXPECT_EQ(f.names(), std::vector<std::string>{"a.pgrid"});
}

}  // namespace
