// What each word of the filter finds in one list.
#include "review/filter.h"

#include "core_test.h"

#include <sstream>

namespace Review {
namespace {

using namespace Routines;
using namespace Samples;

std::unique_ptr<State> List() {
  auto state = std::make_unique<State>();
  state->ChannelCount = 20;
  state->TransponderCount = 30;
  state->Transponder(1).record = MakeTransponder(11766, false, 0, 1, 1);
  state->Transponder(1).SetBouquet("Sky Italia", "04");
  state->Transponder(2).record = MakeTransponder(10719, true, 2, 2, 2);
  state->Transponder(12).record = MakeTransponder(12000, true, 1, 3, 3);
  const auto put = [&](int slot, const char* name, int transponder, int sid, int vpid, int apid, int flags) {
    ChannelRecord& channel = state->Channel(slot) = MakeChannel(name, transponder, sid, vpid, apid);
    Set(channel, ChannelField::Flags, static_cast<std::uint32_t>(flags));
  };
  put(2, "RAI 1 HD", 1, 100, 1, 1, 0x04);
  put(3, "M\xFCnchen TV  ", 2, 200, 1, 1, 0x24);
  put(5, "Radio rai", 12, 1, 0, 2, 0x20);  // a radio, not active
  put(6, "sat:A 11766", 2, 12, 1, 1, 0x04);
  put(7, "Dati", 99, 11768, 0, 0, 0x04);  // a service on a transponder that is missing
  put(9,
      "Stra\xDF"
      "e",
      1, 100, 1, 1, 0x04);  // the service of slot 2 once more
  put(10, "-c", 12, 65535, 1, 1, 0xA4);
  state->FavouritesBlock.assign(NormalFavouritesSize, 0);
  SetFavouriteEntries(state->FavouritesBlock, 2, {5, 4000, 2});
  SetFavouriteEntries(state->FavouritesBlock, 7, {2});
  state->Channel(30) = state->Channel(2);  // behind the list
  return state;
}

std::string Told(const std::vector<int>& slots) {
  std::string text;
  for (const int slot : slots) text += (text.empty() ? "" : " ") + std::to_string(slot);
  return text;
}

}  // namespace

TEST(Filter, EachWordFindsItsChannels) {
  const auto state = List();
  // What is typed, and the slots found.
  std::istringstream cases(
      R"(=;   =;rai=2 5;hd rai =2;munchen=3;MÜNCHEN=3;strasse=9;STRAßE=9;漢=;"rai 1"=2;"1 rai"=;"rai 1=2;
-"rai 1" rai=5;1=2 5 6 9;12=5 6 10;"12"=;11768=2 7 9;11769=;4294967296=;f:11764=2 9;f:0=;sat:a=2 9;
sat:A SAT:C=2 3 6 9;"sat:a"=6;tp:12=5 10;tp:99=7;sid:100=2 9;cod:04=2 6 7 9;cod:a4=10;bq:italia=2 9;
bq:4=2 9;bq:"sky it"=2 9;-bq:sky=3 5 6 7 10;radio=5;"radio"=5;TV radio=2 3 5 6 9 10;servizi=7;
inattivi=5;doppi=2 9;doppi -hd=9;pref:3=2 5;pref:8 pref:3=2 5;-pref:3 rai=;-tv -radio=7;
-sat:A -sat:B=3 6 7;sat:C -200 tv=6;"-c"=10;t:a=6;-rai -xyz=3 6 7 9 10;)");
  for (std::string one; std::getline(cases, one, ';');) {
    std::erase(one, '\n');
    const std::string typed = one.substr(0, one.rfind('='));
    const Filter filter(typed);
    EXPECT_EQ(Told(MatchingSlots(*state, filter)), one.substr(typed.size() + 1)) << one;
    EXPECT_EQ(filter.Unfinished(), std::vector<std::string>()) << one;
  }
  EXPECT_EQ(Told(MatchingSlots(*state, Filter("-xyz"))), "2 3 5 6 7 9 10");
}

TEST(Filter, WordsThatAskForNothingYetAreToldAndFindAndHideNothing) {
  for (const char* word : {"sat:", "sat:1", "sat:AB", "f:", "f:12x", "tp:-1", "sid:99999999999", "cod:4",
                           "cod:4g", "bq:", "bq:\"\"", "pref:9", "pref:", "-", "-sat:"}) {
    const Filter alone(word);
    EXPECT_TRUE(alone.Empty()) << word;
    ASSERT_EQ(alone.Unfinished().size(), 1U) << word;
    EXPECT_TRUE(alone.Unfinished().front().starts_with(word + std::string(" attende "))) << word;
    EXPECT_EQ(MatchingSlots(*List(), Filter(std::string(word) + " rai")), std::vector<int>({2, 5})) << word;
  }
  for (const char* nothing : {"\"", "\"\"", "-\""})
    EXPECT_TRUE(Filter(nothing).Empty() && Filter(nothing).Unfinished().empty()) << nothing;
}

TEST(Filter, ARowWithoutFieldsIsFoundByItsNameAlone) {
  FilterRow row;
  row.name = "0";
  for (const char* word :
       {"sat:A", "f:0", "tp:0", "sid:0", "cod:00", "tv", "doppi", "inattivi", "pref:1", "bq:0"})
    EXPECT_FALSE(Filter(word).Matches(row)) << word;
  EXPECT_TRUE(Filter("0").Matches(row));
}

}  // namespace Review
