#include "formats/list_fields.h"
#include "formats/list_format.h"
#include "formats/scan_table.h"

#include <gtest/gtest.h>

namespace Formats {
namespace {

std::string TransponderText(const ListedTransponder& transponder) {
  const auto number = [](int value) { return value == NotSaid ? "?" : std::to_string(value); };
  std::string text = transponder.position ? PositionText(*transponder.position) : "?";
  text += " " + number(transponder.frequency) +
          std::string(1, "?HVLR"[static_cast<int>(transponder.polarisation)]);
  text += number(transponder.symbolRate) + " ";
  text.append(transponder.fec)
      .append(std::array{" S", " S2", " -"}[static_cast<std::size_t>(transponder.delivery)]);
  text += std::array{"", " QPSK", " other"}[static_cast<std::size_t>(transponder.modulation)];
  return text + " " + number(transponder.nid) + "-" + number(transponder.tid);
}

std::string ServiceText(const ListedService& service) {
  std::string text = std::to_string(service.number) + " " + service.name + ";" + service.provider + " ";
  text += TransponderText(service.transponder) + "-" + std::to_string(service.sid) + " ";
  for (const int pid : {service.vpid, service.apid, service.pcr}) text += std::to_string(pid) + ",";
  text += std::array{"?", "2", "264", "265", "x"}[static_cast<std::size_t>(service.video)];
  text += service.type == 0 ? "?" : std::string(1, service.type);
  for (const int caid : service.caids) text += " " + std::to_string(caid);
  return text + (service.valid ? "" : " not valid");
}

using Texts = std::vector<std::string>;

// Each service of a list, and last how many lines were none, under the format that its content tells.
Texts Services(std::string_view bytes, std::string_view id) {
  const ListText text(bytes);
  const ListFormat* format = FormatOf(text.View());
  if (format == nullptr || format->id != id || format->Services == nullptr)
    return {format == nullptr ? "not recognised" : std::string(format->id)};
  const auto reader = format->Services(text.View());
  Texts texts;
  while (reader->Read()) texts.push_back(ServiceText(reader->Service()));
  texts.push_back(std::to_string(reader->Unreadable()));
  return texts;
}

std::string OrderTextOf(std::string_view bytes) {
  const ListText text(bytes);
  const ListFormat* format = FormatOf(text.View());
  if (format == nullptr || format->OrderOf == nullptr) return "not recognised";
  const Order order = format->OrderOf(text.View());
  return order.name + "/" + WriteOrderText(order).substr(3) + std::to_string(order.unreadable);
}

Texts Transponders(std::string_view bytes, std::string_view id) {
  const ListFormat* format = FormatOf(bytes);
  if (format == nullptr || format->id != id || format->Transponders == nullptr)
    return {format == nullptr ? "not recognised" : std::string(format->id)};
  const TransponderList list = format->Transponders(bytes);
  Texts texts = {list.satellite};
  for (const ListedTransponder& transponder : list.transponders)
    texts.push_back(TransponderText(transponder));
  texts.push_back(std::to_string(list.unreadable));
  return texts;
}

}  // namespace

TEST(ChannelLists, AChannelsConfIsReadFieldByField) {
  EXPECT_EQ(
      Services("\xEF\xBB\xBF# a comment\r\n"
               "Uno, "
               "Due,U;Rai|TV:12187:hC34M2S0:S19.2E:27500:163+1202=2:104=deu@3;106=deu@106:105:1,648,D95:"
               "12003:1:1089:0\r\n"
               ":@201 Citt\xC3\xA0\r\n"
               "\r\n"
               "Citt\xC3\xA0 | \xC2\x86TV\xC2\x87:11766:VC910M5O35S1:S5W:5632:255=27:0;259:0:0:16:1:2\r\n"
               ":@7\n"
               "Radio:10744:lC999M2S0:S0.8W:22000:0:700,701=ita:0:0:9:8:7:0\n"
               "Kabel:394000:M256:C:6900:110=36:120:0:0:1:2:3:0\n"
               "Plain:12000:R:S13E:27500:x:9000:0:XYZ:70000:1::0\n"
               "Short:12000:V:S13E:27500:1:2\n"
               "no channel:at all\n",
               "vdr"),
      (Texts{"1 Uno, Due;Rai:TV 19.2E 12187000H27500000 3/4 S QPSK 1-1089-12003 163,104,1202,2T 1608 3477",
             "201 Citt\xE0 : TV; 5.0W 11766000V5632000 9/10 S2 other 1-2-16 255,0,-1,264T",
             "202 Radio; 0.8W 10744000L22000000  S QPSK 8-7-9 0,700,-1,?R",
             "203 Kabel; ? 394000?6900000  - other 2-3-1 110,120,-1,265T",
             "204 Plain; 13.0E 12000000R27500000  S 1-?--1 -1,0,-1,?? not valid",
             "205 Short; 13.0E 12000000V27500000  S ?-?--1 1,2,-1,?T not valid", "1"}));
}

TEST(ChannelLists, DvbV5BlocksAndTheLineBefore) {
  EXPECT_EQ(
      Services(
          "# scan\n[Uno [a]]\n\tSERVICE_ID = 16\n NETWORK_ID=1\n\tTRANSPORT_ID = 2\n\tVIDEO_PID = 512\n"
          "\tAUDIO_PID = 650 651\n\tPID_06 = 700\n\tFREQUENCY = 11766500\n\tPOLARIZATION = VERTICAL\n"
          "\tSYMBOL_RATE = 27500000\n\tINNER_FEC = 9/10\n\tMODULATION = PSK/8\n\tDELIVERY_SYSTEM = DVBS2\n"
          "\tVCHANNEL = 12\n[Due]\n\tSERVICE_ID = 3\n\tAUDIO_PID = 9999\n\tFREQUENCY = 12000000\n"
          "[no service]\nFREQUENCY = 1\n",
          "dvbv5"),
      (Texts{"12 Uno [a]; ? 11766500V27500000 9/10 S2 other 1-2-16 512,650,-1,?T",
             "0 Due; ? 12000000??  S ?-?-3 0,0,-1,?? not valid", "1"}));
  EXPECT_EQ(
      Services("ZDF:11954:h:0:27500:110:120:28006\nRadio:12000:V:1:22000:0:99:5\r\nbad:12000:x:0:1:2:3:4\n",
               "zap"),
      (Texts{"1 ZDF; ? 11954000H27500000  S ?-?-28006 110,120,-1,?T",
             "2 Radio; ? 12000000V22000000  S ?-?-5 0,99,-1,?R", "1"}));
}

TEST(ChannelLists, BothLamedbsSayTheSame) {
  const Texts expected = {"0 Citt\xE0;Rai 13.0E 11765830V27500000 2/3 S 318-1-8000 512,650,513,?T 1608 1",
                          "7 Due; 5.0W 12000000H22000000  S2 other 2-1-1 -1,-1,-1,264T",
                          "0 Tre; ? ???  - 3-2-2 0,-1,-1,?R",
                          "0 Quattro \"q\"; 0.8W ???  S 4-2-15 -1,-1,-1,?S not valid", "2"};
  const std::string four =
      "eDVB services /4/\ntransponders\n00820000:0001:013e\n\ts 11765830:27500000:1:2:130:2:0\n/\n"
      "0dde0000:0001:0002\n\ts 12000000:22000000:0:0:3550:2:0:1:2:0:2\n/\nffff0000:0002:0003\n\tc "
      "394000:6900000:5:0:0:0\n/\n"
      "odd\n/"
      "\nend\nservices\n1f40:00820000:0001:013e:1:0\nCitt\xC3\xA0\np:Rai,c:000200,c:01028a,c:030201,C:648,C:"
      "0001\n"
      "0001:0dde0000:0001:0002:25:7\nDue\np:\n0002:ffff0000:0002:0003:2:0\nTre\nc:001fff,f:40\n"
      "000f:0e080000:0002:0004:x:0\nQuattro \"q\"\n\nodd\nend\nbehind\n";
  EXPECT_EQ(Services(four, "lamedb"), expected);
  EXPECT_EQ(
      Services("eDVB services /5/\r\n# a comment\r\nt:00820000:0001:013e,s:11765830:27500000:1:2:130:2:0\r\n"
               "t:0dde0000:0001:0002,s:12000000:22000000:0:0:-50:2:0:1:2:0:2\r\nt:ffff0000:0002:0003,c:"
               "394000:6900000:5\r\n"
               "t:odd\r\ns:1f40:00820000:0001:013e:1:0:0,\"Citt\xC3\xA0\",p:Rai,c:000200,c:01028a,c:030201,C:"
               "648,C:0001\r\n"
               "s:0001:0dde0000:0001:0002:25:7:0,\"Due\",p:\r\ns:0002:ffff0000:0002:0003:2:0:0,\"Tre\",c:"
               "001fff,f:40\r\n"
               "s:000f:0e080000:0002:0004:x:0:0,\"Quattro \"q\"\"\r\ns:1:2:3:4:5,no name\r\n",
               "lamedb"),
      expected);
}

TEST(ChannelLists, AnOrderFromAUserbouquetOrAText) {
  EXPECT_EQ(
      OrderTextOf(
          "#NAME Preferiti\r\n#SERVICE 1:0:1:1F40:1:13E:820000:0:0:0:\r\n#DESCRIPTION Citt\xC3\xA0\r\n"
          "#SERVICE 1:64:1:0:0:0:0:0:0:0::Film\n#DESCRIPTION Film\n#SERVICE: 1:0:19:2:3:4:820000:0:0:0:Due:\n"
          "#SERVICE 4097:0:1:1:1:1:0:0:0:0:http%3a//x:Rete\n#SERVICE 1:7:1:0:0:0:0:0:0:0:FROM BOUQUET\n"),
      "Preferiti/;Citt\xC3\xA0;318-1-8000\r\n;Due;4-3-2\r\n2");
  EXPECT_EQ(
      OrderTextOf("# mine\n1;Citt\xE0;318-1-8000\n0x;x;\n ; a;b "
                  ";0x13E-0x1-0X1f40\n3;Tre;\nQuattro\n;;1-2-x\n;;\n;;1-2-3\n4;Nove;\n"),
      "/1;Citt\xC3\xA0;318-1-8000\r\n;a;b;318-1-8000\r\n3;Tre;\r\n;Quattro;\r\n;;1-2-3\r\n4;Nove;\r\n3");
  EXPECT_EQ(OrderTextOf(
                "A:12187:HS0:S19.2E:27500:1:2:0:0:3:4:5:0\n:@9\nB:12187:HS0:S19.2E:27500:1:2:0:0:6:7:8:0\n"),
            "/1;A;4-5-3\r\n9;B;7-8-6\r\n0");
}

TEST(ChannelLists, TranspondersFromIniAndScanTables) {
  EXPECT_EQ(Transponders("[SATTYPE]\n1=3550\n2=Atlantico\n[DVB]\n0=4\n1=11919,V,27500,23,S2,8PSK "
                         "ACM\n2=12000,H,22000,Auto,DVB-S,QPSK\n"
                         "3=3900,L,5632,78\n4=junk\n",
                         "ini"),
            (Texts{"Atlantico", "5.0W 11919000V27500000 2/3 S2 other ?-?",
                   "5.0W 12000000H22000000  S QPSK ?-?", "5.0W 3900000L5632000 7/8 S ?-?", "1"}));
  EXPECT_EQ(Transponders("[CHANNEL]\n\tDELIVERY_SYSTEM = DVBS\n\tFREQUENCY = 10719000\n\tPOLARIZATION = "
                         "RIGHT\n\tINNER_FEC = AUTO\n"
                         "[Rai]\nMODULATION = QAM/AUTO\n[Due]\nFREQUENCY=12000000\n",
                         "scan"),
            (Texts{"", "? 10719000R?  S ?-?", "? 12000000??  S ?-?", "1"}));
  EXPECT_EQ(Transponders("A:12187:HS0:S13E:27500:1:2:0:0:3:4:5:0\nB:12187:HS0:S13E:27500:1:2:0:0:6:4:5:0\n"
                         "C:12187:VS0:S13E:27500:1:2:0:0:6:4:6:0\n",
                         "vdr"),
            (Texts{"", "13.0E 12187000H27500000  S 4-5", "13.0E 12187000V27500000  S 4-6", "0"}));
  EXPECT_EQ(PositionInFileName("Eutelsat5_5.0W"), -50);
  EXPECT_EQ(PositionInFileName("Hispasat-30W-5-30.0W"), -300);
  EXPECT_EQ(PositionInFileName("Hotbird"), std::nullopt);
}

TEST(ChannelLists, TheFormatIsToldByContentAlone) {
  for (const char* text :
       {"", "\n", "SATCODX103HOT BIRD 13E", "Nome;Freq;Pol\nUno;11766;V\n", "un testo\nqualsiasi\n",
        "[CANALI] 0999\n", "eDVB services /3/\n", "[SATELLITE]\nNAME = x\n"})
    EXPECT_EQ(FormatOf(text), nullptr) << text;
  using namespace std::string_view_literals;
  EXPECT_EQ(OrderTextOf("\xFF\xFE\x31\0;\0\xE0\0;\0\r\0\n\0"sv), "/1;\xC3\xA0;\r\n0") << "UTF-16";
  EXPECT_EQ(OrderTextOf("1;a;\r2;b;\r"), "/1;a;\r\n2;b;\r\n0") << "lines that end with CR alone";
}

}  // namespace Formats
