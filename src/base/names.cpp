#include "base/names.h"

#include "base/code_page.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace Base {
namespace {

// What stands for each byte in a folded text.
std::array<std::string, 256> MakeFolds() {
  constexpr std::pair<std::string_view, std::string_view> Plain[] = {{"\xC0\xC1\xC2\xC3\xC4\xC5", "a"},
                                                                     {"\xC6", "ae"},
                                                                     {"\xC7", "c"},
                                                                     {"\xC8\xC9\xCA\xCB", "e"},
                                                                     {"\xCC\xCD\xCE\xCF", "i"},
                                                                     {"\xD1", "n"},
                                                                     {"\xD2\xD3\xD4\xD5\xD6\xD8", "o"},
                                                                     {"\xD9\xDA\xDB\xDC", "u"},
                                                                     {"\xDD\x9F", "y"},
                                                                     {"\xDF", "ss"},
                                                                     {"\x8A", "s"},
                                                                     {"\x8C", "oe"},
                                                                     {"\x8E", "z"}};
  std::array<std::string, 256> folds;
  for (std::size_t byte = 0; byte < folds.size(); ++byte) {
    const char upper = UpperCase(std::string(1, static_cast<char>(byte))).front();
    const auto found = std::find_if(std::begin(Plain), std::end(Plain), [upper](const auto& letters) {
      return letters.first.find(upper) != std::string_view::npos;
    });
    const bool letter = upper >= 'A' && upper <= 'Z';
    folds[byte] = found != std::end(Plain) ? std::string(found->second)
                                           : std::string(1, letter ? static_cast<char>(upper + 0x20) : upper);
  }
  return folds;
}

}  // namespace

Base::Result<std::string> NameBytes(std::string_view typed, std::size_t most) {
  const auto bytes = Base::FromUtf8(Base::TrimmedRight(typed));
  if (!bytes) return Base::Error{"Nel nome c'è un carattere che il ricevitore non conosce"};
  const bool control = std::any_of(bytes->begin(), bytes->end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < ' ' || byte == 0x7F;
  });
  if (control) return Base::Error{"Nel nome c'è un carattere di controllo"};
  if (bytes->size() > most) {
    return Base::Error{"Il nome ha " + std::to_string(bytes->size()) + " caratteri, al massimo " +
                       std::to_string(most)};
  }
  return *bytes;
}

std::string UpperCase(std::string_view bytes) {
  std::string upper(bytes);
  for (char& c : upper) {
    const auto byte = static_cast<unsigned char>(c);
    const bool accented = byte >= 0xE0 && byte != 0xF7 && byte != 0xFF;
    if ((byte >= 'a' && byte <= 'z') || accented) c = static_cast<char>(byte - 0x20);
    if (byte == 0x9A || byte == 0x9C || byte == 0x9E) c = static_cast<char>(byte - 0x10);
    if (byte == 0xFF) c = '\x9F';
  }
  return upper;
}

std::string LowerCase(std::string_view bytes) {
  std::string lower(bytes);
  for (char& c : lower) {
    const auto byte = static_cast<unsigned char>(c);
    const bool accented = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
    if ((byte >= 'A' && byte <= 'Z') || accented) c = static_cast<char>(byte + 0x20);
    if (byte == 0x8A || byte == 0x8C || byte == 0x8E) c = static_cast<char>(byte + 0x10);
    if (byte == 0x9F) c = '\xFF';
  }
  return lower;
}

std::string Folded(std::string_view bytes) {
  static const std::array<std::string, 256> Folds = MakeFolds();
  std::string folded;
  for (const char c : bytes) folded += Folds[static_cast<unsigned char>(c)];
  return folded;
}

}  // namespace Base
