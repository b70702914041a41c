// What changes an image: write, apply, order, sort, rename.
#include "base/code_page.h"
#include "base/text.h"
#include "cli/list_file.h"
#include "cli/list_text.h"
#include "cli/output_file.h"
#include "edit/list_operations.h"
#include "edit/rename.h"
#include "edit/sort_channels.h"
#include "edit/take_over.h"
#include "formats/list_format.h"
#include "model/flash_loader.h"
#include "review/order_match.h"

#include <algorithm>

namespace Cli {

using Review::Mark;
using Routines::State;

namespace {

struct Opened {
  Base::Bytes image;
  std::unique_ptr<State> state;
};

// What becomes of the image's own list.
enum class Its { Changed, Replaced };

// Of an image whose list is changed, channels that were not read are gone from what is written. False where it is that
// image itself, which is noted.
bool MayLack(Work& work, const Routines::LoadReport& report, int transponders) {
  const Options& options = work.options;
  if (IsPart(report) && options.inPlace && !options.force)
    return work.console.Fail(
        Exit::NotWritten, options.second,
        "i canali non letti andrebbero persi: serve una --capacity più grande, o --force");
  TellPart(work, options.second, report, transponders);
  return true;
}

// The image that is to be written; nothing where it cannot be, which is noted.
std::optional<Opened> Open(Work& work, Its list = Its::Changed) {
  if (!KnowsOutput(work, work.options.second)) return std::nullopt;
  auto image = ReadImage(work, work.options.second);
  if (!image) return std::nullopt;
  Routines::LoadReport report;
  auto state = Loaded(work, work.options.second, *image, &report);
  if (list == Its::Changed && !MayLack(work, report, state->TransponderCount)) return std::nullopt;
  return Opened{std::move(*image), std::move(state)};
}

void Finish(Work& work, const Opened& opened, const Made& made) {
  WriteImage(work, *opened.state, work.options.second, opened.image, made);
}

std::string Losses(const State& before, const std::vector<Edit::LostFavourite>& lost) {
  const std::string text = Edit::LostFavouritesText(before.FavouritesBlock, lost);
  return text.empty() ? "" : ", " + text;
}

Review::MarkSet MarksOf(const std::vector<std::string>& words) {
  constexpr std::pair<std::string_view, Mark> Words[] = {
      {"new", Mark::OnlyThere},     {"deleted", Mark::OnlyHere},     {"moved", Mark::Moved},
      {"renamed", Mark::Renamed},   {"retuned", Mark::Retuned},      {"pids", Mark::Pids},
      {"modified", Mark::Modified}, {"favourites", Mark::Favourites}};
  Review::MarkSet marks;
  for (const auto& [word, mark] : Words)
    if (std::find(words.begin(), words.end(), word) != words.end()) marks.set(static_cast<std::size_t>(mark));
  return marks;
}

// The differences that have one of the marks, with no others.
std::vector<Review::Difference> Chosen(const Review::Comparison& found, const Review::MarkSet& marks) {
  std::vector<Review::Difference> chosen;
  for (Review::Difference difference : found.differences) {
    difference.marks &= marks;
    if (difference.marks.any()) chosen.push_back(difference);
  }
  return chosen;
}

Edit::SortOrder SortOrderOf(const Options& options) {
  using Edit::SortKey;
  constexpr std::pair<std::string_view, SortKey> Words[] = {{"name", SortKey::Name},
                                                            {"kind", SortKey::Kind},
                                                            {"satellite", SortKey::Satellite},
                                                            {"bouquet", SortKey::Bouquet},
                                                            {"frequency", SortKey::Frequency},
                                                            {"sid", SortKey::Sid},
                                                            {"coding", SortKey::Coding},
                                                            {"hd", SortKey::HdFirst},
                                                            {"favourites", SortKey::FavouritesFirst},
                                                            {"active", SortKey::ActiveFirst}};
  Edit::SortOrder order{{}, options.multiple};
  for (const std::string& key : options.keys)
    for (const auto& [word, meant] : Words)
      if (word == key) order.keys.push_back(meant);
  return order;
}

std::optional<std::vector<Edit::RenameRule>> RulesOf(Work& work) {
  std::vector<Edit::RenameRule> rules;
  for (const std::string& text : work.options.rules) {
    auto rule = Edit::RenameRuleOf(text);
    if (!rule) {
      work.console.Fail(Exit::Usage, "--rule " + text + ": " + rule.error().message);
      return std::nullopt;
    }
    rules.push_back(std::move(*rule));
  }
  return rules;
}

// The order in a file of any kind; nothing where it has none, which is told.
std::optional<Routines::Order> OrderIn(Work& work) {
  const auto file = ReadList(work, work.options.first);
  if (!file) return std::nullopt;
  if (file->kind != FileKind::Flash && file->kind != FileKind::Rows) {
    const auto state = StateOf(work, *file);
    return state ? std::optional(Routines::OrderOf(*state)) : std::nullopt;
  }
  Routines::Order order = Formats::OrderInFile(file->bytes);
  if (!order.entries.empty()) return order;
  work.console.Fail(Exit::Unreadable, work.options.first, "non è un elenco di canali");
  return std::nullopt;
}

// Those of an order that no channel of the list is, by their names.
void NoteMissing(Work& work, const Review::OrderMatch& match) {
  for (const Review::Difference& difference : match.found.differences) {
    if (!difference.Has(Mark::OnlyThere)) continue;
    const auto& record = match.list.At(difference.there).record;
    work.console.Note(work.options.first, "non trovato: " + Base::ToUtf8(Base::TrimmedRight(record.Name())));
  }
}

}  // namespace

void Write(Work& work) {
  const auto opened = Open(work, Its::Replaced);
  const auto file = opened ? ReadList(work, work.options.first) : std::nullopt;
  const auto state = file ? StateOf(work, *file, opened->state.get()) : nullptr;
  if (!state) return;
  WriteImage(work, *state, work.options.second, opened->image, {});
}

void Apply(Work& work) {
  const auto opened = Open(work);
  const auto file = opened ? ReadList(work, work.options.first) : std::nullopt;
  const auto other = file ? OtherOf(work, *file, *opened->state) : std::nullopt;
  if (!other) return;
  State& state = *opened->state;
  const State before = state;
  const Review::Comparison found = Review::Compare(state, *other);
  const auto chosen = Chosen(found, MarksOf(work.options.only));
  const auto place = work.options.place == "holes"     ? Edit::NewPlace::Holes
                     : work.options.place == "bouquet" ? Edit::NewPlace::Bouquet
                                                       : Edit::NewPlace::Behind;
  const auto report = Edit::TakeOver(state, *other, found, chosen, work.bouquets, place);
  const std::string told = Edit::TextOf(report, place);
  Finish(work, *opened,
         {{(chosen.size() == 1 ? "Applicata " : "Applicate ") +
           Base::Counted(chosen.size(), "differenza", "differenze") + (told.empty() ? "" : ": " + told) +
           Losses(before, report.lost)},
          report.noRoom + report.noTransponder == 0});
}

void Order(Work& work) {
  const auto opened = Open(work);
  const auto order = opened ? OrderIn(work) : std::nullopt;
  if (!order) return;
  if (order->unreadable > 0)
    work.console.Note(work.options.first,
                      Base::Counted(order->unreadable, "riga non è un canale", "righe non sono canali"));
  const auto match =
      Review::MatchOrder(*opened->state, *order,
                         work.options.listed ? Review::Numbering::AsListed : Review::Numbering::Together);
  NoteMissing(work, match);
  const int moved = Edit::TakeOrder(*opened->state, match.list, match.found);
  Finish(work, *opened,
         {{"Ordinati i canali come l'elenco: " +
           Base::Counted(moved, "canale con un altro numero", "canali con un altro numero")}});
}

void Sort(Work& work) {
  constexpr std::size_t MostKeys = 3;
  if (work.options.keys.size() > MostKeys) {
    work.console.Fail(Exit::Usage, "--by: al più tre chiavi");
    return;
  }
  const auto opened = Open(work);
  if (!opened) return;
  State& state = *opened->state;
  const State before = state;
  const auto plan =
      Edit::PlanSort(state, Edit::SlotRun(work.options.from, state.ChannelCount), SortOrderOf(work.options));
  if (plan.without > 0) {
    work.console.Fail(Exit::NotWritten, work.options.second, Edit::TextOf(plan));
    return;
  }
  const auto lost = Edit::SortChannels(state, plan);
  Finish(work, *opened, {{Edit::TextOf(plan) + Losses(before, lost)}});
}

void Rename(Work& work) {
  const auto rules = RulesOf(work);
  const auto opened = rules ? Open(work) : std::nullopt;
  const auto slots = opened ? FilteredSlots(work, *opened->state) : std::nullopt;
  if (!slots) return;
  const auto names = Edit::NewNames(*opened->state, *slots, *rules, {});
  if (!names) {
    work.console.Fail(Exit::Usage, names.error().message);
    return;
  }
  Made made;
  for (const Edit::NewName& name : *names) {
    const std::string line = Base::ZeroPadded(name.slot, 4) + " " + name.before + " → " + name.after;
    if (name.fault.empty()) {
      made.done.push_back(line);
    } else {
      made.whole = false;
      work.console.Note(work.options.second, line + ": " + name.fault);
    }
  }
  const int renamed = Edit::RenameChannels(*opened->state, *names);
  made.done.push_back((renamed == 1 ? "Cambiato " : "Cambiati ") + Base::Counted(renamed, "nome", "nomi"));
  Finish(work, *opened, made);
}

}  // namespace Cli
