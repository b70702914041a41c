#include "base/code_page.h"
#include "cli/program.h"
#include "core_test.h"
#include "demo_flash.h"
#include "formats/text_format.h"
#include "formats/vdr_channels.h"
#include "image_builder.h"
#include "model/flash_loader.h"
#include "model/flash_writer.h"
#include "support/bouquets_txt.h"
#include "support/sr_ini.h"

#include <map>
#include <nlohmann/json.hpp>

namespace Cli {
namespace {

using namespace Routines;
using Arguments = std::vector<std::string>;

struct Ended {
  int code;
  std::string out;
  std::string err;
};

class CommandLine : public testing::Test {
 protected:
  CommandLine() {
    for (const char* name : {"SR.INI", "Bouquets.txt"}) {
      const Base::Bytes bytes = Tests::Contents(std::string(SAMPLES_FOLDER) + "/" + name);
      support_.Write(name, bytes);
    }
    rates_ = Support::CaricaTabelleSR(support_.Path(), Sr22000::Come2)->table;
    image_ = Samples::DemoFlash(rates_);
    flash_ = folder_.Write("lista.dat", image_);
    LoadFlash(*state_, image_, 3996, 0, Support::LoadBouquets(support_.Path()).tables);
    state_->SymbolRateTable = rates_;
  }

  Ended Run(const Arguments& arguments, const std::string& input = {}) {
    Console console{[&input]() -> Base::Result<Base::Bytes> {
      const Base::ByteView bytes = Base::AsBytes(input);
      return Base::Bytes(bytes.begin(), bytes.end());
    }};
    Cli::Run(arguments, {support_.Path(), true, folder_.Path()}, console);
    return {static_cast<int>(console.exit), console.out, console.err};
  }
  // Of an image that a command has written.
  static std::unique_ptr<State> ListIn(const std::string& path) {
    auto state = std::make_unique<State>();
    const Base::Bytes image = Tests::Contents(path);
    if (image.size() != FlashSize) ADD_FAILURE() << path;
    if (image.size() == FlashSize) LoadFlash(*state, image, 3996, 0, {});
    return state;
  }
  [[nodiscard]] std::string Name(int slot) const { return Base::ToUtf8(state_->Channel(slot).Name()); }

