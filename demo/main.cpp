// Plays one session of the real window, from the first choice to a saved list, and leaves pictures of it:
//   trovalis_demo DEMO.dat SUPPORT_FOLDER OUTPUT_FOLDER
// Every step is printed with what came of it; the first that fails ends the session with an error.
#include "model/cells.h"
#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"
#include "ui/list/document.h"
#include "ui/list/grid.h"
#include "window_driver.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <cstdio>

namespace {

class Session {
 public:
  Session(const QString& flash, const QString& support, const QString& output)
      : flash_(QFileInfo(flash).absoluteFilePath()), output_(QDir(output).absolutePath()) {
    QDir(output_).removeRecursively();
    QDir().mkpath(ProgramFolder());
    for (const char* name : {"Bouquets.txt", "SR.INI", "SDX.INI"}) {
      QFile::copy(support + "/" + name, ProgramFolder() + "/" + name);
    }
    foreign_ = QFileInfo(support + "/demo.csv").absoluteFilePath();
    copy_ = output_ + "/copia.dat";
    QFile::copy(flash_, copy_);
    QFile::setPermissions(copy_, QFile::ReadOwner | QFile::WriteOwner);
  }

  int Run() {
    const bool started = Start();
    Step("start", started, window_->windowTitle());
    ChooseSettings();
    OpenFlash();
    LookAtTransponders();
    LookAtOverview();
    BrowseTrees();
    TurnDark();
    MoveRows();
    EditCells();
    SetMany();
    ArrangeFavourites();
    CompareWithDisk();
    RemoveDuplicates();
    PrintList();
    TakeFromSdx();
    ShowAdditionalFlash();
    ImportForeignList();
    ShowAbout();
    Convert();
    SaveCopy();
    OpenCopyAgain();
    EndWithUnsavedWork();
    CheckBoxes();
    std::printf("%s: %d steps, %d failed; pictures in %s\n", failed_ == 0 ? "OK" : "FAILED", steps_, failed_,
                qPrintable(output_));
    return failed_ == 0 ? 0 : 1;
  }

 private:
  [[nodiscard]] QString ProgramFolder() const { return output_ + "/programma"; }

  bool Start() {
    driver_.reset();
    window_ = std::make_unique<Ui::MainWindow>(Ui::PathBytes(ProgramFolder()));
    driver_ = std::make_unique<Demo::WindowDriver>(*window_);
    window_->show();
    return QTest::qWaitForWindowExposed(window_.get()) && window_->Start();
  }

  void CheckBoxes() {
    for (const QString& failure : driver_->Failures()) Step("boxes", false, failure);
  }

  // Prints a step and takes its picture.
  void Step(const char* name, bool good, const QString& seen) {
    QTest::qWait(80);
    ++steps_;
    if (!good) ++failed_;
    std::printf("%2d %-22s %-6s %s\n", steps_, name, good ? "ok" : "FAILED", qPrintable(seen));
    std::fflush(stdout);
    Picture(QString(name).replace(' ', '-'));
  }

  void Picture(const QString& name) {
    const QPixmap picture = window_->screen()->grabWindow(0);
    picture.save(QString("%1/%2-%3.png").arg(output_).arg(++pictures_, 2, 10, QChar('0')).arg(name));
  }

  void PictureBoxes(const QString& name) {
    driver_->onBox = [this, name](const QString&) {
      QTest::qWait(150);
      Picture(name);
    };
  }

  void ChooseSettings() {
    driver_->ExpectMessage("Si deve selezionare il numero di canali da visualizzare");
    window_->findChild<QPushButton*>("InizioApri")->click();
    Step("first steps", driver_->TextOf("Passo_1") == "1", "the group to be chosen stands out");
    const bool good = driver_->Pick("QuantiCanali_2") && driver_->Pick("FlashScrittura_1");
    Step("settings", good && driver_->TextOf("Passo_1") == "✓", "3996 channels, type 2.x, SR 22000 come 2");
  }

