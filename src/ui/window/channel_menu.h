// The popup menu of the channel grid: what can be done with the selected rows.
#pragma once

#include "ui/edit/cell_commands.h"
#include "ui/favourites/favourites_edits.h"

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

namespace Ui {

class ChannelMenu : public QObject {
  Q_OBJECT

 public:
  ChannelMenu(Session& session, CellCommands& cells, FavouritesEdits& favourites, QMainWindow& window);

  // Opens the menu at a place of the screen.
  void Show(QPoint place);

 private:
  QAction* Add(QMenu& menu, const QString& name, const QString& caption, const std::function<void()>& run);
  void AddCodings();
  void AddFavourites(FavouritesEdits& favourites, QMainWindow& window);
  void BringUpToDate();

  Session& session_;
  CellCommands& cells_;
  QMenu* menu_;
  QAction* rename_ = nullptr;
  QAction* toTransponder_ = nullptr;
  std::vector<QAction*> forChannels_;  // make sense for rows that hold a channel
  std::vector<QAction*> favourites_;   // one for each list
};

}  // namespace Ui
