#include "edit/cell_edit.h"

#include "base/code_page.h"
#include "base/names.h"
#include "base/text.h"
#include "model/cells.h"
#include "model/symbol_rates.h"

#include <charconv>
#include <optional>

namespace Edit {
namespace {

using namespace Routines;
using Base::Done;
using Base::Error;
using Base::Outcome;

constexpr int LargestNumber = 65535;

// The number that the whole of a text is, in decimal or hexadecimal digits alone.
std::optional<std::uint32_t> WholeNumber(std::string_view text, int base = 10) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  const bool whole = !text.empty() && error == std::errc{} && end == text.data() + text.size();
  return whole ? std::optional(value) : std::nullopt;
}

std::string_view FirstWord(std::string_view text) { return text.substr(0, text.find(' ')); }

template <class Record>
Outcome SetNumber(Record& record, const Field<Record>& field, std::string_view text) {
  const auto value = WholeNumber(text);
  if (!value || *value > LargestNumber) return Error{"Serve un numero da 0 a 65535, con sole cifre decimali"};
  Set(record, field, *value);
  return Done{};
}

// One of some texts, whatever its case; its place among them is the field's value.
template <class Record, std::size_t N>
Outcome SetChoice(Record& record, const Field<Record>& field, std::string_view text,
                  const std::array<std::string_view, N>& choices) {
  std::string all;
  for (std::size_t i = 0; i < N; ++i) {
    if (Base::UpperCase(text) == Base::UpperCase(choices[i])) {
      Set(record, field, static_cast<std::uint32_t>(i));
      return Done{};
    }
    all += (i == 0 ? "" : ", ") + std::string(choices[i]);
  }
  return Error{"Valori possibili: " + all};
}

// `name` is at most as long as its field.
void WriteName(ChannelRecord& channel, std::string_view name) {
  const auto end = std::copy(name.begin(), name.end(), channel.bytes.begin());
  std::fill(end, channel.bytes.begin() + ChannelRecord::NameSize, Base::Byte{0});
}

Outcome SetName(ChannelRecord& channel, std::string_view typed) {
  const auto name = Base::NameBytes(typed, ChannelRecord::NameSize);
  if (!name) return name.error();
  if (name->empty()) return Error{"Un canale senza nome sarebbe un posto vuoto: per toglierlo c'è Elimina"};
  // Whatever pads the name stays while the name itself is the same.
  if (Base::TrimmedRight(channel.Name()) != *name) WriteName(channel, *name);
  return Done{};
}

Outcome SetTransponder(const State& state, ChannelRecord& channel, std::string_view text) {
  const auto number = WholeNumber(FirstWord(text));
  const bool slot = number && *number >= 1 && static_cast<int>(*number) <= state.TransponderCount;
  if (!slot) return Error{"Serve un transponder da 1 a " + std::to_string(state.TransponderCount)};
  if (IsFree(state.Transponder(*number).record))
    return Error{"Il transponder " + std::to_string(*number) + " è libero"};
  Set(channel, ChannelField::Transponder, *number);
  return Done{};
}

Outcome SetFlags(ChannelRecord& channel, std::string_view text) {
  const std::string_view digits = FirstWord(text);
  const auto known = std::find_if(Codings.begin(), Codings.end(), [text](std::string_view coding) {
    return Base::UpperCase(coding) == Base::UpperCase(text);
  });
  const auto value = WholeNumber(digits, 16);
  if (!value || digits.size() != 2 || (digits != text && known == Codings.end())) {
    return Error{"Servono due cifre esadecimali, per esempio 24, o una codifica dell'elenco"};
  }
  Set(channel, ChannelField::Flags, *value);
  return Done{};
}

// What the four bytes can show, in MHz above the oscillator.
constexpr int LowestShown = 16;
constexpr int HighestShown = 4294;

// The smallest stored value that shows as `megahertz`; nothing where the four bytes have none.
std::optional<std::uint32_t> HertzShownAs(TransponderRecord transponder, int megahertz) {
  const int oscillator = LocalOscillator(transponder);
  if (megahertz < oscillator + LowestShown || megahertz > oscillator + HighestShown) return std::nullopt;
  // A record whose first byte is 0 shows no frequency.
  constexpr std::uint32_t FirstWithByte = 1U << 24U;
  auto hertz = std::max(static_cast<std::uint32_t>(megahertz - oscillator) * 1000000U, FirstWithByte);
  Set(transponder, TransponderField::Frequency, hertz);
  while (FrequencyMHz(transponder) < megahertz) Set(transponder, TransponderField::Frequency, ++hertz);
  return hertz;
}

Outcome SetFrequency(TransponderRecord& transponder, std::string_view text) {
  constexpr int FirstOfHighBand = 11700;
  const auto megahertz = WholeNumber(text);
  const int typed = megahertz ? static_cast<int>(std::min<std::uint32_t>(*megahertz, LargestNumber)) : 0;
  TransponderRecord changed = transponder;
  // A new transponder takes the band that its frequency lies in; that of a known one is a field of its own.
  if (IsFree(transponder)) Set(changed, TransponderField::HighBand, typed >= FirstOfHighBand ? 1 : 0);
  const auto hertz = HertzShownAs(changed, typed);
  if (!hertz) {
    const int oscillator = LocalOscillator(changed);
    return Error{"Serve una frequenza in MHz da " + std::to_string(oscillator + LowestShown) + " a " +
                 std::to_string(oscillator + HighestShown)};
  }
  if (!IsFree(transponder) && FrequencyMHz(transponder) == typed) return Done{};
  Set(changed, TransponderField::Frequency, *hertz);
  transponder = changed;
  return Done{};
}

Outcome SetSymbolRate(const State& state, TransponderRecord& transponder, std::string_view text) {
  const auto same = [&](std::size_t code) {
    return !text.empty() && SymbolRateText(state.SymbolRateTable, code) == text;
  };
  if (same(Get(transponder, TransponderField::SymbolRate))) return Done{};
  for (std::size_t code = 0; code < SymbolRateCodes; ++code) {
    if (!same(code)) continue;
    Set(transponder, TransponderField::SymbolRate, static_cast<std::uint32_t>(code));
    return Done{};
  }
  return Error{"Il ricevitore non ha questo symbol rate (SR.INI)"};
}

Outcome SetFec(TransponderRecord& transponder, std::string_view text) {
  // Every code above 4 is "Auto".
  if (FecText(transponder) == text) return Done{};
  return SetChoice(transponder, TransponderField::Fec, text,
                   std::array<std::string_view, 6>{"1/2", "2/3", "3/4", "5/6", "7/8", "Auto"});
}

// "SAT B" or "SAT B Astra".
Outcome SetSatellite(TransponderRecord& transponder, std::string_view text) {
  const std::string upper = Base::UpperCase(text);
  const bool label =
      upper.starts_with("SAT ") && (upper.size() == 5 || (upper.size() > 5 && upper[5] == ' '));
  if (!label || upper[4] < 'A' || upper[4] > 'Z') return Error{"Serve un satellite da SAT A a SAT Z"};
  Set(transponder, TransponderField::Satellite, static_cast<std::uint32_t>(upper[4] - 'A'));
  return Done{};
}

Outcome SetTransponderField(const State& state, TransponderRecord& transponder, int column,
                            std::string_view text) {
  switch (column) {
    case TransponderColumn::Frequency:
      return SetFrequency(transponder, text);
    case TransponderColumn::Tid:
      return SetNumber(transponder, TransponderField::Tid, text);
    case TransponderColumn::Nid:
      return SetNumber(transponder, TransponderField::Nid, text);
    case TransponderColumn::SymbolRate:
      return SetSymbolRate(state, transponder, text);
    case TransponderColumn::Fec:
      return SetFec(transponder, text);
    case TransponderColumn::Polarisation:
      return SetChoice(transponder, TransponderField::Horizontal, text,
                       std::array<std::string_view, 2>{"V", "H"});
    case TransponderColumn::Tone:
      return SetChoice(transponder, TransponderField::HighBand, text,
                       std::array<std::string_view, 2>{"Off", "On"});
    case TransponderColumn::Satellite:
      return SetSatellite(transponder, text);
    case TransponderColumn::Channels:
      return Error{"Il numero di canali segue la lista: c'è il ricalcolo nella barra degli strumenti"};
    default:
      return Error{"Questa colonna non si modifica"};
  }
}

// What an empty slot becomes when a field of it is edited: active, and free to view as far as the receiver can tell.
ChannelRecord NewChannel(int slot) {
  constexpr std::uint32_t AutoCoding = 0x04;
  ChannelRecord channel;
  WriteName(channel, "Canale " + Base::ZeroPadded(slot, 4));
  Set(channel, ChannelField::Flags, AutoCoding);
  return channel;
}

void CountAgain(State& state, const ChannelRecord& before, const ChannelRecord& after) {
  const auto number = [](const ChannelRecord& channel) {
    return channel.Empty() ? 0 : Get(channel, ChannelField::Transponder);
  };
  if (number(before) == number(after)) return;
  AddToChannelCount(state, number(before), -1);
  AddToChannelCount(state, number(after), 1);
}

}  // namespace