  Tests::TestFolder folder_;
  Tests::TestFolder support_;
  std::string rates_;
  Base::Bytes image_;
  std::string flash_;
  std::unique_ptr<State> state_ = std::make_unique<State>();
};

}  // namespace

TEST_F(CommandLine, RefusesWhatItDoesNotKnowInItalianAndDoesNothing) {
  const std::pair<Arguments, std::string> wrong[] = {
      {{}, "manca il comando"},
      {{"infos", "a"}, "comando sconosciuto: infos"},
      {{"info"}, "manca IMG"},
      {{"info", "a", "b"}, "argomento non previsto: b"},
      {{"info", "a", "--capacity", "4000"}, "--capacity: deve essere un numero da 1 a 3996"},
      {{"info", "a", "--capacity"}, "--capacity: manca il valore"},
      {{"info", "a", "--filter", "x"}, "argomento non previsto"},
      {{"list", "a", "--csv", "--vdr"}, "--csv non va con --vdr"},
      {{"list", flash_, "--csv", "--json"}, "--json non va con"},
      {{"list", flash_, "--filter", "sat:"}, "--filter: "},
      {{"list", flash_, "--vdr", "--sat", "A=13.0E"}, "--sat B=POSIZIONE"},
      {{"list", flash_, "--vdr", "--sat", "A=Hotbird"}, "non è una posizione"},
      {{"list", flash_, "--sat", "13.0E"}, "--sat: deve essere una lettera"},
      {{"diff", "-", "-"}, "per un file solo"},
      {{"convert", flash_, folder_.Path("lista.xyz")}, "serve --to"},
      {{"write", flash_, flash_, "--type", "2", "--sr", "2", "-o", folder_.Path("n.dat")},
       "manca --capacity"},
      {{"write", flash_, flash_, "--capacity", "3996", "--type", "4", "--sr", "2"}, "--type: deve essere"},
      {{"sort", flash_, "--capacity", "1000", "--by", "name"}, "--capacity: deve essere uno fra"},
      {{"sort", flash_, "--capacity", "3996", "--by", "name"}, "serve -o"},
      {{"sort", flash_, "--capacity", "3996", "--by", "name,sid,kind,coding", "-o", "x"}, "al più tre"},
      {{"sort", flash_, "--capacity", "3996", "--by", "name", "-o", "x", "--in-place"}, "non va con"},
      {{"sort", "-", "--capacity", "3996", "--by", "name", "--in-place"}, "il nome di un file"},
      {{"rename", flash_, "--capacity", "3996", "--rule", "niente/x", "-o", "x"}, "--rule niente/x"},
      {{"apply", flash_, flash_, "--capacity", "3996", "--only", "tutto", "-o", "x"}, "--only: deve essere"},
  };
  const int files = folder_.Files();
  for (const auto& [arguments, said] : wrong) {
    const Ended ended = Run(arguments);
    EXPECT_EQ(ended.code, 2) << said;
    EXPECT_EQ(ended.out, "") << said;
    EXPECT_NE(ended.err.find(said), std::string::npos) << ended.err;
    for (const char* english : {"required", "expected", "excludes", "missing"})
      EXPECT_EQ(ended.err.find(english), std::string::npos) << ended.err;
  }
  EXPECT_EQ(folder_.Files(), files);
  for (const char* command :
       {"info", "list", "check", "diff", "sdx", "convert", "write", "apply", "order", "sort", "rename"}) {
    const Ended help = Run({command, "--help"});
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.out.find("--support CARTELLA") != std::string::npos &&
                help.out.find("Options") == std::string::npos)
        << help.out;
  }
  EXPECT_EQ(Run({"--version"}).out, "trovalis-cli 1.1.0\n");
}

TEST_F(CommandLine, WhatCannotBeReadEndsWithThreeTheFilesNameAndTheReason) {
  folder_.Write("corta.dat", Base::ByteView(image_).first(1000));
  folder_.Write("vuoto.txt", "");
  folder_.Write("elenco.txt", "1;RAI 1;1-2-3\n2;RAI 2;1-2-4\n");
  const std::string dash = std::string("-") + "x.dat";
  const std::pair<Arguments, std::string> unreadable[] = {
      {{"info", folder_.Path("manca.dat")}, "manca.dat: il file o la cartella non esiste"},
      {{"check", folder_.Path()}, "è una cartella"},
      {{"list", folder_.Path("corta.dat")}, "corta.dat: Dimensione FLASH selezionata errata 1000"},
      {{"info", "-"}, "ingresso standard: Dimensione FLASH selezionata errata 3"},
      {{"info", "--", dash}, "-x.dat: il file o la cartella non esiste"},
      {{"info", folder_.Path("\xE8.dat")}, "\xE8.dat: il file o la cartella non esiste"},
      {{"diff", flash_, folder_.Path("vuoto.txt")}, "vuoto.txt"},
      {{"diff", flash_, folder_.Path("elenco.txt")}, "elenco.txt: "},
      {{"sdx", folder_.Path("corta.dat")}, "corta.dat"},
      {{"info", flash_, "--support", folder_.Path("rotta")}, "Formato invalido del file SR.INI"},
      {{"convert", flash_, "-", "--to", "text", "--support", folder_.Path("nessuna")}, ""},
      {{"sort", flash_, "--capacity", "3996", "--by", "name", "-o", "x", "--support",
        folder_.Path("nessuna")},
       "File SR.INI non trovato"},
  };
  std::filesystem::create_directory(folder_.Path("rotta"));
  std::ofstream(folder_.Path("rotta/SR.INI")) << "INPUT\nxx\n";
  for (const auto& [arguments, said] : unreadable) {
    const Ended ended = Run(arguments, "abc");
    // An image is shown without symbol rates, as in the window.
    EXPECT_EQ(ended.code, said.empty() ? 0 : 3) << ended.err;
    EXPECT_NE(ended.err.find(said), std::string::npos) << ended.err;
    EXPECT_EQ(ended.out.empty(), !said.empty());
    EXPECT_TRUE(ended.err.starts_with("trovalis-cli: "));
  }
}

