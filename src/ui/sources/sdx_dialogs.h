// The boxes of the SatcoDX import: its options, and where a whole table goes.
#pragma once

#include "model/bouquets.h"
#include "model/routines.h"
#include "ui/kit/dialogs.h"
#include "ui/sources/row_choices.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace Ui {

// `OpzioniImportSDX`: which lines of a list become rows.
class SdxOptionsDialog : public QDialog {
  Q_OBJECT

 public:
  SdxOptionsDialog(const std::vector<Routines::Satellite>& satellites, const std::vector<std::string>& codes,
                   RowFilters filters, Dialogs& dialogs, QWidget* parent);

  [[nodiscard]] Formats::SdxOptions Chosen() const;

 private:
  void Confirm();

  Dialogs& dialogs_;
  QComboBox* satellite_;
  RowChoices rows_;
};

// `ImportazioneSDX`: into which slots a whole table is written. What that does to the list stands below the choice.
class SdxImportDialog : public QDialog {
  Q_OBJECT

 public:
  // `rows` of the table want a place; `others` says what becomes of the rest, if there is any.
  SdxImportDialog(const Routines::State& state, int rows, const QString& others, QWidget* parent);

  // The slots to be filled, as many as there are rows or room; none where the start is no slot of the list.
  [[nodiscard]] std::vector<int> Slots() const;

 private:
  void ShowOutcome();

  const Routines::State& state_;
  int rows_;
  QString others_;
  QRadioButton* fromStart_;
  QRadioButton* fromChannel_;
  QRadioButton* gaps_;
  QLineEdit* start_;
  QLabel* outcome_;
  QPushButton* confirm_;
};

}  // namespace Ui
