#pragma once
// A SEG-Y section as a source of the system: one field, "Values"; traces along x, samples along y.
//
// Trace k (from 1) lies at x = k. Sample j (from 0) lies at y = -(delay + j * interval), in
// milliseconds or, in a depth section, metres: y grows upwards in a scene, and so the section
// stands the right way up. Row 0 is the last sample. There is no NoData and no projection.

#include <memory>
#include <string>

#include "platform/zuk_datasource/band_reader.h"
#include "platform/zuk_datasource/source_details.h"
#include "platform/zuk_file_segy/section_file.h"
#include "platform/zuk_file_segy/segy_pyramid.h"
#include "zu/data_source.h"
#include "zu/polymorphic.h"

namespace zu::platform {

/// Reading of samples by window.
class segy_reader {
 public:
  segy_reader(std::shared_ptr<section_file> file, std::shared_ptr<segy_pyramid> pyramid,
              std::wstring name);

  std::int32_t type() const { return file_->format().element; }
  std::uint64_t columns() const { return file_->traces(); }
  std::uint64_t rows() const { return file_->samples(); }
  /// As `band_reader::read`; a read that fails keeps its reason for the name.
  std::int32_t read(const grid_window& window, void* out, std::int32_t type,
                    std::uint64_t column_stride, std::uint64_t row_stride) const;

 private:
  struct target;
  void read_samples(const grid_window& window, const target& to) const;

  std::shared_ptr<section_file> file_;
  std::shared_ptr<segy_pyramid> pyramid_;  // null if there is none
  std::wstring name_;
};

/// Deletes itself on release.
class segy_source final : public polymorphic<data_source_impl>,
                          public polymorphic<stat_source_impl>,
                          public polymorphic<grid_source_impl>,
                          public polymorphic<source_details_impl> {
 public:
  /// Throws `segy_failure`.
  explicit segy_source(std::wstring name);

  void release() override { delete this; }
  bool extent(double* box, bool force) override;
  std::int64_t field_count() override { return 1; }
  void field_name(std::int64_t field, string_visitor visitor) override;
  bool find_field(const wchar_t* name, std::int64_t* index) override;

  bool histogram(std::int64_t field, histogram_visitor visitor) override;

  std::int32_t grid_type() override;
  bool sizes(std::int32_t* three) override;
  bool matrix3x3(double* nine) override;
  bool matrix4x4(double* sixteen) override;
  bool get_origin(double* three) override;
  bool get_spacing(double* three) override;
  std::int32_t sample_type(std::int64_t band) override;
  bool block(std::int64_t band, grid_block_visitor visitor) override;
  bool row_ids(grid_block_visitor visitor) override;

  bool field_info(std::int64_t field, Tzu_field_info* out) override;
  void driver(string_visitor visitor) override;
  bool rows_run_south() override { return true; }
  void georeference_text(string_visitor visitor) override;
  bool compute_stat(std::int64_t field, std::uint64_t most, bool (*progress)(double, void*),
                    void* user, Tzu_field_stat* out) override;
  bool compute_histogram(std::int64_t field, std::uint64_t classes, double minimum, double maximum,
                         bool (*progress)(double, void*), void* user,
                         std::int64_t* counts) override;

 private:
  double lowest() const;  // y of row 0

  std::wstring name_;
  std::shared_ptr<section_file> file_;
  std::shared_ptr<segy_pyramid> pyramid_;
};

/// Whether a name is that of a SEG-Y file, by its extension in either case.
bool is_segy_name(const std::wstring& name);

}  // namespace zu::platform