TEST_F(CommandLine, InfoListAndCheckTellWhatTheWindowTells) {
  const auto info = nlohmann::json::parse(Run({"info", flash_, "--json"}).out);
  EXPECT_EQ(info["channels"], UsedChannels(*state_));
  EXPECT_EQ(info["overview"]["Posti"][0]["count"], UsedChannels(*state_));
  EXPECT_EQ(Run({"info", "-", "--capacity", "10"}, std::string(Base::AsText(image_))).out.substr(0, 34),
            "ingresso standard: letti 10 di 620");
  EXPECT_TRUE(Run({"list", flash_, "--text"}).out == Formats::WriteText(*state_));
  EXPECT_EQ(Run({"list", flash_, "--csv", "--support", folder_.Path("x")}).code, 0);

  // Of a filter's channels alone, each in its place and with its entries in the favourites.
  const std::string word = "sid:" + std::to_string(Get(state_->Channel(5), ChannelField::Sid));
  const Ended found = Run({"list", flash_, "--filter", word});
  EXPECT_TRUE(found.out.starts_with("0005 " + Name(5) + ": ")) << found.out;
  const auto json = nlohmann::json::parse(Run({"list", flash_, "--filter", word, "--json"}).out);
  EXPECT_EQ(json[0]["name"], Name(5));
  EXPECT_EQ(json[0]["transponder"]["megahertz"],
            FrequencyMHz(state_->Transponder(Get(state_->Channel(5), ChannelField::Transponder)).record));

  EXPECT_EQ(Run({"check", flash_}).code, 0);
  EXPECT_EQ(Run({"check", flash_}).out, flash_ + ": niente da controllare\n");
  state_->Channel(900) = state_->Channel(5);
  folder_.Write("doppi.dat", PatchFlash(*state_, image_, {FlashType::Two, 3996, {}}).image);
  const Ended check = Run({"check", folder_.Path("doppi.dat")});
  EXPECT_EQ(check.code, 1);
  EXPECT_NE(check.out.find("Canali doppi: 2 canali\n  0005 " + Name(5)), std::string::npos) << check.out;
  const auto findings =
      nlohmann::json::parse(Run({"check", folder_.Path("doppi.dat"), "--json"}).out)["findings"];
  EXPECT_EQ(findings[0]["rows"].size(), 2U);
}

