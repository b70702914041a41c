#include "review/overview.h"

#include "base/code_page.h"
#include "base/text.h"
#include "model/per_slot.h"
#include "review/duplicates.h"

#include <array>
#include <map>
#include <utility>

namespace Review {
namespace {

using namespace Routines;
using Section = OverviewSection;

constexpr const char* NoTransponder = "Transponder mancanti";

class Counter {
 public:
  Counter(const State& state, const std::vector<Satellite>& satellites)
      : state_(state), satellites_(satellites) {
    for (int slot = 1; slot <= state.TransponderCount; ++slot) GroupTransponder(slot);
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

  Slots& ByKind(ChannelKind kind) { return byKind_[static_cast<std::size_t>(kind)]; }

  void CountChannel(int slot) {
    const ChannelRecord& channel = state_.Channel(slot);
    if (channel.Empty()) {
      (slot < lastUsed_ ? gaps_ : rest_).push_back(slot);
      return;
    }
    used_.push_back(slot);
    ByKind(KindOf(channel)).push_back(slot);
    if (Get(channel, ChannelField::Active) == 0) inactive_.push_back(slot);
    byCoding_[Get(channel, ChannelField::Flags)].push_back(slot);
    const std::uint32_t number = Get(channel, ChannelField::Transponder);
    if (TransponderInUse(state_, number) == nullptr) {
      lost_.push_back(slot);
      return;
    }
    OnTransponder& transponder = onTransponder_[number];
    ++transponder.channels;
    transponder.satellite->push_back(slot);
    transponder.bouquet->push_back(slot);
  }

  // Where its channels belong, so that those of a satellite and a bouquet come in their order.
  void GroupTransponder(int slot) {
    const TransponderRow& row = state_.Transponder(slot);
    if (IsFree(row.record)) return;
    const std::uint32_t satellite = Get(row.record, TransponderField::Satellite);
    const std::string_view bouquet = Base::Trimmed(row.BouquetName());
    const std::string name(bouquet.empty() ? "Nessuno" : bouquet);
    onTransponder_[slot] = {0, &bySatellite_[satellite], &byBouquet_[{satellite, name}]};
  }

  void CountTransponder(int slot) {
    const TransponderRow& row = state_.Transponder(slot);
    if (IsFree(row.record)) {
      freeTransponders_.push_back(slot);
      return;
    }
    usedTransponders_.push_back(slot);
    const std::size_t channels = onTransponder_[slot].channels;
    if (channels == 0) unused_.push_back(slot);
    if (TransponderRowKind(state_, slot) == RowKind::DoubtfulTransponder) doubtful_.push_back(slot);
    // Counts stop at 254 or 255.
    constexpr std::size_t Most = 254;
    const std::size_t told = Get(row.record, TransponderField::ChannelCount);
    if (std::min(told, Most) != std::min(channels, Most)) miscounted_.push_back(slot);
  }

  OverviewLine& Add(Section section, std::string text, Slots slots, std::size_t of,
                    bool transponders = false) {
    // Most are in order already.
    if (!std::is_sorted(slots.begin(), slots.end())) std::sort(slots.begin(), slots.end());
    return lines_.emplace_back(OverviewLine{section, std::move(text), transponders, static_cast<int>(of),
                                            std::nullopt, false, std::move(slots)});
  }

  void AddKind(Section section, const char* text, RowKind kind, const Slots& slots, std::size_t of) {
    Add(section, text, slots, of, kind == RowKind::FreeTransponder).kind = kind;
  }

  void AddWrong(Section section, const char* text, const Slots& slots, std::size_t of,
                bool transponders = false) {
    Add(section, text, slots, of, transponders).wrong = true;
  }

  // The largest first, those of equal size in the order of their texts.
  void AddByCount(Section section, std::vector<std::pair<std::string, Slots>> groups) {
    std::sort(groups.begin(), groups.end(), [](const auto& one, const auto& other) {
      return one.second.size() != other.second.size() ? one.second.size() > other.second.size()
                                                      : one.first < other.first;
    });
    for (auto& [text, slots] : groups) {
      if (!slots.empty()) Add(section, text, std::move(slots), used_.size());
    }
  }

  void AddLost(Section section) {
    if (!lost_.empty()) AddWrong(section, NoTransponder, lost_, used_.size());
  }

  void AddKinds() {
    AddKind(Section::Kind, "TV", RowKind::Tv, ByKind(ChannelKind::Tv), used_.size());
    AddKind(Section::Kind, "Radio", RowKind::Radio, ByKind(ChannelKind::Radio), used_.size());
    AddKind(Section::Kind, "Servizi", RowKind::Service, ByKind(ChannelKind::Service), used_.size());
    AddKind(Section::Kind, "di cui non attivi", RowKind::Inactive, inactive_, used_.size());
  }

  void AddSatellites() {
    for (auto& [number, slots] : bySatellite_) {
      Add(Section::Satellite, Base::ToUtf8(SatelliteText(number, satellites_)), std::move(slots),
          used_.size());
    }
    AddLost(Section::Satellite);
  }

  void AddBouquets() {
    std::vector<std::pair<std::string, Slots>> groups;
    for (auto& [key, slots] : byBouquet_) {
      const auto& [satellite, name] = key;
      groups.emplace_back(Base::ToUtf8(name + "  (" + SatelliteLabel(satellite) + ")"), std::move(slots));
    }
    AddByCount(Section::Bouquet, std::move(groups));
    AddLost(Section::Bouquet);
  }

  void AddCodings() {
    std::vector<std::pair<std::string, Slots>> groups;
    for (std::size_t flags = 0; flags < byCoding_.size(); ++flags) {
      if (!byCoding_[flags].empty())
        groups.emplace_back(Base::HexByte(static_cast<int>(flags)), std::move(byCoding_[flags]));
    }
    AddByCount(Section::Coding, std::move(groups));
  }

  void AddPlaces() {
    const std::size_t transponders = usedTransponders_.size() + freeTransponders_.size();
    Add(Section::Transponders, "Occupati", usedTransponders_, transponders, true);
    AddKind(Section::Transponders, "Liberi", RowKind::FreeTransponder, freeTransponders_, transponders);
    const std::size_t places = used_.size() + gaps_.size() + rest_.size();
    Add(Section::Places, "Occupati", used_, places);
    AddKind(Section::Places, "Vuoti fra i canali", RowKind::EmptySlot, gaps_, places);
    AddKind(Section::Places, "Liberi in fondo", RowKind::EmptySlot, rest_, places);
  }

  void AddChecks() {
    Slots twice;
    for (const Slots& group : FindDuplicates(state_, {}))
      twice.insert(twice.end(), group.begin(), group.end());
    AddWrong(Section::Checks, "Canali su transponder mancanti", lost_, used_.size());
    AddWrong(Section::Checks, DuplicatesText, twice, used_.size());
    const std::size_t used = usedTransponders_.size();
    AddWrong(Section::Checks, "Transponder senza canali", unused_, used, true);
    AddWrong(Section::Checks, "Transponder fuori banda o senza SR", doubtful_, used, true);
    AddWrong(Section::Checks, "Transponder con conteggio errato", miscounted_, used, true);
  }

  const State& state_;
  const std::vector<Satellite>& satellites_;
  int lastUsed_ = LastOccupied(state_);
  Slots used_, gaps_, rest_, inactive_, lost_;
  struct OnTransponder {
    std::size_t channels = 0;
    Slots* satellite = nullptr;
    Slots* bouquet = nullptr;
  };
  PerSlot<OnTransponder, 255> onTransponder_;  // by number
  Slots usedTransponders_, freeTransponders_, unused_, doubtful_, miscounted_;
  std::array<Slots, 4> byKind_;
  std::array<Slots, 256> byCoding_;
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

std::string_view TitleOf(OverviewSection section) {
  constexpr std::array<std::string_view, 7> Titles = {"Tipo",        "Satellite", "Bouquet",       "Codifica",
                                                      "Transponder", "Posti",     "Da controllare"};
  return Titles[static_cast<std::size_t>(section)];
}

std::string CountedRows(const OverviewLine& line) {
  const auto count = line.slots.size();
  if (line.transponders) return Base::Counted(count, "transponder", "transponder");
  if (line.section == Section::Places) return Base::Counted(count, "posto", "posti");
  return Base::Counted(count, "canale", "canali");
}

}  // namespace Review
