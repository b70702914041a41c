// The boxes of the SatcoDX import: its options, and where a whole table goes.
#pragma once

#include "model/routines.h"
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
  struct Contents {
    Formats::SatcodxSummary summary;
    std::vector<std::string> codes;
  };

  SdxOptionsDialog(const QString& fileName, Contents contents, const Session& session, QWidget* parent);

  [[nodiscard]] Formats::SdxOptions Chosen() const;

 private:
  void Confirm();
  // "prova.sdx: 1100 righe, HOTBIRD 13E"
  [[nodiscard]] QString FileText(const QString& fileName) const;
  // Where the satellite chosen does not seem to be the file's; empty where it may well be.
  [[nodiscard]] QString Warning() const;

  const Session& session_;
  Formats::SatcodxSummary summary_;
  QComboBox* satellite_;
  QLabel* warning_;
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
