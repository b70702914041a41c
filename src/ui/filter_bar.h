// The small field above the channel list that marks matches of name, SID or transponder as they are typed, and steps
// through them. No row is ever hidden, so that numbers stay true.
#pragma once

#include "ui/document.h"

#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;

namespace Ui {

class FilterBar : public QWidget {
  Q_OBJECT

 public:
  FilterBar(const Document& document, QWidget* parent);

  void StartTyping();
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
  std::vector<int> matches_;
};

}  // namespace Ui