  void OpenFlash() {
    PictureBoxes("dialog-open");
    driver_->ExpectFile("Selezionare la flash di input", flash_);
    const bool chosen = driver_->Choose("ApriFlashInput");
    Step("open demo flash",
         chosen && driver_->TextOf("Text1") == "Canali" && driver_->Cell(1, 0) == "0001" &&
             !driver_->Cell(1, 1).isEmpty() &&
             window_->windowTitle().contains(QDir::toNativeSeparators(flash_)),
         driver_->TextOf("UltimoRisultato") + "; first channel " + driver_->Cell(1, 1));
  }

  void LookAtTransponders() {
    const bool chosen = driver_->Choose("VisualizzaTransponder");
    const int frequency = driver_->Cell(1, 1).toInt();
    Step("transponders",
         chosen && driver_->TextOf("Text1") == "Transponders" && frequency >= 10700 && frequency <= 12750,
         QString("first: %1 MHz %2 %3 %4")
             .arg(driver_->Cell(1, 1), driver_->Cell(1, 7), driver_->Cell(1, 5), driver_->Cell(1, 10)));
    const bool back = driver_->Press("Toolbar1_Canali") && driver_->TextOf("Text1") == "Canali";
    Step("channels", back, driver_->TextOf("CanaliUsati"));
  }

  void LookAtOverview() {
    const bool chosen = driver_->Choose("Riepilogo");
    auto* overview = window_->findChild<QDialog*>("FinestraRiepilogo");
    auto* lines = window_->findChild<QTreeWidget*>("RiepilogoVoci");
    if (lines == nullptr) {
      Step("overview", false, "no window");
      return;
    }
    lines->setCurrentItem(lines->topLevelItem(0)->child(1));
    QTest::keyClick(lines, Qt::Key_Return);
    Step("overview", chosen && driver_->TextOf("FiltroTrovati") == "1 di 123",
         driver_->TextOf("UltimoRisultato") + "; " + driver_->TextOf("RiepilogoTotali"));
    overview->close();
    window_->findChild<QLineEdit*>("Filtro")->clear();
    driver_->Grid().clearSelection();
    driver_->ExpectFile("Selezionare il file di output", output_ + "/canali.csv");
    const bool exported = driver_->Choose("FormatoCSV");
    Step("list for a spreadsheet", exported && QFileInfo(output_ + "/canali.csv").size() > 10000,
         driver_->TextOf("UltimoRisultato"));
  }

  void BrowseTrees() {
    const bool chosen = driver_->Choose("VisualizzaBouquet");
    auto* tree = window_->findChild<QTreeView*>("TreeView2");
    driver_->SelectRows(7, 7);
    Step("bouquet tree",
         chosen && tree->isVisible() &&
             tree->currentIndex().data().toString() == "0007 " + driver_->Cell(7, 1),
         tree->currentIndex().parent().data().toString() + " > " + tree->currentIndex().data().toString());
    driver_->Choose("VisualizzaBouquet");
  }

  // The same window on a desktop with dark colours.
  void TurnDark() {
    const QColor ground(45, 45, 45);
    QPalette dark(ground);
    dark.setColor(QPalette::Base, ground.darker(150));
    dark.setColor(QPalette::Highlight, QColor(42, 105, 170));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(dark);
    driver_->SelectRows(7, 9);
    QTest::qWait(250);  // until the windows have heard of it and the grid has scrolled to the pointer
    Step("dark colours", window_->palette().color(QPalette::Window) == ground, "rows 7 to 9 selected");
    QApplication::setPalette(QPalette());
    driver_->Grid().clearSelection();
  }

  void MoveRows() {
    driver_->SelectRows(9, 12);
    driver_->Key(Qt::Key_Down, Qt::AltModifier);
    window_->findChild<QLineEdit*>("Filtro")->setText("HD");
    Step("move rows and filter",
         driver_->Cell(9, 1) == "Italia Domani" && driver_->Cell(10, 1) == "Città Più +1",
         driver_->TextOf("UltimoRisultato") + "; filter HD: " + driver_->TextOf("FiltroTrovati"));
    window_->findChild<QLineEdit*>("Filtro")->clear();
    const bool undone = driver_->Choose("Annulla") && driver_->Cell(9, 1) == "Città Più +1";
    Step("undo", undone, driver_->TextOf("UltimoRisultato"));
  }

