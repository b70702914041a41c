// Fields of the receiver's binary records. A record is its bytes; a field is a place in them, decoded and
// encoded where it lies, high byte first, and a change of it touches no other bit.
#pragma once

#include "base/bytes.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Routines {

// `Record` ties a field to its kind of record. `offset` counts bytes from the record's start, `shift` and
// `width` count bits from the lowest one of the `size` bytes there.
template <class Record>
struct Field {
  std::size_t offset;
  std::size_t size = 1;
  unsigned shift = 0;
  unsigned width = 8;

  [[nodiscard]] constexpr std::uint32_t Mask() const {
    return (width >= 32 ? 0xFFFFFFFFU : (1U << width) - 1U) << shift;
  }
};

template <class Record>
constexpr std::uint32_t Get(const Record& record, const Field<Record>& field) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < field.size; ++i) value = value << 8U | record.bytes[field.offset + i];
  return (value & field.Mask()) >> field.shift;
}

// `value` keeps the bits that the field has room for.
template <class Record>
constexpr void Set(Record& record, const Field<Record>& field, std::uint32_t value) {
  const std::uint32_t mask = field.Mask();
  for (std::size_t i = 0; i < field.size; ++i) {
    const std::size_t bits = 8 * (field.size - 1 - i);
    Base::Byte& byte = record.bytes[field.offset + i];
    const auto kept = static_cast<std::uint32_t>(byte) & ~(mask >> bits);
    byte = static_cast<Base::Byte>(kept | ((value << field.shift & mask) >> bits & 0xFFU));
  }
}

}  // namespace Routines
