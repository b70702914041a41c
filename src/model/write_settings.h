// What the user has chosen for writing, and the limits that follow from it.
#pragma once

#include "base/result.h"
#include "model/routines.h"
#include "model/symbol_rates.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace Routines {

// One option of a group: its caption and the channels it stands for.
struct CapacityOption {
  std::string_view caption;
  int channels;
};

// Group `QuantiCanali`, in index order.
inline constexpr std::array<CapacityOption, 3> QuantiCanali = {
    {{"D- 1-x (999 canali)", 999}, {"2000 Canali", 2000}, {"D- 2.x (3996 Canali)", 3996}}};

// Group `FlashScrittura`: flash types 1, 2 and 3 in index order, with the channels each can take.
inline constexpr std::array<CapacityOption, 3> FlashScrittura = {
    {{"D- 1-x (999 canali)", 999}, {"D- 2.x (3996 Canali)", 3996}, {"2000 Canali", 2000}}};

// Group `SRDef`, in the order of Sr22000.
inline constexpr std::array<std::string_view, 2> SRDef = {"SR 22000 come 2 (Standard T+)", "SR 22000 come 0"};

enum class FlashType { One = 1, Two = 2, Three = 3 };

// The index chosen in each group.
struct Settings {
  std::optional<std::size_t> quantiCanali;
  std::optional<std::size_t> flashScrittura;
  std::optional<std::size_t> srDef;

  bool operator==(const Settings&) const = default;
  [[nodiscard]] bool Complete() const { return quantiCanali && flashScrittura && srDef; }
  [[nodiscard]] int Capacity() const { return QuantiCanali[*quantiCanali].channels; }
  [[nodiscard]] FlashType Type() const { return static_cast<FlashType>(*flashScrittura + 1); }
  [[nodiscard]] Sr22000 Place() const { return *srDef == 0 ? Sr22000::Come2 : Sr22000::Come0; }
};

inline constexpr std::string_view NoCapacityChosen =
    "Si deve selezionare il numero di canali da visualizzare";

// The first choice that is missing.
Base::Outcome CheckSettings(const Settings& settings);

struct WritePlan {
  FlashType type = FlashType::One;
  int maxChannels = 0;  // channel slots to write
  std::string warning;  // to be shown before the write; empty when there is none
};

// The limits of a write under complete settings. Nothing is changed: they are in force while one command
// runs.
WritePlan PlanWrite(const State& state, const Settings& settings);

}  // namespace Routines