  // The editor that is open in the grid.
  QWidget* CellEditor() { return driver_->Grid().findChild<QWidget*>("ModificaCella"); }

  void EditCells() {
    Ui::Grid& grid = driver_->Grid();
    driver_->SelectRows(2, 2);
    QTest::qWait(250);  // until the grid has scrolled to the pointer
    driver_->Key(Qt::Key_F2);
    QTest::keyClicks(CellEditor(), "Canale Mio");
    QTest::qWait(150);
    Picture("editing-a-name");
    QTest::keyClick(CellEditor(), Qt::Key_Return);
    const bool renamed = driver_->Cell(2, 1) == "Canale Mio";
    grid.setCurrentIndex(grid.model()->index(1, 2));
    driver_->Key(Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), "119");
    QTest::qWait(300);
    Picture("choosing-a-transponder");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    if (CellEditor() != nullptr) QTest::keyClick(CellEditor(), Qt::Key_Escape);
    Step("edit cells", renamed, driver_->TextOf("UltimoRisultato"));

    driver_->SelectRows(2, 5);
    driver_->OpenMenu();
    auto* menu = window_->findChild<QMenu*>("MenuCanali");
    Step("channel menu", menu->isVisible(), QString("%1 items").arg(menu->actions().size()));
    menu->close();
  }

  // Another coding and other SIDs for some rows are only looked at.
  void SetMany() {
    driver_->SelectRows(4, 18);
    driver_->ExpectDialog("Imposta", [this](QDialog& dialog) {
      dialog.findChild<QComboBox*>("NuovaCodifica")->setCurrentText("24 Seca");
      dialog.findChild<QSpinBox*>("SommaSID")->setValue(-3403);
      Step("set many", dialog.findChild<QTableView*>("ValoriNuovi")->model()->rowCount() == 15,
           dialog.findChild<QLabel*>("Esito")->text());
      dialog.reject();
    });
    driver_->Choose("ImpostaCampi");
  }

  void ArrangeFavourites() {
    driver_->SelectRows(2, 5);
    driver_->Key(Qt::Key_3, Qt::ControlModifier);
    const QString added = driver_->TextOf("UltimoRisultato");
    driver_->Choose("VisualizzaPreferiti");
    auto* lists = window_->findChild<QDialog*>("ListePreferiti");
    Step("favourites", lists != nullptr && lists->isVisible(), added);
    if (lists != nullptr) lists->close();
    driver_->Choose("Annulla");
    driver_->Choose("Annulla");
  }

  // Copies of four channels are found and taken out again.
  void RemoveDuplicates() {
    const Routines::State before = window_->List().Tables();
    driver_->SelectRows(34, 37);
    driver_->Press("Toolbar1_Copy");
    driver_->ExpectLine("Inserire il numero di canale da cui inserire", "60");
    driver_->ExpectQuestion(
        "Sposto o sovrascrivo i canali a partire dal 60 per 4 Canali?\n"
        "Rispondere SI per spostare NO per sovrascrivere",
        true);
    driver_->Press("Toolbar1_Paste");
    driver_->Choose("CanaliDoppi");
    auto* found = window_->findChild<QDialog*>("FinestraCanaliDoppi");
    const QString counts = driver_->TextOf("ConteggioDoppi");
    Step("duplicates", counts == "4 gruppi, 8 canali, 0 scelti", counts);
    if (found == nullptr) return;
    found->findChild<QPushButton*>("EliminaTranneIlPrimo")->click();
    Step("delete duplicates", window_->List().Tables().ChannelTable == before.ChannelTable,
         driver_->TextOf("UltimoRisultato"));
    found->close();
  }

