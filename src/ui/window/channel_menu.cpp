#include "ui/window/channel_menu.h"

#include "edit/cell_edit.h"
#include "model/favourites.h"
#include "ui/kit/menu_letters.h"
#include "ui/kit/text.h"
#include "ui/session/commands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

namespace Ui {

using Routines::ChannelColumn::Active;
using Routines::ChannelColumn::Flags;

ChannelMenu::ChannelMenu(Session& session, CellCommands& cells, FavouritesEdits& favourites,
                         QMainWindow& window)
    : QObject(&window), session_(session), cells_(cells), menu_(new QMenu(&window)) {
  menu_->setObjectName("MenuCanali");
  MenuLetters::Follow(*menu_);
  for (const CommandName name : std::initializer_list<CommandName>{"Copia", "Taglia", "Incolla", "Elimina"})
    menu_->addAction(&CommandAction(window, name));
  menu_->addSeparator();
  for (const CommandName name :
       std::initializer_list<CommandName>{"SpostaA", "SpostaInCima", "SpostaInFondo", "SpostaDopoUltimo"})
    menu_->addAction(&CommandAction(window, name));
  menu_->addSeparator();
  Add(*menu_, "InserisciRiga", "Inserisci riga vuota", [this] { cells_.InsertRows(); });
  rename_ = Add(*menu_, "Rinomina", "Rinomina", [this] { cells_.Rename(); });
  menu_->addAction(&CommandAction(window, "CambiaNomi"));
  menu_->addSeparator();
  forChannels_ = {Add(*menu_, "Attiva", "Attiva", [this] { cells_.SetColumn(Active, "S"); }),
                  Add(*menu_, "Disattiva", "Disattiva", [this] { cells_.SetColumn(Active, "N"); })};
  AddCodings();
  forChannels_.push_back(
      Add(*menu_, "ImpostaTransponder", "Transponder…", [this] { cells_.AskTransponder(); }));
  menu_->addAction(&CommandAction(window, "ImpostaCampi"));
  toTransponder_ =
      Add(*menu_, "VaiAlTransponder", "Vai al transponder", [this] { cells_.GoToTransponder(); });
  menu_->addSeparator();
  AddFavourites(favourites, window);
}

QAction* ChannelMenu::Add(QMenu& menu, const QString& name, const QString& caption,
                          const std::function<void()>& run) {
  auto* action = new QAction(caption, parent());
  action->setObjectName(name);
  connect(action, &QAction::triggered, this, run);
  menu.addAction(action);
  return action;
}

void ChannelMenu::AddCodings() {
  QMenu* codings = menu_->addMenu("Codifica");
  forChannels_.push_back(codings->menuAction());
  codings->menuAction()->setObjectName("MenuCodifica");
  for (const std::string_view coding : Edit::Codings) {
    const QString digits = Text(coding.substr(0, 2));
    Add(*codings, "Codifica_" + digits, Text(coding), [this, digits] { cells_.SetColumn(Flags, digits); });
  }
  Add(*codings, "Codifica_altra", "Altra…", [this] { cells_.AskCoding(); });
}

// Their keys act while the grid has the focus, the menu closed.
void ChannelMenu::AddFavourites(FavouritesEdits& favourites, QMainWindow& window) {
  QMenu* lists = menu_->addMenu("Aggiungi ai preferiti");
  forChannels_.push_back(lists->menuAction());
  lists->menuAction()->setObjectName("MenuPreferiti");
  for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
    const QString number = QString::number(list + 1);
    QAction* add =
        Add(*lists, "AggiungiPreferiti_" + number, {}, [&favourites, list] { favourites.AddSelected(list); });
    add->setShortcut(QKeySequence("Ctrl+" + number));
    add->setShortcutContext(Qt::WidgetShortcut);
    favourites_.push_back(add);
  }
  lists->addSeparator();
  lists->addAction(&CommandAction(window, "VisualizzaPreferiti"));
  session_.view.ListGrid().addActions(lists->actions());
}

void ChannelMenu::BringUpToDate() {
  const Routines::State& state = session_.document.Tables();
  const Edit::Slots rows = session_.view.ListGrid().Selected();
  const bool channels =
      std::any_of(rows.begin(), rows.end(), [&](int slot) { return !state.Channel(slot).Empty(); });
  for (QAction* action : forChannels_) action->setEnabled(channels);
  rename_->setEnabled(rows.size() == 1);
  toTransponder_->setEnabled(rows.size() == 1 && channels);
  for (std::size_t list = 0; list < favourites_.size(); ++list) {
    const QString name = Text(Routines::FavouritesTitle(state.FavouritesBlock, list)).replace('&', "&&");
    const auto entries = Routines::FavouriteEntriesOf(state.FavouritesBlock, list).size();
    favourites_[list]->setText(QString("&%1 ").arg(list + 1) + name + QString(" (%1)").arg(entries));
  }
}

void ChannelMenu::Show(QPoint place) {
  if (session_.view.Current() != View::Channels) return;
  BringUpToDate();
  menu_->popup(place);
}

}  // namespace Ui
