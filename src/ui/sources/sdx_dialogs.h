// The boxes of the SatcoDX import: its options, where a whole table goes, and what a list does not have.
#pragma once

#include "formats/satcodx.h"
#include "model/bouquets.h"
#include "ui/session/session.h"
#include "ui/session/tool_window.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
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

// `ImportazioneSDX`: from which channel on a whole table is written.
class SdxImportDialog : public QDialog {
  Q_OBJECT

 public:
  explicit SdxImportDialog(QWidget* parent);

  // The line typed, or "1" for the start.
  [[nodiscard]] QString Start() const;

 private:
  QRadioButton* fromStart_;
  QLineEdit* start_;
};

// `ElencoNonInSDX`: lines that can be copied and saved.
class MissingWindow : public ToolWindow {
  Q_OBJECT

 public:
  MissingWindow(const QString& text, Session& session, QWidget* parent);

 private:
  void Save();

  Session& session_;
  QString text_;
};

}  // namespace Ui
