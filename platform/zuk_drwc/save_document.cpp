#include "platform/zuk_drwc/save_document.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "platform/zuk_io/atomic_file.h"

namespace zu::platform {
namespace {

[[noreturn]] void fail(int error) {
  if (error == ENOSPC || error == EFBIG || error == EDQUOT)
    throw write_failure("no space left on the device");
  throw write_failure(std::generic_category().message(error));
}

}  // namespace

std::string lower_ending(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char c) { return c < 128 ? static_cast<char>(std::tolower(c)) : c; });
  return ending;
}

void save_document(const std::string& bytes, const std::string& path) {
  atomic_file file(path);
  // A limit on the size of files is reported by the write, not by a signal.
  std::signal(SIGXFSZ, SIG_IGN);
  std::unique_ptr<FILE, int (*)(FILE*)> out(std::fopen(file.temporary().c_str(), "wb"), &fclose);
  if (!out) fail(errno);
  if (std::fwrite(bytes.data(), 1, bytes.size(), out.get()) != bytes.size()) fail(errno);
  if (std::fclose(out.release()) != 0) fail(errno);
  file.commit();
}

}  // namespace zu::platform
