#include "base/system_file.h"
#include "base/wide_windows.h"
#include "cli/program.h"
#include "cli/system.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <windows.h>
// Behind the header that it cannot do without.
#include <shellapi.h>

namespace Cli {
namespace {

// Nothing where there is no such variable.
std::string Variable(const wchar_t* name) {
  const wchar_t* value = ::_wgetenv(name);
  return value == nullptr ? std::string() : Base::Narrow(value);
}

std::string ProgramFile() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = ::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (length < name.size()) return Base::Narrow(std::wstring_view(name).substr(0, length));
    name.resize(2 * name.size());
  }
}

// A console takes letters, whatever code page it has; a file or a pipe gets the bytes.
int WriteToConsole(HANDLE console, std::string_view text) {
  constexpr std::size_t MostAtOnce = 8000;
  const std::wstring letters = Base::Wide(text);
  for (std::wstring_view rest = letters; !rest.empty();) {
    DWORD written = 0;
    const auto wanted = static_cast<DWORD>(std::min(MostAtOnce, rest.size()));
    if (::WriteConsoleW(console, rest.data(), wanted, &written, nullptr) == 0 || written == 0) return EIO;
    rest.remove_prefix(written);
  }
  return 0;
}

int LastWriteCode() {
  switch (::GetLastError()) {
    case ERROR_BROKEN_PIPE:
    case ERROR_NO_DATA:
    case ERROR_PIPE_NOT_CONNECTED:
      return EPIPE;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return ENOSPC;
    default:
      return EIO;
  }
}

}  // namespace

// Not those that main is given: their letters are the code page's.
std::vector<std::string> Arguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; words != nullptr && i < count; ++i) arguments.push_back(Base::Narrow(words[i]));
  ::LocalFree(words);
  return arguments;
}

Base::Result<Base::Bytes> ReadInput() {
  const HANDLE input = ::GetStdHandle(STD_INPUT_HANDLE);
  Base::Bytes bytes;
  std::array<Base::Byte, 65536> part{};
  for (;;) {
    DWORD count = 0;
    const bool read = ::ReadFile(input, part.data(), static_cast<DWORD>(part.size()), &count, nullptr) != 0;
    if (!read && ::GetLastError() != ERROR_BROKEN_PIPE)
      return Base::Error{"Impossibile leggere: " + Base::SystemReason(EIO), {}, EIO};
    if (count == 0) return bytes;
    bytes.insert(bytes.end(), part.begin(), part.begin() + count);
    if (bytes.size() > LargestInput)
      return Base::Error{"Impossibile leggere: " + Base::SystemReason(EFBIG), {}, EFBIG};
  }
}

int WriteTo(Stream stream, std::string_view text) {
  const HANDLE file = ::GetStdHandle(stream == Stream::Out ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
  DWORD mode = 0;
  if (::GetConsoleMode(file, &mode) != 0) return WriteToConsole(file, text);
  while (!text.empty()) {
    DWORD written = 0;
    const auto wanted = static_cast<DWORD>(std::min(std::size_t{1} << 20U, text.size()));
    if (::WriteFile(file, text.data(), wanted, &written, nullptr) == 0) return LastWriteCode();
    text.remove_prefix(written);
  }
  return 0;
}

Support::ProgramPlaces ProgramPlaces() {
  const std::string file = ProgramFile();
  const std::string folder = file.substr(0, file.find_last_of('\\'));
  return {folder, Base::WriteRefusal(folder) == 0, Variable(L"LOCALAPPDATA")};
}

}  // namespace Cli
