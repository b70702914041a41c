// `ImportazioneElenco`: which services of a list of today become rows, and whose satellite each position is.
#pragma once

#include "formats/list_format.h"
#include "formats/list_summary.h"
#include "formats/service_rows.h"
#include "ui/kit/dialogs.h"
#include "ui/sources/row_choices.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QTableWidget;

namespace Ui {

class ServiceListDialog : public QDialog {
  Q_OBJECT

 public:
  // A list whose format holds services; the text outlives the dialog.
  struct Source {
    QString fileName;
    const Formats::ListFormat& format;
    std::string_view text;
  };

  ServiceListDialog(const Source& source, Formats::ListSummary summary, const Session& session,
                    QWidget* parent);

  [[nodiscard]] Formats::ListOptions Chosen() const;

 private:
  void Build();
  void FillCodings();
  // The control that asks for satellites: a line for each position, or one for a file without any.
  QWidget* Satellites();
  QTableWidget* Positions();
  QComboBox* SatelliteBox(const QString& name);
  void ShowOutcome();
  [[nodiscard]] QString Outcome() const;
  [[nodiscard]] const char* Refusal() const;
  void Confirm();

  Source source_;
  Formats::ListSummary summary_;
  const Session& session_;
  RowChoices rows_;
  QComboBox* satellite_ = nullptr;  // of a file without positions
  std::vector<std::pair<int, QComboBox*>> positions_;
  QCheckBox* keepHd_;
  QLabel* outcome_;
  bool built_ = false;
};

}  // namespace Ui
