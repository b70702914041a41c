// The pane of the SDX table, beside the channel list.
#pragma once

#include "ui/list/finder.h"
#include "ui/sources/sdx_model.h"

#include <QWidget>

namespace Ui {

class ElidedLabel;

class SdxPane : public QWidget {
  Q_OBJECT

 public:
  SdxPane(const Formats::SdxTable& table, QWidget* parent);

  [[nodiscard]] Grid& ListGrid() const { return *grid_; }
  [[nodiscard]] FilterBar& Filter() const { return *filter_; }
  [[nodiscard]] Finder& Hits() const { return *hits_; }
  // The table holds other rows now; `name` is the file's satellite, or the file.
  void Refresh(const QString& name);
  [[nodiscard]] const QString& Name() const { return name_; }

 Q_SIGNALS:
  // The user wants a row, from 1, in the channel list.
  void Chosen(int row);
  // The user wants the selected rows there.
  void CopyWanted();

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  SdxModel model_;
  QString name_;
  ElidedLabel* caption_;
  FilterBar* filter_;
  Grid* grid_;
  Finder* hits_;
};

}  // namespace Ui
