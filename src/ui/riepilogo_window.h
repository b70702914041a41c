// `FinestraRiepilogo`: what the list holds, as bars, and what to check in it. It follows the list, and every line leads
// to the rows that it counts.
#pragma once

#include "edit/riepilogo.h"
#include "ui/session.h"

#include <QDialog>

#include <set>

class QLabel;
class QMainWindow;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace Ui {

// The command: shows the window, or says that there is nothing to show.
void ShowRiepilogo(Session& session, QMainWindow& window);

class FinestraRiepilogo : public QDialog {
  Q_OBJECT

 public:
  FinestraRiepilogo(Session& session, QWidget* parent);

 private:
  using Lines = std::vector<Edit::RiepilogoLine>;

  void SetUpTree();
  QWidget* Bottom();
  void Refresh();
  // Makes the tree's items anew; sections that were closed stay closed.
  void Rebuild();
  void FillTexts();
  void TellTotals();
  void GoTo(const QTreeWidgetItem* item);

  Session& session_;
  Lines lines_;
  std::vector<QTreeWidgetItem*> items_;  // by line
  std::set<Edit::RiepilogoSection> closed_;
  QTreeWidget* tree_;
  QLabel* totals_;
  QPushButton* goTo_;
};

}  // namespace Ui
