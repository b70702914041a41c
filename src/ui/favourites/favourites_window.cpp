#include "ui/favourites/favourites_window.h"

#include "model/favourites.h"
#include "ui/kit/elided_label.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/pane_head.h"
#include "ui/kit/screen_fit.h"

#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace Ui {
namespace {

// Its tabs share the width of the bar, however narrow it is.
class NumberTabs : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  [[nodiscard]] QSize tabSizeHint(int index) const override {
    return {Letters(*this, 4), QTabBar::tabSizeHint(index).height()};
  }
};

QToolButton* AddToolButton(PaneHead& head, const char* name, const QString& caption, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setText(caption);
  button->setAutoRaise(true);
  head.Add(button);
  return button;
}

}  // namespace

FavouritesWindow::FavouritesWindow(const Document& document, FavouritesEdits& edits, QMainWindow& window,
                                   bool docked)
    : ToolWindow("ListePreferiti", "Liste Preferiti", &window),
      edits_(edits),
      docked_(docked),
      pages_(new FavouritesPages(document, edits, docked, this)),
      chooser_(docked ? Chooser() : nullptr),
      target_(new ElidedLabel(Qt::ElideRight, this)),
      result_(new ElidedLabel(Qt::ElideRight, this)) {
  setAccessibleName(windowTitle());
  result_->setObjectName("RisultatoPreferiti");
  target_->setObjectName("ListaCorrente");
  TakeKeys(window);
  auto* column = new QVBoxLayout(this);
  docked ? LayOutDocked(*column, window) : LayOutLoose(*column, window);
  connect(pages_, &FavouritesPages::CurrentChanged, this, &FavouritesWindow::ShowCurrent);
  connect(&document, &Document::Changed, this, [this, &document] {
    ShowCurrent();
    if (!document.Tables().Loaded) close();
  });
  ShowCurrent();
  ShowResult(
      "Trascinare qui i canali dalla griglia; Canc toglie, Alt+Su e Alt+Giù spostano, Invio va al canale.");
}

void FavouritesWindow::LayOutDocked(QVBoxLayout& column, const QMainWindow& window) {
  column.setContentsMargins(0, 0, 0, 0);
  column.setSpacing(3);
  auto* head = new PaneHead(objectName(), "Preferiti", this);
  auto* commands = AddToolButton(*head, "ComandiPreferiti", "Comandi", this);
  commands->setPopupMode(QToolButton::InstantPopup);
  commands->setMenu(CommandMenu(window));
  auto* loosen = AddToolButton(*head, "StaccaPreferiti", "Stacca", this);
  connect(loosen, &QToolButton::clicked, this, [this] { Q_EMIT DockWanted(false); });
  connect(&head->Close(), &QToolButton::clicked, this, &QWidget::close);
  column.addLayout(head);
  column.addWidget(chooser_);
  column.addWidget(pages_, 1);
  // The result line of the main window is in sight.
  for (QWidget* unused : {target_, result_}) unused->hide();
}

void FavouritesWindow::LayOutLoose(QVBoxLayout& column, const QMainWindow& window) {
  column.addWidget(pages_, 1);
  column.addLayout(Buttons(window));
  column.addWidget(result_);
}

QLayout* FavouritesWindow::Buttons(const QMainWindow& window) {
  auto* row = new QHBoxLayout;
  auto* buttons = new FlowLayout;
  target_->setMinimumWidth(Letters(*target_, 19));
  row->addWidget(target_, 1);
  row->addLayout(buttons);
  for (const Entry& entry : Entries(window)) {
    QPushButton* button = AddButton(*buttons, entry.name, entry.caption, entry.run);
    if (entry.menu != nullptr) button->setMenu(entry.menu);
  }
  AddButton(*buttons, "AgganciaPreferiti", "Aggancia", [this] { Q_EMIT DockWanted(true); });
  AddButton(*buttons, "ChiudiPreferiti", "Chiudi", [this] { close(); });
  return row;
}

QMenu* FavouritesWindow::CommandMenu(const QMainWindow& window) {
  auto* menu = new QMenu(this);
  for (const Entry& entry : Entries(window)) {
    QAction* action = menu->addAction(entry.caption);
    action->setObjectName(entry.name);
    if (entry.run) connect(action, &QAction::triggered, this, entry.run);
    if (entry.menu != nullptr) action->setMenu(entry.menu);
  }
  return menu;
}

