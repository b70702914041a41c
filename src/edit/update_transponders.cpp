#include "edit/update_transponders.h"

#include "model/symbol_rates.h"

namespace Edit {
namespace {

using namespace Routines;
using Review::ListedTransponder;
using Review::TransponderFinding;
using Review::TransponderMark;

class Updater {
 public:
  Updater(State& state, int satellite, const BouquetTables& bouquets)
      : state_(state), satellite_(satellite), bouquets_(bouquets) {}

  TransponderReport Run(const std::vector<TransponderFinding>& chosen) {
    // Doubled ones first: the one that takes their channels may be listed no more, and is not to be removed then. Missing
    // ones last, when as many slots are free as can be.
    for (const auto mark : {TransponderMark::Doubled, TransponderMark::Changed, TransponderMark::Gone,
                            TransponderMark::Missing}) {
      for (const TransponderFinding& finding : chosen) {
        if (finding.mark == mark) Take(finding);
      }
    }
    return report_;
  }

 private:
  void Take(const TransponderFinding& finding) {
    switch (finding.mark) {
      case TransponderMark::Missing:
        return Put(finding.listed);
      case TransponderMark::Changed:
        return Change(state_.Transponder(finding.slot).record, finding.listed);
      case TransponderMark::Gone:
        return Remove(finding.slot);
      case TransponderMark::Doubled:
        return Join(finding.slot, finding.first);
    }
  }

  void Put(const ListedTransponder& listed) {
    TransponderRecord record;
    const int megahertz = Review::MegahertzOf(listed);
    Set(record, TransponderField::HighBand, megahertz >= 11700 ? 1U : 0U);
    Set(record, TransponderField::Horizontal, listed.polarisation == Polarisation::Horizontal ? 1U : 0U);
    Set(record, TransponderField::Satellite, static_cast<std::uint32_t>(satellite_));
    Set(record, TransponderField::Frequency,
        static_cast<std::uint32_t>(megahertz - LocalOscillator(record)) * 1000000U);
    Set(record, TransponderField::Fec, Automatic);
    if (listed.tid != NotSaid) Set(record, TransponderField::Tid, static_cast<std::uint32_t>(listed.tid));
    if (listed.nid != NotSaid) Set(record, TransponderField::Nid, static_cast<std::uint32_t>(listed.nid));
    if (listed.symbolRate <= 0) ++report_.unknownRate;
    if (listed.symbolRate <= 0 || !Tune(record, listed)) return;
    const TransponderSlot place = FindOrAddTransponder(state_, record, megahertz);
    if (place.slot == 0) ++report_.noSlot;
    if (!place.added) return;
    NameBouquet(state_.Transponder(place.slot), bouquets_);
    ++report_.added;
  }

  void Change(TransponderRecord& record, const ListedTransponder& listed) {
    if (Tune(record, listed)) ++report_.changed;
  }

  // Gives a record the listed rate and FEC; counts where the rate has no code.
  bool Tune(TransponderRecord& record, const ListedTransponder& listed) {
    std::uint32_t code = 0;
    while (code < SymbolRateCodes && !Review::IsRate(SymbolRateText(state_.SymbolRateTable, code), listed))
      ++code;
    if (listed.symbolRate > 0 && code == SymbolRateCodes) {
      ++report_.unknownRate;
      return false;
    }
    if (listed.symbolRate > 0) Set(record, TransponderField::SymbolRate, code);
    if (const auto fec = Review::FecCodeOf(listed)) Set(record, TransponderField::Fec, *fec);
    return true;
  }

  void Remove(int slot) {
    if (!ChannelsOn(state_, slot).empty()) {
      ++report_.inUse;
      return;
    }
    state_.Transponder(slot) = {};
    ++report_.removed;
  }

  void Join(int slot, int first) {
    const std::vector<int> channels = ChannelsOn(state_, slot);
    for (const int channel : channels)
      Set(state_.Channel(channel), ChannelField::Transponder, static_cast<std::uint32_t>(first));
    AddToChannelCount(state_, static_cast<std::uint32_t>(first), static_cast<int>(channels.size()));
    state_.Transponder(slot) = {};
    ++report_.joined;
  }

  static constexpr std::uint32_t Automatic = 5;

  State& state_;
  int satellite_;
  const BouquetTables& bouquets_;
  TransponderReport report_;
};

}  // namespace

TransponderReport UpdateTransponders(State& state, const std::vector<TransponderFinding>& chosen,
                                     int satellite, const BouquetTables& bouquets) {
  return Updater(state, satellite, bouquets).Run(chosen);
}

std::vector<int> ChannelsOn(const State& state, int transponder) {
  std::vector<int> channels;
  for (int slot = 1; transponder != 0 && slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    if (!channel.Empty() && static_cast<int>(Get(channel, ChannelField::Transponder)) == transponder)
      channels.push_back(slot);
  }
  return channels;
}

}  // namespace Edit
