#pragma once
// A grid source in memory, on the border's classes, that knows only its tiles and counts their
// reads.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "zu/data_source.h"
#include "zu/polymorphic.h"

namespace tests {

struct made_band {
  std::wstring name;
  std::int32_t type = zu::element_float64;  // or uint8
  std::int32_t role = zu::role_none;
  std::vector<double> values;  // row by row from the south
  bool has_nodata = false;
  double nodata = 0;
  std::vector<std::array<std::uint8_t, 4>> palette;
};

class made_source : public zu::polymorphic<zu::data_source_impl>,
                    public zu::polymorphic<zu::grid_source_impl> {
 public:
  made_source(std::int32_t nx, std::int32_t ny) : nx_(nx), ny_(ny) {}

  made_band& add(const std::wstring& name, std::vector<double> values = {}) {
    bands_.push_back({});
    bands_.back().name = name;
    values.resize(static_cast<std::size_t>(nx_) * static_cast<std::size_t>(ny_));
    bands_.back().values = std::move(values);
    return bands_.back();
  }
  zu::handle handle() { return zu::handle_of<zu::data_source_impl>(*this); }

  std::uint64_t tile_width = 4, tile_height = 2;
  int blocks_alive = 0, palettes_alive = 0;
  std::vector<std::uint32_t> read_modes;
  std::map<std::pair<std::uint64_t, std::uint64_t>, int> tile_reads;
  int block_requests = 0;
  int reads_before_failure = -1;  // tiles that can be read, or all
  bool refuse_matrix = false;
  double x0 = 0, y0 = 0, cell = 1;  // low corner and side of the cells

  // data source
  bool extent(double* box, bool) override {
    box[0] = x0, box[1] = y0, box[2] = x0 + nx_ * cell, box[3] = y0 + ny_ * cell;
    return true;
  }
  std::int64_t field_count() override { return static_cast<std::int64_t>(bands_.size()); }
  void field_name(std::int64_t index, zu::string_visitor visitor) override {
    zu::call<&zu::string_visitor_impl::visit>(visitor, band(index).name.c_str());
  }
  bool find_field(const wchar_t* name, std::int64_t* index) override {
    for (std::size_t i = 0; i < bands_.size(); ++i)
      if (bands_[i].name == name) {
        *index = static_cast<std::int64_t>(i);
        return true;
      }
    return false;
  }
  // grid source
  bool sizes(std::int32_t* three) override {
    three[0] = nx_, three[1] = ny_, three[2] = 1;
    return true;
  }
  bool matrix3x3(double* nine) override {
    const double m[9] = {cell, 0, x0 + cell / 2, 0, cell, y0 + cell / 2, 0, 0, 1};
    std::copy(m, m + 9, nine);
    return !refuse_matrix;
  }
  std::int32_t sample_type(std::int64_t index) override { return band(index).type; }
  std::int32_t color_role(std::int64_t index) override { return band(index).role; }
  bool palette(std::int64_t index, zu::grid_palette_visitor visitor) override {
    if (band(index).palette.empty()) return false;
    auto* made = new palette_object(*this, band(index));
    zu::call<&zu::grid_palette_visitor_impl::visit>(
        visitor, zu::grid_palette(zu::handle_of<zu::grid_palette_impl>(*made)));
    return true;
  }
  bool block(std::int64_t index, zu::grid_block_visitor visitor) override {
    ++block_requests;
    if (index < 0 || index >= field_count()) return false;
    auto* made = new block_object(*this, &band(index));
    zu::call<&zu::grid_block_visitor_impl::visit>(
        visitor, zu::grid_block(zu::handle_of<zu::grid_block_impl>(*made)));
    return true;
  }
  bool row_ids(zu::grid_block_visitor visitor) override {
    auto* made = new block_object(*this, nullptr);
    zu::call<&zu::grid_block_visitor_impl::visit>(
        visitor, zu::grid_block(zu::handle_of<zu::grid_block_impl>(*made)));
    return true;
  }

 private:
  made_band& band(std::int64_t index) { return bands_.at(static_cast<std::size_t>(index)); }

  class palette_object : public zu::grid_palette_impl {
   public:
    palette_object(made_source& source, const made_band& band) : source_(source), band_(band) {
      ++source_.palettes_alive;
    }
    void release() override {
      --source_.palettes_alive;
      delete this;
    }
    virtual ~palette_object() = default;
    std::int64_t size() override { return static_cast<std::int64_t>(band_.palette.size()); }
    bool color(std::int64_t index, std::uint8_t* four) override {
      if (index < 0 || index >= size()) return false;
      std::memcpy(four, band_.palette[static_cast<std::size_t>(index)].data(), 4);
      return true;
    }

   private:
    made_source& source_;
    const made_band& band_;
  };

  class block_object : public zu::grid_block_impl {
   public:
    block_object(made_source& source, const made_band* band) : source_(source), band_(band) {
      ++source_.blocks_alive;
    }
    void release() override {
      --source_.blocks_alive;
      delete this;
    }
    virtual ~block_object() = default;
    std::int32_t type() override { return band_ != nullptr ? band_->type : zu::element_uint64; }
    bool tile_size(std::uint64_t* three) override {
      three[0] = source_.tile_width, three[1] = source_.tile_height, three[2] = 1;
      return true;
    }
    bool nodata(std::int32_t, double* out) override {
      if (band_ == nullptr || !band_->has_nodata) return false;
      *out = band_->nodata;
      return true;
    }
    void set_read_mode(std::uint32_t mode) override { source_.read_modes.push_back(mode); }
    std::int32_t read_tile(std::uint64_t column, std::uint64_t row, void* buffer) override {
      if (source_.reads_before_failure == 0) return 0;
      if (source_.reads_before_failure > 0) --source_.reads_before_failure;
      ++source_.tile_reads[{column, row}];
      auto nx = static_cast<std::uint64_t>(source_.nx_),
           ny = static_cast<std::uint64_t>(source_.ny_);
      for (std::uint64_t j = 0; j < source_.tile_height; ++j)
        for (std::uint64_t i = 0; i < source_.tile_width; ++i) {
          std::uint64_t x = std::min(column * source_.tile_width + i, nx - 1);
          std::uint64_t y = std::min(row * source_.tile_height + j, ny - 1);
          store(buffer, j * source_.tile_width + i, y * nx + x);
        }
      return 1;
    }

   private:
    void store(void* buffer, std::uint64_t at, std::uint64_t id) {
      if (band_ == nullptr)
        static_cast<std::uint64_t*>(buffer)[at] = id;
      else if (band_->type == zu::element_uint8)
        static_cast<std::uint8_t*>(buffer)[at] = static_cast<std::uint8_t>(band_->values[id]);
      else
        static_cast<double*>(buffer)[at] = band_->values[id];
    }
    made_source& source_;
    const made_band* band_;
  };

  std::int32_t nx_, ny_;
  std::vector<made_band> bands_;
};

}  // namespace tests
