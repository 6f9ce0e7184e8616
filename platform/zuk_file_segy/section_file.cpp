#include "platform/zuk_file_segy/section_file.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <climits>
#include <cstring>

#include "zu/data_source.h"

namespace zu::platform {

namespace {

constexpr std::uint64_t text_bytes = SEGY_TEXT_HEADER_SIZE;
constexpr std::uint64_t fixed_bytes = SEGY_TEXT_HEADER_SIZE + SEGY_BINARY_HEADER_SIZE;
constexpr std::uint64_t trace_header_bytes = SEGY_TRACE_HEADER_SIZE;
constexpr std::size_t format_byte = SEGY_BIN_FORMAT - SEGY_BIN_JOB_ID;

constexpr segy_format_info formats[] = {
    {1, element_float32, 4, 4}, {2, element_int32, 4, 4},   {3, element_int16, 2, 2},
    {5, element_float32, 4, 4}, {6, element_float64, 8, 8}, {7, element_int32, 3, 4},
    {8, element_int8, 1, 1},    {9, element_int64, 8, 8},   {10, element_uint32, 4, 4},
    {11, element_uint16, 2, 2}, {12, element_uint64, 8, 8}, {15, element_uint32, 3, 4},
    {16, element_uint8, 1, 1},
};

int number_at(const std::vector<char>& bytes, std::size_t at, bool little_endian) {
  auto one = static_cast<unsigned char>(bytes[at]), two = static_cast<unsigned char>(bytes[at + 1]);
  return little_endian ? two << 8 | one : one << 8 | two;
}

template <std::size_t width> void swap_each(std::byte* raw, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) std::reverse(raw + i * width, raw + (i + 1) * width);
}

void swap_bytes(std::byte* raw, std::size_t width, std::size_t count) {
  if (width == 2) swap_each<2>(raw, count);
  if (width == 3) swap_each<3>(raw, count);
  if (width == 4) swap_each<4>(raw, count);
  if (width == 8) swap_each<8>(raw, count);
}

// Three bytes of this machine's order to four.
void widen(const std::byte* raw, std::size_t count, bool with_sign, void* out) {
  for (std::size_t i = 0; i < count; ++i) {
    std::uint32_t value = 0;
    std::memcpy(&value, raw + 3 * i, 3);
    if (with_sign && (value & 0x800000U) != 0) value |= 0xFF000000U;
    std::memcpy(static_cast<std::byte*>(out) + 4 * i, &value, 4);
  }
}

}  // namespace

static_assert(std::endian::native == std::endian::little);

const segy_format_info* segy_format_of(int code) {
  for (const segy_format_info& f : formats)
    if (f.code == code) return &f;
  return nullptr;
}

void decode_segy_samples(const segy_format_info& format, bool little_endian, std::byte* raw,
                         std::size_t count, void* out) {
  if (format.code == SEGY_IBM_FLOAT_4_BYTE) {
    if (little_endian) swap_bytes(raw, 4, count);
    segy_to_native(format.code, static_cast<long long>(count), raw);
  } else if (!little_endian) {
    swap_bytes(raw, format.bytes, count);
  }
  if (format.bytes == 3)
    widen(raw, count, format.element == element_int32, out);
  else
    std::memcpy(out, raw, count * format.bytes);
}

section_file::section_file(const std::string& path) : file_(path) {
  if (file_.size() < fixed_bytes)
    throw segy_failure("the file is too short for the headers of SEG-Y (" +
                       std::to_string(file_.size()) + " bytes)");
  headers_.reset(segy_open(path.c_str(), "rb"));
  if (headers_ == nullptr) throw segy_failure(std::strerror(errno));
  read_layout();
  count_traces();
  read_times();
}

void section_file::read_layout() {
  binary_.resize(SEGY_BINARY_HEADER_SIZE);
  file_.read(text_bytes, reinterpret_cast<std::byte*>(binary_.data()), binary_.size());
  int code = number_at(binary_, format_byte, false);
  format_ = segy_format_of(code);
  if (format_ == nullptr && code != SEGY_FIXED_POINT_WITH_GAIN_4_BYTE) {
    format_ = segy_format_of(number_at(binary_, format_byte, true));
    little_endian_ = format_ != nullptr;
  }
  if (format_ == nullptr)
    throw segy_failure("unknown format of samples, code " + std::to_string(code));
  // segyio turns headers to its one order; the format matters to it for samples alone, and it
  // takes the older codes only.
  const int order = little_endian_ ? SEGY_LSB : SEGY_MSB;
  if (segy_set_format(headers_.get(), order | SEGY_IBM_FLOAT_4_BYTE) != SEGY_OK ||
      segy_binheader(headers_.get(), binary_.data()) != SEGY_OK)
    throw segy_failure("the binary header cannot be read");
  first_trace_ =
      end_of_extended_headers(static_cast<std::int16_t>(header_field(SEGY_BIN_EXT_HEADERS)));
  read_sample_count();
}

