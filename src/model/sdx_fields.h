// Fields of a channel that a list may say nothing of. Its rows have something there all the same; a comparison takes it for
// equal to anything.
#pragma once

#include <cstdint>
#include <initializer_list>

namespace Routines {

enum class SdxField {
  Polarisation,
  Band,
  SymbolRate,
  Fec,
  Vpid,
  Apid,
  Pcr,
  Ecm,
  Sid,
  Tid,
  Nid,
  Type,
  Coding,
  Active
};

// A set of them.
class SdxFields {
 public:
  constexpr SdxFields() = default;
  constexpr SdxFields(std::initializer_list<SdxField> fields) {
    for (const SdxField field : fields) Add(field);
  }

  constexpr void Add(SdxField field) { bits_ |= Bit(field); }
  constexpr void Add(SdxFields fields) { bits_ |= fields.bits_; }
  [[nodiscard]] constexpr bool Has(SdxField field) const { return (bits_ & Bit(field)) != 0; }

  friend bool operator==(const SdxFields&, const SdxFields&) = default;

 private:
  static constexpr std::uint32_t Bit(SdxField field) {
    return std::uint32_t{1} << static_cast<unsigned>(field);
  }

  std::uint32_t bits_ = 0;
};

}  // namespace Routines
