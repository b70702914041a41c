#include "cli/list_text.h"

#include "base/code_page.h"
#include "base/text.h"
#include "cli/row_list.h"
#include "edit/list_operations.h"
#include "formats/csv_format.h"
#include "formats/list_fields.h"
#include "formats/text_format.h"
#include "formats/vdr_writer.h"
#include "model/cells.h"
#include "review/filter.h"
#include "review/whereabouts.h"

namespace Cli {

using Routines::State;

namespace {

// The list with no other channels, each in its place.
std::unique_ptr<State> Only(const State& state, const std::vector<int>& slots) {
  auto part = std::make_unique<State>(state);
  Edit::SlotMap map{};
  for (const int slot : slots) map[slot] = slot;
  Edit::Rearrange(*part, map);
  return part;
}

// The sources of the satellites, by letter; nothing where the channels are on one that is not asked for.
std::optional<std::string> VdrText(Work& work, const State& state, const std::vector<int>& slots) {
  const auto asked = SatellitesAsked(work);
  if (!asked) return std::nullopt;
  std::map<int, std::string> sources;
  for (const auto& [position, letter] : asked->positions)
    sources[letter] = "S" + Formats::PositionText(position);
  const Formats::VdrText text = Formats::WriteVdrChannels(state, slots, sources);
  if (!text.unknown.empty()) {
    std::string wanted;
    for (const int satellite : text.unknown)
      wanted += std::string(" --sat ") + static_cast<char>('A' + satellite) + "=POSIZIONE";
    work.console.Fail(Exit::Usage, "per channels.conf serve la posizione di ogni satellite:" + wanted);
    return std::nullopt;
  }
  if (text.leftOut > 0)
    work.console.Note(Base::Counted(text.leftOut, "canale lasciato fuori", "canali lasciati fuori") +
                      ": senza transponder o SR");
  return text.text;
}

Json ChannelJson(const State& state, int slot) {
  using namespace Routines;
  const ChannelRecord& channel = state.Channel(slot);
  Json json = {{"number", slot},
               {"name", Base::ToUtf8(Base::TrimmedRight(channel.Name()))},
               {"active", Get(channel, ChannelField::Active) != 0},
               {"coding", Base::HexByte(static_cast<int>(Get(channel, ChannelField::Flags)))},
               {"sid", Get(channel, ChannelField::Sid)},
               {"vpid", Get(channel, ChannelField::Vpid)},
               {"apid", Get(channel, ChannelField::Apid)},
               {"pcr", Get(channel, ChannelField::Pcr)}};
  json["kind"] = RowKindText(RowKindOf(channel));
  const std::uint32_t number = Get(channel, ChannelField::Transponder);
  const TransponderRow* row = TransponderInUse(state, number);
  if (row == nullptr) return json;
  const auto cell = [&](int column) {
    return Base::ToUtf8(Base::Trimmed(TransponderCell(state, static_cast<int>(number), column)));
  };
  json["transponder"] = {{"number", number},
                         {"megahertz", FrequencyMHz(row->record)},
                         {"polarisation", cell(TransponderColumn::Polarisation)},
                         {"symbolRate", cell(TransponderColumn::SymbolRate)},
                         {"fec", cell(TransponderColumn::Fec)},
                         {"satellite", cell(TransponderColumn::Satellite)},
                         {"tid", Get(row->record, TransponderField::Tid)},
                         {"nid", Get(row->record, TransponderField::Nid)},
                         {"bouquet", cell(TransponderColumn::Bouquet)}};
  return json;
}

}  // namespace

std::optional<std::vector<int>> FilteredSlots(Work& work, const State& state) {
  const Review::Filter filter(work.options.filter);
  if (!filter.Unfinished().empty()) {
    work.console.Fail(Exit::Usage, "--filter: " + filter.Unfinished().front());
    return std::nullopt;
  }
  if (!filter.Empty()) return Review::MatchingSlots(state, filter);
  std::vector<int> used;
  for (int slot = 1; slot <= state.ChannelCount; ++slot)
    if (!state.Channel(slot).Empty()) used.push_back(slot);
  return used;
}

std::optional<std::string> ListText(Work& work, const State& state, const std::vector<int>& slots,
                                    ListForm form) {
  std::string text;
  switch (form) {
    case ListForm::Csv:
      return Formats::WriteChannelsCsv(state, slots);
    case ListForm::Text: {
      const auto part = Only(state, slots);
      if (const auto lost = Formats::CodingsLostAsText(*part).Text(); !lost.empty()) work.console.Note(lost);
      return Formats::WriteText(*part);
    }
    case ListForm::Vdr:
      return VdrText(work, state, slots);
    case ListForm::Lines:
      for (const int slot : slots) text += Review::Whereabouts(state, slot, {}) + "\n";
  }
  return text;
}

Json ChannelsJson(const State& state, const std::vector<int>& slots) {
  Json channels = Json::array();
  for (const int slot : slots) channels.push_back(ChannelJson(state, slot));
  return channels;
}

}  // namespace Cli
