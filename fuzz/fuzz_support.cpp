#include "fuzz_support.h"

#include "base/text.h"
#include "demo_flash.h"
#include "formats/sdx_import.h"
#include "model/cells.h"
#include "model/favourites.h"
#include "model/flash_loader.h"
#include "model/symbol_rates.h"
#include "support/bouquets_txt.h"

#include <cstdio>
#include <cstdlib>

namespace Fuzz {

using namespace Routines;

namespace {

constexpr int MostImported = 40;

}  // namespace

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

std::size_t Input::Byte() {
  if (rest_.empty()) return 0;
  const std::size_t value = rest_.front();
  rest_ = rest_.subspan(1);
  return value;
}

std::size_t Input::Word() {
  const std::size_t low = Byte();
  return low | Byte() << 8U;
}

Base::ByteView Input::Run(std::size_t most) {
  const Base::ByteView run = rest_.first(std::min(most, rest_.size()));
  rest_ = rest_.subspan(run.size());
  return run;
}

std::string_view Input::Text() { return Base::AsText(Run(rest_.size())); }

const std::string& SymbolRates() {
  static const std::string table = [] {
    std::string rates = EmptySymbolRateTable();
    for (std::size_t code = 0; code < SymbolRateCodes; ++code)
      SetSymbolRate(rates, code, std::to_string(19000 + code * 700));
    PlaceUsualRates(rates, Sr22000::Come2);
    return rates;
  }();
  return table;
}

const BouquetTables& Bouquets() {
  static const BouquetTables tables = Support::BouquetsOf(
                                          "Uno,13,SAT=A\r\nCinema,11013,01\r\nSport,12500,02\r\n"
                                          "Due,19,SAT=B\r\nMusica,11500,3\r\n")
                                          .tables;
  return tables;
}

std::unique_ptr<State> EmptyList() {
  auto state = std::make_unique<State>();
  state->SymbolRateTable = SymbolRates();
  return state;
}

std::unique_ptr<State> DemoList() {
  auto state = EmptyList();
  LoadFlash(*state, Samples::DemoFlash(SymbolRates()), LastChannelSlot, 0, Bouquets());
  return state;
}

bool SameFavourites(const State& one, const State& other) {
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    const auto nameOf = [list](const State& state) { return FavouriteNameOf(state.FavouritesBlock, list); };
    if (FavouriteEntriesOf(one.FavouritesBlock, list) != FavouriteEntriesOf(other.FavouritesBlock, list) ||
        Base::TrimmedRight(nameOf(one)) != Base::TrimmedRight(nameOf(other)))
      return false;
  }
  return true;
}

void CheckList(const State& state) {
  Require(state.ChannelCount >= 0 && state.ChannelCount <= LastChannelSlot, "channel count within its table");
  Require(state.MaxChannels >= 0 && state.MaxChannels <= LastChannelSlot, "usable channels within the table");
  Require(state.TransponderCount >= 0 && state.TransponderCount <= LastTransponderSlot,
          "transponder count within its table");
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    Require(FavouriteEntriesOf(state.FavouritesBlock, list).size() <= FavouriteEntries, "entries of a list");
    Require(FavouriteNameOf(state.FavouritesBlock, list).size() <= FavouriteNameSize, "a list's name");
  }
  for (int slot = 1; slot <= 8; ++slot) {
    for (int column = 0; column < 11; ++column) {
      Require(ChannelCell(state, slot, column).size() <= ChannelRecord::NameSize, "a channel's cell");
      Require(TransponderCell(state, slot, column).size() <= TransponderRow::BouquetNameSize,
              "a transponder's cell");
    }
  }
}

void CheckRows(const Formats::SdxTable& table) {
  Require(table.rows.size() <= Formats::MostSdxRows, "no more rows than the table has");
  for (const Formats::SdxRow& row : table.rows) {
    Require(std::string_view(row.tid).size() == 5, "a transport stream has five digits");
    Require(row.type == 'T' || row.type == 'R' || row.type == 'S', "a row's type");
    Require(row.satellite >= 0 && row.satellite <= 31 && row.codifica >= 0 && row.codifica <= 255,
            "a row's numbers fit their fields");
  }
}

void CheckRowImport(const Formats::SdxTable& table, int transponders) {
  const auto state = EmptyList();
  state->MaxChannels = state->ChannelCount = 999;
  state->TransponderCount = transponders;
  Formats::SdxImport import(*state, Bouquets());
  int slot = 0;
  for (const Formats::SdxRow& row : table.rows) {
    if (++slot > MostImported) break;
    import.Put(row, slot, slot);
    const ChannelRecord& channel = state->Channel(slot);
    Require(Get(channel, ChannelField::Transponder) <= static_cast<std::uint32_t>(transponders),
            "a channel goes to a transponder of the list");
  }
  CheckList(*state);
  Require(state->TransponderCount == transponders, "an import adds no transponder slots");
}

}  // namespace Fuzz
