// What a reader left out, counted by reason.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Formats {

// Why a line or a channel gave no row, in the order in which reasons are told.
enum class Drop {
  NoPid,
  Type,
  NotMpeg2,
  SymbolRate,
  Code,
  Filter,
  NoName,
  NoFrequency,
  BadFrequency,
  BadPolarisation,
  BadNumber,
  NoTransponder,
  NotSatellite,
  DvbS2,
  Modulation,
  Video,
  Circular,
  Satellite,
  OutOfBand,
  Unreadable
};

class DropReport {
 public:
  void Add(Drop reason) { ++counts_[static_cast<std::size_t>(reason)]; }

  [[nodiscard]] int Count(Drop reason) const { return counts_[static_cast<std::size_t>(reason)]; }
  [[nodiscard]] int Total() const;
  // The reasons that left something out, in words, each with how much.
  [[nodiscard]] std::vector<std::pair<std::string_view, int>> Counts() const;
  // "senza nome 3, numero non valido 1"; empty when nothing was left out.
  [[nodiscard]] std::string Text() const;

 private:
  std::array<int, static_cast<std::size_t>(Drop::Unreadable) + 1> counts_{};
};

}  // namespace Formats
