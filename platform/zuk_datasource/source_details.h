#pragma once
// What a driver says of a source beyond the public interfaces. The plain functions of
// zu/platform/zuk_datasource.h ask any source for it by name.

#include "zu/data_source.h"
#include "zu/platform/zuk_datasource.h"

namespace zu::platform {

struct source_details_impl : plain_interface<source_details_impl> {
  static constexpr char name[] = "zu_source_details_interface_0";
  virtual bool field_info(std::int64_t /*field*/, Tzu_field_info*) { return false; }
  virtual void driver(string_visitor) {}
  virtual bool rows_run_south() { return false; }
  virtual void georeference_text(string_visitor) {}
  virtual void georeference_file(string_visitor) {}
  virtual std::uint32_t part_count() { return 0; }
  virtual void part(std::uint32_t /*index*/, string_visitor /*name*/, string_visitor /*word*/) {}
  /// As zu_datasource_compute_stat.
  virtual bool compute_stat(std::int64_t /*field*/, std::uint64_t /*most*/, bool (*)(double, void*),
                            void* /*user*/, Tzu_field_stat*) {
    return false;
  }
  /// As zu_datasource_compute_histogram; adds to the counts.
  virtual bool compute_histogram(std::int64_t /*field*/, std::uint64_t /*classes*/,
                                 double /*minimum*/, double /*maximum*/, bool (*)(double, void*),
                                 void* /*user*/, std::int64_t* /*counts*/) {
    return false;
  }
  using operations =
      in_order<&source_details_impl::field_info, &source_details_impl::driver,
               &source_details_impl::rows_run_south, &source_details_impl::georeference_text,
               &source_details_impl::georeference_file, &source_details_impl::part_count,
               &source_details_impl::part, &source_details_impl::compute_stat,
               &source_details_impl::compute_histogram>;
};

}  // namespace zu::platform
