#include "support/test_folder.h"

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace Tests {

OrdinaryUser::OrdinaryUser() : before_(::geteuid()) {
  constexpr uid_t Nobody = 65534;
  if (before_ == 0 && ::seteuid(Nobody) != 0) std::abort();
}

OrdinaryUser::~OrdinaryUser() {
  if (::seteuid(before_) != 0) std::abort();
}

FileSizeLimit::FileSizeLimit(std::size_t mostBytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  before_ = limit.rlim_cur;
  limit.rlim_cur = mostBytes;
  ::setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit() {
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = before_;
  ::setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace Tests
