// Printed pages: their text is taken out again, and they are looked at as pictures.
#include "image_builder.h"
#include "ui/files/print_report.h"
#include "ui/kit/text.h"
#include "ui/list/list_model.h"
#include "ui/window_fixture.h"

namespace Ui {
namespace {

QByteArray Run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << qPrintable(program);
  return process.readAllStandardOutput();
}

// The lines of each page of a PDF.
std::vector<QStringList> PagesIn(const std::string& path) {
  QStringList pages = QString::fromUtf8(Run("pdftotext", {"-layout", PathText(path), "-"})).split('\f');
  pages.removeLast();
  std::vector<QStringList> lines;
  for (const QString& page : pages) lines.push_back(page.split('\n', Qt::SkipEmptyParts));
  return lines;
}

// Where the first page has ink, in millimetres of its width and height.
QRectF InkOf(const std::string& path) {
  const QImage page =
      QImage::fromData(Run("pdftoppm", {"-r", "127", "-gray", "-f", "1", "-l", "1", PathText(path)}));
  const QRect ink = QRegion(QBitmap::fromImage(page, Qt::MonoOnly | Qt::ThresholdDither)).boundingRect();
  return {ink.x() / 5.0, ink.y() / 5.0, ink.width() / 5.0, ink.height() / 5.0};
}

}  // namespace

TEST(Printing, EveryRowIsOnItsPageWhateverThePaper) {
  Document document;
  document.Adjust([](Routines::State& state) {
    state.ChannelCount = 200;
    for (int slot = 2; slot <= 200; ++slot)
      state.Channel(slot) = Samples::MakeChannel("\x07\tCitt\xE0 " + std::to_string(slot), 1, 7, 65535, 9);
  });
  const ListModel model(document, ListModel::Channels, nullptr);
  const PrintReport report = ReportOf(model, Edit::SlotRun(1, 200), QString(200, 'M'));
  const Tests::TestFolder folder;
  const std::string path = folder.Path("lista.pdf");
  for (const auto& [paper, way] :
       {std::pair{QPageSize::A4, QPageLayout::Portrait}, {QPageSize::A6, QPageLayout::Landscape}}) {
    const QPageLayout layout(QPageSize(paper), way, QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter);
    EXPECT_EQ(*SavePdf(report, path, layout), 200 / 64 + 1);
    QStringList rows;
    for (const QStringList& lines : PagesIn(path)) {
      EXPECT_TRUE(lines[0].startsWith("MMM") && lines[0].contains(" Pagina ")) << qPrintable(lines[0]);
      EXPECT_EQ(lines[1].simplified(), report.titles.simplified());
      rows += lines.mid(2);
    }
    ASSERT_EQ(rows.size(), 200);
    EXPECT_EQ(rows[0].simplified().toStdString(), "0001") << "an empty slot has its line";
    EXPECT_EQ(rows[199].simplified().toStdString(), "0200 Città 200 001 7 65535 9 65535 65535 65535 04 S");
    const QRectF area = layout.paintRect(QPageLayout::Millimeter);
    EXPECT_TRUE(area.adjusted(-1, -1, 1, 1).contains(InkOf(path))) << paper;
    EXPECT_GT(InkOf(path).height(), 0.9 * area.height());
  }
  QPageRanges second;
  second.addPage(2);
  ASSERT_TRUE(SavePdf(report, path, UsualPage(), second));
  EXPECT_TRUE(PagesIn(path).size() == 1 && PagesIn(path)[0][0].endsWith("Pagina 2 di 4"));
}

TEST(Printing, ACompactListTakesFewPagesAndReadsDownItsColumns) {
  Document document;
  document.Adjust([](Routines::State& state) {
    state.ChannelCount = Routines::LastChannelSlot;
    for (int slot = 1; slot <= state.ChannelCount; ++slot)
      state.Channel(slot) = Samples::MakeChannel("Sedici lettere %", 1, 7, 8, 9);
    Routines::SetFavouriteEntries(state.FavouritesBlock = Base::Bytes(Routines::NormalFavouritesSize), 3,
                                  {7, 5000, 12});
  });
  const ListModel model(document, ListModel::Channels, nullptr);
  const Tests::TestFolder folder;
  const std::string path = folder.Path("lista.pdf");
  const PrintReport report = CompactReportOf(model, Edit::SlotRun(1, 3996), "Canali - lista.dat");
  EXPECT_LE(*SavePdf(report, path), 12);
  const auto pages = PagesIn(path);
  EXPECT_TRUE(pages[0][0].contains(QDate::currentDate().toString("dd/MM/yyyy"))) << qPrintable(pages[0][0]);
  QStringList seen;
  for (const QStringList& page : pages)
    for (int column = 0; column < 5; ++column)
      for (const QString& line : page.mid(2))
        if (const QString cell = line.simplified().section(" %", column, column); !cell.isEmpty())
          seen += cell.trimmed().left(4);
  ASSERT_EQ(seen.size(), 3996);
  EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end())) << "down one column, then the next";
  ASSERT_TRUE(SavePdf(FavouritesReportOf(document.Tables(), "Preferiti"), path));
  QStringList lists;
  for (const QString& line : PagesIn(path)[0].mid(2)) lists += line.simplified();
  EXPECT_EQ(lists, (QStringList{"Lista 4: lista 4 (3)", "1 0007 Sedici lettere %", "2 5000",
                                "3 0012 Sedici lettere %"}));
}

