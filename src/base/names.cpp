#include "base/names.h"

#include "base/code_page.h"
#include "base/text.h"

#include <algorithm>

namespace Base {

Base::Result<std::string> NameBytes(std::string_view typed, std::size_t most) {
  const auto bytes = Base::FromUtf8(Base::TrimmedRight(typed));
  if (!bytes) return Base::Error{"Il nome ha un carattere che il ricevitore non ha"};
  const bool control = std::any_of(bytes->begin(), bytes->end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < ' ' || byte == 0x7F;
  });
  if (control) return Base::Error{"Il nome ha un carattere di controllo"};
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

}  // namespace Base