Outcome SetCell(const State& state, ChannelRecord& channel, int column, std::string_view typed) {
  using namespace ChannelField;
  switch (column) {
    case ChannelColumn::Name:
      return SetName(channel, typed);
    case ChannelColumn::Transponder:
      return SetTransponder(state, channel, Base::Trimmed(typed));
    case ChannelColumn::Sid:
      return SetNumber(channel, Sid, Base::Trimmed(typed));
    case ChannelColumn::Vpid:
      return SetNumber(channel, Vpid, Base::Trimmed(typed));
    case ChannelColumn::Apid:
      return SetNumber(channel, Apid, Base::Trimmed(typed));
    case ChannelColumn::Aecm:
      return SetNumber(channel, Aecm, Base::Trimmed(typed));
    case ChannelColumn::Vecm:
      return SetNumber(channel, Vecm, Base::Trimmed(typed));
    case ChannelColumn::Pcr:
      return SetNumber(channel, Pcr, Base::Trimmed(typed));
    case ChannelColumn::Flags:
      return SetFlags(channel, Base::Trimmed(typed));
    case ChannelColumn::Active:
      return SetChoice(channel, Active, Base::Trimmed(typed), std::array<std::string_view, 2>{"N", "S"});
    default:
      return Error{"Il numero è il posto del canale: si cambia spostandolo"};
  }
}

