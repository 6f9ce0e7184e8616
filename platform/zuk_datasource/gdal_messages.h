#pragma once
// GDAL's words, kept instead of printed.

#include <string>

namespace zu::platform {

/// Takes what GDAL says on this thread while it lives.
class gdal_messages {
 public:
  gdal_messages();
  ~gdal_messages();
  gdal_messages(const gdal_messages&) = delete;
  gdal_messages& operator=(const gdal_messages&) = delete;

  /// The first failure that was told, without the name of `file`; `otherwise` if there was none.
  std::string reason(const std::string& file, const std::string& otherwise) const;
  const std::string& first_failure() const { return first_failure_; }

 private:
  friend struct message_sink;
  std::string first_failure_;
};

}  // namespace zu::platform
