#include "full_list.h"

#include "base/columns.h"
#include "base/text.h"
#include "image_builder.h"
#include "model/favourites.h"
#include "model/flash_loader.h"
#include "support/bouquets_txt.h"
#include "support/sr_ini.h"

namespace Bench {

using namespace Routines;

namespace {

constexpr int FirstSection = 2182;  // as many as a sector has room for

// Services of every kind, some switched off, on all transponders.
std::vector<ChannelRecord> ChannelRecords(int first, int last) {
  std::vector<ChannelRecord> records;
  for (int number = first; number <= last; ++number) {
    const int vpid = number % 5 == 0 ? static_cast<int>(AbsentPid) : 100 + number % 4000;
    records.push_back(Samples::MakeChannel("Canale " + Base::ZeroPadded(number, 4), number % Transponders + 1,
                                           number, vpid, 200 + number % 4000, number % 7 == 0 ? 0 : 4));
  }
  return records;
}

Base::Bytes FavouritesBlock() {
  Base::Bytes block(NormalFavouritesSize);
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    std::vector<int> slots;
    for (int entry = 0; entry < static_cast<int>(FavouriteEntries); ++entry) {
      slots.push_back((entry * 31 + static_cast<int>(list)) % Channels + 1);
    }
    SetFavouriteEntries(block, list, std::move(slots));
    SetFavouriteName(block, list, "Lista " + std::to_string(list + 1));
  }
  return block;
}

}  // namespace

Base::Bytes Image() {
  std::vector<TransponderRecord> transponders;
  for (int i = 0; i < Transponders; ++i) {
    transponders.push_back(Samples::MakeTransponder(10700 + i * 8, i % 2 == 0, i % 3, 1, 2, i, i));
  }
  Samples::ImageBuilder builder(1);
  builder.PutRecords(1, 0, 16, "TCS", ChannelRecords(1, FirstSection));
  builder.PutRecords(2, 0, 16, "TCS", ChannelRecords(FirstSection + 1, Channels));
  builder.PutRecords(3, 0, 16, "TPT", transponders);
  builder.PutFavourites(4, 0, 16, FavouritesBlock(), 0);
  return builder.Image();
}

const BouquetTables& Bouquets() {
  static const BouquetTables tables = Support::LoadBouquets(SAMPLES_FOLDER).tables;
  return tables;
}

std::unique_ptr<State> List() {
  auto state = std::make_unique<State>();
  state->SymbolRateTable = Support::CaricaTabelleSR(SAMPLES_FOLDER, Sr22000::Come2)->table;
  LoadFlash(*state, Image(), Channels, 0, Bouquets());
  return state;
}

std::string SatcodxText() {
  std::string text;
  for (int number = 0; number < 100000; ++number) {
    // A service that is not taken is of a kind, a rate or a code that nobody asked for.
    const int reason = number % 25 == 0 ? 0 : number % 3 + 1;
    text.append("SATCODX103HOT BIRD 13E      ").append(reason == 1 ? "D" : "T").append("MPG20");
    text += std::to_string(10700 + number % Transponders * 8) + "000" + (number % 2 == 0 ? "1" : "0");
    text += "Canale " + std::to_string(number % 10) + std::string(18, ' ');
    text.append(reason == 2 ? "05632" : "27500")
        .append("3016000800160")
        .append(Base::ZeroPadded(number % 65535, 5));
    text.append("0031800200         ").append(reason == 3 ? "IRDT" : "____").append("seconda     \r\n");
  }
  return text;
}

std::string ChannelsConf() {
  constexpr const char* Sources[] = {":S13E", ":S19.2E", ":S28.2E", ":S5W"};
  std::string text;
  for (int number = 0; number < 100000; ++number) {
    const int transponder = number / 10;
    const bool second = transponder / 4 % 5 < 3;
    text += "Canale " + std::to_string(number) + ";Rete:" + std::to_string(10700 + transponder % 250 * 8);
    text.append(second ? ":HC23M5O35S1" : ":VC34M2O35S0").append(Sources[transponder % 4]);
    text += ":27500:" + std::to_string(512 + number % 7000) + (second ? "=27:" : "=2:");
    text += "650=ita@3,651=eng@3;655=ita@106:577;578=ita:";
    text += std::string(number % 10 < 4 ? "0" : "1833,1801") + ":" + std::to_string(number % 65535) + ":318:";
    text += std::to_string(transponder) + ":0\n";
  }
  return text;
}

std::string LamedbText() {
  const auto hex = [](int value) { return Base::HexByte(value >> 8 & 0xFF) + Base::HexByte(value & 0xFF); };
  std::string transponders = "eDVB services /4/\ntransponders\n", services = "end\nservices\n";
  for (int sid = 0; sid < LamedbServices; ++sid) {
    const std::string tid = hex(sid / 20);
    if (sid % 20 == 0)
      transponders += "00820000:" + tid + ":013e\n\ts " + std::to_string(10700000 + sid / 20 % 250 * 8000) +
                      ":27500000:1:3:130:2:0\n/\n";
    services += hex(sid) + ":00820000:" + tid + ":013e:1:0\nCanale " + std::to_string(sid) + "\np:Rete,c:00" +
                hex(512 + sid % 7000) + ",c:01028a,c:020241,c:03" + hex(512 + sid % 7000) + ",C:0648,f:40\n";
  }
  return transponders + services + "end\n";
}

}  // namespace Bench
