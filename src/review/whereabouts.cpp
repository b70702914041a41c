#include "review/whereabouts.h"

#include "base/code_page.h"
#include "base/text.h"
#include "model/cells.h"
#include "model/favourites.h"

#include <algorithm>

namespace Review {
namespace {

using Routines::State;

std::string Cell(const State& state, int slot, int column) {
  return Base::ToUtf8(Base::Trimmed(Routines::TransponderCell(state, slot, column)));
}

std::string FavouritesText(const State& state, int slot) {
  std::string names;
  for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
    const std::vector<int> entries = Routines::FavouriteEntriesOf(state.FavouritesBlock, list);
    if (std::find(entries.begin(), entries.end(), slot) == entries.end()) continue;
    names += (names.empty() ? "; preferiti " : ", ") + Routines::FavouritesTitle(state.FavouritesBlock, list);
  }
  return names;
}

std::string DoublesText(int slot, const std::vector<std::vector<int>>& doubles) {
  std::string others;
  for (const std::vector<int>& group : doubles) {
    if (!std::binary_search(group.begin(), group.end(), slot)) continue;
    for (const int other : group) {
      if (other != slot) others += (others.empty() ? "" : ", ") + std::to_string(other);
    }
  }
  if (others.empty()) return {};
  return (others.find(',') == std::string::npos ? "; doppio " : "; doppi ") + others;
}

}  // namespace

std::string TransponderText(const State& state, int slot) {
  using namespace Routines::TransponderColumn;
  if (slot < 1 || slot > state.TransponderCount || IsFree(state.Transponder(slot).record))
    return "transponder " + std::to_string(slot) + " mancante";
  const std::string bouquet = Cell(state, slot, Bouquet);
  return Cell(state, slot, Frequency) + " " + Cell(state, slot, Polarisation) + " " +
         Cell(state, slot, Satellite) + ", SR " + Cell(state, slot, SymbolRate) + ", FEC " +
         Cell(state, slot, Fec) + (bouquet.empty() || bouquet == "Nessuno" ? "" : ", bouquet " + bouquet);
}

std::string Whereabouts(const State& state, int slot, const std::vector<std::vector<int>>& doubles) {
  const Routines::ChannelRecord& channel = state.Channel(slot);
  const std::string number = Base::ZeroPadded(slot, 4);
  if (channel.Empty()) return number + " posto vuoto";
  const int transponder = static_cast<int>(Get(channel, Routines::ChannelField::Transponder));
  return number + " " + Base::ToUtf8(Base::TrimmedRight(channel.Name())) + ": " +
         TransponderText(state, transponder) + FavouritesText(state, slot) + DoublesText(slot, doubles);
}

}  // namespace Review
