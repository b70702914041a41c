#include "edit/recovery.h"

#include "base/checksum.h"
#include "model/favourites.h"
#include "model/flash_image.h"
#include "model/symbol_rates.h"

#include <algorithm>
#include <type_traits>

namespace Edit {
namespace {

using Routines::Settings;
using Routines::TransponderRow;

constexpr std::string_view Magic = "TROVALIS RECUPERO 1\r\n";
constexpr std::size_t NumberSize = 4;
constexpr int MostCuts = 1 << 30;  // leaves room to count on
constexpr std::size_t HeaderSize = Magic.size() + 2 * NumberSize;

void AppendNumber(Base::Bytes& bytes, std::uint32_t value) {
  for (const unsigned shift : {24U, 16U, 8U, 0U}) bytes.push_back(static_cast<Base::Byte>(value >> shift));
}

// Needs four bytes at `offset`.
std::uint32_t NumberAt(Base::ByteView bytes, std::size_t offset) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < NumberSize; ++i) value = value << 8U | bytes[offset + i];
  return value;
}

class Writer {
 public:
  explicit Writer(Base::Bytes& bytes) : bytes_(bytes) {}

  template <class Number>
  void Value(Number value) {
    AppendNumber(bytes_, static_cast<std::uint32_t>(value));
  }
  void Option(const std::optional<std::size_t>& option) { Value(option ? *option + 1 : 0); }
  // Characters or bytes of a number that the file need not say.
  template <class Block>
  void Fixed(const Block& block) {
    bytes_.insert(bytes_.end(), block.begin(), block.end());
  }
  template <class Block>
  void Counted(const Block& block) {
    Value(block.size());
    Fixed(block);
  }
  template <class Item>
  void Items(const std::vector<Item>& items) {
    Value(items.size());
    for (const Item& item : items) Walk(*this, item);
  }

 private:
  Base::Bytes& bytes_;
};

// Reads nothing past the end; from there on every value is 0 and Good() is false.
class Reader {
 public:
  explicit Reader(Base::ByteView bytes) : rest_(bytes) {}

  [[nodiscard]] bool Good() const { return good_; }
  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

  template <class Number>
  void Value(Number& value) {
    const Base::ByteView bytes = Take(NumberSize);
    value = bytes.empty() ? Number{} : static_cast<Number>(NumberAt(bytes, 0));
  }
  void Option(std::optional<std::size_t>& option) {
    std::size_t value = 0;
    Value(value);
    option = value > 0 ? std::optional(value - 1) : std::nullopt;
  }
  template <class Block>
  void Fixed(Block& block) {
    const Base::ByteView bytes = Take(block.size());
    std::copy(bytes.begin(), bytes.end(), block.begin());
  }
  template <class Block>
  void Counted(Block& block) {
    std::size_t count = 0;
    Value(count);
    const Base::ByteView bytes = Take(count);
    block.assign(bytes.begin(), bytes.end());
  }
  template <class Item>
  void Items(std::vector<Item>& items) {
    std::size_t count = 0;
    Value(count);
    items.clear();
    for (std::size_t i = 0; i < count && good_; ++i) Walk(*this, items.emplace_back());
  }

 private:
  Base::ByteView Take(std::size_t count) {
    good_ = good_ && count <= rest_.size();
    if (!good_) return {};
    const Base::ByteView bytes = rest_.first(count);
    rest_ = rest_.subspan(count);
    return bytes;
  }

  Base::ByteView rest_;
  bool good_ = true;
};

template <class Item, class Kind>
concept Is = std::is_same_v<std::remove_const_t<Item>, Kind>;

// One walk serves both ways. The members are taken apart so that one added to a structure does not compile until it
// has its place here.
template <class Archive, Is<ChannelRecord> Item>
void Walk(Archive& archive, Item& channel) {
  archive.Fixed(channel.bytes);
}

template <class Archive, Is<TransponderRecord> Item>
void Walk(Archive& archive, Item& transponder) {
  archive.Fixed(transponder.bytes);
}

template <class Archive, Is<TransponderRow> Item>
void Walk(Archive& archive, Item& row) {
  auto& [record, name, code] = row;
  Walk(archive, record);
  archive.Fixed(name);
  archive.Fixed(code);
}

template <class Archive, Is<LostFavourite> Item>
void Walk(Archive& archive, Item& entry) {
  auto& [list, place, slot] = entry;
  archive.Value(list);
  archive.Value(place);
  archive.Value(slot);
}

template <class Archive, Is<State> Item>
void Walk(Archive& archive, Item& state) {
  auto& [channels, transponders, favourites, rates, maxChannels, channelCount, transponderCount, loaded,
         fromFls, cutNumber, listNumber, input, output] = state;
  for (auto& channel : channels) Walk(archive, channel);
  for (auto& row : transponders) Walk(archive, row);
  archive.Counted(favourites);
  archive.Counted(rates);
  archive.Value(maxChannels);
  archive.Value(channelCount);
  archive.Value(transponderCount);
  archive.Value(loaded);
  archive.Value(fromFls);
  archive.Value(cutNumber);
  archive.Value(listNumber);
  archive.Counted(input);
  archive.Counted(output);
}