  void PrintList() {
    PictureBoxes("dialog-print");
    driver_->Grid().clearSelection();
    const QString pdf = output_ + "/canali.pdf";
    driver_->ExpectDialog("Stampa Canali - " + QFileInfo(flash_).fileName(),
                          [](QDialog& preview) { preview.findChild<QAction*>("SalvaPdf")->trigger(); });
    driver_->ExpectFile("Salva la stampa come PDF", pdf);
    const bool chosen = driver_->Choose("StampaGriglia");
    driver_->onBox = nullptr;
    Step("print to a PDF", chosen && QFileInfo(pdf).size() > 10000, driver_->TextOf("UltimoRisultato"));
  }

  void EditCell(int row, int column, const QString& typed) {
    Ui::Grid& grid = driver_->Grid();
    driver_->SelectRows(row, row);
    grid.setCurrentIndex(grid.model()->index(row - 1, column));
    driver_->Key(Qt::Key_F2);
    QTest::keyClicks(CellEditor(), typed);
    QTest::keyClick(CellEditor(), Qt::Key_Return);
    QTest::qWait(100);  // until the editor is gone
  }

  // A few changes, one of which is taken back from the disk.
  void CompareWithDisk() {
    EditCell(2, Routines::ChannelColumn::Name, "Canale Mio");
    EditCell(6, Routines::ChannelColumn::Vpid, "513");
    driver_->SelectRows(14, 15);
    driver_->Choose("Elimina");
    driver_->SelectRows(20, 20);
    driver_->ExpectLine("Inserire il numero di canale a cui spostare", "3");
    driver_->Choose("SpostaA");
    driver_->Choose("ConfrontaDisco");
    auto* found = window_->findChild<QDialog*>("FinestraConfronto");
    auto* table = found != nullptr ? found->findChild<QTableView*>("Differenze") : nullptr;
    if (table == nullptr) return Step("compare with the disk", false, "no window");
    table->selectRow(0);
    QTest::keyClick(table, Qt::Key_Space);
    Step("compare with the disk", table->model()->rowCount() == 5,
         QString("%1 differences").arg(table->model()->rowCount()));
    QTest::mouseClick(found->findChild<QPushButton*>("ApplicaSegnati"), Qt::LeftButton);
    Step("take back one change", table->model()->rowCount() == 4, driver_->TextOf("UltimoRisultato"));
    found->close();
    for (int step = 0; step < 5; ++step) driver_->Choose("Annulla");
  }

  void TakeFromSdx() {
    PictureBoxes("dialog-sdx");
    driver_->ExpectFile("Selezionare il file SDX di input", QFileInfo(flash_).path() + "/demo.sdx");
    driver_->ExpectDialog("Opzioni importazione SDX", [](QDialog& box) {
      box.findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
      auto* codes = box.findChild<QListWidget*>("List1");
      codes->item(codes->count() - 1)->setSelected(true);
      box.findChild<QPushButton*>("Command1")->click();
    });
    const bool chosen = driver_->Choose("SDX");
    if (auto* missing = window_->findChild<QDialog*>("ElencoNonInSDX")) missing->close();
    Step("satcodx list", chosen && window_->findChild<QWidget*>("GrigliaSDX")->isVisible(),
         driver_->TextOf("UltimoRisultato"));
    window_->findChild<Ui::Grid*>("GrigliaSDX")->SelectRow(7);
    driver_->ExpectLine("Inserire la posizione in cui inserire Nuova Rete 1", "3");
    driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", true);
    const bool pressed = driver_->Press("Toolbar1_Copy_SDX");
    Step("copy a new channel", pressed && driver_->Cell(3, 1) == "Nuova Rete 1",
         driver_->TextOf("UltimoRisultato") + ": " + driver_->Cell(3, 1));
    driver_->onBox = nullptr;
    driver_->Choose("VediSDX");
  }

  void ShowAdditionalFlash() {
    driver_->ExpectFile("Selezionare la flash aggiuntiva", flash_);
    const bool chosen = driver_->Choose("CaricaAggiuntiva");
    Step("additional flash", chosen && driver_->TextOf("EtichettaSDX") == "SDX: demo.dat",
         driver_->TextOf("UltimoRisultato"));
  }

