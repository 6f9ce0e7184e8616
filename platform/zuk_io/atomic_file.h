#pragma once
// A file that is written whole or not at all: into a temporary one beside it, flushed, and renamed
// over the old one.

#include <stdexcept>
#include <string>

namespace zu::platform {

/// Why a file could not be written; the message does not name it.
struct write_failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class atomic_file {
 public:
  /// Chooses the temporary name. Throws `write_failure` if `path` cannot be written: its folder is
  /// missing or not writable, or something that is no regular file stands there.
  explicit atomic_file(std::string path);
  ~atomic_file();  ///< removes the temporary file unless it was committed
  atomic_file(const atomic_file&) = delete;
  atomic_file& operator=(const atomic_file&) = delete;

  const std::string& temporary() const { return temporary_; }
  /// Flushes the finished temporary file to the disk and renames it. Throws `write_failure`.
  void commit();

 private:
  std::string path_, temporary_;
};

}  // namespace zu::platform
