#include "formats/foreign_list.h"

#include "formats/foreign_fields.h"
#include "formats/foreign_text.h"
#include "formats/row_text.h"

#include <gtest/gtest.h>

namespace Formats {
namespace {

// The first row that a text gives when it is laid out as it seems to be.
SdxRow FirstRow(std::string_view text, ForeignLayout* guessed = nullptr) {
  const ForeignLayout layout = GuessForeign(SampleOf(text));
  if (guessed != nullptr) *guessed = layout;
  const SdxTable list = ReadForeign(text, layout, 2);
  EXPECT_FALSE(list.rows.empty()) << text << list.dropped.Text();
  return list.rows.empty() ? SdxRow{} : list.rows[0];
}

std::vector<std::string> Fields(std::string_view line, Separator separator) {
  ForeignLayout layout;
  layout.separator = separator;
  std::vector<std::string> fields;
  SplitForeign(line, layout, fields);
  return fields;
}

}  // namespace

TEST(ForeignText, AnyEncodingBecomesLinesOfTheCodePage) {
  const auto decoded = [](std::string_view bytes) {
    const auto text = DecodeForeign(bytes, "lista");
    return text ? std::string(text->encoding) + ":" + text->text : text.error().message;
  };
  using namespace std::string_view_literals;
  EXPECT_EQ(decoded("Citt\xE0\r\nb\r\n"), "Windows-1252:Citt\xE0\nb\n");
  EXPECT_EQ(decoded("Citt\xC3\xA0 \xF0\x9F\x93\xBA\rb"), "UTF-8:Citt\xE0 ?\nb");
  EXPECT_EQ(decoded("\xFF\xFE\xAC\x20\x3D\xD8\xFA\xDC\x0A\x00\x62"sv), "UTF-16:\x80?\n");
  EXPECT_EQ(decoded("\xFE\xFF\x00\x61"sv), "UTF-16:a");
  EXPECT_EQ(decoded(""), "lista è vuoto");
  EXPECT_EQ(decoded("\xEF\xBB\xBF \r\n"), "lista è vuoto");
  EXPECT_EQ(decoded("testo\0e altro"sv), "lista non è un file di testo");
  EXPECT_EQ(decoded("\x01\x02\x03 abc"), "lista non è un file di testo");
}

TEST(ForeignLayout, IsGuessedFromTheFile) {
  ForeignLayout layout;
  EXPECT_EQ(RowText(FirstRow("Nome;Frequenza (MHz);Pol;SR;FEC;V-PID;APID;SID;TSID;Tipo\n"
                             "\"Uno; \"\"Due\"\"\";11,766;V;27500;3/4;0200;028A;1F41;4B0;TV\n"
                             "Tre;11.766;H;27500;3/4;A1;0;11;12;Radio\n",
                             &layout)),
            "Uno; \"Due\" TC 011766V+ 27500 3 512 650 65535 8001 0 01200 4");
  EXPECT_TRUE(layout.header);
  EXPECT_TRUE(layout.columns[5].hexadecimal);
  EXPECT_FALSE(layout.columns[1].hexadecimal);

  EXPECT_EQ(RowText(FirstRow("SAT1\t11766000\tO\t22000\tRai Uno\nSAT1\t12092000\tV\t22000\tLa 7\n", &layout)),
            "Rai Uno TC 011766H+ 22000  65535 65535 65535 0 0 00000 4");
  EXPECT_FALSE(layout.header);

  EXPECT_EQ(RowText(FirstRow("Rai Uno         11766 V 27500  34\n"
                             "La 7, Roma      12092 H 27500  34\n"
                             "Rete Quattro HD 12092 H  5632  23\n")),
            "Rai Uno TC 011766V+ 27500 3 65535 65535 65535 0 0 00000 4");
  EXPECT_EQ(RowText(FirstRow("Uno 11766 V 27500 3/4\nDieci 12092 H 27500 5/6\n")),
            "Uno TC 011766V+ 27500 3 65535 65535 65535 0 0 00000 4");
}

TEST(ForeignLayout, AStrangeLineIsCutAndNotMisread) {
  EXPECT_EQ(Fields("\"a;b\" ; c;\"\"\"d\"\"\"", Separator::Semicolon),
            (std::vector<std::string>{"a;b", "c", "\"d\""}));
  EXPECT_EQ(Fields("\"a;b", Separator::Semicolon), (std::vector<std::string>{"\"a", "b"}))
      << "no second mark";
  EXPECT_EQ(Fields("\"a\" b;c", Separator::Semicolon), (std::vector<std::string>{"\"a\" b", "c"}));
  EXPECT_EQ(Fields("  a \t b ", Separator::Blanks), (std::vector<std::string>{"a", "b"}));
  std::string wide;
  for (int i = 0; i < 10000; ++i) wide += "11766;";
  EXPECT_EQ(GuessForeign(SampleOf(wide + "\n" + wide)).columns.size(), MostForeignColumns);
  ForeignLayout fixed;
  fixed.separator = Separator::Columns;
  fixed.starts = {0, 4, 9000};
  std::vector<std::string> fields;
  SplitForeign("abc d", fixed, fields);
  EXPECT_EQ(fields, (std::vector<std::string>{"abc", "d", ""}));
}

TEST(ForeignLayout, AChoiceHoldsForTheNextFileOfTheSameShape) {
  ForeignLayout chosen = GuessForeign(SampleOf("Name,Freq,X\nUno,11766,5\nDue,12092,6\n"));
  chosen.columns[2].meaning = Meaning::Sid;
  chosen.columns[2].hexadecimal = true;
  const auto moved = Reapplied(chosen, SampleOf("X,Name,Freq\n1F,Uno,11766\n"));
  ASSERT_TRUE(moved);
  EXPECT_EQ(moved->columns[0].meaning, Meaning::Sid) << "by its title";
  EXPECT_TRUE(moved->columns[0].hexadecimal);
  EXPECT_EQ(Reapplied(chosen, SampleOf("A,B,C\nUno,11766,5\n"))->columns[0].meaning, Meaning::Name)
      << "by place";
  EXPECT_FALSE(Reapplied(chosen, SampleOf("A,B\nUno,11766\n")));
  EXPECT_FALSE(Reapplied(chosen, SampleOf("Freq,Nome,Y\n11766,Uno,5\n"))) << "titles that name other columns";
  EXPECT_FALSE(Reapplied(chosen, SampleOf("Uno,11766,5\nDue,12092,6\n"))->header);

  const ForeignLayout fixed = GuessForeign(SampleOf("Uno   11766 V\nDue   12092 H\nTre   11804 V\n"));
  ASSERT_EQ(fixed.separator, Separator::Columns);
  EXPECT_FALSE(Reapplied(fixed, SampleOf("Uno;11766;V\nDue;12092;H\nTre;11804;V\n")));
  const auto wider = Reapplied(fixed, SampleOf("Quattro 11766 V\nCinque  12092 H\nSei     11804 V\n"));
  ASSERT_TRUE(wider);
  EXPECT_EQ(wider->starts, (std::vector<std::size_t>{0, 8, 14}));
}

TEST(ForeignFields, EachWayOfWriting) {
  for (const char* text :
       {"11766", "11766000", "11766000000", "11,766", "11.766", "11.766.000", "11766,4 MHz", "11766 V"})
    EXPECT_EQ(MegahertzIn(text), 11766) << text;
  for (const char* text : {"", "1.2", "12", "1176", "99999999999999999999", "11766x", "3800", "."})
    EXPECT_EQ(MegahertzIn(text), std::nullopt) << text;
  EXPECT_EQ(std::tuple(SymbolRateIn("27.500"), SymbolRateIn("27500000"), SymbolRateIn("27")),
            std::tuple(27500, 27500, std::nullopt));
  EXPECT_EQ(FecDigitIn("3/4") + FecDigitIn("56") + FecDigitIn("7") + FecDigitIn("4") + FecDigitIn("9/10"),
            "357");
  for (const auto& [text, number] :
       {std::pair{"$1F", 31}, {"1Fh", 31}, {"650, 651", 650}, {"650x", -1}, {"70000", -1}})
    EXPECT_EQ(NumberIn(text, false).value_or(-1), number) << text;
  for (const auto& [text, code] :
       {std::pair{"Seca 2", 0x24}, {"0x0500", 0xA4}, {"FTA", 0x04}, {"qualcosa", -1}})
    EXPECT_EQ(CodificaIn(text, false).value_or(-1), code) << text;
  EXPECT_EQ(CodificaIn("A4", true), 0xA4);
}

TEST(ForeignList, EachDroppedLineHasItsReason) {
  const std::string text =
      "Nome;Freq;Pol;SR;VPID;APID;SID;Tipo;Codifica\nUno;11766;V;5632;512;8191;1;1;Nagra\n\n;11766;V;;;;;;"
      "\nDue;-;V;;;;;;\nTre;12;V;;;;;;\nQuattro;11766;?;;;;;;\n"
      "Cinque;11766;V;x;;;;;\nSei;11766;V;;;;70000;;\nSette\nOtto\x01;11766;1;;600;601;;Radio;?\n";
  const SdxTable list = ReadForeign(text, GuessForeign(SampleOf(text)), 3);
  EXPECT_EQ(list.lines, 9);
  EXPECT_EQ(list.lacking, (SdxFields{SdxField::Fec, SdxField::Pcr, SdxField::Tid, SdxField::Nid}));
  EXPECT_EQ(list.dropped.Text(),
            "senza nome 1, senza frequenza 2, frequenza non valida 1, polarizzazione non valida 1, numero "
            "non valido 2");
  EXPECT_EQ(Texts(list.rows),
            (std::vector<std::string>{R"(Uno TD 011766V+ 5632\  512 65535 65535 1 0 00000 68)",
                                      "Otto  RD 011766H+   65535 601 65535 0 0 00000 4"}));
}

}  // namespace Formats
