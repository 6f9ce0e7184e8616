#pragma once
// Panels that are a style manager alone: symbols of a layer of points, lines of a profile.

#include <optional>

#include "src/layer/editors/layer_fields.h"
#include "src/style/page/style_manager.h"
#include "src/style/tos4_grid1d_style_ds.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu::element {

/// The symbols of a layer of nodes with coordinates, by the fields of its file.
class point_layer_style : public toolkit::with_element {
 public:
  /// Null for none. It is not kept alive.
  void set_layer(Izu_layer* layer);
  handle element() override { return styles_.element(); }

 private:
  Izu_layer* layer_ = nullptr;
  style::style_manager<style::point_style_traits> styles_;
};

/// The lines of a profile, a class for each of its bands.
class line_layer_style : public toolkit::with_element {
 public:
  /// Null for none. It is not kept alive.
  void set_layer(Izu_layer* layer);
  handle element() override { return styles_.element(); }

 private:
  static void open(const wchar_t* name, std::int32_t read_only, void* bands, handle* out);

  Izu_layer* layer_ = nullptr;
  std::optional<tos4_grid1d_style_ds> bands_;
  style::style_manager<style::line_style_traits> styles_;
};

}  // namespace zu::element
