#pragma once
// Plain reads of a file. Nothing is mapped into memory: a file that becomes shorter while it is
// open makes a read fail.

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace zu::platform {

/// Why a file is refused or a read failed; the message does not name the file.
struct segy_failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class sample_file {
 public:
  explicit sample_file(const std::string& path);  ///< throws if it is no regular file
  ~sample_file();
  sample_file(const sample_file&) = delete;
  sample_file& operator=(const sample_file&) = delete;

  std::uint64_t size() const { return size_; }
  /// Throws where the file ends before `count` bytes are read.
  void read(std::uint64_t at, std::byte* out, std::size_t count) const;
  /// The elements `rows`, not falling, of a run of elements of `width` bytes that begins at
  /// `begin`. Reads them, and short gaps between them, only.
  void pick(std::uint64_t begin, std::size_t width, const std::vector<std::int64_t>& rows,
            std::byte* out);
  std::uint64_t bytes_read() const { return bytes_read_; }  ///< by `pick`, so far

 private:
  int descriptor_;
  std::uint64_t size_ = 0, bytes_read_ = 0;
  std::vector<std::byte> run_;
};

}  // namespace zu::platform