template <class Archive, Is<Clipboard> Item>
void Walk(Archive& archive, Item& clipboard) {
  auto& [channels, transponders, cut, rates, cutNumber, listNumber, wasCut] = clipboard;
  archive.Items(channels);
  archive.Items(transponders);
  archive.Items(cut);
  archive.Counted(rates);
  archive.Value(cutNumber);
  archive.Value(listNumber);
  archive.Value(wasCut);
}

template <class Archive, Is<Settings> Item>
void Walk(Archive& archive, Item& settings) {
  auto& [quantiCanali, flashScrittura, srDef] = settings;
  archive.Option(quantiCanali);
  archive.Option(flashScrittura);
  archive.Option(srDef);
}

void Confine(std::optional<std::size_t>& option, std::size_t count) {
  if (option && *option >= count) option.reset();
}

void Confine(std::string& symbolRates) {
  if (symbolRates.size() != Routines::SymbolRateCodes * Routines::SymbolRateCell)
    symbolRates = Routines::EmptySymbolRateTable();
}

void Confine(Clipboard& clipboard) {
  if (clipboard.Count() > Routines::LastChannelSlot)
    clipboard.channels.resize(static_cast<std::size_t>(Routines::LastChannelSlot));
  clipboard.transponders.resize(clipboard.channels.size());
  std::erase_if(clipboard.cut, [&](const LostFavourite& entry) {
    return entry.list >= Routines::FavouriteLists || entry.place >= Routines::FavouriteEntries ||
           entry.slot < 0 || entry.slot >= clipboard.Count();
  });
  Confine(clipboard.symbolRates);
}

void Confine(Recovery& recovery) {
  State& state = recovery.state;
  state.MaxChannels = std::clamp(state.MaxChannels, 0, Routines::LastChannelSlot);
  state.ChannelCount = std::clamp(state.ChannelCount, 0, Routines::LastChannelSlot);
  state.TransponderCount = std::clamp(state.TransponderCount, 0, Routines::LastTransponderSlot);
  state.CutNumber = std::clamp(state.CutNumber, 0, MostCuts);
  if (state.FavouritesBlock.size() > Routines::SectorSize) state.FavouritesBlock.resize(Routines::SectorSize);
  Confine(state.SymbolRateTable);
  Confine(recovery.clipboard);
  Confine(recovery.settings.quantiCanali, Routines::QuantiCanali.size());
  Confine(recovery.settings.flashScrittura, Routines::FlashScrittura.size());
  Confine(recovery.settings.srDef, Routines::SRDef.size());
}

// The contents of a file that is whole; nothing where it is not.
std::optional<Base::ByteView> ContentsOf(Base::ByteView file) {
  if (file.size() < HeaderSize || Base::AsText(file.first(Magic.size())) != Magic) return std::nullopt;
  const Base::ByteView contents = file.subspan(HeaderSize);
  if (NumberAt(file, Magic.size()) != contents.size()) return std::nullopt;
  if (NumberAt(file, Magic.size() + NumberSize) != Base::Crc32(contents)) return std::nullopt;
  return contents;
}

}  // namespace

Base::Bytes EncodeRecovery(const State& state, const Clipboard& clipboard, const Settings& settings) {
  Base::Bytes contents;
  contents.reserve(sizeof(State) + state.FavouritesBlock.size());
  Writer writer(contents);
  Walk(writer, state);
  Walk(writer, clipboard);
  Walk(writer, settings);

  Base::Bytes file(Magic.begin(), Magic.end());
  file.reserve(HeaderSize + contents.size());
  AppendNumber(file, static_cast<std::uint32_t>(contents.size()));
  AppendNumber(file, Base::Crc32(contents));
  file.insert(file.end(), contents.begin(), contents.end());
  return file;
}

Base::Result<Recovery> DecodeRecovery(Base::ByteView file) {
  const Base::Error damaged{"File di recupero danneggiato"};
  const auto contents = ContentsOf(file);
  if (!contents) return damaged;
  Recovery recovery;
  Reader reader(*contents);
  Walk(reader, recovery.state);
  Walk(reader, recovery.clipboard);
  Walk(reader, recovery.settings);
  if (!reader.Good() || !reader.AtEnd() || !recovery.state.Loaded) return damaged;
  Confine(recovery);
  return recovery;
}

bool HoldsCutChannels(const Clipboard& clipboard, const State& state) {
  if (!clipboard.wasCut) return false;
  const auto inList = [&state](const ChannelRecord& channel) {
    return channel.Empty() || std::find(state.ChannelTable.begin(), state.ChannelTable.end(), channel) !=
                                  state.ChannelTable.end();
  };
  return !std::all_of(clipboard.channels.begin(), clipboard.channels.end(), inList);
}

}  // namespace Edit
