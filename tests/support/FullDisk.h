#pragma once

#include <sys/resource.h>

#include <csignal>

namespace mirolen {

/// While it lives no file can grow beyond a size, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : before_signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, before_signal_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*before_signal_)(int);
  rlimit before_{};
};

}  // namespace mirolen
