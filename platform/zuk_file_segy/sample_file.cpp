#include "platform/zuk_file_segy/sample_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace zu::platform {

namespace {

// A gap of this many bytes costs less to read than a second call.
constexpr std::uint64_t short_gap = 4096;
constexpr std::uint64_t longest_run = 1 << 16;

}  // namespace

sample_file::sample_file(const std::string& path)
    : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
  if (descriptor_ < 0) throw segy_failure(std::strerror(errno));
  struct stat about;
  bool regular = ::fstat(descriptor_, &about) == 0 && S_ISREG(about.st_mode);
  if (!regular) {
    ::close(descriptor_);
    throw segy_failure("is not a regular file");
  }
  size_ = static_cast<std::uint64_t>(about.st_size);
}

sample_file::~sample_file() { ::close(descriptor_); }

void sample_file::read(std::uint64_t at, std::byte* out, std::size_t count) const {
  while (count > 0) {
    ssize_t got = ::pread(descriptor_, out, count, static_cast<off_t>(at));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw segy_failure(std::strerror(errno));
    if (got == 0) throw segy_failure("the file ends too soon");
    auto n = static_cast<std::size_t>(got);
    at += n, out += n, count -= n;
  }
}

void sample_file::pick(std::uint64_t begin, std::size_t width,
                       const std::vector<std::int64_t>& rows, std::byte* out) {
  auto offset = [&](std::size_t i) { return static_cast<std::uint64_t>(rows[i]) * width; };
  for (std::size_t first = 0, next; first < rows.size(); first = next) {
    for (next = first + 1; next < rows.size(); ++next)
      if (offset(next) - offset(next - 1) > short_gap || offset(next) - offset(first) > longest_run)
        break;
    auto bytes = static_cast<std::size_t>(offset(next - 1) - offset(first)) + width;
    if (run_.size() < bytes) run_.resize(bytes);
    read(begin + offset(first), run_.data(), bytes);
    bytes_read_ += bytes;
    for (std::size_t i = first; i < next; ++i, out += width)
      std::memcpy(out, run_.data() + (offset(i) - offset(first)), width);
  }
}

}  // namespace zu::platform
