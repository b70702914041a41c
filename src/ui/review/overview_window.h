// `FinestraRiepilogo`: what the list holds, as bars, and what to check in it. It follows the list, and every line leads
// to the rows that it counts.
#pragma once

#include "review/overview.h"
#include "ui/session/session.h"
#include "ui/session/tool_window.h"

#include <set>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace Ui {

// The command: shows the window, or says that there is nothing to show.
void ShowOverview(Session& session, QMainWindow& window);

class OverviewWindow : public ToolWindow {
  Q_OBJECT

 public:
  OverviewWindow(Session& session, QMainWindow& window);

 private:
  using Lines = std::vector<Review::OverviewLine>;

  void SetUpTree();
  QLayout* Bottom();
  void Refresh();
  // Makes the tree's items anew; sections that were closed stay closed.
  void Rebuild();
  void FillTexts();
  void TellTotals();
  void EnableButtons();
  // The line of an item; none for a heading.
  [[nodiscard]] const Review::OverviewLine* LineOf(const QTreeWidgetItem* item) const;
  [[nodiscard]] static bool HasChannels(const Review::OverviewLine* line);
  void GoTo(const QTreeWidgetItem* item);

  Session& session_;
  Lines lines_;
  std::vector<QTreeWidgetItem*> items_;  // by line
  std::set<Review::OverviewSection> closed_;
  QTreeWidget* tree_;
  QLabel* totals_;
  QPushButton* goTo_ = nullptr;
  std::vector<QPushButton*> forChannels_;
};

}  // namespace Ui
