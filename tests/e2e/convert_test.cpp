// zugrid convert: grid files that draw like what they were made of, and nothing where it failed.

#include <nlohmann/json.hpp>

#include <cmath>

#include "tests/e2e/program.h"

namespace tests {
namespace {

using nlohmann::json;

class convert : public in_a_folder {
 protected:
  outcome to(const std::string& source, const std::string& name,
             const std::vector<std::string>& more = {}) const {
    std::vector<std::string> all{"convert", source, path(name)};
    all.insert(all.end(), more.begin(), more.end());
    return run(all);
  }
  json told(const std::string& name) const {
    outcome result = run({"info", path(name), "--json"});
    EXPECT_EQ(result.exit, 0) << result.err;
    return json::parse(result.out, nullptr, false);
  }
  std::string hills(int nx, int ny, double nodata) const {
    std::vector<double> values;
    for (int y = 0; y < ny; ++y)
      for (int x = 0; x < nx; ++x)
        values.push_back(x % 37 == 5 ? nodata : 100 * std::sin(x * .05) + y);
    return floats("hills.tif", nx, ny, values, &nodata);
  }
  std::vector<rgba> drawn(const std::string& source, const std::vector<std::string>& more) const {
    outcome result = render(source, more);
    EXPECT_EQ(result.exit, 0) << result.err;
    return picture(path("o.png")).all();
  }
};

TEST_F(convert, a_grid_file_draws_as_what_it_was_made_of) {
  std::string source = hills(400, 300, -1);
  ASSERT_EQ(to(source, "h.pgrid").exit, 0);
  const std::vector<std::string> looks[] = {
      {"--size", "400x300"},
      {"--size", "800x800", "--extent", "30,40,220,230"},
      {"--size", "333x250", "--breaks", "0,100,200", "--colors", "#ff0000,#00ff00"},
      {"--size", "400x300", "--draw", "gray", "--limits", "0,300"}};
  for (const auto& look : looks) {
    std::vector<rgba> before = drawn(source, look), after = drawn(path("h.pgrid"), look);
    EXPECT_TRUE(before == after) << look.back();
  }
}

TEST_F(convert, bands_types_names_and_nodata_are_kept) {
  made_grid made = grid("g.tif", 3, 2, GDT_Int16, 2);
  made.transform({500000, 25, 0, 6000000, 0, -25});
  made.projection("EPSG:32637");
  made.band(1)->SetDescription("height");
  made.band(1)->SetNoDataValue(-1);
  made.values(1, {1, 2, 3, 4, 5, -1});
  made.values(2, {1, 2, 3, 4, 5, -1});
  made.close();
  ASSERT_EQ(to(path("g.tif"), "g.pgrid").exit, 0);
  json before = told("g.tif"), after = told("g.pgrid");
  EXPECT_EQ(after["driver"], "pgrid");
  for (const char* same : {"size", "box", "spacing", "projection"})
    EXPECT_EQ(after[same], before[same]) << same;
  for (const char* same : {"name", "type", "nodata", "role"})
    for (std::size_t i : {0, 1}) EXPECT_EQ(after["fields"][i][same], before["fields"][i][same]);
  EXPECT_EQ(after["fields"][0]["statistics"]["mean"], 3);
}

TEST_F(convert, bands_become_slices_of_a_volume) {
  made_grid made = grid("g.tif", 2, 2, GDT_Byte, 3);
  for (int band = 1; band <= 3; ++band) made.values(band, std::vector<double>(4, band));
  made.close();
  ASSERT_EQ(to(path("g.tif"), "v.pgrid", {"--volume", "--name", "amplitude"}).exit, 0);
  json data = told("v.pgrid");
  EXPECT_EQ(data["size"], json({2, 2, 3}));
  ASSERT_EQ(data["fields"].size(), 1u);
  EXPECT_EQ(data["fields"][0]["name"], "amplitude");
  EXPECT_EQ(data["fields"][0]["statistics"]["maximum"], 3);
}

TEST_F(convert, a_slice_draws_as_the_band_that_it_was) {
  made_grid made = grid("g.tif", 40, 30, GDT_Float32, 3);
  for (int band = 1; band <= 3; ++band) {
    std::vector<double> values(40 * 30);
    for (std::size_t i = 0; i < values.size(); ++i)
      values[i] = static_cast<double>(i * static_cast<std::size_t>(band) % 41);
    made.values(band, values);
  }
  made.close();
  ASSERT_EQ(to(path("g.tif"), "v.pgrid", {"--volume"}).exit, 0);
  for (int band = 1; band <= 3; ++band) {
    std::vector<std::string> look{"--size",   "40x30",    "--breaks",
                                  "10,20,30", "--colors", "#ff0000,#00ff00,#0000ff,#888888"};
    std::vector<std::string> slice = look, field = look;
    slice.insert(slice.end(), {"--slice", std::to_string(band - 1)});
    field.insert(field.end(), {"--field", "Band " + std::to_string(band)});
    EXPECT_TRUE(drawn(path("v.pgrid"), slice) == drawn(path("g.tif"), field)) << band;
  }
}

TEST_F(convert, one_field_is_chosen_by_name) {
  made_grid made = grid("g.tif", 2, 2, GDT_Byte, 3);
  made.close();
  ASSERT_EQ(to(path("g.tif"), "f.pgrid", {"--field", "band 2"}).exit, 0);
  json data = told("f.pgrid");
  ASSERT_EQ(data["fields"].size(), 1u);
  EXPECT_EQ(data["fields"][0]["name"], "Band 2");
  outcome none = to(path("g.tif"), "n.pgrid", {"--field", "depth"});
  EXPECT_EQ(none.exit, 1);
  EXPECT_NE(none.err.find("has no field \"depth\""), std::string::npos) << none.err;
}

TEST_F(convert, says_why_it_failed_and_leaves_nothing) {
  std::string source = floats("g.tif", 3, 2, {1, 2, 3, 4, 5, 6});
  outcome nowhere = to(source, "none/g.pgrid");
  EXPECT_EQ(nowhere.exit, 1);
  EXPECT_EQ(nowhere.err, "zugrid: " + path("none/g.pgrid") + ": no such folder\n");
  outcome two_rows = to(source, "p.pgrid", {"--profile"});
  EXPECT_EQ(two_rows.exit, 1);
  EXPECT_EQ(two_rows.err, "zugrid: " + path("p.pgrid") + ": a profile has one row of nodes\n");
  EXPECT_EQ(to(source, "g.tif2").exit, 2);
  EXPECT_EQ(to(source, "v.pgrid", {"--name", "x"}).exit, 2);
  EXPECT_EQ(to(source, "v.pgrid", {"--volume", "--profile"}).exit, 2);
  EXPECT_EQ(to(path("no.tif"), "n.pgrid").exit, 1);
  EXPECT_EQ(file_count(), 1u);
}

TEST_F(convert, a_full_disk_leaves_nothing) {
  std::vector<double> many(1000 * 1000);
  for (std::size_t i = 0; i < many.size(); ++i) many[i] = static_cast<double>(i);
  std::string source = floats("g.tif", 1000, 1000, many);
  auto small = [] {
    struct rlimit limit {
      1 << 20, 1 << 20
    };
    setrlimit(RLIMIT_FSIZE, &limit);
  };
  std::vector<std::string> arguments{"convert", source, path("g.pgrid")};
  outcome full = run(arguments, small);
  EXPECT_EQ(full.exit, 1);
  EXPECT_EQ(full.err.find("zugrid: " + path("g.pgrid") + ": "), 0u) << full.err;
  EXPECT_EQ(file_count(), 1u);
}

TEST_F(convert, an_older_file_stays_until_the_new_one_is_whole) {
  ASSERT_EQ(to(floats("a.tif", 1, 1, {1}), "g.pgrid").exit, 0);
  std::string old = text_of_file(path("g.pgrid"));
  EXPECT_EQ(to(floats("b.tif", 3, 2, {1, 2, 3, 4, 5, 6}), "g.pgrid", {"--profile"}).exit, 1);
  EXPECT_EQ(text_of_file(path("g.pgrid")), old);
  EXPECT_EQ(to(path("b.tif"), "g.pgrid").exit, 0);
  EXPECT_EQ(told("g.pgrid")["size"], json({3, 2, 1}));
}

/// Interrupts a conversion at some moment; the exit of the program.
class interrupted_convert : public convert {
 protected:
  int after(useconds_t wait, int signal) const {
    pid_t child = fork();
    if (child == 0) {
      std::string program = program_path(), source = path("g.tif"), output = path("g.pgrid");
      execl(program.c_str(), program.c_str(), "convert", source.c_str(), output.c_str(), nullptr);
      _exit(127);
    }
    usleep(wait);
    kill(child, signal);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : -WEXITSTATUS(status);
  }
};

TEST_F(interrupted_convert, leaves_nothing_or_the_whole_file) {
  grid("g.tif", 3000, 3000, GDT_Float64, 1, {"SPARSE_OK=YES"}).close();
  int ended = 0;
  for (useconds_t wait = 5000; wait < 200000; wait = wait * 3 / 2) {
    for (int signal : {SIGINT, SIGTERM}) {
      std::filesystem::remove(path("g.pgrid"));
      int exit = after(wait, signal);
      EXPECT_TRUE(exit == signal || exit == 0) << exit;
      ended += exit == signal ? 1 : 0;
      if (exists("g.pgrid")) {
        EXPECT_EQ(told("g.pgrid")["size"], json({3000, 3000, 1}));
      }
      EXPECT_EQ(file_count(), exists("g.pgrid") ? 2u : 1u);
    }
  }
  EXPECT_GT(ended, 0);
}

}  // namespace
}  // namespace tests
