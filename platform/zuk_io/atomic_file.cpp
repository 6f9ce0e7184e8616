#include "platform/zuk_io/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace zu::platform {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      throw write_failure("no such folder");
    case EACCES:
    case EPERM:
    case EROFS:
      throw write_failure("no permission to write");
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      throw write_failure("no space left on the device");
    default:
      throw write_failure(std::generic_category().message(error));
  }
}

/// Flushes a file or a folder.
void flush(const std::string& path, int flags) {
  int file = open(path.c_str(), flags | O_CLOEXEC);
  if (file < 0) fail(errno);
  int result = fsync(file), error = errno;
  close(file);
  if (result != 0 && error != EINVAL) fail(error);
}

}  // namespace

atomic_file::atomic_file(std::string path) : path_(std::move(path)) {
  fs::path target(path_);
  std::error_code error;
  // A link stays one: what it leads to is replaced.
  if (fs::is_symlink(target, error)) {
    fs::path real = fs::weakly_canonical(target, error);
    if (!error) target = real, path_ = target.string();
  }
  fs::file_status status = fs::status(target, error);
  if (fs::is_directory(status)) throw write_failure("is a folder");
  if (fs::exists(status) && !fs::is_regular_file(status))
    throw write_failure("is not a regular file");
  if (target.filename().empty()) throw write_failure("names no file");
  fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  // The ending stays last: writers choose by it.
  temporary_ = (folder / ("." + target.stem().string() + "." + std::to_string(getpid()) + ".part" +
                          target.extension().string()))
                   .string();
  int file = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (file < 0) fail(errno);
  close(file);
}

atomic_file::~atomic_file() {
  if (!temporary_.empty()) std::remove(temporary_.c_str());
}

void atomic_file::commit() {
  flush(temporary_, O_RDONLY);
  // The old file's access goes over to the new one.
  struct stat old;
  if (stat(path_.c_str(), &old) == 0 && chmod(temporary_.c_str(), old.st_mode & 07777) != 0)
    fail(errno);
  if (std::rename(temporary_.c_str(), path_.c_str()) != 0) fail(errno);
  temporary_.clear();
  fs::path folder = fs::path(path_).parent_path();
  flush(folder.empty() ? "." : folder.string(), O_RDONLY | O_DIRECTORY);
}

}  // namespace zu::platform
