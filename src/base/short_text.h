// A text of few bytes that lies where it stands instead of on the heap: thousands of rows of such texts are one piece of
// memory.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace Base {

template <typename Text>
using IfText = std::enable_if_t<std::is_convertible_v<const Text&, std::string_view>>;

// At most `Most` bytes; what a longer text has beyond them is left out.
template <std::size_t Most>
class ShortText {
  static_assert(Most <= UINT8_MAX);

 public:
  ShortText() = default;
  // Texts become short ones, and short ones texts, without a word.
  template <typename Text, typename = IfText<Text>>
  ShortText(const Text& text) {
    Append(text);
  }
  operator std::string_view() const { return {bytes_.data(), size_}; }

  ShortText& Append(std::string_view text) {
    const std::size_t taken = text.copy(bytes_.data() + size_, Most - size_);
    size_ = static_cast<std::uint8_t>(size_ + taken);
    return *this;
  }

  template <typename Text, typename = IfText<Text>>
  friend bool operator==(const ShortText& one, const Text& other) {
    return std::string_view(one) == std::string_view(other);
  }

 private:
  std::array<char, Most> bytes_{};
  std::uint8_t size_ = 0;
};

}  // namespace Base
