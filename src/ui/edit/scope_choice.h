// Which channels a command for many works on: those selected, those found, or the whole list.
#pragma once

#include "edit/list_operations.h"

#include <QWidget>

class QRadioButton;

namespace Ui {

struct Session;

class ScopeChoice : public QWidget {
  Q_OBJECT

 public:
  // Offers what there is, with the number of its channels; the smallest set of more than one row is chosen at first.
  ScopeChoice(const Session& session, QWidget* parent);

  // The chosen rows, rising; empty slots may be among them.
  [[nodiscard]] const Edit::Slots& Chosen() const;
  // ", nelle righe selezionate": to stand behind a result; empty for the whole list.
  [[nodiscard]] QString Where() const;

 Q_SIGNALS:
  void Changed();

 private:
  struct Scope {
    Edit::Slots slots;
    QString where;
    QRadioButton* choice;
  };

  void Offer(const Routines::State& state, const char* name, const QString& caption, const QString& where,
             Edit::Slots slots);
  [[nodiscard]] const Scope& Current() const;

  std::vector<Scope> scopes_;
};

}  // namespace Ui
