// UTF-8, which the program's texts and paths are, and UTF-16, which Windows takes and gives.
#pragma once

#include <string>
#include <string_view>
#include <windows.h>

namespace Base {

// What is no UTF-8 becomes U+FFFD, which no file is called.
inline std::wstring Wide(std::string_view text) {
  const auto size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size);
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

// Half a pair, which a name on disk may have, becomes U+FFFD.
inline std::string Narrow(std::wstring_view text) {
  constexpr std::size_t MostForOne = 3;
  std::string narrow(MostForOne * text.size(), '\0');
  const int length = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           narrow.data(), static_cast<int>(narrow.size()), nullptr, nullptr);
  narrow.resize(static_cast<std::size_t>(length));
  return narrow;
}

}  // namespace Base
