#pragma once

#include <sys/resource.h>

#include <csignal>

namespace quorb {

/// A limit on the size of files, as a full disk sets one, until the end of the scope.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t most) {
    oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{most, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, oldHandler);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before{};
  void (*oldHandler)(int) = nullptr;
};

}  // namespace quorb
