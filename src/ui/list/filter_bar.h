// The small field above a grid for words that find rows, with what it has found, a switch that leaves nothing else in
// view, and the words explained. What is found may also come from another window that points rows out.
#pragma once

#include "review/filter.h"

#include <QWidget>

#include <functional>
#include <vector>

class QCheckBox;
class QKeyEvent;
class QLineEdit;

namespace Ui {

class ElidedLabel;

class FilterBar : public QWidget {
  Q_OBJECT

 public:
  using Found = std::vector<int>;  // rows in rising order, from 1
  using Find = std::function<Found(const Review::Filter&)>;

  // The controls' names end in `suffix`.
  FilterBar(const QString& suffix, const QString& placeholder, Find find, QWidget* parent);

  // Rows found by something else than words, and found again by it after every change of the list.
  struct Rows {
    QString title;              // shown in the field until the user types in it
    bool transponders = false;  // they are rows of that list, not of the channel list
    std::function<Found()> find;
  };

  void StartTyping();
  void Show(Rows rows);
  // Whether the matches are rows of the transponder list.
  [[nodiscard]] bool ForTransponders() const { return rows_.find && rows_.transponders; }
  // Whether there is anything to find, be it found or not.
  [[nodiscard]] bool Asks() const { return rows_.find || !filter_.Empty(); }
  [[nodiscard]] const Found& Matches() const { return matches_; }
  // Finds the matches again, as the list has changed.
  void Refresh();

  // "Solo i trovati": whether nothing but the matches is to be seen.
  [[nodiscard]] bool Only() const;
  void SetOnly(bool only);

  // Which of the matches is the current row, from 1; 0 for none.
  void ShowPlace(std::size_t place);

 Q_SIGNALS:
  // The matches are others now, or what is to be seen of the others.
  void Changed();
  void OnlyToggled(bool only);
  // The user has typed.
  void Typed();
  // The user asks for the next match, or the one before.
  void Step(bool forward);
  // The user wants all matches selected.
  void SelectWanted();
  void HelpWanted();
  // The user is done with the field.
  void Left();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& key);

  Find find_;
  QLineEdit* field_;
  ElidedLabel* count_;
  QCheckBox* only_;
  Review::Filter filter_;
  Rows rows_;  // without `find` where the words count
  Found matches_;
};

}  // namespace Ui
