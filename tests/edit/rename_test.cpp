#include "edit/rename.h"

#include "base/code_page.h"
#include "edit/cell_edit.h"
#include "model/cells.h"

#include <gtest/gtest.h>

namespace Edit {
namespace {

using Routines::State;

// What the rules make of one name, UTF-8; "= " and the sentence where a rule makes no sense or the name cannot be.
std::string Renamed(const std::string& name, const std::vector<RenameRule>& rules) {
  const auto state = std::make_unique<State>();
  state->ChannelCount = 999;
  EXPECT_TRUE(EditChannel(*state, 7, Routines::ChannelColumn::Name, name));
  const auto names = NewNames(*state, {3, 7}, rules, [](int slot) {
    return slot == 7 ? std::optional<std::string>("Rai Sport") : std::nullopt;
  });
  if (!names) return "= " + names.error().message;
  if (names->empty()) return name;
  const NewName only = names->front();
  RenameChannels(*state, *names);
  const std::string stored = Base::ToUtf8(state->Channel(7).Name());
  EXPECT_TRUE(stored.starts_with(only.fault.empty() ? only.after : name))
      << stored << ", told: " << only.after;
  return only.fault.empty() ? only.after : "= " + only.fault;
}

using enum RenameKind;

TEST(Rename, EachRule) {
  EXPECT_EQ(Renamed("RAI UNO hd", {{Replace, " HD", ""}}), "RAI UNO");
  EXPECT_EQ(Renamed("Città A a", {{Replace, "A", "aA"}}), "Città aA aA")
      << "accents are letters of their own";
  EXPECT_EQ(Renamed("Rai 1 HD", {{Pattern, "^(.*) ([0-9])", "$2 $1"}}), "1 Rai HD");
  EXPECT_EQ(Renamed("RAI RAI UNO", {{TakeFront, "rai", ""}}), "RAI UNO");
  EXPECT_EQ(Renamed("RAIUNO", {{TakeFront, "rai", ""}}), "RAIUNO") << "words alone";
  EXPECT_EQ(Renamed("Sky Uno +1", {{TakeBehind, "+1", ""}, {PutBehind, "uno"}}), "Sky Uno");
  EXPECT_EQ(Renamed("Uno", {{PutFront, "Sky"}, {PutFront, "SKY"}}), "Sky Uno");
}

TEST(Rename, LettersAndBlanks) {
  EXPECT_EQ(Renamed("RAI-ÉTOILE L'ORO", {{Capitals}}), "Rai-Étoile L'Oro");
  EXPECT_EQ(Renamed("BABY'S 3SAT", {{Capitals}}), "Baby's 3sat");
  EXPECT_EQ(Renamed("žÿ œç", {{Upper}}), "ŽŸ ŒÇ");
  EXPECT_EQ(Renamed("ŽŸ ŒÇ×", {{Lower}}), "žÿ œç×");
  EXPECT_EQ(Renamed("  Rai   Uno ", {{Tidy}}), "Rai Uno");
  EXPECT_EQ(Renamed("Rai Spo", {{FromSource}}), "Rai Sport");
}

TEST(Rename, WhatCannotBeIsSaidAndNothingIsCut) {
  EXPECT_EQ(Renamed("Canale con nome", {{PutBehind, "HD"}}), "= Il nome ha 18 caratteri, al massimo 16");
  EXPECT_EQ(Renamed("Canale con nome", {{PutBehind, "HD"}, {Replace, "Canale ", ""}}), "con nome HD");
  EXPECT_EQ(Renamed("Rai", {{PutBehind, "Ω"}}), "= Nel nome c'è un carattere che il ricevitore non conosce");
  EXPECT_EQ(Renamed("Rai", {{Replace, "rai", ""}}), "= Un canale senza nome sarebbe un posto vuoto");
  EXPECT_EQ(Renamed("CANAL+ DECALE HD", {{Pattern, "((.+)+)+((.+)+)+x$", ""}}), "CANAL+ DECALE HD") << "soon";
  EXPECT_EQ(Renamed("Rai", {{Pattern, "(", ""}}), "= Il modello non è un'espressione regolare valida");
  EXPECT_EQ(Renamed("Rai", {{TakeFront}}), "= Manca il testo della regola");
  const std::vector<RenameRule> growing(40, {Replace, "a", "aaaa"});
  EXPECT_EQ(Renamed("a", growing), "= Il nome ha 255 caratteri, al massimo 16");
}

TEST(Rename, RulesAreKeptAsText) {
  for (const RenameRule& rule : std::vector<RenameRule>{{Replace, "a/b", "|"},
                                                        {Pattern, "^(.*)$", ""},
                                                        {TakeFront, "/|#;,~^\t"},
                                                        {PutBehind, "-"},
                                                        {Capitals},
                                                        {FromSource}}) {
    const auto again = RenameRuleOf(TextOf(rule));
    ASSERT_TRUE(again) << TextOf(rule);
    EXPECT_EQ(*again, rule) << TextOf(rule);
  }
  EXPECT_EQ(TextOf({Replace, "HD", ""}), "sostituisci/HD//");
  for (const char* line : {"", "sostituisci", "spazi/", "maiuscole x", "togli-davanti/a/b", "cambia/a/b/"})
    EXPECT_FALSE(RenameRuleOf(line)) << line;
}

}  // namespace
}  // namespace Edit
