// The overview's counts, held against a plain count of the tables.
#include "edit/riepilogo.h"

#include "edit/canali_doppi.h"
#include "image_builder.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>

namespace Edit {
namespace {

using namespace Routines;
using Section = RiepilogoSection;

// Channels and transponders of every kind, some of them missing.
std::unique_ptr<State> RandomList(std::uint32_t seed) {
  Samples::Junk junk(seed);
  auto state = std::make_unique<State>();
  state->ChannelCount = 300 + static_cast<int>(junk.Below(200));
  state->TransponderCount = 40;
  state->SymbolRateTable = "27000,22000,";
  for (std::size_t slot = 1; slot <= 45; ++slot) {
    TransponderRow& row = state->TransponderTable[slot];
    if (junk.Below(5) == 0) continue;
    const auto number = [&junk](std::size_t below) { return static_cast<int>(junk.Below(below)); };
    row.record = Samples::MakeTransponder(10700 + number(2200), true, number(3), number(3), 2, number(2));
    Set(row.record, TransponderField::ChannelCount, static_cast<std::uint32_t>(junk.Below(12)));
    row.SetBouquet("Citt\xE0 " + std::to_string(junk.Below(4)), "");
  }
  for (std::size_t slot = 1; slot <= 600; ++slot) {
    if (junk.Below(4) == 0) continue;
    const auto pid = [&junk] { return junk.Below(3) == 0 ? 65535 : 100; };
    state->ChannelTable[slot] =
        Samples::MakeChannel("C", static_cast<int>(junk.Below(48)), static_cast<int>(junk.Below(20)), pid(),
                             pid(), static_cast<int>(junk.Below(8)));
  }
  return state;
}

TEST(Riepilogo, EveryLineHasTheRowsThatAPlainCountGivesIt) {
  for (std::uint32_t seed = 1; seed <= 5; ++seed) {
    const auto state = RandomList(seed);
    std::map<std::pair<Section, std::string>, std::set<int>> wanted;
    std::map<int, int> onTransponder;
    int lastUsed = 0;
    for (int slot = 1; slot <= state->ChannelCount; ++slot) {
      if (!state->ChannelTable[static_cast<std::size_t>(slot)].Empty()) lastUsed = slot;
    }
    for (int slot = 1; slot <= state->ChannelCount; ++slot) {
      const ChannelRecord& channel = state->ChannelTable[static_cast<std::size_t>(slot)];
      if (channel.Empty()) {
        wanted[{Section::Places, slot < lastUsed ? "Vuoti fra i canali" : "Liberi in fondo"}].insert(slot);
        continue;
      }
      wanted[{Section::Places, "Occupati"}].insert(slot);
      const bool video = channel.bytes[20] != 0xFF;
      const bool audio = channel.bytes[22] != 0xFF;
      wanted[{Section::Kind, video ? "TV" : audio ? "Radio" : "Servizi"}].insert(slot);
      if ((channel.bytes[16] & 4) == 0) wanted[{Section::Kind, "di cui non attivi"}].insert(slot);
      wanted[{Section::Coding, "0" + std::to_string(channel.bytes[16])}].insert(slot);
      const int number = channel.bytes[17];
      const TransponderRow& row = state->TransponderTable[static_cast<std::size_t>(number)];
      if (number == 0 || number > 40 || IsFree(row.record)) {
        for (const Section section : {Section::Satellite, Section::Bouquet})
          wanted[{section, "Transponder mancanti"}].insert(slot);
        wanted[{Section::Checks, "Canali su transponder mancanti"}].insert(slot);
        continue;
      }
      ++onTransponder[number];
      const std::string label = SatelliteLabel(row.record);
      wanted[{Section::Satellite, label == "SAT B" ? "SAT B  Èst" : label}].insert(slot);
      wanted[{Section::Bouquet, "Città " + std::string(1, row.bouquetName[6]) + "  (" + label + ")"}].insert(
          slot);
    }
    for (int slot = 1; slot <= 40; ++slot) {
      const TransponderRecord& record = state->TransponderTable[static_cast<std::size_t>(slot)].record;
      wanted[{Section::Transponders, IsFree(record) ? "Liberi" : "Occupati"}].insert(slot);
      if (IsFree(record)) continue;
      if (onTransponder[slot] == 0) wanted[{Section::Checks, "Transponder senza canali"}].insert(slot);
      if (record.bytes[8] != onTransponder[slot])
        wanted[{Section::Checks, "Transponder con conteggio errato"}].insert(slot);
      if (record.bytes[9] == 2 || FrequencyMHz(record) > 12750)
        wanted[{Section::Checks, "Transponder fuori banda o senza SR"}].insert(slot);
    }
    for (const auto& group : CanaliDoppi(*state, {}))
      wanted[{Section::Checks, "Canali doppi"}].insert(group.begin(), group.end());

    for (const RiepilogoLine& line : Riepilogo(*state, {{"\xC8st", "SAT B"}})) {
      const auto& rows = wanted[{line.section, line.text}];
      EXPECT_EQ(line.slots, std::vector<int>(rows.begin(), rows.end())) << line.text << " seed " << seed;
      EXPECT_EQ(line.transponders,
                line.section == Section::Transponders ||
                    (line.section == Section::Checks && line.text.starts_with("Transponder")))
          << line.text;
      wanted.erase({line.section, line.text});
    }
    for (const auto& [key, rows] : wanted) ADD_FAILURE() << "no line for " << key.second;
  }
}

}  // namespace
}  // namespace Edit