void section_file::read_sample_count() {
  samples_ = static_cast<std::uint64_t>(header_field(SEGY_BIN_SAMPLES) & 0xFFFF);
  constexpr int extended = 3269;  // bytes 3269 to 3272 since revision 2, which segyio does not turn
  if ((header_field(SEGY_BIN_SEGY_REVISION) & 0xFF00) == 0x0200) {
    std::byte number[4];
    file_.read(extended - 1, number, sizeof number);
    if (!little_endian_) std::reverse(std::begin(number), std::end(number));
    std::uint32_t count;
    std::memcpy(&count, number, sizeof count);
    if (count != 0) samples_ = count;
  }
  if (samples_ == 0) throw segy_failure("traces of 0 samples");
}

// The count is followed where it is a count; -1 means that a stanza of its own ends them.
std::uint64_t section_file::end_of_extended_headers(int count) const {
  if (count >= 0) return fixed_bytes + static_cast<std::uint64_t>(count) * text_bytes;
  static const std::string ascii = "((SEG: EndText))";
  static const std::string ebcdic =
      "\x4D\x4D\xE2\xC5\xC7\x7A\x40\xC5\x95\x84\xE3\x85\xA7\xA3\x5D\x5D";
  std::string block(text_bytes, '\0');
  for (std::uint64_t at = fixed_bytes; at + text_bytes <= file_.size(); at += text_bytes) {
    file_.read(at, reinterpret_cast<std::byte*>(block.data()), block.size());
    if (block.compare(0, ascii.size(), ascii) == 0 || block.compare(0, ebcdic.size(), ebcdic) == 0)
      return at + text_bytes;
  }
  throw segy_failure("the extended text headers do not end");
}

void section_file::count_traces() {
  if (first_trace_ > file_.size()) throw segy_failure("the file ends inside its text headers");
  std::uint64_t sample_bytes = samples_ * format_->bytes;
  if (sample_bytes > INT_MAX) throw segy_failure("traces longer than can be read");
  trace_bytes_ = trace_header_bytes + sample_bytes;
  std::uint64_t rest = file_.size() - first_trace_;
  traces_ = rest / trace_bytes_;
  if (traces_ == 0 || rest % trace_bytes_ != 0)
    throw segy_failure("no whole number of traces: " + std::to_string(rest) +
                       " bytes behind the headers, " + std::to_string(trace_bytes_) + " a trace");
  if (traces_ > INT_MAX) throw segy_failure("more traces than can be counted");
}

void section_file::read_times() {
  int microseconds = header_field(SEGY_BIN_INTERVAL) & 0xFFFF;
  const auto first = trace_fields(0, {SEGY_TR_SAMPLE_INTER, SEGY_TR_DELAY_REC_TIME});
  if (microseconds == 0) microseconds = first[0] & 0xFFFF;
  interval_ = microseconds == 0 ? 1 : microseconds / 1000.0;
  delay_ = first[1];
}

std::int32_t section_file::header_field(int byte) const {
  std::int32_t value = 0;
  if (segy_get_bfield(binary_.data(), byte, &value) != SEGY_OK)
    throw segy_failure("no number begins at byte " + std::to_string(byte));
  return value;
}

std::vector<std::int32_t> section_file::trace_fields(std::uint64_t trace,
                                                     const std::vector<int>& bytes) const {
  char header[SEGY_TRACE_HEADER_SIZE];
  if (trace >= traces_) throw segy_failure("no trace " + std::to_string(trace + 1));
  if (segy_traceheader(headers_.get(), static_cast<int>(trace), header,
                       static_cast<long>(first_trace_),
                       static_cast<int>(trace_bytes_ - trace_header_bytes)) != SEGY_OK)
    throw segy_failure("the header of trace " + std::to_string(trace + 1) + " cannot be read");
  std::vector<std::int32_t> values;
  for (int byte : bytes)
    if (segy_get_field(header, byte, &values.emplace_back()) != SEGY_OK)
      throw segy_failure("no number begins at byte " + std::to_string(byte));
  return values;
}

void section_file::read(std::uint64_t trace, const std::vector<std::int64_t>& rows, void* out) {
  if (trace >= traces_) throw segy_failure("no trace " + std::to_string(trace + 1));
  raw_.resize(rows.size() * format_->bytes);
  file_.pick(first_trace_ + trace * trace_bytes_ + trace_header_bytes, format_->bytes, rows,
             raw_.data());
  decode_segy_samples(*format_, little_endian_, raw_.data(), rows.size(), out);
}

}  // namespace zu::platform
