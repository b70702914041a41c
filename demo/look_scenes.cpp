// Looking at a list: the first choices, opening, transponders, overview, trees, colours and views.
#include "model/cells.h"
#include "session.h"
#include "ui/list/grid.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

namespace Demo {

void Session::ChooseSettings() {
  Guide("inizio");
  driver_->ExpectMessage("Si deve selezionare il numero di canali da visualizzare");
  window_->findChild<QPushButton*>("InizioApri")->click();
  Step("first steps", driver_->TextOf("Passo_1") == "1", "the group to be chosen stands out");
  const bool good = driver_->Pick("QuantiCanali_2") && driver_->Pick("FlashScrittura_1");
  Step("settings", good && driver_->TextOf("Passo_1") == "✓", "3996 channels, type 2.x, SR 22000 come 2");
}

void Session::OpenFlash() {
  PictureBoxes("dialog-open");
  driver_->ExpectFile("Selezionare la flash di input", flash_);
  const bool chosen = driver_->Choose("ApriFlashInput");
  Step("open demo flash",
       chosen && driver_->TextOf("Text1") == "Canali" && driver_->Cell(1, 0) == "0001" &&
           !driver_->Cell(1, 1).isEmpty() &&
           window_->windowTitle().contains(QDir::toNativeSeparators(flash_)),
       Said() + "; first channel " + driver_->Cell(1, 1));
  Guide("canali");
}

void Session::LookAtTransponders() {
  const bool chosen = driver_->Choose("VisualizzaTransponder");
  const int frequency = driver_->Cell(1, 1).toInt();
  Step("transponders",
       chosen && driver_->TextOf("Text1") == "Transponders" && frequency >= 10700 && frequency <= 12750,
       QString("first: %1 MHz %2 %3 %4")
           .arg(driver_->Cell(1, 1), driver_->Cell(1, 7), driver_->Cell(1, 5), driver_->Cell(1, 10)));
  Guide("transponder");
  const bool back = driver_->Press("Toolbar1_Canali") && driver_->TextOf("Text1") == "Canali";
  Step("channels", back, driver_->TextOf("CanaliUsati"));
}

void Session::LookAtOverview() {
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
       Said() + "; " + driver_->TextOf("RiepilogoTotali"));
  GuideOver("riepilogo", *overview);
  overview->close();
  window_->findChild<QLineEdit*>("Filtro")->clear();
  driver_->Grid().clearSelection();
  driver_->ExpectFile("Selezionare il file di output", output_ + "/canali.csv");
  const bool exported = driver_->Choose("FormatoCSV");
  Step("list for a spreadsheet", exported && QFileInfo(output_ + "/canali.csv").size() > 10000, Said());
}

void Session::BrowseTrees() {
  const bool chosen = driver_->Choose("VisualizzaBouquet");
  auto* tree = window_->findChild<QTreeView*>("TreeView2");
  driver_->SelectRows(7, 7);
  Step("bouquet tree",
       chosen && tree->isVisible() && tree->currentIndex().data().toString() == "0007 " + driver_->Cell(7, 1),
       tree->currentIndex().parent().data().toString() + " > " + tree->currentIndex().data().toString());
  Guide("alberi");
  driver_->Choose("VisualizzaBouquet");
}

// The same window on a desktop with dark colours.
void Session::TurnDark() {
  const QColor ground(45, 45, 45);
  QPalette dark(ground);
  dark.setColor(QPalette::Base, ground.darker(150));
  dark.setColor(QPalette::Highlight, QColor(42, 105, 170));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  QApplication::setPalette(dark);
  driver_->SelectRows(7, 9);
  QTest::qWait(250);  // until the windows have heard of it and the grid has scrolled to the pointer
  Step("dark colours", window_->palette().color(QPalette::Window) == ground, "rows 7 to 9 selected");
  Guide("scuro");
  QApplication::setPalette(QPalette());
  driver_->Grid().clearSelection();
}

// Sorted by name, without a column, in softer colours and with the options in one line, while the list stays as it is.
void Session::SortView() {
  const Routines::State before = List();
  Ui::Grid& grid = driver_->Grid();
  const auto choose = [&](int column, const char* entry) {
    grid.setCurrentIndex(grid.model()->index(6, column));
    driver_->Choose("MenuDellaColonna");
    auto* menu = window_->findChild<QMenu*>("MenuColonna");
    if (entry == nullptr) return Guide("vista");
    menu->findChild<QAction*>(entry)->trigger();
    menu->close();
  };
  choose(Routines::ChannelColumn::Aecm, "NascondiColonna");
  driver_->Choose("ColoriTenui");
  choose(Routines::ChannelColumn::Name, "OrdinaVista");
  auto* fold = window_->findChild<QToolButton*>("RiduciOpzioni");
  fold->click();
  Step("options in one line", fold->text().startsWith("3996 canali"), fold->text());
  Step("sorted view",
       grid.IsSorted() && grid.isColumnHidden(Routines::ChannelColumn::Aecm) && List() == before, Said());
  driver_->SelectRows(7, 7);
  choose(Routines::ChannelColumn::Sid, nullptr);
  window_->findChild<QMenu*>("MenuColonna")->close();
  choose(Routines::ChannelColumn::Name, "MostraColonne");
  driver_->Choose("ColoriTenui");
  fold->click();
  driver_->Choose("OrdineDellaLista");
  grid.clearSelection();
}

}  // namespace Demo
