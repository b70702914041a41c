// The checksum of files that must prove themselves whole before they are believed.
#pragma once

#include "base/bytes.h"

#include <array>

namespace Base {

// CRC-32 as in Ethernet and ZIP: reflected polynomial EDB88320, all ones before and after.
inline std::uint32_t Crc32(ByteView bytes) {
  static constexpr std::array<std::uint32_t, 256> Table = [] {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
      table[i] = i;
      for (int bit = 0; bit < 8; ++bit) {
        table[i] = (table[i] & 1U) != 0 ? table[i] >> 1U ^ 0xEDB88320U : table[i] >> 1U;
      }
    }
    return table;
  }();
  std::uint32_t sum = 0xFFFFFFFFU;
  for (const Byte byte : bytes) sum = Table[(sum ^ byte) & 255U] ^ sum >> 8U;
  return ~sum;
}

}  // namespace Base
