// `ImportazioneTesto`: what the columns of another program's list are, beside a look at its first lines.
#pragma once

#include "formats/foreign_layout.h"
#include "formats/foreign_text.h"
#include "model/bouquets.h"
#include "ui/kit/dialogs.h"
#include "ui/sources/column_header.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace Ui {

class ForeignDialog : public QDialog {
  Q_OBJECT

 public:
  // `text` outlives the dialog. `earlier` is what was chosen for the last file of this kind.
  ForeignDialog(const QString& caption, const QString& fileName, const Formats::ForeignText& text,
                const std::optional<Formats::ForeignLayout>& earlier,
                const std::vector<Routines::Satellite>& satellites, Dialogs& dialogs, QWidget* parent);

  [[nodiscard]] const Formats::ForeignLayout& Layout() const { return layout_; }
  [[nodiscard]] int Satellite() const;

 private:
  void Build(const QString& recognised, const std::vector<Routines::Satellite>& satellites);
  void ConnectChoices();
  // The lines are divided in another way: the columns are guessed anew, unless there are as many as the user chose for.
  void Divide();
  void ShowLayout();
  void ShowPreview();
  void ShowOutcome();
  [[nodiscard]] QString Outcome() const;
  void Confirm();

  const Formats::ForeignText& text_;
  Formats::ForeignSample sample_;
  Formats::ForeignLayout layout_;
  std::optional<Formats::ForeignLayout> chosen_;  // as the user's last choice for the columns left it
  Dialogs& dialogs_;
  QFormLayout* form_;
  QComboBox* separator_;
  QLineEdit* starts_;
  QCheckBox* quotes_;
  QCheckBox* header_;
  QComboBox* satellite_;
  QTableWidget* preview_;
  ColumnHeader* columns_;
  QLabel* outcome_;
  QPushButton* confirm_;
};

}  // namespace Ui
