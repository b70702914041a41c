#include "formats/sdx_import.h"

#include "base/text.h"
#include "model/favourites.h"
#include "model/flash_loader.h"
#include "model/symbol_rates.h"

#include <algorithm>
#include <map>

namespace Formats {
namespace {

using namespace Routines;

// The leading digits of a row's text; numbers above 65535 keep their low 16 bits.
std::uint32_t Low16(std::string_view text) {
  return static_cast<std::uint32_t>(Base::LeadingCount(text, 999999)) & 0xFFFFU;
}

int Megahertz(const SdxRow& row) { return Base::LeadingCount(row.frequency, 999999); }

// Above the local oscillator of the row's band.
std::int64_t Hertz(const SdxRow& row) {
  TransponderRecord record;
  Set(record, TransponderField::HighBand, row.highBand ? 1U : 0U);
  return std::int64_t{Megahertz(row) - LocalOscillator(record)} * 1000000;
}

// `one` is of the row's satellite and SID.
bool Has(const State& state, const KnownService& one, const SdxRow& row) {
  if (const int tid = Base::LeadingCount(row.tid, 999999); tid != 0) return one.service[1] == tid;
  const auto number = Get(state.Channel(one.slot), ChannelField::Transponder);
  const TransponderRecord& transponder = state.Transponder(number).record;
  return WithinThreeMHz(FrequencyMHz(transponder), Megahertz(row)) &&
         row.horizontal == (Get(transponder, TransponderField::Horizontal) != 0);
}

std::uint32_t FecCode(std::string_view digit) {
  constexpr std::string_view Digits = "12357";
  const std::size_t code = digit.empty() ? std::string_view::npos : Digits.find(digit);
  return code == std::string_view::npos ? 5 : static_cast<std::uint32_t>(code);
}

}  // namespace

bool InBand(const SdxRow& row) {
  if (row.transponder || Megahertz(row) == 0) return true;
  const std::int64_t hertz = Hertz(row);
  return hertz >= 0 && hertz <= 0xFFFFFFFF;
}

std::vector<KnownService> KnownServices(const State& state) {
  std::vector<KnownService> services;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    const std::uint32_t number = Get(channel, ChannelField::Transponder);
    if (channel.Empty() || number < 1 || static_cast<int>(number) > state.TransponderCount) continue;
    const TransponderRecord& transponder = state.Transponder(number).record;
    services.push_back({{static_cast<int>(Get(transponder, TransponderField::Satellite)),
                         static_cast<int>(Get(transponder, TransponderField::Tid)),
                         static_cast<int>(Get(channel, ChannelField::Sid))},
                        slot});
  }
  return services;
}

std::vector<int> SlotsWith(const State& state, const std::vector<SdxRow>& rows) {
  std::map<std::pair<int, int>, std::vector<KnownService>> known;  // by satellite and SID
  for (const KnownService& one : KnownServices(state)) known[{one.service[0], one.service[2]}].push_back(one);
  std::vector<int> slots;
  for (const SdxRow& row : rows) {
    const auto& services = known[{row.satellite, Base::LeadingCount(row.sid, 999999)}];
    const auto first = std::find_if(services.begin(), services.end(),
                                    [&](const KnownService& one) { return Has(state, one, row); });
    slots.push_back(first == services.end() ? 0 : first->slot);
  }
  return slots;
}

std::vector<int> SlotsFrom(const State& state, int start, int count) {
  std::vector<int> slots;
  for (int slot = std::max(start, 1); slot <= state.ChannelCount && slot < start + count; ++slot)
    slots.push_back(slot);
  return slots;
}

std::vector<int> EmptySlots(const State& state, int count) {
  std::vector<int> slots;
  for (int slot = 1; slot <= state.ChannelCount && static_cast<int>(slots.size()) < count; ++slot) {
    if (state.Channel(slot).Empty()) slots.push_back(slot);
  }
  return slots;
}

Overwritten OverwrittenBy(const State& state, const std::vector<int>& slots) {
  Overwritten overwritten;
  std::array<bool, LastChannelSlot + 1> taken{};
  for (const int slot : slots) {
    taken[static_cast<std::size_t>(slot)] = true;
    if (!state.Channel(slot).Empty()) ++overwritten.channels;
  }
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, list)) {
      if (slot <= LastChannelSlot && taken[static_cast<std::size_t>(slot)]) ++overwritten.favourites;
    }
  }
  return overwritten;
}

