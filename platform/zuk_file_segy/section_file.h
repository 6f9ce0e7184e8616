#pragma once
// A SEG-Y file: what its headers say, and its samples by trace. SEG-Y revision 2.0 (SEG Technical
// Standards Committee, 2017) is the source of byte positions and formats.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <segyio/segy.h>

#include "platform/zuk_file_segy/sample_file.h"

namespace zu::platform {

/// How samples of one format code are stored.
struct segy_format_info {
  int code;
  std::int32_t element;  ///< element type by which it is presented, as zu/data_source.h counts
  std::size_t bytes;     ///< of a sample in the file
  std::size_t element_bytes;
};
/// Null for a code that cannot be read: 4 (fixed point with gain) and those without a meaning.
const segy_format_info* segy_format_of(int code);

/// Turns `count` samples as stored into elements of this machine. The buffers must not overlap;
/// `raw` is used up.
void decode_segy_samples(const segy_format_info& format, bool little_endian, std::byte* raw,
                         std::size_t count, void* out);

class section_file {
 public:
  /// Throws `segy_failure` if the file is no whole SEG-Y file with traces of one length.
  explicit section_file(const std::string& path);
  section_file(const section_file&) = delete;
  section_file& operator=(const section_file&) = delete;

  const segy_format_info& format() const { return *format_; }
  bool little_endian() const { return little_endian_; }
  std::uint64_t traces() const { return traces_; }
  std::uint64_t samples() const { return samples_; }
  /// Between samples, in the header's unit divided by 1000 (milliseconds, or metres of a depth
  /// section); 1 where no header tells.
  double interval() const { return interval_; }
  double delay() const { return delay_; }  ///< of the first sample, same unit

  /// A number of the binary header or of a trace header by its byte as the standard counts it
  /// (3201 and up, 1 and up); throws for a byte where no number begins.
  std::int32_t header_field(int byte) const;
  std::vector<std::int32_t> trace_fields(std::uint64_t trace, const std::vector<int>& bytes) const;

  /// The samples `rows` of one trace, not falling and counted from its first, as elements.
  void read(std::uint64_t trace, const std::vector<std::int64_t>& rows, void* out);
  std::uint64_t bytes_read() const { return file_.bytes_read(); }  ///< by `read`, so far
  std::uint64_t size() const { return file_.size(); }              ///< of the file, in bytes

 private:
  struct closed {
    void operator()(::segy_file* headers) const { segy_close(headers); }
  };
  void read_layout();
  void read_sample_count();
  std::uint64_t end_of_extended_headers(int count) const;
  void count_traces();
  void read_times();

  sample_file file_;
  std::unique_ptr<::segy_file, closed> headers_;
  const segy_format_info* format_ = nullptr;
  bool little_endian_ = false;
  std::uint64_t traces_ = 0, samples_ = 0, first_trace_ = 0, trace_bytes_ = 0;
  double interval_ = 1, delay_ = 0;
  std::vector<char> binary_;
  std::vector<std::byte> raw_;
};

}  // namespace zu::platform
