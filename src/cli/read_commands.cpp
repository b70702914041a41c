// What an image holds: info, list, check.
#include "base/code_page.h"
#include "base/file.h"
#include "base/text.h"
#include "cli/json.h"
#include "cli/list_file.h"
#include "cli/list_text.h"
#include "edit/list_operations.h"
#include "review/filter.h"
#include "review/overview.h"
#include "review/whereabouts.h"

#include <algorithm>

namespace Cli {

using Review::OverviewLine;
using Routines::State;

namespace {

// UTF-8 filled up with blanks to as many characters.
std::string Padded(std::string text, std::size_t width) {
  const auto characters = static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; }));
  if (characters < width) text.append(width - characters, ' ');
  return text;
}

Json JsonOf(const OverviewLine& line) {
  Json json = {{"text", line.text}, {"count", line.slots.size()}, {"of", line.of}};
  json["what"] = line.transponders                                 ? "transponders"
                 : line.section == Review::OverviewSection::Places ? "places"
                                                                   : "channels";
  return json;
}

void PrintOverview(Work& work, const std::vector<OverviewLine>& lines, const std::string& loaded) {
  constexpr std::size_t Width = 44;
  std::string& out = work.console.out;
  out += ShownName(work.options.first) + ": " + loaded + "\n";
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i == 0 || lines[i].section != lines[i - 1].section)
      out.append(Review::TitleOf(lines[i].section)).append("\n");
    const std::string count = std::to_string(lines[i].slots.size());
    out += "  " + Padded(lines[i].text, Width) +
           std::string(6 - std::min<std::size_t>(6, count.size()), ' ') + count + "\n";
  }
}

// The rows that a finding is about, each with where it stands.
std::string RowText(const State& state, const OverviewLine& line, int slot) {
  return line.transponders ? Base::ZeroPadded(slot, 3) + " " + Review::TransponderText(state, slot)
                           : Review::Whereabouts(state, slot, {});
}

// What there is to check, without lines that count nothing.
std::vector<OverviewLine> FindingsOf(const Work& work, const State& state) {
  auto lines = Review::Overview(state, work.bouquets.satellites);
  std::erase_if(lines, [](const OverviewLine& line) {
    return line.section != Review::OverviewSection::Checks || line.slots.empty();
  });
  return lines;
}

}  // namespace

void Info(Work& work) {
  const auto image = ReadImage(work, work.options.first);
  if (!image) return;
  Routines::LoadReport report;
  const auto state = Loaded(work, work.options.first, *image, &report);
  if (IsPart(report)) work.console.exit = Exit::Found;
  const auto lines = Review::Overview(*state, work.bouquets.satellites);
  if (!work.options.json)
    return PrintOverview(work, lines, Routines::TextOf(report, state->TransponderCount, false));
  Json json = {{"file", work.options.first},
               {"channelsInImage", report.channelsInImage},
               {"channels", Routines::UsedChannels(*state)},
               {"lastChannel", Routines::LastOccupied(*state)},
               {"places", state->ChannelCount},
               {"transponders", Routines::UsedTransponders(*state)}};
  for (const OverviewLine& line : lines)
    json["overview"][std::string(Review::TitleOf(line.section))].push_back(JsonOf(line));
  Print(work.console, json);
}

void Check(Work& work) {
  const auto image = ReadImage(work, work.options.first);
  if (!image) return;
  const auto state = Loaded(work, work.options.first, *image);
  const auto findings = FindingsOf(work, *state);
  if (!findings.empty()) work.console.exit = Exit::Found;
  Json json = {{"file", work.options.first}, {"findings", Json::array()}};
  const std::string name = ShownName(work.options.first);
  std::string text = findings.empty() ? name + ": niente da controllare\n" : "";
  for (const OverviewLine& line : findings) {
    json["findings"].push_back(JsonOf(line));
    text += name + ": " + line.text + ": " + Review::CountedRows(line) + "\n";
    for (const int slot : line.slots) {
      json["findings"].back()["rows"].push_back(RowText(*state, line, slot));
      text += "  " + RowText(*state, line, slot) + "\n";
    }
  }
  if (work.options.json) return Print(work.console, json);
  work.console.out = std::move(text);
}

void List(Work& work) {
  const Options& options = work.options;
  if (options.json && options.form != ListForm::Lines) {
    work.console.Fail(Exit::Usage, "--json non va con --csv, --text e --vdr");
    return;
  }
  const auto image = ReadImage(work, options.first);
  if (!image) return;
  const auto state = Loaded(work, options.first, *image);
  const auto slots = FilteredSlots(work, *state);
  if (!slots) return;
  if (options.json) return Print(work.console, ChannelsJson(*state, *slots));
  const auto text = ListText(work, *state, *slots, options.form);
  if (text) work.console.out = *text;
}

}  // namespace Cli
