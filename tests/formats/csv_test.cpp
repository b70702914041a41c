// Lists for spreadsheets.
#include "core_test.h"
#include "formats/csv_format.h"

namespace Formats {

TEST(Csv, FieldsStayOneTextWhateverTheyHold) {
  auto state = std::make_unique<Routines::State>();
  state->ChannelCount = 9;
  state->TransponderCount = 2;
  state->SymbolRateTable = "27000,22000,";
  state->Transponder(2).record = Samples::MakeTransponder(11013, true, 1, 1, 2, 318, 10);
  state->Transponder(2).SetBouquet("Reti; \"Citt\xE0\"", "01");
  const char* names[] = {"Citt\xE0 ", "", "=1+1", " @a", "a;\"b\"", "a\r\nb", "24/7", "105"};
  for (std::size_t i = 0; i < std::size(names); ++i)
    state->Channel(i + 1) = Samples::MakeChannel(names[i], i == 0 ? 2 : 1, 7, 512, 65535, 0xA4);
  const std::string details = ";001;7;512;65535;65535;65535;512;A4;S;;;;;;;;\r\n";
  const std::string header =
      "\xEF\xBB\xBFProg.;Canale;Transponder;SID;VPID;APID;AECM;VECM;PCR;Codifica;Attivo;"
      "Frequenza;Pol;SR;FEC;Satellite;Bouquet;TID;NID\r\n";
  const std::string first =
      "0001;Città;002;7;512;65535;65535;65535;512;A4;S;11013;H;22000;3⁄4;SAT B;\"Reti; "
      "\"\"Città\"\"\";318;10\r\n";
  EXPECT_EQ(WriteChannelsCsv(*state, {1, 2, 3, 4, 5, 6, 7, 8, 9}),
            header + first + "0003;'=1+1" + details + "0004;' @a" + details + "0005;\"a;\"\"b\"\"\"" +
                details + "0006;a  b" + details + "0007;'24/7" + details + "0008;105" + details);
  EXPECT_EQ(WriteChannelsCsv(*state, {1, 2}), header + first);
  EXPECT_EQ(WriteTranspondersCsv(*state, {1, 2}),
            "\xEF\xBB\xBFNum.;Frequenza;TID;NID;Canali;SR;FEC;Polarizzazione;22KHz;Satellite;Bouquet\r\n"
            "002;11013;318;10;0;22000;3⁄4;H;Off;SAT B;\"Reti; \"\"Città\"\"\"\r\n");
}

}  // namespace Formats
