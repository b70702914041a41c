#include "cli/program.h"
#include "cli/system.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sys/auxv.h>
#include <unistd.h>

namespace Cli {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

// The running program's file. Where /proc is not there, as in many a bare root, by the name that it was started by.
std::filesystem::path ProgramFile() {
  std::error_code error;
  auto file = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) return file;
  const auto* const started = std::bit_cast<const char*>(::getauxval(AT_EXECFN));
  return started == nullptr ? std::filesystem::path() : std::filesystem::canonical(started, error);
}

}  // namespace

std::vector<std::string> Arguments(int argc, char** argv) { return {argv + std::min(argc, 1), argv + argc}; }

Base::Result<Base::Bytes> ReadInput() {
  Base::Bytes bytes;
  std::array<Base::Byte, 65536> part{};
  for (;;) {
    const ssize_t count = ::read(STDIN_FILENO, part.data(), part.size());
    if (count == 0) return bytes;
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return Base::Error{"Impossibile leggere: " + Base::SystemReason(errno), {}, errno};
    bytes.insert(bytes.end(), part.begin(), part.begin() + count);
    if (bytes.size() > LargestInput)
      return Base::Error{"Impossibile leggere: " + Base::SystemReason(EFBIG), {}, EFBIG};
  }
}

int WriteTo(Stream stream, std::string_view text) {
  // Whoever reads the results may stop when it has seen enough.
  std::signal(SIGPIPE, SIG_IGN);
  while (!text.empty()) {
    const ssize_t count =
        ::write(stream == Stream::Out ? STDOUT_FILENO : STDERR_FILENO, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

// The user's data folder is a path from the root, or the usual one.
Support::ProgramPlaces ProgramPlaces() {
  const std::string folder = ProgramFile().parent_path().string();
  const std::string data = Variable("XDG_DATA_HOME");
  return {folder, !folder.empty() && ::access(folder.c_str(), W_OK) == 0,
          data.starts_with('/') ? data : Variable("HOME") + "/.local/share"};
}

}  // namespace Cli