std::string Overwritten::Text() const {
  std::string text;
  if (channels > 0) text = Base::Counted(channels, "canale", "canali");
  if (favourites > 0) {
    text += text.empty() ? "" : ", ";
    text += Base::Counted(favourites, "voce di preferiti", "voci di preferiti");
  }
  return text;
}

std::optional<std::uint32_t> RateCodeOf(const SdxRow& row, std::string_view rates) {
  const auto has = [&](std::uint32_t code) { return SymbolRateText(rates, code) == row.symbolRate; };
  // A table may have a rate twice: then the code that the flash has is as good as the first.
  if (row.transponder && has(Get(*row.transponder, TransponderField::SymbolRate)))
    return Get(*row.transponder, TransponderField::SymbolRate);
  const bool filled = !std::string_view(row.symbolRate).starts_with('\\');
  for (std::uint32_t code = 0; filled && code < SymbolRateCodes; ++code) {
    if (has(code)) return code;
  }
  return std::nullopt;
}

TransponderRecord TransponderRecordOf(const SdxRow& row, std::string_view rates) {
  TransponderRecord record = row.transponder.value_or(TransponderRecord{});
  Set(record, TransponderField::ChannelCount, 1);
  if (const auto code = RateCodeOf(row, rates)) Set(record, TransponderField::SymbolRate, *code);
  if (row.transponder) return record;
  Set(record, TransponderField::HighBand, row.highBand ? 1U : 0U);
  Set(record, TransponderField::Horizontal, row.horizontal ? 1U : 0U);
  Set(record, TransponderField::Satellite, static_cast<std::uint32_t>(row.satellite));
  Set(record, TransponderField::Frequency, static_cast<std::uint32_t>(Hertz(row) & 0xFFFFFFFF));
  Set(record, TransponderField::Tid, Low16(row.tid));
  Set(record, TransponderField::Nid, Low16(row.nid));
  Set(record, TransponderField::Fec, FecCode(row.fec));
  return record;
}

ChannelRecord ChannelRecordOf(const SdxRow& row) {
  ChannelRecord channel;
  const std::string_view name = std::string_view(row.name).substr(0, ChannelRecord::NameSize);
  // A list fills names up with blanks; those of a flash are its own.
  const std::size_t used = row.transponder ? 0 : Base::TrimmedRight(name).size();
  std::copy_n(name.begin(), used == 0 ? name.size() : used, channel.bytes.begin());
  Set(channel, ChannelField::Flags, static_cast<std::uint32_t>(row.codifica));
  Set(channel, ChannelField::Sid, Low16(row.sid));
  Set(channel, ChannelField::Vpid, Low16(row.vpid));
  Set(channel, ChannelField::Apid, Low16(row.apid));
  Set(channel, ChannelField::Aecm, Low16(row.aecm));
  Set(channel, ChannelField::Vecm, Low16(row.vecm));
  Set(channel, ChannelField::Pcr, Low16(row.pcr));
  return channel;
}

bool IsChannel(const SdxRow& row) { return Megahertz(row) != 0; }

int SdxImport::TransponderOf(const SdxRow& row, int position) {
  const TransponderRecord record = TransponderRecordOf(row, state_.SymbolRateTable);
  const TransponderSlot found = FindOrAddTransponder(state_, record, Megahertz(row));
  if (found.added) {
    if (!RateCodeOf(row, state_.SymbolRateTable)) ++unknownRates_;
    NameBouquet(state_.Transponder(found.slot), bouquets_);
    return found.slot;
  }
  if (found.slot != 0) {
    AddToChannelCount(state_, static_cast<std::uint32_t>(found.slot), 1);
    return found.slot;
  }
  if (message_.empty()) {
    message_ =
        TooManyTransponders(state_.TransponderCount) + "\n Posizione canale SDX " + std::to_string(position);
  }
  AddToChannelCount(state_, static_cast<std::uint32_t>(state_.TransponderCount), 1);
  return state_.TransponderCount;
}

void SdxImport::Put(const SdxRow& row, int slot, int position) {
  ChannelRecord& channel = state_.Channel(slot);
  if (!channel.Empty()) AddToChannelCount(state_, Get(channel, ChannelField::Transponder), -1);
  channel = {};
  if (!IsChannel(row)) return;
  channel = ChannelRecordOf(row);
  Set(channel, ChannelField::Transponder, static_cast<std::uint32_t>(TransponderOf(row, position)));
}

}  // namespace Formats
