// Printed pages: their text is taken out again, and they are looked at as pictures.
#include "image_builder.h"
#include "ui/files/print_report.h"
#include "ui/kit/text.h"
#include "ui/list/list_model.h"
#include "ui/window_fixture.h"

#include <sys/stat.h>

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
    for (std::size_t slot = 2; slot <= 200; ++slot)
      state.Channel(slot) = Samples::MakeChannel(
          "\x05"
          "Citt\xE0 \t" +
              std::to_string(slot),
          1, 7, 65535, 9);
  });
  const ListModel model(document, ListModel::Channels, nullptr);
  const PrintReport report = ReportOf(model, {1, 200}, QString(200, 'M'));
  for (const QString& row : report.rows) EXPECT_EQ(row.size(), report.titles.size()) << qPrintable(row);

  const Tests::TestFolder folder;
  const std::string path = folder.Path("lista.pdf");
  for (const auto paper : {QPageSize::A4, QPageSize::A6}) {
    for (const auto way : {QPageLayout::Portrait, QPageLayout::Landscape}) {
      const QPageLayout layout(QPageSize(paper), way, QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter);
      const auto pages = SavePdf(report, path, layout);
      ASSERT_TRUE(pages);
      EXPECT_EQ(*pages, 200 / 64 + 1);
      QStringList rows;
      for (const QStringList& lines : PagesIn(path)) {
        EXPECT_TRUE(lines[0].startsWith("MMM") && lines[0].contains(" Pagina ")) << qPrintable(lines[0]);
        EXPECT_EQ(lines[1].simplified(), report.titles.simplified());
        EXPECT_LE(lines.size(), 80);
        rows += lines.mid(2);
      }
      ASSERT_EQ(rows.size(), 200);
      EXPECT_EQ(rows[0].simplified().toStdString(), "0001") << "an empty slot has its line";
      EXPECT_EQ(rows[199].simplified().toStdString(), "0200 Città 200 001 7 65535 9 65535 65535 65535 04 S");
      const QRectF area = layout.paintRect(QPageLayout::Millimeter);
      const QRectF ink = InkOf(path);
      EXPECT_TRUE(area.adjusted(-1, -1, 1, 1).contains(ink)) << paper << " " << way;
      EXPECT_GT(ink.height(), 0.9 * area.height());
    }
  }
  QPageRanges second;
  second.addPage(2);
  ASSERT_TRUE(SavePdf(report, path, UsualPage(), second));
  const auto pages = PagesIn(path);
  EXPECT_TRUE(pages.size() == 1 && pages[0][0].endsWith("Pagina 2 di 4"));
}

class PrintingWindow : public Window {
 protected:
  // Saves the preview of that title as a PDF.
  std::string ExpectPdf(const QString& title, const char* name) {
    std::string path = folder_.Path(name);
    driver_->ExpectDialog(title,
                          [](QDialog& preview) { preview.findChild<QAction*>("SalvaPdf")->trigger(); });
    driver_->ExpectFile("Salva la stampa come PDF", PathText(path));
    return path;
  }
};

TEST_F(PrintingWindow, PrintsTheListShownOrItsSelectedRowsWithOrWithoutAPrinter) {
  const Base::Bytes image = Contents(flash_);
  driver_->ExpectDialog("Stampa Canali - demo.dat", [](QDialog& preview) {
    preview.findChild<QAction*>("SalvaPdf")->trigger();
    preview.reject();
  });
  ExpectOpenedFlashChosen("Salva la stampa come PDF");
  Tells("StampaGriglia", "Non stampato: il file scelto è la flash aperta o quella di output");
  EXPECT_EQ(Contents(flash_), image);
  const std::string all = ExpectPdf("Stampa Canali - demo.dat", "tutti.pdf");
  ASSERT_TRUE(driver_->Choose("StampaGriglia"));
  const auto pages = PagesIn(all);
  EXPECT_EQ(Said(), "Stampa Canali - demo.dat: " + std::to_string(pages.size()) + " pagine in tutti.pdf");
  EXPECT_TRUE(pages.back().back().startsWith("0647")) << "the free slots at the list's end are left out";
  driver_->SelectRows(3, 5);
  const QString which = "Stampare solo le 3 righe selezionate?\nRispondere NO per stampare tutta la lista";
  driver_->ExpectCancelledQuestion(which);
  driver_->Key(Qt::Key_P, Qt::ControlModifier);
  driver_->ExpectQuestion(which, true);
  const std::string some = ExpectPdf("Stampa Canali - demo.dat", "tre.pdf");
  driver_->Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(PagesIn(some).at(0).size(), 5);
  EXPECT_TRUE(PagesIn(some)[0][2].startsWith("0003"));
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  const std::string transponders = ExpectPdf("Stampa Transponder - demo.dat", "transponder.pdf");
  ASSERT_TRUE(driver_->Press("Toolbar1_Print"));
  EXPECT_TRUE(PagesIn(transponders).at(0)[2].startsWith("001"));

  const std::string path = folder_.Path("stampa.pdf");
  driver_->ExpectDialog("Stampa Transponder - demo.dat", [](QDialog& preview) {
    for (QAction* action : preview.findChildren<QAction*>()) {
      if (action->text() == "Stampa") action->trigger();
    }
  });
  driver_->ExpectDialog("Stampa", [&path](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("filename")->setText(PathText(path));
    dialog.accept();
  });
  ASSERT_TRUE(driver_->Choose("StampaGriglia"));
  EXPECT_EQ(PagesIn(path).at(0)[0].left(29), "Stampa Transponder - demo.dat");
  EXPECT_TRUE(Said().ends_with(" in stampa.pdf")) << "without any printer";
}

TEST_F(PrintingWindow, WhatCannotBePrintedIsTold) {
  StartEmpty();
  const QString noList = "Funzione valida solo in visualizzazione canali";
  EXPECT_FALSE(Action("StampaGriglia").isEnabled());
  EXPECT_FALSE(Action("StampaSDX").isEnabled());
  Tells("Toolbar1_Print", noList);
  Open(flash_);
  ::chmod(folder_.Path().c_str(), 0555);
  {
    const Tests::OrdinaryUser user;
    ExpectPdf("Stampa Canali - demo.dat", "no.pdf");
    driver_->ExpectMessage("Impossibile scrivere no.pdf: permesso negato");
    driver_->ExpectFileCancelled("Stampa Canali - demo.dat");
    EXPECT_TRUE(driver_->Choose("StampaGriglia"));
  }
  ::chmod(folder_.Path().c_str(), 0755);
  ASSERT_TRUE(driver_->Choose("VediSDX"));
  Tells("StampaSDX", "Canali SDX non caricati");
  Tells("Azzera", "Sono stati azzerati 647 Canali");
  for (const char* view : {"VisualizzaCanali", "VisualizzaTransponder"}) {
    const bool shown = Action(view).isChecked() || driver_->Choose(view);
    ASSERT_TRUE(shown);
    Tells("StampaGriglia", "Nessuna riga da stampare");
  }
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  Tells("StampaGriglia", noList);
}

}  // namespace Ui
