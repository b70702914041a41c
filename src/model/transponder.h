// A transponder as the receiver keeps it: 12 bytes, with the bouquet that the program finds for it beside
// them.
#pragma once

#include "model/record.h"

#include <string>
#include <string_view>
#include <type_traits>

namespace Routines {

struct TransponderRecord {
  static constexpr std::size_t Size = 12;

  std::array<Base::Byte, Size> bytes{};

  friend bool operator==(const TransponderRecord&, const TransponderRecord&) = default;
};
static_assert(sizeof(TransponderRecord) == TransponderRecord::Size && alignof(TransponderRecord) == 1);
static_assert(std::is_trivially_copyable_v<TransponderRecord>);

namespace TransponderField {
inline constexpr Field<TransponderRecord> Frequency{
    .offset = 0, .size = 4, .width = 32};  // Hz behind the LNB
inline constexpr Field<TransponderRecord> Tid{.offset = 4, .size = 2, .width = 16};
inline constexpr Field<TransponderRecord> Nid{.offset = 6, .size = 2, .width = 16};
inline constexpr Field<TransponderRecord> ChannelCount{8};
inline constexpr Field<TransponderRecord> SymbolRate{9};  // code, see symbol_rates.h
inline constexpr Field<TransponderRecord> Fec{10};        // code, see FecText
inline constexpr Field<TransponderRecord> Tuning{11};     // the three below, and a bit of no known meaning
inline constexpr Field<TransponderRecord> HighBand{.offset = 11, .shift = 0, .width = 1};  // 22 kHz tone on
inline constexpr Field<TransponderRecord> Horizontal{.offset = 11, .shift = 1, .width = 1};
inline constexpr Field<TransponderRecord> Satellite{
    .offset = 11, .shift = 3, .width = 5};  // 0 is satellite A
}  // namespace TransponderField

// The LNB's local oscillator in MHz: 10600 in the high band, else 9750.
constexpr int LocalOscillator(const TransponderRecord& transponder) {
  return Get(transponder, TransponderField::HighBand) != 0 ? 10600 : 9750;
}

constexpr bool IsFree(const TransponderRecord& transponder) {
  return Get(transponder, TransponderField::Frequency) == 0;
}

// The satellite frequency in MHz, 0 for a free slot. The single precision is the receiver's own: it may give
// one MHz less than an exact division, and lists in use are matched by what it gives.
constexpr int FrequencyMHz(const TransponderRecord& transponder) {
  if (IsFree(transponder)) return 0;
  const auto& b = transponder.bytes;
  const float hertz = static_cast<float>(b[0]) * 16777216.0F + static_cast<float>(b[1]) * 65536.0F +
                      static_cast<float>(b[2]) * 256.0F + static_cast<float>(b[3]);
  return static_cast<int>(hertz / 1000000.0F) + LocalOscillator(transponder);
}

// Both bounds are strict: a transponder 3 MHz away is another one.
constexpr bool WithinThreeMHz(double one, double other) { return one - 3 < other && other < one + 3; }

// `megahertz` is the other one's frequency, which a list may give more exactly than its record does.
constexpr bool SameTransponder(const TransponderRecord& one, const TransponderRecord& other, int megahertz) {
  return Get(one, TransponderField::Satellite) == Get(other, TransponderField::Satellite) &&
         Get(one, TransponderField::Horizontal) == Get(other, TransponderField::Horizontal) &&
         WithinThreeMHz(FrequencyMHz(one), megahertz);
}

constexpr bool SameTransponder(const TransponderRecord& one, const TransponderRecord& other) {
  return SameTransponder(one, other, FrequencyMHz(other));
}

// "SAT A" for satellite 0; the character behind "Z" and up for those above 25.
inline std::string SatelliteLabel(std::uint32_t satellite) {
  return std::string("SAT ") + static_cast<char>('A' + satellite);
}

inline std::string SatelliteLabel(const TransponderRecord& transponder) {
  return SatelliteLabel(Get(transponder, TransponderField::Satellite));
}

constexpr std::string_view FecText(const TransponderRecord& transponder) {
  constexpr std::array<std::string_view, 5> Texts = {"1/2", "2/3", "3/4", "5/6", "7/8"};
  const std::uint32_t code = Get(transponder, TransponderField::Fec);
  return code < Texts.size() ? Texts[code] : "Auto";
}

struct TransponderRow {
  static constexpr std::size_t BouquetNameSize = 36;
  static constexpr std::size_t BouquetCodeSize = 2;
  using BouquetText = std::array<char, BouquetNameSize>;
  using BouquetDigits = std::array<char, BouquetCodeSize>;

  TransponderRow() { SetBouquet("", ""); }

  TransponderRecord record;
  BouquetText bouquetName;    // padded with blanks
  BouquetDigits bouquetCode;  // two digits, or two blanks where no bouquet was found

  // Cuts or fills up with blanks.
  void SetBouquet(std::string_view name, std::string_view code) {
    bouquetName.fill(' ');
    bouquetCode.fill(' ');
    name.substr(0, BouquetNameSize).copy(bouquetName.data(), BouquetNameSize);
    code.substr(0, BouquetCodeSize).copy(bouquetCode.data(), BouquetCodeSize);
  }
  [[nodiscard]] std::string_view BouquetName() const { return {bouquetName.data(), bouquetName.size()}; }
  [[nodiscard]] std::string_view BouquetCode() const { return {bouquetCode.data(), bouquetCode.size()}; }

  friend bool operator==(const TransponderRow&, const TransponderRow&) = default;
};

}  // namespace Routines
