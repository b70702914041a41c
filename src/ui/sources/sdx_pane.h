// The pane of the SDX table, beside the channel list.
#pragma once

#include "ui/list/finder.h"
#include "ui/sources/sdx_model.h"

#include <QWidget>

class QLabel;

namespace Ui {

class PaneHead;

class SdxPane : public QWidget {
  Q_OBJECT

 public:
  SdxPane(const Formats::SdxTable& table, QWidget* parent);

  [[nodiscard]] Grid& ListGrid() const { return *grid_; }
  [[nodiscard]] FilterBar& Filter() const { return *filter_; }
  [[nodiscard]] Finder& Hits() const { return *hits_; }
  // The table holds other rows now; `name` is the file's satellite, or the file. Where it was shown last they are seen
  // where they were left.
  void Refresh(const QString& name);
  // Keeps in mind where the rows are left that others are about to take the place of.
  void KeepPlace();
  // Where rows were left, and of what name.
  [[nodiscard]] const GridPlace& LeftAt() const { return left_; }
  [[nodiscard]] const QString& LeftName() const { return leftName_; }
  void SetLeft(const QString& name, const GridPlace& place);
  [[nodiscard]] const QString& Name() const { return name_; }
  [[nodiscard]] SdxModel& Model() { return model_; }
  // The slot of the channel list that has the current row's service; 0 for none.
  [[nodiscard]] int CurrentSlot() const { return model_.SlotOf(grid_->currentIndex().row() + 1); }

 Q_SIGNALS:
  // The user wants a row, from 1, in the channel list.
  void Chosen(int row);
  // The user wants the selected rows there.
  void CopyWanted();
  // The pane is about to be seen.
  void Shown();
  void CloseWanted();

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  SdxModel model_;
  QString name_;
  QString leftName_;
  GridPlace left_;
  PaneHead* head_;
  QLabel* count_;
  FilterBar* filter_;
  Grid* grid_;
  Finder* hits_;
};

}  // namespace Ui
