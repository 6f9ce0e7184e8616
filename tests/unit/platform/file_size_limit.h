#pragma once
// A limit on the size of files stands for a full disk: writes fail in the same way.

#include <sys/resource.h>

#include <csignal>

namespace tests {

class file_size_limit {
 public:
  explicit file_size_limit(rlim_t bytes) {
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit tight = before_;
    tight.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &tight);
  }
  ~file_size_limit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  file_size_limit(const file_size_limit&) = delete;
  file_size_limit& operator=(const file_size_limit&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};

}  // namespace tests
