// `FinestraConfronto`: one's own list beside another one, difference by difference, with what may be taken over. It
// follows the list and never writes the other one.
#pragma once

#include "edit/take_over.h"
#include "ui/review/compare_model.h"
#include "ui/review/other_side.h"
#include "ui/session/tool_window.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QTableView;

namespace Ui {

class ElidedLabel;

class CompareWindow : public ToolWindow {
  Q_OBJECT

 public:
  CompareWindow(Session& session, OtherSide other, QMainWindow& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLayout* KindBoxes();
  void SetUpTable();
  QLayout* Buttons();
  static void AddChoice(QLayout& row, QComboBox* box, const char* name, const char* what,
                        const QStringList& choices);

  // Compares anew; `Fill` shows the same differences by other boxes.
  void Refresh();
  void Fill(Review::Comparison found);
  void ShowCounts();
  void ShowTicks();
  void Tell(const QString& text);

  [[nodiscard]] bool IsOrder() const { return other_.What() == OtherSide::Kind::Order; }
  [[nodiscard]] Edit::NewPlace Place() const;
  [[nodiscard]] std::vector<int> SelectedRows() const;
  void TickAll(bool on);
  void TickSelected();
  void GoTo(const QModelIndex& index);
  [[nodiscard]] Edit::Slots FoundHere() const;
  void SelectFound();
  void Apply();
  void TakeOrder();
  void ListMissing();

  Session& session_;
  OtherSide other_;
  CompareModel* model_;
  QTableView* table_;
  ElidedLabel* names_;
  std::array<QCheckBox*, Review::Marks> kinds_{};
  QLabel* rest_;
  ElidedLabel* result_;
  QPushButton* goTo_ = nullptr;
  QPushButton* select_ = nullptr;
  QPushButton* apply_ = nullptr;
  QPushButton* order_ = nullptr;
  QPushButton* missing_ = nullptr;
  QComboBox* place_;      // of channels that this list does not have yet
  QComboBox* numbering_;  // of those that an order has
};

}  // namespace Ui
