// Byte access. Every multi-byte number goes through the few shifts here, so neither the host's byte order nor
// alignment ever matters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace Base {

using Byte = std::uint8_t;
using Bytes = std::vector<Byte>;
using ByteView = std::span<const Byte>;

// Directory offsets and entry lengths of a flash image: low byte first. Needs two bytes at `offset`.
constexpr std::size_t LowByteFirst16(ByteView bytes, std::size_t offset) {
  return static_cast<std::size_t>(bytes[offset] | bytes[offset + 1] << 8);
}

// Bytes as text of the same code page, without a copy.
inline std::string_view AsText(ByteView bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

inline ByteView AsBytes(std::string_view text) {
  return {reinterpret_cast<const Byte*>(text.data()), text.size()};
}

}  // namespace Base
