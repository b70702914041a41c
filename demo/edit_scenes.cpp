// Editing a list: rows, found sets, cells, many channels at once, favourites.
#include "session.h"
#include "ui/list/grid.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

namespace Demo {

void Session::MoveRows() {
  driver_->SelectRows(9, 12);
  driver_->Key(Qt::Key_Down, Qt::AltModifier);
  window_->findChild<QLineEdit*>("Filtro")->setText("HD");
  Step("move rows and filter",
       driver_->Cell(9, 1) == "Italia Domani" && driver_->Cell(10, 1) == "Città Più +1",
       Said() + "; filter HD: " + driver_->TextOf("FiltroTrovati"));
  Guide("modifica");
  window_->findChild<QLineEdit*>("Filtro")->clear();
  const bool undone = driver_->Choose("Annulla") && driver_->Cell(9, 1) == "Città Più +1";
  Step("undo", undone, Said());
}

// The editor that is open in the grid.
QWidget* Session::CellEditor() { return driver_->Grid().findChild<QWidget*>("ModificaCella"); }

void Session::EditCell(int row, int column, const QString& typed) {
  Ui::Grid& grid = driver_->Grid();
  driver_->SelectRows(row, row);
  grid.setCurrentIndex(grid.model()->index(row - 1, column));
  driver_->Key(Qt::Key_F2);
  QTest::keyClicks(CellEditor(), typed);
  QTest::keyClick(CellEditor(), Qt::Key_Return);
  QTest::qWait(100);  // until the editor is gone
}

void Session::EditCells() {
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
  Guide("celle");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  if (CellEditor() != nullptr) QTest::keyClick(CellEditor(), Qt::Key_Escape);
  Step("edit cells", renamed, Said());

  driver_->SelectRows(2, 5);
  driver_->OpenMenu();
  auto* menu = window_->findChild<QMenu*>("MenuCanali");
  Step("channel menu", menu->isVisible(), QString("%1 items").arg(menu->actions().size()));
  Guide("menu-canali");
  menu->close();
}

// Another coding and other SIDs for some rows are only looked at.
void Session::SetMany() {
  driver_->SelectRows(4, 18);
  driver_->ExpectDialog("Imposta", [this](QDialog& dialog) {
    dialog.findChild<QComboBox*>("NuovaCodifica")->setCurrentText("24 Seca");
    dialog.findChild<QSpinBox*>("SommaSID")->setValue(-3403);
    Step("set many", dialog.findChild<QTableView*>("ValoriNuovi")->model()->rowCount() == 15,
         dialog.findChild<QLabel*>("Esito")->text());
    GuideBox("imposta", dialog);
    dialog.reject();
  });
  driver_->Choose("ImpostaCampi");
}

void Session::ArrangeFavourites() {
  driver_->SelectRows(2, 5);
  driver_->Key(Qt::Key_3, Qt::ControlModifier);
  const QString added = Said();
  driver_->Choose("VisualizzaPreferiti");
  auto* lists = window_->findChild<QDialog*>("ListePreferiti");
  Step("favourites", lists != nullptr && lists->isVisible(), added);
  Guide("preferiti");
  if (lists == nullptr) return;
  auto* filter = window_->findChild<QLineEdit*>("Filtro");
  filter->setText("film");
  driver_->ExpectDialog("Aggiungi a Cinema",
                        [](QDialog& box) { box.findChild<QPushButton*>("Command1")->click(); });
  // A docked one has it in a menu.
  if (auto* entry = lists->findChild<QAction*>("AggiungiTrovati"))
    entry->trigger();
  else
    lists->findChild<QPushButton*>("AggiungiTrovati")->click();
  Step("favourites from found", Said().contains(" a Cinema"), Said());
  filter->clear();
  lists->close();
  Undo(3);
}

// What a filter finds is seen alone and brought to the front; three steps are taken back from their list.
void Session::WorkOnFound() {
  const Routines::State before = List();
  auto* filter = window_->findChild<QLineEdit*>("Filtro");
  filter->setText("notizie -hd");
  driver_->Choose("SelezionaTrovati");
  driver_->Choose("SoloITrovati");
  Step("found rows alone", driver_->Grid().Selected().size() > 1, Said());
  Guide("trovati");
  driver_->Choose("SpostaInCima");
  const QString moved = Said();
  driver_->Choose("SoloITrovati");
  filter->clear();
  driver_->SelectRows(40, 42);
  driver_->Choose("Elimina");
  driver_->SelectRows(12, 13);
  driver_->Choose("Scambia");
  driver_->Choose("AnnullaFino");
  auto* steps = window_->findChild<QMenu*>("PassiFatti");
  Guide("passi");
  steps->actions().at(2)->trigger();
  steps->close();
  Step("several steps back", List().ChannelTable == before.ChannelTable, moved + "; " + Said());
}

// One name fits the receiver's 16 letters, two would not.
void Session::RenameMany() {
  driver_->SelectRows(32, 52);
  driver_->ExpectDialog("Cambia nomi", [this](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("TestoRegola")->setText("Prima");
    dialog.findChild<QLineEdit*>("NuovoTestoRegola")->setText("Primissima");
    GuideBox("nomi", dialog);
    dialog.findChild<QPushButton*>("Command1")->click();
  });
  driver_->Choose("CambiaNomi");
  Step("change names", driver_->Cell(32, 1) == "Cine Primissima" && driver_->Cell(33, 1) == "Cine Prima HD",
       Said());
  Undo();
}

void Session::SortChannels() {
  const Routines::State before = List();
  driver_->Grid().clearSelection();
  driver_->ExpectDialog("Ordina Canali", [this](QDialog& dialog) {
    dialog.findChild<QComboBox*>("Chiave_0")->setCurrentText("TV, radio, servizi");
    dialog.findChild<QComboBox*>("Chiave_1")->setCurrentText("Nome");
    dialog.findChild<QComboBox*>("GruppiAMultipli")->setCurrentText("a un multiplo di 100");
    GuideBox("ordina", dialog);
    dialog.findChild<QPushButton*>("Command1")->click();
  });
  driver_->Choose("OrdinaCanali");
  Step("sort channels", List().ChannelTable != before.ChannelTable,
       Said() + "; at 100 " + driver_->Cell(100, 1));
  Undo();
}

void Session::GroupRadio() {
  driver_->ExpectLine(
      "Inserire il canale dal quale iniziare il raggruppamento; I canali precedenti manterranno la "
      "numerazione",
      "1");
  driver_->ExpectMessage("Dal canale 1, nell'ordine:\nCanali TV: 467\nCanali radio: 123\nServizi: 30");
  driver_->Choose("SpostaRadio");
  driver_->Grid().ScrollToTop(458);
  Step("television first", driver_->Cell(468, 1).startsWith("Radio"), Said());
  Guide("raggruppa");
  Undo();
}

}  // namespace Demo
