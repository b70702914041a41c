// `ImpostaCampi`: the same coding, transponder and so on for many channels, with what each would become.
#pragma once

#include "edit/set_fields.h"
#include "ui/edit/scope_choice.h"
#include "ui/session/preview_model.h"

#include <QDialog>

class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QSpinBox;

namespace Ui {

class SetDialog : public QDialog {
  Q_OBJECT

 public:
  SetDialog(const Session& session, QWidget* parent);

  // The channels that are ticked, as they would become.
  [[nodiscard]] std::vector<Edit::ChangedChannel> Chosen() const;
  [[nodiscard]] Edit::FieldChanges Changes() const;
  // ", Codifica 24 Seca, SID +10": what they get, to stand behind a result.
  [[nodiscard]] QString What() const;

 private:
  void Build();
  void AddFields(QFormLayout& form);
  void ShowPlan();
  void ShowOutcome();
  [[nodiscard]] QString FromWhat() const;

  const Session& session_;
  ScopeChoice* scope_;
  QComboBox* coding_;
  QComboBox* active_;
  QComboBox* transponder_;
  QSpinBox* sid_;
  QSpinBox* pid_;
  QComboBox* whichPid_;
  PreviewModel* preview_;
  QLabel* outcome_;
  QPushButton* confirm_ = nullptr;
  std::vector<Edit::ChangedChannel> planned_;  // as the lines of the preview
  QString fault_;                              // of a value
};

}  // namespace Ui