TEST_F(CommandLine, EveryFormIsReadBackAsTheListThatItWasWrittenFrom) {
  for (const char* name : {"l.fls", "l.csv"}) {
    ASSERT_EQ(Run({"convert", flash_, folder_.Path(name)}).code, 0);
    const Ended diff = Run({"diff", flash_, folder_.Path(name)});
    EXPECT_EQ(diff.out, "") << name;
    EXPECT_EQ(diff.code, 0) << name;
    EXPECT_EQ(Run({"diff", folder_.Path(name), flash_}).out, "") << name;
  }
  EXPECT_TRUE(Run({"convert", folder_.Path("l.fls"), "-", "--to", "csv"}).out ==
              Run({"list", flash_, "--csv"}).out);
  EXPECT_NE(Run({"order", folder_.Path("l.csv"), flash_, "--capacity", "3996", "--numbers", "--in-place"})
                .out.find("già"),
            std::string::npos);

  // One that was changed is compared with what it was changed from, though neither has transponders of its own; a row that
  // cannot be read is not the same as one without a difference.
  std::string csv = Run({"list", flash_, "--csv"}).out;
  csv.replace(csv.find(";" + Name(7) + ";"), Name(7).size() + 1, ";Altro");
  folder_.Write("m.csv", csv);
  EXPECT_EQ(Run({"diff", folder_.Path("l.csv"), folder_.Path("m.csv")}).out,
            "Rinominato: 0007 " + Name(7) + " → 0007 Altro: " + Name(7) + " → Altro\n");
  folder_.Write("rotta.csv", "Prog.;Canale;SID\n0001;" + Name(1) + ";mille\n");
  EXPECT_EQ(Run({"diff", flash_, folder_.Path("rotta.csv")}).code, 1);

  // The text format's own losses are told.
  ASSERT_EQ(Run({"convert", flash_, folder_.Path("l.txt")}).code, 0);
  const Ended text = Run({"diff", flash_, folder_.Path("l.txt")});
  EXPECT_EQ(text.code, 1);
  EXPECT_NE(text.err.find("importati 620 canali, 21 codifiche cambiate"), std::string::npos) << text.err;

  // What a recorder's list has no field for, it does not say; radios and televisions are all in it.
  const Arguments vdr = {"convert", flash_,   folder_.Path("channels.conf"), "--sat", "A=S13.0E",
                         "--sat",   "B=19.2E"};
  ASSERT_EQ(Run(vdr).code, 0);
  const Base::Bytes conf = Tests::Contents(folder_.Path("channels.conf"));
  Formats::VdrReader reader(Base::AsText(conf));
  ASSERT_TRUE(reader.Read());
  const ChannelRecord& first = state_->Channel(1);
  EXPECT_EQ(Base::ToUtf8(reader.Service().name), Name(1));
  EXPECT_EQ(reader.Service().sid, static_cast<int>(Get(first, ChannelField::Sid)));
  EXPECT_EQ(reader.Service().vpid, static_cast<int>(Get(first, ChannelField::Vpid)));
  EXPECT_EQ(reader.Service().transponder.frequency / 1000,
            FrequencyMHz(state_->Transponder(Get(first, ChannelField::Transponder)).record));
  EXPECT_EQ(reader.Unreadable(), 0);
  // Nor does it matter which of the two is named first, even if not all of its rows are wanted.
  EXPECT_EQ(Run({"diff", folder_.Path("channels.conf"), flash_}).code,
            Run({"diff", flash_, folder_.Path("channels.conf")}).code);
  const auto diff =
      nlohmann::json::parse(Run({"diff", flash_, folder_.Path("channels.conf"), "--json", "--data"}).out);
  std::map<std::string, int> kinds;
  for (const auto& difference : diff["differences"])
    for (const auto& kind : difference["kinds"]) ++kinds[kind];
  EXPECT_EQ(
      kinds["Rinominato"] + kinds["PID cambiati"] + kinds["Risintonizzato"] + kinds["Solo nella seconda"], 0)
      << diff.dump(1).substr(0, 2000);
}

TEST_F(CommandLine, SdxCountsWhatAListHoldsAndWhatIsDroppedByReason) {
  folder_.Write("channels.conf",
                "RAI 1;Rai:11766:VC23M2S0:S13.0E:27500:512=2:650:0:0:3401:318:5200:0\n"
                "HD:11766:VC23M5S1:S13.0E:27500:513=27:651:0:0:3402:318:5200:0\n"
                "Senza:11766:VC23M2S0:S13.0E:27500:0:0:0:0:3403:318:5200:0\n");
  const Ended sdx = Run({"sdx", folder_.Path("channels.conf")});
  EXPECT_EQ(sdx.out, folder_.Path("channels.conf") +
                         ": lette 3 righe, prese 1\nTipo\n  TV: 1\nSatellite\n  SAT A: 1\nCodifica\n  04: 1\n"
                         "Scartate\n  senza PID: 1\n  DVB-S2: 1\n");
  EXPECT_NE(sdx.err.find("13.0E è SAT A"), std::string::npos);
  const auto json = nlohmann::json::parse(Run({"sdx", folder_.Path("channels.conf"), "--json", "--hd"}).out);
  EXPECT_EQ(json["taken"], 2);
  EXPECT_EQ(json["dropped"].dump(), "{\"senza PID\":1}");
}

