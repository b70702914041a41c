// `OrdinaCanali`: which channels are sorted and by what, with the list as it would become.
#pragma once

#include "edit/sort_channels.h"
#include "ui/session/preview_model.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTableView;

namespace Ui {

struct Session;

class SortDialog : public QDialog {
  Q_OBJECT

 public:
  SortDialog(const Session& session, QWidget* parent);

  // As the preview shows it.
  [[nodiscard]] const Edit::SortPlan& Plan() const { return plan_; }
  // "per nome e satellite, dal 5" or "per nome, nelle righe selezionate".
  [[nodiscard]] QString How() const;

 private:
  void Build(int selected);
  [[nodiscard]] std::vector<int> Slots() const;
  [[nodiscard]] Edit::SortOrder Order() const;
  void ShowPlan();
  void ShowOutcome();

  const Session& session_;
  QRadioButton* fromChannel_;
  QRadioButton* selection_;
  QSpinBox* start_;
  std::array<QComboBox*, 3> keys_;
  QComboBox* multiple_;
  PreviewModel* preview_;
  QLabel* outcome_;
  QPushButton* confirm_ = nullptr;
  Edit::SortPlan plan_;
};

}  // namespace Ui
