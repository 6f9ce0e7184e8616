#pragma once
// A grid file as a source of the system.

#include <array>

#include "platform/zuk_datasource/pgrid_block.h"
#include "platform/zuk_datasource/source_details.h"

namespace zu::platform {

/// Deletes itself on release. Each property is a field.
class pgrid_source final : public polymorphic<data_source_impl>,
                           public polymorphic<stat_source_impl>,
                           public polymorphic<grid_source_impl>,
                           public polymorphic<source_details_impl> {
 public:
  pgrid_source(pgrid_ptr file, std::wstring name);

  void release() override { delete this; }
  bool extent(double* box, bool force) override;
  std::int64_t field_count() override;
  void field_name(std::int64_t field, string_visitor visitor) override;
  bool find_field(const wchar_t* name, std::int64_t* index) override;
  void get_projection(string_visitor visitor) override;
  bool set_projection(const wchar_t* text) override;

  bool minimum(std::int64_t field, double* out) override;
  bool maximum(std::int64_t field, double* out) override;
  bool mean(std::int64_t field, double* out) override;
  bool stddev(std::int64_t field, double* out) override;
  bool histogram(std::int64_t field, histogram_visitor visitor) override;

  std::int32_t grid_type() override { return file_->head().type; }
  bool sizes(std::int32_t* three) override;
  bool matrix3x3(double* nine) override;
  bool matrix4x4(double* sixteen) override;
  bool get_origin(double* three) override;
  bool set_origin(const double* three) override;
  bool get_spacing(double* three) override;
  bool set_spacing(const double* three) override;
  double azimuth() override { return file_->head().azimuth; }
  std::int32_t sample_type(std::int64_t band) override;
  std::int32_t color_role(std::int64_t band) override;
  bool palette(std::int64_t band, grid_palette_visitor visitor) override;
  bool block(std::int64_t band, grid_block_visitor visitor) override;
  bool row_ids(grid_block_visitor visitor) override;

  bool field_info(std::int64_t field, Tzu_field_info* out) override;
  void driver(string_visitor visitor) override;
  void georeference_text(string_visitor visitor) override;
  bool compute_stat(std::int64_t field, std::uint64_t most, bool (*progress)(double, void*),
                    void* user, Tzu_field_stat* out) override;
  bool compute_histogram(std::int64_t field, std::uint64_t classes, double minimum, double maximum,
                         bool (*progress)(double, void*), void* user,
                         std::int64_t* counts) override;

 private:
  const grid_property* property(std::int64_t field);  // null if there is none
  bool store(const grid_head& head, std::int32_t kind);

  pgrid_ptr file_;
  std::wstring name_;
};

/// Matrix of a head, and the spacing and azimuth of a matrix; false if it is none of a turned grid:
/// its axes do not stand upright on each other.
std::array<double, 9> matrix_of(const grid_head& head);
bool place_of(const std::array<double, 9>& matrix, grid_head& head);

}  // namespace zu::platform
