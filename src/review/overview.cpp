#include "review/overview.h"

#include "base/code_page.h"
#include "base/text.h"
#include "review/duplicates.h"

#include <map>
#include <utility>

namespace Review {
namespace {

using namespace Routines;
using Section = OverviewSection;

constexpr Colour SatelliteColour = 0xD0A060;
constexpr Colour BouquetColour = 0x90B040;
constexpr Colour CodingColour = 0x40A0E0;
constexpr Colour UsedColour = 0x60B060;
constexpr const char* NoTransponder = "Transponder mancanti";

class Counter {
 public:
  Counter(const State& state, const std::vector<Satellite>& satellites)
      : state_(state), satellites_(satellites), onTransponder_(256) {
    for (int slot = 1; slot <= state.ChannelCount; ++slot) CountChannel(slot);
    for (int slot = 1; slot <= state.TransponderCount; ++slot) CountTransponder(slot);
  }

  std::vector<OverviewLine> Lines() {
    AddKinds();
    AddSatellites();
    AddBouquets();
    AddCodings();
    AddPlaces();
    AddChecks();
    return std::move(lines_);
  }

 private:
  using Slots = std::vector<int>;

  void CountChannel(int slot) {
    const ChannelRecord& channel = state_.Channel(slot);
    if (channel.Empty()) {
      (slot < lastUsed_ ? gaps_ : rest_).push_back(slot);
      return;
    }
    used_.push_back(slot);
    byKind_[KindOf(channel)].push_back(slot);
    if (Get(channel, ChannelField::Active) == 0) inactive_.push_back(slot);
    byCoding_[Get(channel, ChannelField::Flags)].push_back(slot);
    const std::uint32_t number = Get(channel, ChannelField::Transponder);
    (TransponderInUse(state_, number) == nullptr ? lost_ : onTransponder_[number]).push_back(slot);
  }

  void CountTransponder(int slot) {
    const TransponderRow& row = state_.Transponder(slot);
    if (IsFree(row.record)) {
      freeTransponders_.push_back(slot);
      return;
    }
    usedTransponders_.push_back(slot);
    const Slots& channels = onTransponder_[slot];
    const std::uint32_t satellite = Get(row.record, TransponderField::Satellite);
    const std::string_view bouquet = Base::Trimmed(row.BouquetName());
    const std::string name(bouquet.empty() ? "Nessuno" : bouquet);
    for (Slots* group : {&bySatellite_[satellite], &byBouquet_[{satellite, name}]}) {
      group->insert(group->end(), channels.begin(), channels.end());
    }
    if (channels.empty()) unused_.push_back(slot);
    if (TransponderColour(state_, slot, TransponderColumn::Number) == Colours::DoubtfulTransponder)
      doubtful_.push_back(slot);
    // Counts stop at 254 or 255.
    constexpr std::size_t Most = 254;
    const std::size_t told = Get(row.record, TransponderField::ChannelCount);
    if (std::min(told, Most) != std::min(channels.size(), Most)) miscounted_.push_back(slot);
  }

  void Add(Section section, std::string text, Colour colour, Slots slots, std::size_t of,
           bool transponders = false) {
    std::sort(slots.begin(), slots.end());
    lines_.push_back(
        {section, std::move(text), transponders, static_cast<int>(of), colour, std::move(slots)});
  }

  // The largest first, those of equal size in the order of their texts.
  void AddByCount(Section section, Colour colour, std::vector<std::pair<std::string, Slots>> groups) {
    std::sort(groups.begin(), groups.end(), [](const auto& one, const auto& other) {
      return one.second.size() != other.second.size() ? one.second.size() > other.second.size()
                                                      : one.first < other.first;
    });
    for (auto& [text, slots] : groups) {
      if (!slots.empty()) Add(section, text, colour, std::move(slots), used_.size());
    }
  }

  void AddLost(Section section) {
    if (!lost_.empty()) Add(section, NoTransponder, Colours::DoubtfulTransponder, lost_, used_.size());
  }

  void AddKinds() {
    Add(Section::Kind, "TV", Colours::Tv, byKind_[ChannelKind::Tv], used_.size());
    Add(Section::Kind, "Radio", Colours::Radio, byKind_[ChannelKind::Radio], used_.size());
    Add(Section::Kind, "Servizi", Colours::Service, byKind_[ChannelKind::Service], used_.size());
    Add(Section::Kind, "di cui non attivi", Colours::Inactive, inactive_, used_.size());
  }

