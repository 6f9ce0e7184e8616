#pragma once
// What a layer of nodes with coordinate columns keeps, and its nodes.

#include <string>
#include <vector>

#include "platform/zuk_lr2d/own_state.h"

namespace zu::platform {

class coord_state final : public own_state {
 public:
  /// Nodes are squares of 1 mm.
  coord_state();
  Tzu_stl_mngr* style_manager() override { return manager.get(); }
  bool box_of(const std::wstring& name, data_source source, Tzu_box_d2& box) override;
  void save(Tzu_xnode* node, void* context) const override;
  void load(Tzu_xnode* node, void* context) override;

  /// Of the simple symbol, millimetres.
  double point_size() const;
  /// Gives all symbols a size.
  void set_point_size(double millimetres);

  owned<zu_stl_mngr_destroy> manager{zu_stl_mngr_create("pnt_mngr_style")};

 private:
  void take_colors(Tzu_stl_mngr* colors);
};

/// A property of an open grid, some nodes at a time, as doubles. What has no value is NaN.
class node_column {
 public:
  node_column(data_source source, std::int64_t field);
  ~node_column();
  node_column(const node_column&) = delete;
  node_column& operator=(const node_column&) = delete;
  explicit operator bool() const { return static_cast<bool>(block_); }
  /// Fills `values`; false if they cannot be read.
  bool read(std::uint64_t start, std::vector<double>& values) const;

 private:
  grid_block block_;
  double nodata_ = 0.0;
  bool has_nodata_ = false;
};

/// The properties that hold x and y; -1 where the file has none.
struct coord_properties {
  std::int64_t x = -1, y = -1;
};
coord_properties coord_properties_of(const std::wstring& name);

/// Calls `take(start, x, y)` for each run of nodes, with both columns; false if they cannot be
/// read.
template <class function>
bool each_node_run(const std::wstring& name, data_source source, const function& take) {
  constexpr std::uint64_t most = 65536;
  coord_properties found = coord_properties_of(name);
  node_column x(source, found.x), y(source, found.y);
  std::int32_t sizes[3];
  if (!x || !y || !call<&grid_source_impl::sizes>(cast<grid_source_impl>(source), sizes))
    return false;
  auto count = static_cast<std::uint64_t>(sizes[0]) * static_cast<std::uint64_t>(sizes[1]) *
               static_cast<std::uint64_t>(sizes[2]);
  std::vector<double> xs, ys;
  for (std::uint64_t start = 0; start < count; start += most) {
    xs.resize(count - start < most ? count - start : most);
    ys.resize(xs.size());
    if (!x.read(start, xs) || !y.read(start, ys)) return false;
    take(start, xs, ys);
  }
  return true;
}

}  // namespace zu::platform
