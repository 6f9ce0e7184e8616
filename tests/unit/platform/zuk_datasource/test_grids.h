#pragma once
// Grids that tests make for themselves, and short ways to ask a source.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gdal_priv.h>

#include "zu/data_source.h"
#include "zu/platform/zuk_datasource.h"

namespace test_grids {

/// A folder of the test's own, removed with it.
class folder {
 public:
  folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zu_grid_XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  ~folder() { std::filesystem::remove_all(path_); }
  folder(const folder&) = delete;
  folder& operator=(const folder&) = delete;
  std::string at(const std::string& name) const { return (path_ / name).string(); }
  std::vector<std::string> names() const {
    std::vector<std::string> out;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      out.push_back(entry.path().filename().string());
    std::sort(out.begin(), out.end());
    return out;
  }

 private:
  std::filesystem::path path_;
};

struct shape {
  int nx = 7, ny = 5, bands = 1;
  GDALDataType type = GDT_Float32;
  std::vector<const char*> options = {};
  std::array<double, 6> geotransform{100, 10, 0, 1000, 0, -10};  // all zero: none
};

/// Makes a GeoTIFF. `value(x, y, band)` is the cell of column x and row y of the file, from 0;
/// `more` may set what else is wanted.
inline std::string make(const std::string& path, const shape& s,
                        const std::function<double(int, int, int)>& value,
                        const std::function<void(GDALDataset&)>& more = {}) {
  GDALAllRegister();
  std::vector<const char*> options = s.options;
  options.push_back(nullptr);
  GDALDataset* made = GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
      path.c_str(), s.nx, s.ny, s.bands, s.type, const_cast<char**>(options.data()));
  if (s.geotransform != std::array<double, 6>{})
    made->SetGeoTransform(const_cast<double*>(s.geotransform.data()));
  if (more) more(*made);
  std::vector<double> row(static_cast<std::size_t>(s.nx));
  for (int band = 0; band < s.bands; ++band)
    for (int y = 0; y < s.ny; ++y) {
      for (int x = 0; x < s.nx; ++x) row[static_cast<std::size_t>(x)] = value(x, y, band);
      EXPECT_EQ(made->GetRasterBand(band + 1)->RasterIO(GF_Write, 0, y, s.nx, 1, row.data(), s.nx,
                                                        1, GDT_Float64, 0, 0, nullptr),
                CE_None);
    }
  GDALClose(made);
  // As if it had been there for long: what was written just now is not kept open.
  using clock = std::filesystem::file_time_type::clock;
  std::filesystem::last_write_time(path, clock::now() - std::chrono::hours(1));
  return path;
}

inline std::wstring wide(const std::string& text) { return {text.begin(), text.end()}; }

struct text_taker : zu::string_visitor_impl {
  void visit(const wchar_t* text) override { texts.emplace_back(text); }
  std::vector<std::wstring> texts;
};
struct block_taker : zu::grid_block_visitor_impl {
  void visit(zu::grid_block given) override { block = given; }
  zu::grid_block block;
};
struct palette_taker : zu::grid_palette_visitor_impl {
  void visit(zu::grid_palette given) override { palette = given; }
  zu::grid_palette palette;
};

/// A block of a source; released with the object.
class block {
 public:
  explicit block(zu::handle h) : handle_(h) {}
  ~block() { zu::call<&zu::grid_block_impl::release>(handle_); }
  block(const block&) = delete;
  block& operator=(const block&) = delete;
  zu::handle get() const { return handle_; }

  template <class cell>
  std::int32_t window(std::int32_t type, std::array<std::int64_t, 2> origin,
                      std::array<std::uint64_t, 2> size, std::array<std::uint64_t, 2> sample,
                      std::vector<cell>& out) const {
    out.assign(sample[0] * sample[1], cell(77));
    return zu::call<&zu::grid_block_impl::read_window>(handle_, origin.data(), size.data(),
                                                       out.data(), sample.data(), type, nullptr);
  }
  std::vector<double> doubles(std::array<std::int64_t, 2> origin, std::array<std::uint64_t, 2> size,
                              std::array<std::uint64_t, 2> sample) const {
    std::vector<double> out;
    EXPECT_EQ(window(zu::element_float64, origin, size, sample, out), 1);
    return out;
  }

 private:
  zu::handle handle_;
};

/// An open source; released with the object.
class source {
 public:
  explicit source(const std::string& name, int read_only = 1) : name_(wide(name)) {
    zu_datasource_open(name_.c_str(), read_only, nullptr, &handle_);
  }
  ~source() { zu::call<&zu::data_source_impl::release>(handle_); }
  source(const source&) = delete;
  source& operator=(const source&) = delete;
  explicit operator bool() const { return static_cast<bool>(handle_); }
  zu::handle get() const { return handle_; }
  zu::handle grid() const { return zu::cast<zu::grid_source_impl>(handle_); }
  zu::handle stat() const { return zu::cast<zu::stat_source_impl>(handle_); }
  zu::handle band(std::int64_t index) const {
    block_taker taker;
    zu::call<&zu::grid_source_impl::block>(grid(), index,
                                           zu::handle_of<zu::grid_block_visitor_impl>(taker));
    return taker.block;
  }
  zu::handle ids() const {
    block_taker taker;
    zu::call<&zu::grid_source_impl::row_ids>(grid(),
                                             zu::handle_of<zu::grid_block_visitor_impl>(taker));
    return taker.block;
  }

 private:
  std::wstring name_;
  zu::handle handle_;
};

/// The kept reasons of a name.
inline std::vector<std::wstring> reasons(const std::string& name) {
  std::vector<std::wstring> out;
  auto sink = [](const wchar_t* text, void* user) {
    static_cast<std::vector<std::wstring>*>(user)->emplace_back(text);
  };
  Tzu_string_adp* adapter = zu_string_adp_create(nullptr, sink, &out);
  std::wstring source = wide(name);
  for (int i = 0; i < zu_problems_get_count(source.c_str()); ++i)
    zu_problems_get(source.c_str(), i, adapter);
  zu_string_adp_destroy(adapter);
  return out;
}

}  // namespace test_grids
