// `FinestraCanaliDoppi`: the channels that are in the list more than once, in groups that follow the list.
#pragma once

#include "review/duplicates.h"
#include "ui/session/session.h"
#include "ui/session/tool_window.h"

#include <map>

class QAction;
class QCheckBox;
class QLabel;
class QMenu;
class QTreeWidget;
class QTreeWidgetItem;

namespace Ui {

// The command: shows the window, or says that there is nothing to show.
void CanaliDoppi(Session& session, QMainWindow& window);

class DuplicatesWindow : public ToolWindow {
  Q_OBJECT

 public:
  DuplicatesWindow(Session& session, const Review::DuplicateRules& rules, QMainWindow& window);

 private:
  QWidget* RuleBoxes(const Review::DuplicateRules& rules);
  QLayout* Buttons();
  QMenu* KeepMenu();
  // Ticks these and no others.
  void Propose(const std::vector<int>& slots);
  void SetUpTree();

  // A channel's row in the tree, and what the user did there.
  struct Row {
    QTreeWidgetItem* item;
    int slot;
    bool ticked;
    bool current;
  };
  // Under the bytes of their channels. Channels of the same bytes are in one group.
  using Rows = std::map<decltype(Routines::ChannelRecord::bytes), std::vector<Row>>;

  [[nodiscard]] Review::DuplicateRules Rules() const;
  void Refresh();
  void Rebuild();
  [[nodiscard]] Rows RowsByChannel() const;
  void Restore(const Rows& earlier);
  void FillTexts();
  void FillChannel(QTreeWidgetItem& item, int slot, const QString& favourites);
  void TellCounts();
  [[nodiscard]] std::vector<int> Chosen() const;
  void GoTo(const QTreeWidgetItem* item);
  void SelectFound();

  using Groups = std::vector<std::vector<int>>;  // of slots

  Session& session_;
  Groups groups_;
  std::vector<int> surplus_;                                 // all but the first of what is the same
  std::vector<std::vector<Routines::ChannelRecord>> shown_;  // the channels of the groups in the tree
  QCheckBox* service_;
  QCheckBox* streams_;
  QCheckBox* name_;
  QCheckBox* bareName_;
  QTreeWidget* tree_;
  QLabel* counts_;
  QPushButton* goTo_;
  QPushButton* keep_;
  QAction* keepNewest_ = nullptr;
  QPushButton* deleteChosen_;
  QPushButton* deleteOthers_;
  QPushButton* deactivate_;
  QPushButton* select_;
};

}  // namespace Ui
