#pragma once
// Reduced copies of a section in a side file, so that a picture of all of it reads little.
//
// The file: the bytes "ZUSEGOV1"; then, little-endian 64-bit numbers: element type, bytes of an
// element, traces and samples of the section, bytes of the section's file, number of levels; for
// each level its factor, columns and samples; then the levels one after the other, column by
// column like the section. Element (i, j) of a level is sample min(j * f + f / 2, samples - 1) of
// trace min(i * f + f / 2, traces - 1).

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/zuk_file_segy/section_file.h"

namespace zu::platform {

class segy_pyramid {
 public:
  struct level {
    std::uint64_t factor, columns, samples, offset;
  };

  /// The pyramid of a section; null if there is none, if it is older than the section or not its.
  static std::unique_ptr<segy_pyramid> open(const std::string& section, const section_file& file);

  /// The level with the largest factor that is not above `reduction`; null if there is none.
  const level* best(double reduction) const;
  /// Elements `rows`, not falling, of a column of a level. Throws `segy_failure`.
  void read(const level& from, std::uint64_t column, const std::vector<std::int64_t>& rows,
            void* out);

 private:
  explicit segy_pyramid(const std::string& path) : file_(path) {}
  bool read_head(const section_file& section);

  sample_file file_;
  std::size_t width_ = 0;
  std::vector<level> levels_;
};

/// Writes the pyramid of a section, whole or not at all. `progress` gets shares of 1 and stops the
/// work by returning false. False if stopped; throws `segy_failure` or `write_failure`.
bool build_segy_pyramid(const std::string& section, const std::vector<std::uint64_t>& factors,
                        const std::function<bool(double)>& progress);

}  // namespace zu::platform
