#include "ui/sources/sdx_menu.h"

#include "ui/kit/menu_letters.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

namespace Ui {

SdxMenu::SdxMenu(Session& session, SdxCommands& sdx, SdxPane& pane, QMainWindow& window)
    : menu_(new QMenu(&window)), pane_(pane) {
  menu_->setObjectName("MenuSDX");
  MenuLetters::Follow(*menu_);
  Add("InserisciSDX", "Inserisci nella lista…", [&sdx] { sdx.CopySDX(); });
  toChannel_ = Add("VaiAlGiaInLista", "Vai al canale della lista",
                   [&session, &pane] { session.GoToChannel(pane.CurrentSlot()); });
  menu_->addSeparator();
  Add("SelezionaTuttoSDX", "Seleziona tutto", [&pane] { pane.ListGrid().selectAll(); });
  Add("SelezionaNuoviSDX", "Seleziona quelli non in lista", [&sdx] { sdx.SelectNew(); });
  menu_->addSeparator();
  for (const CommandName name :
       std::initializer_list<CommandName>{"ConfrontaSDX", "ImportaTuttoSDX", "RicercaSDX", "StampaSDX"})
    menu_->addAction(&CommandAction(window, name));
  QObject::connect(&pane.ListGrid(), &Grid::MenuWanted, &pane, [this](QPoint place) { Show(place); });
}

QAction* SdxMenu::Add(const char* name, const char* caption, const std::function<void()>& run) {
  QAction* action = menu_->addAction(caption);
  action->setObjectName(name);
  QObject::connect(action, &QAction::triggered, &pane_, run);
  return action;
}

void SdxMenu::Show(QPoint place) {
  toChannel_->setEnabled(pane_.CurrentSlot() != 0);
  menu_->popup(place);
}

}  // namespace Ui