class PrintingWindow : public SmallWindow {
 protected:
  // Saves the preview as a PDF.
  void ExpectPdf(const QString& title) {
    std::filesystem::remove(pdf_);
    driver_->ExpectDialog(title,
                          [](QDialog& preview) { preview.findChild<QAction*>("SalvaPdf")->trigger(); });
    driver_->ExpectFile("Salva la stampa come PDF", PathText(pdf_));
  }
  // The lines of its first page but for the heading and the titles.
  [[nodiscard]] QStringList Rows() const { return PagesIn(pdf_).at(0).mid(2); }

  std::string pdf_ = folder_.Path("lista.pdf");
};

TEST_F(PrintingWindow, TheListShownOrItsSelectedRows) {
  const QString title = "Stampa Canali - lista.dat";
  ExpectPdf(title);
  ASSERT_TRUE(driver_->Choose("StampaGriglia"));
  EXPECT_EQ(Said(), "Stampata 1 pagina in lista.pdf");
  EXPECT_TRUE(Rows().back().startsWith("0012")) << "the free slots at the list's end are left out";
  driver_->Grid().Select({3, 5, 9});
  const QString which = "Stampare solo le 3 righe selezionate?\nRispondere NO per stampare tutta la lista";
  driver_->ExpectCancelledQuestion(which);
  driver_->Key(Qt::Key_P, Qt::ControlModifier);
  driver_->ExpectQuestion(which, true);
  ExpectPdf(title);
  driver_->Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(Rows().size(), 3);
  EXPECT_TRUE(Rows()[0].startsWith("0003") && Rows()[2].startsWith("0009"));
}

TEST_F(PrintingWindow, CompactIsAChoiceInThePreviewAndFavouritesHaveTheirOwn) {
  driver_->ExpectDialog("Stampa Canali - lista.dat", [](QDialog& preview) {
    preview.findChild<QCheckBox*>("StampaCompatta")->click();
    preview.findChild<QAction*>("SalvaPdf")->trigger();
  });
  driver_->ExpectFile("Salva la stampa come PDF", PathText(pdf_));
  ASSERT_TRUE(driver_->Choose("StampaGriglia"));
  EXPECT_EQ(Rows()[0].simplified(), "0001 Uno");
  ASSERT_TRUE(driver_->Choose("VisualizzaPreferiti"));
  ExpectPdf("Stampa Preferiti - lista.dat");
  Click("StampaListe");
  EXPECT_EQ(Rows().size(), 6) << "two lists with their titles";
  EXPECT_EQ(Rows()[0].simplified(), "Lista 1: Cinema (3)");
}

TEST_F(PrintingWindow, AFileThatThePrintDialogNamesNeedsNoPrinter) {
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  driver_->ExpectDialog("Stampa Transponder - lista.dat", [](QDialog& preview) {
    for (QAction* action : preview.findChildren<QAction*>())
      if (action->text() == "Stampa") action->trigger();
  });
  driver_->ExpectDialog("Stampa", [this](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("filename")->setText(PathText(pdf_));
    dialog.accept();
  });
  ASSERT_TRUE(driver_->Press("Toolbar1_Print"));
  EXPECT_TRUE(Rows()[2].startsWith("003"));
  EXPECT_TRUE(Said().ends_with(" in lista.pdf"));
}

TEST_F(PrintingWindow, WhatCannotBePrintedIsTold) {
  const Base::Bytes image = Contents(flash_);
  driver_->ExpectDialog("Stampa Canali - lista.dat", [](QDialog& preview) {
    preview.findChild<QAction*>("SalvaPdf")->trigger();
    preview.reject();
  });
  const std::string other = folder_.Write("altra.dat", image);
  ExpectOpenedFlashChosen("Salva la stampa come PDF", other);
  Tells("StampaGriglia", "Non stampato: il file scelto sembra l'immagine di un ricevitore");
  EXPECT_EQ(Contents(other), image);
  Tells("Azzera", "Sono stati azzerati 12 Canali");
  Tells("StampaGriglia", "Nessuna riga da stampare");
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  Tells("StampaGriglia", "Funzione valida solo in visualizzazione canali");
}

}  // namespace Ui
