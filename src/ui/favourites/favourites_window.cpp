#include "ui/favourites/favourites_window.h"

#include "model/favourites.h"
#include "ui/kit/elided_label.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/screen_fit.h"

#include <QGridLayout>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>

namespace Ui {

FavouritesWindow::FavouritesWindow(const Document& document, FavouritesEdits& edits, QMainWindow& window)
    : ToolWindow("ListePreferiti", "Liste Preferiti", &window),
      edits_(edits),
      target_(new ElidedLabel(Qt::ElideRight, this)),
      result_(new ElidedLabel(Qt::ElideRight, this)) {
  result_->setObjectName("RisultatoPreferiti");
  target_->setObjectName("ListaCorrente");
  TakeKeys(window);
  auto* lists = new QWidget(this);
  AddLists(document, *lists);
  auto* column = new QVBoxLayout(this);
  column->addWidget(lists, 1);
  column->addLayout(Buttons(window));
  column->addWidget(result_);
  connect(&document, &Document::Changed, this, [this, &document] {
    ShowCurrent();
    if (!document.Tables().Loaded) close();
  });
  ShowCurrent();
  ShowResult(
      "Trascinare qui i canali dalla griglia; Canc toglie, Alt+Su e Alt+Giù spostano, Invio va al canale.");
  lists_.front()->Entries().setFocus();
  ResizeOnScreen(*this, {900, 620});
}

void FavouritesWindow::AddLists(const Document& document, QWidget& place) {
  constexpr int PerRow = 4;
  auto* grid = new QGridLayout(&place);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
    auto* widget = new FavouritesList(document, edits_, list, &place);
    connect(widget, &FavouritesList::Entered, this, [this, list] { Enter(list); });
    lists_.push_back(widget);
    grid->addWidget(widget, static_cast<int>(list) / PerRow, static_cast<int>(list) % PerRow);
  }
}

QLayout* FavouritesWindow::Buttons(const QMainWindow& window) {
  auto* row = new QHBoxLayout;
  auto* buttons = new FlowLayout;
  target_->setMinimumWidth(Letters(*target_, 19));
  row->addWidget(target_, 1);
  row->addLayout(buttons);
  AddButton(*buttons, "AggiungiSelezionati", "Aggiungi i canali selezionati",
            [this] { edits_.AddSelected(current_); });
  AddButton(*buttons, "AggiungiTrovati", "Aggiungi i trovati", [this] { edits_.AddFound(current_, this); });
  AddButton(*buttons, "AggiungiDaElenco", "Aggiungi da elenco…",
            [this] { edits_.AddFromFile(current_, this); });
  AddButton(*buttons, "TogliPreferiti", "Togli", [this] { Current().RemoveSelected(); });
  move_ = AddButton(*buttons, "SpostaPreferiti", "Sposta in");
  move_->setMenu(new QMenu(move_));
  connect(move_->menu(), &QMenu::aboutToShow, this, &FavouritesWindow::FillMoveMenu);
  auto* orders = new QMenu(this);
  orders->addAction("Per numero", this, [this] { edits_.Sort(current_, Edit::FavouriteOrder::ByNumber); })
      ->setObjectName("OrdinaPerNumero");
  orders->addAction("Per nome", this, [this] { edits_.Sort(current_, Edit::FavouriteOrder::ByName); })
      ->setObjectName("OrdinaPerNome");
  AddButton(*buttons, "OrdinaPreferiti", "Ordina")->setMenu(orders);
  AddButton(*buttons, "OrdinaComePreferiti", "Ordina come la lista",
            [this] { edits_.OrderChannels(current_, Edit::OrderPlace::OwnPlaces, this); });
  AddButton(*buttons, "PreferitiInTesta", "Metti la lista in testa",
            [this] { edits_.OrderChannels(current_, Edit::OrderPlace::Top, this); });
  AddButton(*buttons, "StampaListe", "Stampa",
            [&window] { CommandAction(window, "StampaPreferiti").trigger(); });
  AddButton(*buttons, "ChiudiPreferiti", "Chiudi", [this] { close(); });
  return row;
}

void FavouritesWindow::FillMoveMenu() {
  move_->menu()->clear();
  for (std::size_t list = 0; list < lists_.size(); ++list) {
    if (list == current_) continue;
    const QString title = edits_.Title(list).replace('&', "&&");
    QAction* move = move_->menu()->addAction(QString("&%1 ").arg(list + 1) + title, this, [this, list] {
      edits_.Move(current_, Current().Selected(), list, Routines::FavouriteEntries);
    });
    move->setObjectName(QString("SpostaPreferiti_%1").arg(list + 1));
  }
}

// The buttons work on the list that was entered last: it is named beside them and stands out.
void FavouritesWindow::ShowCurrent() {
  target_->Show(QString("Lista %1: %2").arg(current_ + 1).arg(edits_.Title(current_)));
  for (std::size_t list = 0; list < lists_.size(); ++list) {
    lists_[list]->Entries().setFrameStyle(list == current_ ? QFrame::Box | QFrame::Plain
                                                           : QFrame::StyledPanel | QFrame::Sunken);
  }
}

void FavouritesWindow::Enter(std::size_t list) {
  current_ = list;
  ShowCurrent();
}

void FavouritesWindow::ShowResult(const QString& text) { result_->Show(text); }

}  // namespace Ui