void StoreChannel(State& state, int slot, const ChannelRecord& channel) {
  ChannelRecord& stored = state.Channel(slot);
  CountAgain(state, stored, channel);
  stored = channel;
}

Outcome EditChannel(State& state, int slot, int column, std::string_view typed) {
  if (slot < 1 || slot > state.ChannelCount) return Error{"Il canale non c'è più"};
  ChannelRecord channel = state.Channel(slot);
  if (channel.Empty()) channel = NewChannel(slot);
  if (Outcome done = SetCell(state, channel, column, typed); !done) return done;
  StoreChannel(state, slot, channel);
  return Done{};
}

Base::Result<int> EditChannels(State& state, const Slots& slots, int column, std::string_view typed) {
  int changed = 0;
  for (const int slot : slots) {
    if (slot > state.ChannelCount || state.Channel(slot).Empty()) continue;
    // What is wrong for one channel is wrong for the first.
    if (Outcome done = EditChannel(state, slot, column, typed); !done) return done.error();
    ++changed;
  }
  return changed;
}

Outcome EditTransponder(State& state, int slot, int column, std::string_view typed,
                        const BouquetTables& bouquets) {
  if (slot < 1 || slot > state.TransponderCount) return Error{"Il transponder non c'è più"};
  TransponderRow& row = state.Transponder(slot);
  if (IsFree(row.record) && column != TransponderColumn::Frequency)
    return Error{"Il transponder è libero: inserire prima la frequenza"};
  const TransponderRecord before = row.record;
  if (Outcome done = SetTransponderField(state, row.record, column, Base::Trimmed(typed)); !done) return done;
  // The bouquet goes by frequency and satellite.
  const bool moved = FrequencyMHz(before) != FrequencyMHz(row.record) ||
                     Get(before, TransponderField::Satellite) != Get(row.record, TransponderField::Satellite);
  if (moved) NameBouquet(row, bouquets);
  return Done{};
}

std::vector<std::string> TransponderChoices(const State& state) {
  std::vector<std::string> choices;
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    const TransponderRow& row = state.Transponder(slot);
    if (IsFree(row.record)) continue;
    choices.push_back(Base::ZeroPadded(slot, 3) + " " + std::to_string(FrequencyMHz(row.record)) + " " +
                      TransponderCell(state, slot, TransponderColumn::Polarisation) + " " +
                      SatelliteLabel(row.record) + " " + Base::ToUtf8(Base::TrimmedRight(row.BouquetName())));
  }
  return choices;
}

std::vector<std::string> SymbolRateChoices(const State& state) {
  std::vector<std::string> choices;
  for (std::size_t code = 0; code < SymbolRateCodes; ++code) {
    const std::string rate(SymbolRateText(state.SymbolRateTable, code));
    const bool number = rate.find_first_of("0123456789") != std::string::npos;
    if (number && std::find(choices.begin(), choices.end(), rate) == choices.end()) choices.push_back(rate);
  }
  return choices;
}

}  // namespace Edit
