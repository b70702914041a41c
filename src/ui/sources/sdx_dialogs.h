// The boxes of the SatcoDX import: its options, and where a whole table goes.
#pragma once

#include "formats/satcodx.h"
#include "model/bouquets.h"
#include "model/routines.h"
#include "ui/kit/dialogs.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace Ui {

// The satellites that rows can be assigned to, by name and letter, none of them chosen; and the one chosen, 0 for A.
void FillSatellites(QComboBox& box, const std::vector<Routines::Satellite>& satellites);
int SatelliteIn(const QComboBox& box);

// `OpzioniImportSDX`: which lines of a list become rows.
class SdxOptionsDialog : public QDialog {
  Q_OBJECT

 public:
  SdxOptionsDialog(const std::vector<Routines::Satellite>& satellites, const std::vector<std::string>& codes,
                   Dialogs& dialogs, QWidget* parent);

  // The options but for the two filter lists, which the two switches ask for.
  [[nodiscard]] Formats::SdxOptions Chosen() const;
  [[nodiscard]] bool UseFilterList() const;
  [[nodiscard]] bool SkipKnown() const;

 private:
  void Confirm();

  Dialogs& dialogs_;
  std::vector<std::string> codes_;  // of the list's entries, without "Tutte"
  QComboBox* satellite_;
  QCheckBox* types_[3];
  QCheckBox* filterList_;
  QCheckBox* skipKnown_;
  QListWidget* list_;
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
