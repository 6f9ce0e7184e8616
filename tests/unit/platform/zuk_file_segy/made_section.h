#pragma once
// SEG-Y files that a test makes itself.

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tests {

/// A folder of its own that goes with it.
class section_folder {
 public:
  section_folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zu_segy_XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  ~section_folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  section_folder(const section_folder&) = delete;
  section_folder& operator=(const section_folder&) = delete;
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

/// A file in the making: zero headers, and traces of the given raw sample bytes.
class made_section {
 public:
  made_section(int format, std::uint16_t samples, bool little_endian = false)
      : little_endian_(little_endian), head_(3600, '\0') {
    number(head_, 3225 - 1, 2, format);
    number(head_, 3221 - 1, 2, samples);
    number(head_, 3217 - 1, 2, 4000);
  }

  /// A number of the binary header by its byte as the standard counts it.
  made_section& header(int byte, int width, std::int64_t value) {
    number(head_, static_cast<std::size_t>(byte) - 1, width, value);
    return *this;
  }
  made_section& text_block(const std::string& text) {
    extended_ += text + std::string(3200 - text.size(), ' ');
    return *this;
  }
  /// A trace; its samples are given most significant byte first.
  made_section& trace(const std::vector<std::string>& samples) {
    std::string data(240, '\0');
    for (std::string sample : samples) {
      if (little_endian_) std::reverse(sample.begin(), sample.end());
      data += sample;
    }
    traces_.push_back(data);
    return *this;
  }
  /// A number of the header of the last trace.
  made_section& field(int byte, int width, std::int64_t value) {
    number(traces_.back(), static_cast<std::size_t>(byte) - 1, width, value);
    return *this;
  }
  std::string bytes() const {
    std::string all = head_ + extended_;
    for (const std::string& t : traces_) all += t;
    return all;
  }
  void save(const std::string& path) const { std::ofstream(path, std::ios::binary) << bytes(); }

 private:
  void number(std::string& to, std::size_t at, int width, std::int64_t value) const {
    for (int i = 0; i < width; ++i) {
      int place = little_endian_ ? i : width - 1 - i;
      to[at + static_cast<std::size_t>(place)] = static_cast<char>(value >> (8 * i));
    }
  }

  bool little_endian_;
  std::string head_, extended_;
  std::vector<std::string> traces_;
};

/// A whole number as `width` bytes, the most significant first.
inline std::string big(int width, std::int64_t value) {
  std::string bytes;
  for (int i = width - 1; i >= 0; --i) bytes += static_cast<char>(value >> (8 * i));
  return bytes;
}

/// A section of 16-bit samples: sample j of trace i (both from 0) is 100 * i + j.
inline made_section numbered_section(int traces, int samples) {
  made_section section(3, static_cast<std::uint16_t>(samples));
  for (int i = 0; i < traces; ++i) {
    std::vector<std::string> trace;
    for (int j = 0; j < samples; ++j) trace.push_back(big(2, 100 * i + j));
    section.trace(trace);
  }
  return section;
}

}  // namespace tests
