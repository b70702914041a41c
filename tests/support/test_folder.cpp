#include "support/test_folder.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Tests {
namespace {

constexpr uid_t Nobody = 65534;

}  // namespace

TestFolder::TestFolder() {
  std::string name = std::filesystem::temp_directory_path() / "trovalis-test-XXXXXX";
  path_ = ::mkdtemp(name.data());
  ::chmod(path_.c_str(), 0777);
}

TestFolder::~TestFolder() {
  ::chmod(path_.c_str(), 0777);
  std::filesystem::remove_all(path_);
}

std::string TestFolder::Path(std::string_view name) const {
  return name.empty() ? path_ : path_ + "/" + std::string(name);
}

std::string TestFolder::Write(std::string_view name, Base::ByteView bytes) const {
  std::string path = Path(name);
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  file.close();
  ::chmod(path.c_str(), 0666);
  return path;
}

std::string TestFolder::Write(std::string_view name, std::string_view text) const {
  return Write(name, Base::AsBytes(text));
}

int TestFolder::Files() const {
  const std::filesystem::directory_iterator entries(path_);
  return static_cast<int>(std::distance(begin(entries), end(entries)));
}

Base::Bytes Contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

OrdinaryUser::OrdinaryUser() : before_(::geteuid()) {
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