  [[nodiscard]] std::string SatelliteText(std::uint32_t number) const {
    TransponderRecord record;
    Set(record, TransponderField::Satellite, number);
    std::string label = SatelliteLabel(record);
    for (const Satellite& satellite : satellites_) {
      if (satellite.label == label) return label + "  " + satellite.name;
    }
    return label;
  }

  void AddSatellites() {
    for (auto& [number, slots] : bySatellite_) {
      Add(Section::Satellite, Base::ToUtf8(SatelliteText(number)), SatelliteColour, std::move(slots),
          used_.size());
    }
    AddLost(Section::Satellite);
  }

  void AddBouquets() {
    std::vector<std::pair<std::string, Slots>> groups;
    for (auto& [key, slots] : byBouquet_) {
      const auto& [satellite, name] = key;
      const std::string label = SatelliteText(satellite).substr(0, 5);
      groups.emplace_back(Base::ToUtf8(name + "  (" + label + ")"), std::move(slots));
    }
    AddByCount(Section::Bouquet, BouquetColour, std::move(groups));
    AddLost(Section::Bouquet);
  }

  void AddCodings() {
    std::vector<std::pair<std::string, Slots>> groups;
    for (auto& [flags, slots] : byCoding_) {
      groups.emplace_back(Base::HexByte(static_cast<int>(flags)), std::move(slots));
    }
    AddByCount(Section::Coding, CodingColour, std::move(groups));
  }

  void AddPlaces() {
    const std::size_t transponders = usedTransponders_.size() + freeTransponders_.size();
    Add(Section::Transponders, "Occupati", UsedColour, usedTransponders_, transponders, true);
    Add(Section::Transponders, "Liberi", Colours::EmptySlot, freeTransponders_, transponders, true);
    const std::size_t places = used_.size() + gaps_.size() + rest_.size();
    Add(Section::Places, "Occupati", UsedColour, used_, places);
    Add(Section::Places, "Vuoti fra i canali", Colours::EmptySlot, gaps_, places);
    Add(Section::Places, "Liberi in fondo", Colours::EmptySlot, rest_, places);
  }

  void AddChecks() {
    Slots twice;
    for (const Slots& group : FindDuplicates(state_, {}))
      twice.insert(twice.end(), group.begin(), group.end());
    constexpr Colour Wrong = Colours::DoubtfulTransponder;
    Add(Section::Checks, "Canali su transponder mancanti", Wrong, lost_, used_.size());
    Add(Section::Checks, "Canali doppi", Wrong, std::move(twice), used_.size());
    const std::size_t used = usedTransponders_.size();
    Add(Section::Checks, "Transponder senza canali", Wrong, unused_, used, true);
    Add(Section::Checks, "Transponder fuori banda o senza SR", Wrong, doubtful_, used, true);
    Add(Section::Checks, "Transponder con conteggio errato", Wrong, miscounted_, used, true);
  }

  const State& state_;
  const std::vector<Satellite>& satellites_;
  int lastUsed_ = LastOccupied(state_);
  Slots used_, gaps_, rest_, inactive_, lost_;
  std::vector<Slots> onTransponder_;  // by number
  Slots usedTransponders_, freeTransponders_, unused_, doubtful_, miscounted_;
  std::map<ChannelKind, Slots> byKind_;
  std::map<std::uint32_t, Slots> byCoding_;
  std::map<std::uint32_t, Slots> bySatellite_;
  std::map<std::pair<std::uint32_t, std::string>, Slots> byBouquet_;
  std::vector<OverviewLine> lines_;
};

}  // namespace

std::vector<OverviewLine> Overview(const State& state, const std::vector<Satellite>& satellites) {
  return Counter(state, satellites).Lines();
}

std::vector<int> OverviewSlots(const State& state, const std::vector<Satellite>& satellites,
                               OverviewSection section, const std::string& text) {
  for (OverviewLine& line : Overview(state, satellites)) {
    if (line.section == section && line.text == text) return std::move(line.slots);
  }
  return {};
}

}  // namespace Review
