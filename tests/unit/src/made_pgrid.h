#pragma once
// A ".pgrid" file that a test makes in its temporary folder.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "src/bundle/owned.h"
#include "zu/platform/zuk_file_tos4.h"

namespace tests {

class made_pgrid {
 public:
  /// Type and sizes are set before the first property, the place too.
  Tzu_tos4_grid grid{zu_tos4_plane, {1, 1, 1}, {0, 0, 0}, {1, 1, 1}, 0.0, nullptr};

  explicit made_pgrid(const std::string& name)
      : path_((std::filesystem::path(testing::TempDir()) / name).wstring()) {
    std::filesystem::remove(path_);
  }
  /// A property of doubles, x fastest, from the south-west and the lowest slice.
  void add(const wchar_t* name, const std::vector<double>& nodes, double nodata = -9999) {
    if (!file_) file_.reset(zu_tos4_file_create_w(path_.c_str(), &grid));
    Tzu_tos4_prop property{name, nullptr, 10, 0, true, nodata};
    auto index = static_cast<std::uint32_t>(zu_tos4_file_add_prop(file_.get(), &property));
    EXPECT_TRUE(zu_tos4_file_write(file_.get(), index, 0, nodes.size(), nodes.data()));
  }
  /// A property that was added holds the coordinates along an axis.
  void coordinate(std::int32_t axis, std::uint32_t property) {
    EXPECT_TRUE(zu_tos4_file_set_coord_prop(file_.get(), axis, property));
  }
  /// Ends the writing and gives the path.
  std::wstring close() {
    EXPECT_TRUE(zu_tos4_file_commit(file_.get()));
    file_.reset();
    return path_;
  }

 private:
  std::wstring path_;
  zu::owned<zu_tos4_file_close> file_;
};

}  // namespace tests
