// What is different between two lists: diff.
#include "base/code_page.h"
#include "base/text.h"
#include "cli/json.h"
#include "cli/list_file.h"
#include "formats/sdx_other.h"
#include "model/favourites.h"
#include "review/compare.h"

#include <algorithm>

namespace Cli {

using Review::Difference;
using Review::Mark;
using Routines::State;

namespace {

std::string_view KindText(Mark mark) {
  if (mark == Mark::OnlyHere) return "Solo nella prima";
  if (mark == Mark::OnlyThere) return "Solo nella seconda";
  return Review::TextOf(mark);
}

std::vector<std::string> KindsOf(const Difference& difference) {
  std::vector<std::string> kinds;
  for (std::size_t i = 0; i < Review::Marks; ++i)
    if (difference.marks[i]) kinds.emplace_back(KindText(static_cast<Mark>(i)));
  return kinds;
}

std::string NameOf(const Routines::ChannelRecord& channel) {
  return Base::ToUtf8(Base::TrimmedRight(channel.Name()));
}

// What the two lists have in the places that a difference is about.
struct Pair {
  std::string here;
  std::string there;
};

Pair PairOf(const State& here, const Review::OtherList& there, const Difference& difference) {
  if (difference.Has(Mark::Favourites))
    return {Routines::FavouritesTitle(here.FavouritesBlock, difference.favourites),
            Routines::FavouritesTitle(there.favourites, difference.favourites)};
  Pair pair;
  if (difference.here != 0)
    pair.here = Base::ZeroPadded(difference.here, 4) + " " + NameOf(here.Channel(difference.here));
  if (difference.there != 0)
    pair.there = Base::ZeroPadded(difference.there, 4) + " " + NameOf(there.At(difference.there).record);
  return pair;
}

std::string LineOf(const State& here, const Review::OtherList& there, const Difference& difference) {
  std::string line;
  for (const std::string& kind : KindsOf(difference)) line += (line.empty() ? "" : ", ") + kind;
  const Pair pair = PairOf(here, there, difference);
  line += ": " + pair.here + (pair.here.empty() || pair.there.empty() ? "" : " → ") + pair.there;
  const std::string details = Review::DetailsOf(here, there, difference);
  return details.empty() ? line : line + ": " + details;
}

Json JsonOf(const State& here, const Review::OtherList& there, const Difference& difference) {
  const Pair pair = PairOf(here, there, difference);
  return {{"kinds", KindsOf(difference)}, {"here", difference.here},
          {"there", difference.there},    {"first", pair.here},
          {"second", pair.there},         {"details", Review::DetailsOf(here, there, difference)}};
}

// What a list of rows does not say of a channel, and favourites, which it never has, are no difference on this side either.
void AddLacking(const Routines::OtherList& mine, const State& here, Routines::OtherList& other) {
  other.lacking.Add(mine.lacking);
  other.flash = false;
  const auto pairs = Review::Compare(here, other).there;
  for (int slot = 1; slot <= std::min(mine.Count(), here.ChannelCount); ++slot) {
    if (pairs[slot] != 0)
      other.channels[static_cast<std::size_t>(pairs[slot])].lacking.Add(mine.At(slot).lacking);
  }
}

// Channels of the other list that a list of rows has but leaves out, and those on satellites that it knows nothing of, are
// not what only the other one has. How many the latter are.
int HideUnsaid(const Routines::OtherList& mine, const State& theirs, Routines::OtherList& other) {
  const Review::Comparison found = Review::Compare(theirs, mine);
  Routines::PerChannel<bool> gone;
  for (const Difference& difference : found.differences)
    if (difference.Has(Mark::OnlyHere)) gone[difference.here] = true;
  for (int slot = 1; slot <= std::min(other.Count(), theirs.ChannelCount); ++slot) {
    const int number = found.there[slot];
    const bool unsaid = number == 0 ? !gone[slot] : number > mine.offered;
    if (unsaid) other.channels[static_cast<std::size_t>(slot)].record = {};
  }
  return found.elsewhere;
}

// Two lists as they are compared.
struct Sides {
  std::unique_ptr<State> here;
  std::optional<Routines::OtherList> there;
  int elsewhere = 0;  // channels that only the first list says nothing of
};

// Rows have their satellites from the other list, where that has some; a CSV list says its transponders by the numbers of its
// own list, which only one that has such numbers is measured by.
Sides SidesOf(Work& work, const ListFile& one, const ListFile& other) {
  Sides sides;
  Routines::OtherList said;
  Routines::OtherList saidThere;
  const bool numbered = one.kind != FileKind::Rows && one.kind != FileKind::Csv;
  const bool alone = !numbered && other.kind != FileKind::Rows;
  const auto theirs = alone ? StateOf(work, other, nullptr, &saidThere) : nullptr;
  if (alone && !theirs) return {};
  sides.here = StateOf(work, one, theirs.get(), &said);
  if (!sides.here) return {};
  if (!alone) {
    sides.there = OtherOf(work, other, *sides.here);
  } else {
    sides.there = other.kind == FileKind::Csv ? saidThere : Routines::OtherListOf(*theirs);
  }
  if (sides.there && !numbered) AddLacking(said, *sides.here, *sides.there);
  if (alone) sides.elsewhere = HideUnsaid(said, *theirs, *sides.there);
  return sides;
}

void Tell(Work& work, const Sides& sides) {
  const State& here = *sides.here;
  const Review::OtherList& there = *sides.there;
  Review::Comparison found = Review::Compare(here, there);
  found.elsewhere += sides.elsewhere;
  if (!found.Nothing()) work.console.exit = Exit::Found;
  const std::string rest = Review::OtherDifferences(found, "solo nella seconda");
  Json json = {{"first", work.options.first},
               {"second", work.options.second},
               {"same", found.Nothing()},
               {"differences", Json::array()},
               {"others", rest}};
  std::string text;
  for (const Difference& difference : found.differences) {
    if (work.options.json) {
      json["differences"].push_back(JsonOf(here, there, difference));
    } else {
      text += LineOf(here, there, difference) + "\n";
    }
  }
  if (work.options.json) return Print(work.console, json);
  work.console.out = text + (rest.empty() ? "" : rest + "\n");
}

}  // namespace

void Diff(Work& work) {
  if (work.options.first == "-" && work.options.second == "-") {
    work.console.Fail(Exit::Usage, "l'ingresso standard può stare per un file solo");
    return;
  }
  const auto one = ReadList(work, work.options.first);
  const auto other = one ? ReadList(work, work.options.second) : std::nullopt;
  if (!other) return;
  const Sides sides = SidesOf(work, *one, *other);
  if (sides.there) Tell(work, sides);
}

}  // namespace Cli
