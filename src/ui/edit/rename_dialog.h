// `CambiaNomi`: new names for many channels by a chain of rules, which can be kept under a name.
#pragma once

#include "edit/rename.h"
#include "ui/edit/scope_choice.h"
#include "ui/session/preview_model.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QVBoxLayout;

namespace Ui {

// One rule of the chain, as the user sets it.
class RuleLine : public QWidget {
  Q_OBJECT

 public:
  explicit RuleLine(QWidget* parent);

  void Set(const Edit::RenameRule& rule);
  [[nodiscard]] Edit::RenameRule Rule() const;

 Q_SIGNALS:
  void Changed();
  void RemoveWanted();

 private:
  void ShowTexts();

  QComboBox* kind_;
  QLineEdit* text_;
  QLineEdit* with_;
};

class RenameDialog : public QDialog {
  Q_OBJECT

 public:
  // `source` knows the names of the list on the right; empty where there is none.
  RenameDialog(const Session& session, Edit::SourceName source, QWidget* parent);

  // The new names that are ticked.
  [[nodiscard]] std::vector<Edit::NewName> Chosen() const;
  [[nodiscard]] QString Where() const { return scope_->Where(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Build();
  QWidget* KeptRules();
  void AddRule(const Edit::RenameRule& rule);
  void RemoveRule(RuleLine* line);
  [[nodiscard]] std::vector<Edit::RenameRule> Rules() const;
  void ShowNames();
  void ShowTicks();
  void ShowKept();
  void TakeKept(const QString& name);
  void Keep();
  void Forget();

  const Session& session_;
  Edit::SourceName source_;
  ScopeChoice* scope_;
  QVBoxLayout* lines_;
  std::vector<RuleLine*> rules_;
  QComboBox* kept_;
  PreviewModel* names_;
  std::vector<Edit::NewName> planned_;  // as the lines of the preview
  QTableView* table_;
  QLabel* outcome_;
  QPushButton* confirm_ = nullptr;
  QString fault_;  // of a rule
};

}  // namespace Ui