  void ImportForeignList() {
    PictureBoxes("dialog-foreign");
    driver_->ExpectFile("Selezionare il file da importare", foreign_);
    driver_->ExpectDialog("Da File Pelko", [](QDialog& box) {
      box.findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
      box.findChild<QPushButton*>("Command1")->click();
    });
    const bool chosen = driver_->Choose("Pelko");
    Step("list of another program", chosen && driver_->TextOf("EtichettaSDX") == "SDX: demo.csv",
         driver_->TextOf("UltimoRisultato"));
    driver_->Choose("VediSDX");
  }

  void ShowAbout() {
    PictureBoxes("dialog-about");
    QString version;
    driver_->ExpectDialog("About", [&version](QDialog& box) {
      version = box.findChild<QLabel*>("Versione")->text();
      box.findChild<QPushButton*>("Chiudi")->click();
    });
    const bool chosen = driver_->Choose("About");
    driver_->onBox = nullptr;
    Step("about", chosen && !version.isEmpty(), version);
  }

  void Convert() {
    const bool good = driver_->Pick("SRDef_1") && driver_->Choose("ConvertiSR");
    Step("convert symbol rates", good && driver_->TextOf("ModificheNonSalvate") == "Modifiche non salvate",
         driver_->TextOf("UltimoRisultato"));
  }

  void SaveCopy() {
    PictureBoxes("dialog-save");
    driver_->ExpectFile("Selezionare la flash di output", copy_);
    driver_->ExpectMessage(QString("2 Sezioni TCS per %1 Canali effettivi\nSezioni Preferiti: scritta")
                               .arg(Routines::LastUsedChannel(window_->List().Tables())));
    const bool chosen = driver_->Choose("ApriFlashOutput");
    Step("save into a copy",
         chosen && driver_->TextOf("FlashOutput") == "Flash di output : copia.dat" &&
             driver_->TextOf("ModificheNonSalvate").isEmpty() && QFile::exists(copy_ + ".bak"),
         driver_->TextOf("UltimoRisultato") + "; " + driver_->TextOf("FlashOutput"));
  }

  void OpenCopyAgain() {
    driver_->onBox = nullptr;
    const Routines::State before = window_->List().Tables();
    driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
    driver_->ExpectFile("Selezionare la flash di input", copy_);
    const bool chosen = driver_->Choose("ApriFlashInput");
    const Routines::State& after = window_->List().Tables();
    Step("open the copy again",
         chosen && after.ChannelTable == before.ChannelTable &&
             after.TransponderTable == before.TransponderTable &&
             after.FavouritesBlock == before.FavouritesBlock &&
             after.TransponderCount == before.TransponderCount,
         "same channels, transponders and favourites as before the save");
  }

  void EndWithUnsavedWork() {
    driver_->SelectRows(2, 6);
    driver_->Press("Toolbar1_Cut");
    const Routines::State before = window_->List().Tables();
    window_->close();
    CheckBoxes();
    bool good = Start();
    PictureBoxes("dialog-recover");
    driver_->ExpectDialog(
        "Trovalis", [](QDialog& box) { dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click(); });
    window_->OfferKeptWork();
    const Routines::State& after = window_->List().Tables();
    good =
        good && after.ChannelTable == before.ChannelTable && after.FavouritesBlock == before.FavouritesBlock;
    Step("recover unsaved work", good,
         driver_->TextOf("UltimoRisultato") + "; " + driver_->TextOf("CanaliCopiati"));
  }

  QString flash_;
  QString output_;
  QString copy_;
  QString foreign_;
  std::unique_ptr<Ui::MainWindow> window_;
  std::unique_ptr<Demo::WindowDriver> driver_;
  int steps_ = 0;
  int failed_ = 0;
  int pictures_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  Ui::PrepareToolkit();
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) {
    std::fputs("trovalis_demo DEMO.dat SUPPORT_FOLDER OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  Ui::SetUpToolkit(application);
  return Session(arguments[1], arguments[2], arguments[3]).Run();
}
