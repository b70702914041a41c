// The small field above the list that marks matches of name, SID or transponder as they are typed, or rows that another
// window points out, and steps through them. No row is ever hidden, so that numbers stay true.
#pragma once

#include "ui/list/document.h"

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QLineEdit;

namespace Ui {

class FilterBar : public QWidget {
  Q_OBJECT

 public:
  FilterBar(const Document& document, QWidget* parent);

  // Rows found by something else than a text, and found again by it after every change of the list.
  struct Rows {
    QString title;              // shown in the field until the user types in it
    bool transponders = false;  // they are rows of that list, not of the channel list
    std::function<std::vector<int>(const Routines::State&)> find;
  };

  void StartTyping();
  void Show(Rows rows);
  // Whether the matches are rows of the transponder list.
  [[nodiscard]] bool ForTransponders() const { return rows_.find && rows_.transponders; }
  [[nodiscard]] bool Active() const { return !matches_.empty(); }
  [[nodiscard]] const std::vector<int>& Matches() const { return matches_; }
  // Finds the matches again, as the list has changed.
  void Refresh();

 Q_SIGNALS:
  // The matches are others now.
  void Changed();
  // The user asks for the next match, or the one before.
  void Step(bool forward);
  // The user is done with the field.
  void Left();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const Document& document_;
  QLineEdit* field_;
  QLabel* count_;
  Rows rows_;  // without `find` where the text of the field counts
  std::vector<int> matches_;
};

}  // namespace Ui
