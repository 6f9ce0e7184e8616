#include "host/core/source_paths.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace zu::host {
namespace {

namespace fs = std::filesystem;

TEST(source_paths, are_relative_beside_and_below_the_folder_and_absolute_elsewhere) {
  struct {
    const char *source, *written;
  } const cases[] = {
      {"/maps/a.tif", "a.tif"},         {"/maps/d/e/a.tif", "d/e/a.tif"},
      {"/maps/./d/../a.tif", "a.tif"},  {"/other/a.tif", "/other/a.tif"},
      {"/maps2/a.tif", "/maps2/a.tif"}, {"/a.tif", "/a.tif"},
      {"/maps/..a.tif", "..a.tif"},     {"/maps/*a.tif", "./*a.tif"},
      {"/maps/ab:c.tif", "./ab:c.tif"}, {"/maps/a b \xd0\x96.tif", "a b \xd0\x96.tif"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(written_source(c.source, "/maps"), c.written) << c.source;
    EXPECT_EQ(read_source(c.written, "/maps"), fs::path(c.source).lexically_normal().string())
        << c.written;
  }
}

TEST(source_paths, what_is_no_path_stays_as_it_is) {
  for (const char* each : {"", "*made", "/vsizip/a.zip/a.tif", "/vsimem/x", "NETCDF:\"a.nc\":z",
                           "https://host/a.tif", "GPKG:/maps/a.gpkg:table", "GTIFF_DIR:2:a.tif"}) {
    EXPECT_EQ(written_source(each, "/maps"), each);
    EXPECT_EQ(read_source(each, "/maps"), each);
  }
}

TEST(source_paths, a_link_beside_the_file_is_what_is_named) {
  fs::path folder = fs::canonical(testing::TempDir()) / ("paths" + std::to_string(getpid()));
  fs::create_directories(folder / "real");
  std::ofstream(folder / "real" / "a.tif") << "x";
  fs::create_symlink(folder / "real" / "a.tif", folder / "link.tif");
  fs::create_directory_symlink(folder / "real", folder / "shown");
  EXPECT_EQ(written_source((folder / "link.tif").string(), folder.string()), "link.tif");
  EXPECT_EQ(folder_of((folder / "shown" / "p.zgp").string()), (folder / "real").string());
  EXPECT_EQ(written_source((folder / "shown" / "a.tif").string(),
                           folder_of((folder / "shown" / "p.zgp").string())),
            "a.tif");
  fs::remove_all(folder);
}

}  // namespace
}  // namespace zu::host
