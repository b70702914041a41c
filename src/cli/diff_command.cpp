// What is different between two lists: diff.
#include "base/code_page.h"
#include "base/text.h"
#include "cli/json.h"
#include "cli/list_file.h"
#include "formats/sdx_other.h"
#include "model/favourites.h"
#include "review/compare.h"

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

void Tell(Work& work, const State& here, const Review::OtherList& there) {
  const Review::Comparison found = Review::Compare(here, there);
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
  // Rows have their satellites from the other list, where that has some.
  const bool rows =
      one->kind == FileKind::Rows && other->kind != FileKind::Rows && other->kind != FileKind::Csv;
  const auto like = rows ? StateOf(work, *other) : nullptr;
  if (rows && !like) return;
  Routines::OtherList said;
  const auto here = StateOf(work, *one, like.get(), &said);
  if (!here) return;
  auto there = like ? std::optional(Routines::OtherListOf(*like)) : OtherOf(work, *other, *here);
  if (!there) return;
  if (said.Count() > 0) AddLacking(said, *here, *there);
  Tell(work, *here, *there);
}

}  // namespace Cli
