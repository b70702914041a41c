// Writes the inputs that fuzzing starts from, a folder for each target: make_seeds SAMPLES_FOLDER OUTPUT_FOLDER
#include "base/code_page.h"
#include "base/file.h"
#include "demo_sdx.h"
#include "formats/csv_format.h"
#include "formats/fls_format.h"
#include "formats/text_format.h"
#include "hostile_flash.h"
#include "recovery_file.h"

#include <cstdio>
#include <filesystem>

namespace {

using namespace Fuzz;
using namespace Routines;

class Seeds {
 public:
  explicit Seeds(std::string folder) : folder_(std::move(folder)) {}

  void Add(const std::string& target, const std::string& name, std::string_view bytes) {
    std::filesystem::create_directories(folder_ + "/" + target);
    const auto written = Base::ReplaceFile(folder_ + "/" + target + "/" + name, Base::AsBytes(bytes));
    if (!written) failure_ = written.error().message;
  }

  [[nodiscard]] const std::string& Failure() const { return failure_; }

 private:
  std::string folder_;
  std::string failure_;
};

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values) bytes += static_cast<char>(value);
  return bytes;
}

std::string Repeated(std::string_view text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

struct Image {
  const char* name;
  std::string bytes;  // a beginning, and steps
};

std::vector<Image> Images() {
  const auto begin = [](Beginning beginning) { return Bytes({static_cast<int>(beginning)}); };
  const std::string channel =
      "Rete nuova" + Bytes({0, 0, 0, 0, 0, 0, 4, 9, 2, 0, 2, 1, 2, 2, 255, 255, 255, 255, 2, 1});
  const std::string transponder = Bytes({0x4B, 0x9A, 0xCA, 0, 1, 2, 3, 4, 5, 3, 2, 10});
  const std::string demo = begin(Beginning::Demo);
  const std::string copies = begin(Beginning::TwoCopies);
  const std::string entry = begin(Beginning::Junk) + StepBytes(Step::Directory, 1, 0, 16);
  return {
      {"demo", demo},
      {"copies", copies},
      {"channels", entry + StepBytes(Step::Length, 1, 0, 3000) + StepBytes(Step::Fill, 1, 0, 0, channel)},
      {"transponders",
       entry + StepBytes(Step::Length, 1, 0, 360) + StepBytes(Step::Fill, 1, 0, 1, transponder)},
      {"favourites", entry + StepBytes(Step::Length, 1, 0, 2600) +
                         StepBytes(Step::Fill, 1, 0, 2, Bytes({0, 5, 1, 2})) +
                         StepBytes(Step::Put, 1, 0, 40, "config.pre")},
      {"too-long", demo + StepBytes(Step::Length, 1, 1, 65535) + StepBytes(Step::Length, 4, 2, 65535)},
      {"at-the-end",
       demo + StepBytes(Step::Directory, 1, 1, 65500) + StepBytes(Step::Directory, 3, 0, 65501)},
      {"overlapping",
       copies + StepBytes(Step::Directory, 0, 1, 600) + StepBytes(Step::Fill, 0, 1, 0, channel)},
      {"same-place", copies + StepBytes(Step::Directory, 0, 7, 16) + StepBytes(Step::Directory, 2, 0, 4000)},
      {"in-the-directory", demo + StepBytes(Step::Directory, 1, 1, 4) + StepBytes(Step::Length, 1, 1, 90)},
      {"config-in-a-channel",
       copies + StepBytes(Step::Put, 2, 5, 36, "config.pre") + StepBytes(Step::Fill, 2, 5, 2, "")},
      {"short-favourites", demo + StepBytes(Step::Length, 6, 0, 760)},
  };
}

// The images for each target, behind the choices that it takes first.
void AddImages(Seeds& seeds) {
  int number = 0;
  for (const Image& image : Images()) {
    ++number;
    seeds.Add("flash_load", image.name, Bytes({number}) + image.bytes);
    seeds.Add("flash_append", image.name, Bytes({number, number / 3}) + image.bytes);
    seeds.Add("flash_rows", image.name, Bytes({20 * number}) + image.bytes);
    seeds.Add("flash_write", image.name,
              Bytes({number, 20 * number, 0xB8, 0x09, 0x9C, 0x0F, number, 16 * number}) + image.bytes);
  }
}

// The demo list's beginning, short enough for an input.
State ShortList() {
  State state = *DemoList();
  state.ChannelCount = state.MaxChannels = 25;
  state.TransponderCount = 14;
  return state;
}

std::string FlsRecord(std::string text) {
  text.resize(30, ' ');
  return text;
}

// Two records of the file can be repeated: how many stand before each, and its copies.
std::string FlsFile(const State& state) {
  return Bytes({0, 0, 1, 0, 0, 0, 1, 0}).append(Base::AsText(Formats::WriteFls(state)));
}

void AddExchangeFiles(Seeds& seeds) {
  State state = ShortList();
  const std::string text = Formats::WriteText(state);
  seeds.Add("text_import", "list", text);
  seeds.Add("text_import", "long-favourites",
            "[CANALI] 2\n0001 Uno\n[END CANALI]\n[TRANSPONDERS] 9\n[END TRANSPONDERS]\n[PREFERITI]\n00|\n" +
                Repeated("0001\n", 140) + "[END PREFERITI]\n");
  seeds.Add("text_import", "utf-8", "\xEF\xBB\xBF" + Base::ToUtf8(text));
  seeds.Add("fls_import", "too-many",
            Bytes({1, 0, 0xA0, 0x0F, 1, 0, 0x2C, 1}) + FlsRecord("[CANALI] 4000") + FlsRecord("Rete") +
                FlsRecord("[TRANSPONDERS] 300") + FlsRecord("tttttttttttt") + FlsRecord("[PREFERITI] 0040") +
                FlsRecord("ff"));
  seeds.Add("fls_import", "list", FlsFile(state));
  state.FavouritesBlock.resize(300);
  seeds.Add("fls_import", "short-favourites", FlsFile(state));
  state.FavouritesBlock.clear();
  seeds.Add("text_import", "no-favourites", Formats::WriteText(state));
  seeds.Add("fls_import", "no-favourites", FlsFile(state));
}

std::string Sample(const std::string& path) {
  const auto bytes = Base::ReadFile(path, 1U << 20U);
  return bytes ? std::string(Base::AsText(*bytes)) : std::string();
}

// Behind what to paste where and the byte of the header to spoil.
void AddRecovery(Seeds& seeds) {
  State state = ShortList();
  state.FavouritesBlock.resize(600);
  Edit::Clipboard clipboard = Edit::CopyChannels(state, {3, 4, 5});
  const auto add = [&](const char* name, int paste, int spoilt) {
    const Base::Bytes file = Edit::EncodeRecovery(state, clipboard, {2, 1, 0});
    const std::string_view behind = Base::AsText(file).substr(RecoveryHeader + RecoveryTables);
    seeds.Add("recovery", name, Bytes({paste, spoilt}).append(behind));
  };
  add("copied", 140, 255);
  add("damaged", 0, 25);
  Edit::CutChannels(state, {3, 4, 5}, clipboard);
  add("cut", 10, 255);
  state.ListNumber = 7;
  add("another-list", 0, 255);
}

// A satellite, a separator, the number of choices and those, then the list.
void AddForeign(Seeds& seeds, const std::string& samples) {
  const std::string list = Sample(samples + "/demo.csv").substr(0, 1500);
  const std::string columns =
      "Uno       11766 V 27500 3/4 0200\nDue       12500 H 22000 5/6 1FFF\nTre       10992 H 27500 2/3 "
      "00A0\n";
  seeds.Add("foreign_list", "sample", Bytes({0, 1, 0}) + list);
  seeds.Add("foreign_list", "changed", Bytes({1, 5, 9, 1, 1, 3, 10, 12, 6, 0, 1, 1}) + list);
  seeds.Add("foreign_list", "columns", Bytes({2, 4, 0}) + columns);
  seeds.Add("foreign_list", "quotes",
            Bytes({3, 2, 0}) + "\"Uno; \"\"1\"\"\";\"11,766\";V;0x1F\n\"Due;12.5;H;$20\n");
  seeds.Add("foreign_list", "utf-16",
            Bytes({0, 0, 0, 0xFF, 0xFE, 'a', 0, '\t', 0, '1', 0, '\n', 0, 0xAC, 0x20}));
}

// Behind five bytes of options where a list has services.
void AddListed(Seeds& seeds) {
  const std::string channels =
      "Uno,U;Rai:11766:VC34M2S0:S13E:27500:163+1202=2:650=ita@3;652:577:1,648,D95:12003:1:89:0\n:@201 "
      "Gruppo\n"
      "Citt\xC3\xA0:12187:HC23M5O35P0S1:S19.2E:22000:5101=27:0;5106=deu@106:0:0:3:1:1:0\n"
      "Radio:10719:L:S5W:5632:0:652:0:0:4435:0:65535:0\nCavo:394:M256:C:6900:1:2:0:0:7:1:1:0\n";
  const std::string blocks =
      "[Uno]\n\tSERVICE_ID = 16\n\tNETWORK_ID = 1\n\tVIDEO_PID = 512\n\tAUDIO_PID = 650 651\n\tFREQUENCY = "
      "11766500\n"
      "\tPOLARIZATION = VERTICAL\n\tSYMBOL_RATE = 27500000\n\tINNER_FEC = 3/4\n\tDELIVERY_SYSTEM = "
      "DVBS\n[CHANNEL]\n"
      "\tFREQUENCY = 12000000\n\tPOLARIZATION = LEFT\n";
  const std::string services =
      "eDVB services /4/\ntransponders\n00820000:0001:013e\n\ts "
      "11766000:27500000:1:3:130:2:0\n/\nend\nservices\n"
      "1f40:00820000:0001:013e:1:0\nUno\np:Rai,c:000200,c:01028a,c:030201,C:0648\nend\n";
  const std::string lines =
      "eDVB services /5/\nt:00820000:0001:013e,s:11766000:27500000:1:3:-50:2:0:1:2:0:2\n"
      "s:1f40:00820000:0001:013e:25:7:0,\"Uno\",p:Rai,c:000200,c:050001\ns:2:0dde0000:1:2:2:0:0,\"Due\",p:,c:"
      "01028a\n";
  const std::string table = "[SATTYPE]\n1=0130\n2=Hot Bird\n[DVB]\n0=1\n1=11919,V,27500,23,S2,8PSK\n";
  const std::string bouquet =
      "#NAME Mio\n#SERVICE 1:0:1:1F40:1:13E:820000:0:0:0:\n#DESCRIPTION Uno\n#SERVICE "
      "1:64:1:0:0:0:0:0:0:0::Film\n";
  const std::string order = "1;Uno;318-1-8000\n;Due;0x13E-0x1-0x1F41\nTre\n";
  const std::string options = Bytes({0x34, 3, 0, 1, 2});
  seeds.Add("vdr_channels", "channels", options + channels);
  seeds.Add("dvbv5", "blocks", options + blocks);
  seeds.Add("dvbv5", "zap", Bytes({0x80, 0, 0, 0, 0}) + "ZDF:11954:h:0:27500:110:120:28006\n");
  seeds.Add("lamedb", "four", options + services);
  seeds.Add("lamedb", "five", options + lines);
  seeds.Add("scan_table", "ini", table);
  seeds.Add("scan_table", "name", "Hotbird-13.0E");
  seeds.Add("userbouquet", "bouquet", bouquet);
  seeds.Add("order_text", "order", order);
  seeds.Add("csv_channels", "list", Formats::WriteChannelsCsv(ShortList(), {1, 2, 3, 4, 5, 6, 7, 8}));
  int number = 0;
  for (const std::string& list : {channels, blocks, services, lines, table, bouquet, order})
    seeds.Add("list_format", std::to_string(++number), list);
}

// Behind the choices, the satellite and the transponders.
void AddSatcodx(Seeds& seeds) {
  const std::string list = Samples::DemoSdx().substr(0, 20 * 129);
  seeds.Add("satcodx", "all", Bytes({0, 1, 120}) + list);
  seeds.Add("satcodx", "some-codes", Bytes({0x28, 0, 3}) + list);
  seeds.Add("satcodx", "filters", Bytes({0xC0, 3, 254}) + "512 4435\n00650 00512\r\n" + list);
  std::string download = list;
  std::erase(download, '\n');
  seeds.Add("satcodx", "download", Bytes({0, 0, 20}) + download);
}

void AddSupportFiles(Seeds& seeds, const std::string& samples) {
  seeds.Add("bouquets_txt", "sample", Sample(samples + "/Bouquets.txt").substr(0, 3000));
  seeds.Add("bouquets_txt", "odd", "#\r\nx,1e400,3\nUno,SAT=a\nDue,SAT=Z\r\n ,nan,\r\nTre,SAT=5\n,,,\n\n");
  seeds.Add("bouquets_txt", "too-many", Repeated("s,SAT=C\n", 30) + Repeated(",,\n", 300));
  seeds.Add("sr_ini", "sample", Sample(samples + "/SR.INI"));
  seeds.Add("sr_ini", "odd", "INPUT\n1 =9\n0:=22000\r\n15=2750012\n\n 07= 0\nOUTPUT\n16=1\n");
  const std::string path = "/home/anna/flash/lista.dat";
  seeds.Add("pos_ini", "sample",
            Bytes({2, static_cast<int>(path.size())}) + path + "0:/uno\r\n1:C:\\due  \r\n2:\r\n");
  seeds.Add("sdx_ini", "sample", Sample(samples + "/SDX.INI"));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("make_seeds SAMPLES_FOLDER OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  Seeds seeds(argv[2]);
  AddImages(seeds);
  AddExchangeFiles(seeds);
  AddRecovery(seeds);
  AddForeign(seeds, argv[1]);
  AddListed(seeds);
  AddSatcodx(seeds);
  AddSupportFiles(seeds, argv[1]);
  if (!seeds.Failure().empty()) std::fprintf(stderr, "%s\n", seeds.Failure().c_str());
  return seeds.Failure().empty() ? 0 : 1;
}
