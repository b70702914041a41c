// The header of a list that is being recognised: above each column its title and what the user says it holds.
#pragma once

#include "formats/foreign_layout.h"

#include <QHeaderView>

class QCheckBox;
class QComboBox;

namespace Ui {

class ColumnHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit ColumnHeader(QWidget* parent);

  // Takes other columns; the view's model has as many.
  void ShowColumns(const std::vector<Formats::ForeignColumn>& columns);
  [[nodiscard]] const std::vector<Formats::ForeignColumn>& Columns() const { return columns_; }

  // Puts the choosers behind a control on the way of the Tab key, column by column.
  void ComeAfter(QWidget& control);

  // What the choosers of a column need.
  [[nodiscard]] int ChooserWidth() const;
  [[nodiscard]] QSize sizeHint() const override;

 Q_SIGNALS:
  void Changed();

 protected:
  void updateGeometries() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Chooser {
    QComboBox* meaning;
    QCheckBox* hexadecimal;
  };

  Chooser MakeChooser(int column);
  void Choose(int column, int meaning);
  void Refresh();
  void Place();

  std::vector<Formats::ForeignColumn> columns_;
  std::vector<Chooser> choosers_;
};

}  // namespace Ui