std::vector<FavouritesWindow::Entry> FavouritesWindow::Entries(const QMainWindow& window) {
  return {
      {"AggiungiSelezionati", "Aggiungi i canali selezionati", [this] { edits_.AddSelected(Current()); }},
      {"AggiungiTrovati", "Aggiungi i trovati", [this] { edits_.AddFound(Current(), this); }},
      {"AggiungiDaElenco", "Aggiungi da elenco…", [this] { edits_.AddFromFile(Current(), this); }},
      {"TogliPreferiti", "Togli", [this] { pages_->CurrentList().RemoveSelected(); }},
      {"SpostaPreferiti", "Sposta in", {}, MoveMenu()},
      {"OrdinaPreferiti", "Ordina", {}, OrderMenu()},
      {"OrdinaComePreferiti", "Ordina come la lista",
       [this] { edits_.OrderChannels(Current(), Edit::OrderPlace::OwnPlaces, this); }},
      {"PreferitiInTesta", "Metti la lista in testa",
       [this] { edits_.OrderChannels(Current(), Edit::OrderPlace::Top, this); }},
      {"StampaListe", "Stampa", [&window] { CommandAction(window, "StampaPreferiti").trigger(); }},
  };
}

QMenu* FavouritesWindow::OrderMenu() {
  auto* menu = new QMenu(this);
  menu->addAction("Per numero", this, [this] { edits_.Sort(Current(), Edit::FavouriteOrder::ByNumber); })
      ->setObjectName("OrdinaPerNumero");
  menu->addAction("Per nome", this, [this] { edits_.Sort(Current(), Edit::FavouriteOrder::ByName); })
      ->setObjectName("OrdinaPerNome");
  return menu;
}

QMenu* FavouritesWindow::MoveMenu() {
  auto* menu = new QMenu(this);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] {
    menu->clear();
    for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
      if (list == Current()) continue;
      const QString title = edits_.Title(list).replace('&', "&&");
      QAction* move = menu->addAction(QString("&%1 ").arg(list + 1) + title, this, [this, list] {
        edits_.Move(Current(), pages_->CurrentList().Selected(), list, Routines::FavouriteEntries);
      });
      move->setObjectName(QString("SpostaPreferiti_%1").arg(list + 1));
    }
  });
  return menu;
}

// Rows that are dragged over a number bring up its list.
QTabBar* FavouritesWindow::Chooser() {
  auto* tabs = new NumberTabs(this);
  tabs->setObjectName("SceltaPreferiti");
  tabs->setAccessibleName("Lista dei preferiti");
  tabs->setElideMode(Qt::ElideNone);
  tabs->setUsesScrollButtons(false);
  tabs->setAcceptDrops(true);
  tabs->setChangeCurrentOnDrag(true);
  for (std::size_t list = 1; list <= Routines::FavouriteLists; ++list) tabs->addTab(QString::number(list));
  connect(tabs, &QTabBar::currentChanged, this,
          [this](int list) { pages_->SetCurrent(static_cast<std::size_t>(list)); });
  return tabs;
}

// The commands are for the list that was entered last, which is named.
void FavouritesWindow::ShowCurrent() {
  target_->Show(QString("Lista %1: %2").arg(Current() + 1).arg(edits_.Title(Current())));
  if (chooser_ == nullptr) return;
  for (int list = 0; list < chooser_->count(); ++list) {
    const QString title = edits_.Title(static_cast<std::size_t>(list));
    chooser_->setTabToolTip(list, "<span>" + title.toHtmlEscaped() + "</span>");
    chooser_->setAccessibleTabName(list, QString("Lista %1: %2").arg(list + 1).arg(title));
  }
  chooser_->setCurrentIndex(static_cast<int>(Current()));
}

void FavouritesWindow::Enter(std::size_t list) {
  pages_->SetCurrent(list);
  pages_->CurrentList().Entries().setFocus();
}

void FavouritesWindow::ShowResult(const QString& text) { result_->Show(text); }

}  // namespace Ui
