// Lists that others have made, where there are any: of Debian's packages vdr, dtv-scan-tables and dvb-tools, installed or as
// scripts/real-lists unpacks them.
#include "base/file.h"
#include "core_test.h"
#include "formats/dvbv5.h"
#include "formats/list_format.h"
#include "formats/scan_table.h"
#include "formats/service_rows.h"
#include "formats/vdr_channels.h"

#include <cstdlib>
#include <filesystem>

namespace Formats {
namespace {

using Texts = std::vector<std::string>;

// Where a file of a package is; empty where it is not to be had.
std::string Real(const std::string& path) {
  for (const std::string& root : {std::string("/"), std::string(LISTS_FOLDER "/")}) {
    if (std::filesystem::exists(root + path)) return root + path;
  }
  return {};
}

std::string TextIn(const std::string& path) {
  const auto bytes = Base::ReadFile(path, 1U << 24U);
  return bytes ? std::string(Base::AsText(*bytes)) : std::string();
}

// Name, ids, PIDs and transponder of every service.
template <class Reader>
Texts ServicesIn(std::string_view text) {
  Reader reader(text);
  Texts services;
  while (reader.Read()) {
    const ListedService& one = reader.Service();
    const ListedTransponder& transponder = one.transponder;
    services.push_back(one.name);
    for (const int number : {one.sid, std::max(one.vpid, 0), one.apid, transponder.frequency,
                             transponder.symbolRate, static_cast<int>(transponder.polarisation),
                             static_cast<int>(transponder.delivery), std::max(transponder.tid, 0)})
      services.back() += " " + std::to_string(number);
    services.back().append(" ").append(std::string_view(transponder.fec));
  }
  return services;
}

}  // namespace

TEST(RealLists, TheExampleChannelsOfVdrAreRowsOrCounted) {
  const std::string path = Real("usr/share/vdr/channels.conf-examples/channels.conf.sat");
  if (path.empty()) GTEST_SKIP() << "the package vdr is not there";
  const std::string text = TextIn(path);
  ASSERT_NE(FormatOf(text), nullptr);
  EXPECT_EQ(FormatOf(text)->id, "vdr");
  ListOptions options;
  options.allCodes = options.data = true;
  for (int position = -1800; position <= 1800; ++position) options.satellites[position] = 0;
  const auto tally = [&] {
    VdrReader reader(text);
    const SdxTable table = RowsOf(reader, options);
    return std::to_string(table.lines) + " " + std::to_string(table.rows.size()) + " " + table.dropped.Text();
  };
  EXPECT_EQ(tally(), "147 50 DVB-S2 94, H.264/HEVC 3");
  options.keepHd = true;
  EXPECT_EQ(tally(), "147 147 ");
}

TEST(RealLists, EveryBlockOfAScanTableIsATransponderOrCounted) {
  const std::string folder = Real("usr/share/dvb/dvb-s");
  if (folder.empty()) GTEST_SKIP() << "the package dtv-scan-tables is not there";
  std::size_t transponders = 0, unreadable = 0, blocks = 0, nowhere = 0;
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    const std::string text = TextIn(file.path().string());
    const ListFormat* format = FormatOf(text);
    ASSERT_TRUE(format != nullptr && format->Transponders != nullptr) << file.path();
    const TransponderList list = format->Transponders(text);
    transponders += list.transponders.size();
    unreadable += static_cast<std::size_t>(list.unreadable);
    for (std::size_t at = 0; at != std::string::npos; at = text.find("\n[", at + 1))
      blocks += text.compare(at == 0 ? 0 : at + 1, 1, "[") == 0 ? 1 : 0;
    nowhere += PositionInFileName(file.path().filename().string()) ? 0 : 1;
  }
  EXPECT_EQ(transponders + unreadable, blocks);
  EXPECT_EQ(transponders, 9498U);
  EXPECT_EQ(nowhere, 0U);
}

// That converter reads no names with ":", and writes no channel of DVB-S2 whole.
TEST(RealLists, AConverterReadsTheSameInADvbV5List) {
  const std::string program = Real("usr/bin/dvb-format-convert");
  if (program.empty()) GTEST_SKIP() << "the package dvb-tools is not there";
  std::string list;
  for (int i = 0; i < 200; ++i) {
    constexpr const char* Fecs[] = {"1/2", "2/3", "3/4", "5/6", "7/8", "AUTO"};
    list += "[Canale " + std::to_string(i) + "]\n\tSERVICE_ID = " + std::to_string(1 + i * 300) +
            "\n\tTRANSPORT_ID = " + std::to_string(i) +
            (i % 5 == 0 ? "" : "\n\tVIDEO_PID = " + std::to_string(100 + i)) +
            "\n\tAUDIO_PID = " + std::to_string(4000 + i) +
            " 8000\n\tFREQUENCY = " + std::to_string(10700 + i * 10) +
            "000\n\tMODULATION = QPSK\n\tSYMBOL_RATE = " + std::to_string(22000 + i * 37) +
            "000\n\tINNER_FEC = " + Fecs[i % 6] +
            "\n\tPOLARIZATION = " + (i % 2 == 0 ? "HORIZONTAL" : "VERTICAL") +
            "\n\tDELIVERY_SYSTEM = DVBS\n\n";
  }
  const Tests::TestFolder folder;
  const std::string from = folder.Write("lista.dvb5", list), to = folder.Path("channels.conf");
  const std::string libraries =
      std::filesystem::path(program).parent_path().parent_path().string() + "/lib/x86_64-linux-gnu";
  ASSERT_EQ(std::system(("LD_LIBRARY_PATH='" + libraries + "' '" + program + "' -I DVBV5 -O VDR '" + from +
                         "' '" + to + "' >/dev/null 2>&1")
                            .c_str()),
            0);
  const Texts theirs = ServicesIn<VdrReader>(TextIn(to));
  EXPECT_EQ(theirs.size(), 200U);
  EXPECT_EQ(ServicesIn<DvbV5Reader>(list), theirs);
}

}  // namespace Formats
