#pragma once
// Runs zugrid as a person does, and looks at what it leaves.

#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "tests/unit/src/made_grid.h"

namespace tests {

struct outcome {
  int exit = -1;  ///< -1 if a signal ended it
  std::string out, err;
};

inline std::string text_of_file(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline std::string program_path() {
  const char* build = std::getenv("ZU_BUILD_DIR");
  return std::string(build != nullptr ? build : "build") + "/bin/zugrid";
}

/// A folder of its own for each test, gone afterwards.
class in_a_folder : public testing::Test {
 protected:
  in_a_folder() {
    folder_ = "zugrid_e2e_" + std::to_string(getpid());
    std::filesystem::create_directories(path(""));
  }
  ~in_a_folder() override { std::filesystem::remove_all(testing::TempDir() + "/" + folder_); }

  std::string path(const std::string& name) const {
    return testing::TempDir() + "/" + folder_ + "/" + name;
  }
  made_grid grid(const std::string& name, int nx, int ny, GDALDataType type, int bands = 1,
                 const std::vector<std::string>& options = {}) const {
    return {folder_ + "/" + name, nx, ny, type, bands, options};
  }
  /// One float band in a closed file, values from the north-west cell.
  std::string floats(const std::string& name, int nx, int ny, const std::vector<double>& values,
                     const double* nodata = nullptr) const {
    made_grid made = grid(name, nx, ny, GDT_Float32);
    if (nodata != nullptr) made.band(1)->SetNoDataValue(*nodata);
    made.values(1, values);
    made.close();
    return path(name);
  }
  void write(const std::string& name, const std::string& text) const {
    std::ofstream(path(name), std::ios::binary) << text;
  }
  bool exists(const std::string& name) const { return std::filesystem::exists(path(name)); }
  std::size_t file_count() const {
    using entries = std::filesystem::directory_iterator;
    return static_cast<std::size_t>(std::distance(entries(path("")), entries()));
  }

  /// `prepare` runs in the child before the program.
  outcome run(const std::vector<std::string>& arguments,
              const std::function<void()>& prepare = {}) const {
    std::string log = testing::TempDir() + "/" + folder_ + ".";
    pid_t child = fork();
    if (child == 0) {
      if (std::freopen((log + "out").c_str(), "w", stdout) == nullptr ||
          std::freopen((log + "err").c_str(), "w", stderr) == nullptr)
        _exit(126);
      setenv("XDG_CONFIG_HOME", path("config").c_str(), 1);  // not the settings of who tests
      if (prepare) prepare();
      std::string program = program_path();
      std::vector<char*> all{program.data()};
      std::vector<std::string> kept = arguments;
      for (std::string& each : kept) all.push_back(each.data());
      all.push_back(nullptr);
      execv(program.c_str(), all.data());
      _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    outcome result{WIFEXITED(status) ? WEXITSTATUS(status) : -1, text_of_file(log + "out"),
                   text_of_file(log + "err")};
    std::filesystem::remove(log + "out");
    std::filesystem::remove(log + "err");
    return result;
  }
  /// zugrid render SOURCE -o o.png and what follows.
  outcome render(const std::string& source, std::vector<std::string> more = {}) const {
    std::vector<std::string> all{"render", source, "-o", path("o.png")};
    all.insert(all.end(), more.begin(), more.end());
    return run(all);
  }

 private:
  std::string folder_;
};

/// Red, green, blue, opacity.
using rgba = std::array<int, 4>;
constexpr rgba clear{0, 0, 0, 0};

/// Pixels of a picture, top row first.
class picture {
 public:
  explicit picture(const std::string& path) {
    GDALAllRegister();
    std::unique_ptr<GDALDataset> set(GDALDataset::Open(path.c_str(), GDAL_OF_RASTER));
    if (!set) {
      ADD_FAILURE() << "no picture " << path;
      return;
    }
    nx_ = set->GetRasterXSize(), ny_ = set->GetRasterYSize();
    bands_ = set->GetRasterCount();
    bytes_.assign(static_cast<std::size_t>(nx_) * ny_ * 4, 255);
    if (set->RasterIO(GF_Read, 0, 0, nx_, ny_, bytes_.data(), nx_, ny_, GDT_Byte, bands_, nullptr,
                      4, static_cast<GSpacing>(nx_) * 4, 1, nullptr) != CE_None)
      ADD_FAILURE() << "cannot read " << path;
  }
  int nx() const { return nx_; }
  int ny() const { return ny_; }
  rgba at(int x, int y) const {
    if (x >= nx_ || y >= ny_) return {-1, -1, -1, -1};
    const std::uint8_t* p = bytes_.data() + (static_cast<std::size_t>(y) * nx_ + x) * 4;
    // The colour of what is invisible is nobody's business.
    return p[3] == 0 ? clear : rgba{p[0], p[1], p[2], p[3]};
  }
  std::vector<rgba> all() const {
    std::vector<rgba> pixels;
    for (int y = 0; y < ny_; ++y)
      for (int x = 0; x < nx_; ++x) pixels.push_back(at(x, y));
    return pixels;
  }

 private:
  int nx_ = 0, ny_ = 0, bands_ = 0;
  std::vector<std::uint8_t> bytes_;
};

}  // namespace tests
