// While they live, permissions count even for an administrator's test run, and a file takes so many bytes at most.
#pragma once

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

namespace Tests {

class OrdinaryUser {
 public:
  OrdinaryUser() { Become(before_ == 0 ? Nobody : before_); }
  ~OrdinaryUser() { Become(before_); }

 private:
  static constexpr uid_t Nobody = 65534;
  static void Become(uid_t user) {
    if (::seteuid(user) != 0) std::abort();
  }
  uid_t before_ = ::geteuid();
};

class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t mostBytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{mostBytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

}  // namespace Tests