TEST_F(CommandLine, WriteGivesTheBytesOfTheWindowsSave) {
  const std::string target = folder_.Path("nuova.dat");
  for (const int type : {1, 2, 3}) {
    const std::size_t index = static_cast<std::size_t>(type) - 1;
    for (std::size_t capacity = 0; capacity < QuantiCanali.size(); ++capacity) {
      auto state = std::make_unique<State>();
      LoadFlash(*state, image_, QuantiCanali[capacity].channels, 0, {});
      const WritePlan plan = PlanWrite(*state, {capacity, index, 0});
      const Ended ended =
          Run({"write", flash_, flash_, "-o", target, "--force", "--sr", "2", "--type", std::to_string(type),
               "--capacity", std::to_string(QuantiCanali[capacity].channels)});
      EXPECT_TRUE(Tests::Contents(target) == PatchFlash(*state, image_, plan).image) << type << ended.err;
      EXPECT_EQ(ended.code, FindUnwritten(*state, Tests::Contents(target), plan).Nothing() ? 0 : 1)
          << ended.out;
    }
  }
}

TEST_F(CommandLine, AnImageIsNeverReplacedUnaskedNorWithoutACopy) {
  const Arguments sort = {"sort", flash_, "--capacity", "3996", "--by", "name"};
  const auto with = [&sort](const Arguments& more) {
    Arguments all = sort;
    all.insert(all.end(), more.begin(), more.end());
    return all;
  };
  const std::string other = folder_.Write("altra.dat", "una lista d'altri");
  const int files = folder_.Files();
  EXPECT_EQ(Run(with({"-o", other})).code, 4);
  EXPECT_EQ(Run(with({"-o", folder_.Path("nessuna/x.dat")})).code, 4);
  for (const Arguments& tried : {Arguments{"-o", folder_.Path("n.dat"), "--dry-run"},
                                 {"--in-place", "--dry-run"},
                                 {"-o", other, "--dry-run", "--force"}}) {
    const Ended dry = Run(with(tried));
    EXPECT_EQ(dry.code, 0);
    EXPECT_NE(dry.out.find("Prova, non scritta "), std::string::npos) << dry.out;
  }
  EXPECT_EQ(folder_.Files(), files);
  EXPECT_TRUE(Tests::Contents(flash_) == image_);

  // To the standard output, to a new file, over another one and in place: the same bytes.
  const Ended piped = Run(with({"-o", "-"}));
  EXPECT_NE(piped.err.find("Scritta uscita standard"), std::string::npos);
  EXPECT_EQ(Run(with({"-o", folder_.Path("n.dat")})).code, 0);
  EXPECT_EQ(Run(with({"-o", other, "--force"})).code, 0);
  EXPECT_EQ(Base::AsText(Tests::Contents(other + ".bak")), "una lista d'altri");
  const std::vector<Routines::ChannelRecord> many(1100, state_->Channel(5));
  const std::string large =
      folder_.Write("grande.dat", Samples::ImageBuilder(3).PutRecords(1, 0, 16, "TCS", many).Image());
  const Arguments small = {"rename", large, "--capacity", "999", "--rule", "maiuscole"};
  const auto ends = [&](const Arguments& more) {
    Arguments all = small;
    all.insert(all.end(), more.begin(), more.end());
    return Run(all).code;
  };
  EXPECT_EQ(ends({"-o", folder_.Path("parte.dat")}), 1) << "not all was read";
  EXPECT_EQ(ends({"--in-place"}), 4) << "the rest would be lost";
  EXPECT_EQ(ends({"--in-place", "--force", "--dry-run"}), 1);
  EXPECT_EQ(Run({"info", large, "--capacity", "999"}).code, 1);
  const Ended written = Run(
      {"write", flash_, large, "--capacity", "999", "--type", "1", "--sr", "2", "--in-place", "--dry-run"});
  EXPECT_EQ(written.err.find("letti"), std::string::npos)
      << "what another list takes the place of" << written.err;
  EXPECT_NE(written.out.find("Prova, non scritta"), std::string::npos) << written.err;
  const auto json = nlohmann::json::parse(Run(with({"--in-place", "--json"})).out);
  EXPECT_EQ(json["copy"], "lista.dat.bak");
  EXPECT_TRUE(Tests::Contents(flash_ + ".bak") == image_);
  for (const std::string& path : {folder_.Path("n.dat"), other, flash_})
    EXPECT_EQ(Base::AsText(Tests::Contents(path)), piped.out) << path;
  // Done again it changes nothing and makes no copy.
  EXPECT_NE(Run(with({"--in-place"})).out.find("era già così"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(flash_ + ".bak2"));
}

TEST_F(CommandLine, ListsAreRenamedSortedOrderedAndTakenOverLikeInTheWindow) {
  const std::string renamed = folder_.Path("nomi.dat");
  const std::string word = "sid:" + std::to_string(Get(state_->Channel(5), ChannelField::Sid));
  const Ended rename = Run({"rename", flash_, "--capacity", "3996", "--rule", "metti-davanti/Z/", "--rule",
                            "maiuscole", "--filter", word, "-o", renamed});
  EXPECT_NE(rename.out.find("0005 " + Name(5) + " → Z "), std::string::npos) << rename.out << rename.err;
  EXPECT_TRUE(ListIn(renamed)->Channel(5).Name().starts_with("Z "));
  EXPECT_EQ(ListIn(renamed)->Channel(6), state_->Channel(6));
  const Ended tooLong = Run({"rename", flash_, "--capacity", "3996", "--rule",
                             "metti-davanti/Sedici_caratteri/", "-o", folder_.Path("lunghi.dat")});
  EXPECT_EQ(tooLong.code, 1);

  const std::string sorted = folder_.Path("ordinata.dat");
  ASSERT_EQ(
      Run({"sort", renamed, "--capacity", "3996", "--by", "kind,name", "--from", "3", "-o", sorted}).code, 0);
  EXPECT_EQ(ListIn(sorted)->Channel(2), ListIn(renamed)->Channel(2));
  EXPECT_NE(ListIn(sorted)->Channel(3), ListIn(renamed)->Channel(3));
  // The sorted list as an order, and as a list to take names and places from.
  const std::string ordered = folder_.Path("come.dat");
  EXPECT_EQ(Run({"order", sorted, flash_, "--capacity", "3996", "--numbers", "-o", ordered}).code, 0);
  const Ended names = Run({"diff", sorted, ordered});
  EXPECT_TRUE(names.out.starts_with("Rinominato: ") && names.out.find("Spostato") == std::string::npos)
      << names.out;
  EXPECT_EQ(Run({"apply", sorted, ordered, "--only", "renamed", "--capacity", "3996", "--in-place"}).code, 0);
  EXPECT_EQ(Run({"diff", sorted, ordered}).code, 0);

  // What has no place is told, and the command does not end as if all were done.
  folder_.Write("channels.conf", "Nuovo:12700:VC23M2S0:S13.0E:27500:512=2:650:0:0:3401:318:5200:0\n");
  const Ended apply = Run({"apply", folder_.Path("channels.conf"), flash_, "--only", "new", "--sat",
                           "A=13.0E", "--capacity", "3996", "-o", folder_.Path("piu.dat"), "--type", "2"});
  EXPECT_NE(apply.out.find("Applicata 1 differenza: 1 canale aggiunto in fondo"), std::string::npos)
      << apply.out << apply.err;
}

}  // namespace Cli
