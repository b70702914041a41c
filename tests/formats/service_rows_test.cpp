#include "formats/service_rows.h"

#include "core_test.h"
#include "formats/dvbv5.h"
#include "formats/lamedb.h"
#include "formats/list_summary.h"
#include "formats/row_text.h"
#include "formats/vdr_channels.h"

namespace Formats {
namespace {

SdxTable Rows(std::string_view channels, const ListOptions& options) {
  VdrReader reader(channels);
  return RowsOf(reader, options);
}

ListOptions Free() {
  ListOptions options;
  options.satellites = {{130, 0}, {192, 25}};
  options.codes = {"04"};
  return options;
}

using Lines = std::vector<std::string>;

constexpr std::string_view Channels =
    "Uno:11766:VC34M2S0:S13E:27500:163+1202=2:650=ita@3:0:0,1:12003:1:89:0\n"
    "Radio:10719:HC910M2:S19.2E:5632:0:652:0:0:4435:0:65535:0\n"
    "S2:11766:VC34M2S1:S13E:27500:163=2:650:0:0:1:1:1:0\n"
    "8PSK:11766:VC34M5S0:S13E:27500:163=2:650:0:0:2:1:1:0\n"
    "HD:11766:VC34M2S0:S13E:27500:163=27:650:0:0:3:1:1:0\n"
    "HEVC:11766:VC34M2S0:S13E:27500:163=36:650:0:0:3:1:1:0\n"
    "Left:11766:LC34M2S0:S13E:27500:163=2:650:0:0:4:1:1:0\n"
    "Where:11766:VC34M2S0:S5W:27500:163=2:650:0:0:5:1:1:0\n"
    "Low:3900:VC34M2S0:S13E:27500:163=2:650:0:0:6:1:1:0\n"
    "Cable:394:M256:C:6900:163=2:650:0:0:7:1:1:0\n"
    "Coded:11766:VC34M2S0:S13E:27500:163=2:650:0:E00,648,1801:8:1:1:0\n"
    "Later:11766:VC34M2S0:S13E:27500:0:0:0:0:9:1:1:0\n"
    "Big:11766:VC34M2S0:S13E:27500:163=2:650:0:0:70000:1:1:0\n"
    ":11766 a group\n"
    ";Nameless:11766:VC34M2S0:S13E:27500:163=2:650:0:0:10:1:1:0\n"
    "which way:11766:C34M2S0:S13E:27500:163=2:650:0:0:11:1:1:0\n"
    "when:x:VC34M2S0:S13E:27500:163=2:650:0:0:11:1:1:0\n"
    "junk\n";

}  // namespace

TEST(ServiceRows, EachServiceIsARowOrHasItsReason) {
  const SdxTable rows = Rows(Channels, Free());
  EXPECT_EQ(Texts(rows.rows), (Lines{"Uno TA 011766V+ 27500 3 163 650 1202 12003 1 00089 4",
                                     "Radio RZ 010719H- 5632\\  65535 652 652 4435 0 65535 4"}));
  EXPECT_EQ(Texts(rows.others), (Lines{"Later TA 011766V+ 27500 3 65535 65535 65535 9 1 00001 4"}));
  EXPECT_EQ(rows.lines, 17);
  EXPECT_EQ(
      rows.dropped.Text(),
      "senza PID 1, codifica 1, senza nome 1, senza frequenza 1, polarizzazione non valida 1, numero non "
      "valido 1, non da satellite 1, DVB-S2 1, altre modulazioni 1, H.264/HEVC 2, polarizzazione circolare "
      "1, satellite non scelto 1, fuori banda 1, righe non valide 1");
}

TEST(ServiceRows, TheOptionsAreThoseOfASatcodxImport) {
  const auto taken = [](const auto& change) {
    ListOptions options = Free();
    change(options);
    std::string names;
    for (const SdxRow& row : Rows(Channels, options).rows) names.append(row.name).append(" ");
    return names;
  };
  EXPECT_EQ(taken([](ListOptions& options) { options.keepHd = true; }), "Uno Radio S2 8PSK HD HEVC ");
  EXPECT_EQ(taken([](ListOptions& options) {
              options.codes = {"84", "44"};
            }),
            "Coded ")
      << "the first known system";
  EXPECT_EQ(taken([](ListOptions& options) { options.allCodes = true; }), "Uno Radio Coded ");
  EXPECT_EQ(taken([](ListOptions& options) { options.television = false; }), "Radio ");
  EXPECT_EQ(taken([](ListOptions& options) { options.radio = false; }), "Uno ");
  EXPECT_EQ(taken([](ListOptions& options) {
              options.known = {{0, 89, 12003}, {0, 65535, 4435}};
            }),
            "Radio ");
  EXPECT_EQ(taken([](ListOptions& options) { options.filtered = {{0, 4435}, {1, 12003}}; }), "Uno ");
  EXPECT_EQ(taken([](ListOptions& options) { options.satellites.clear(); }), "") << "no position was chosen";
}

TEST(ServiceRows, FiltersComeBeforeTheFourThousand) {
  std::string many;
  for (int i = 0; i < 4001; ++i) many.append(Channels);
  ListOptions options = Free();
  options.radio = false;
  SdxTable rows = Rows(many, options);
  EXPECT_TRUE(rows.full);
  EXPECT_EQ(rows.rows.size(), MostSdxRows);
  EXPECT_EQ(rows.others.size(), MostSdxRows);
  EXPECT_EQ(rows.lines, rows.dropped.Total() + 4001);
  many.resize(many.size() - Channels.size());
  EXPECT_FALSE(Rows(many, options).full);
}

TEST(ServiceRows, AFileWithoutPositionsHasTheSatelliteChosen) {
  DvbV5Reader reader(
      "[Uno]\nSERVICE_ID=7\nVIDEO_PID=1\nAUDIO_PID=2\nFREQUENCY=11765500\nPOLARIZATION=HORIZONTAL\nDELIVERY_"
      "SYSTEM=DVBS\n");
  ListOptions options = Free();
  options.satellites.clear();
  options.satellite = 3;
  const SdxTable table = RowsOf(reader, options);
  EXPECT_EQ(Texts(table.rows), (Lines{"Uno TD 011766H+   1 2 1 7  00000 4"}));
  EXPECT_EQ(table.lacking, (SdxFields{SdxField::Coding, SdxField::Pcr}));
  LamedbReader lamedb(
      "eDVB services "
      "/5/\nt:00820000:1:2,s:11766000:27500000:0:3:130:2:0\ns:7:00820000:1:2:3:0:0,\"Dati\",p:\n"
      "s:8:00820000:1:2:2:0:0,\"Radio\",p:,c:000100,c:01028a\ns:9:00820000:1:2:1:0:0,\"Uno\",p:,c:01028a\n");
  options.satellites = {{130, 2}};
  options.data = true;
  const SdxTable rows = RowsOf(lamedb, options);
  EXPECT_EQ(Texts(rows.rows), (Lines{"Dati SC 011766H+ 27500 3 65535 65535 65535 7 2 00001 4",
                                     "Radio RC 011766H+ 27500 3 65535 650 650 8 2 00001 4"}));
  EXPECT_EQ(Texts(rows.others), (Lines{"Uno TC 011766H+ 27500 3 65535 650 65535 9 2 00001 4"}));
}

TEST(ListSummary, CountsPositionsAndProposesTheirSatellites) {
  VdrReader reader(Channels);
  const ListSummary summary = SummaryOf(reader);
  EXPECT_EQ(summary.services, 15);
  EXPECT_EQ(summary.positions, (std::map<int, int>{{-50, 1}, {130, 13}, {192, 1}}));
  EXPECT_EQ(summary.codings, (std::map<int, int>{{0x04, 14}, {0x84, 1}}));
  EXPECT_EQ(summary.transponders.size(), 6U);

  Routines::State state;
  state.TransponderCount = 4;
  state.Transponder(1).record = Samples::MakeTransponder(11764, false, 4, 0, 0);
  state.Transponder(2).record = Samples::MakeTransponder(10719, true, 7, 0, 0);
  state.Transponder(4).record = Samples::MakeTransponder(10719, false, 8, 0, 0);
  EXPECT_EQ(ProposedSatellites(state, summary.transponders), (std::map<int, int>{{192, 7}}))
      << "two positions have the first one";
  state.Transponder(3).record = Samples::MakeTransponder(11766, false, 7, 0, 0);
  EXPECT_EQ(ProposedSatellites(state, summary.transponders), (std::map<int, int>{})) << "half is not most";

  state.TransponderCount = 5;
  for (int slot = 1; slot <= 5; ++slot)
    state.Transponder(slot).record = Samples::MakeTransponder(11000 + 100 * slot, false, 7, 0, 0);
  std::vector<ListedTransponder> listed(5, summary.transponders.front());
  const auto alike = [&](int transponders) {
    for (int slot = 1; slot <= transponders; ++slot) {
      listed[static_cast<std::size_t>(slot) - 1].frequency = 11000000 + 100000 * slot;
      listed[static_cast<std::size_t>(slot) - 1].polarisation = Polarisation::Vertical;
    }
    return !LooksLikeAnother(state, listed, 7);
  };
  EXPECT_FALSE(alike(2));
  EXPECT_TRUE(alike(3)) << "more than half are both";
  EXPECT_FALSE(LooksLikeAnother(state, {}, 8)) << "a satellite without transponders is nobody's yet";
}

}  // namespace Formats
