// What stands at the right of a list: panes that take turns in one place, and below it what is docked there.
#pragma once

#include <QPointer>
#include <QSplitter>

#include <array>

class QVBoxLayout;

namespace Ui {

class SidePart : public QSplitter {
 public:
  // The second part of `parts`, whose first one is the list. It is hidden while nothing is shown in it.
  explicit SidePart(QSplitter& parts);

  // A pane that is `Wide` shares the width with the list, others keep theirs; each kind has one that it comes back to.
  enum class Kind { Narrow, Wide };
  // Adds a pane, which is hidden, to the upper place. One at a time is shown there.
  void Add(QWidget& pane, Kind kind = Kind::Narrow);

  // Shows a widget below the upper place; another parent takes it away.
  void Dock(QWidget& widget);
  // Whether that leaves the list `letters` of width, in a place of at least `lines` of height.
  [[nodiscard]] bool HasRoom(int lines, int letters) const;

  // The sizes that the user has given the parts, for another session.
  [[nodiscard]] QString Sizes();
  void Restore(const QString& sizes);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Watch(QWidget& part);
  [[nodiscard]] bool Shows(Kind kind) const;
  [[nodiscard]] int WidthOf(Kind kind) const;
  void Remember();
  void Follow();
  void ShareWidth();
  void ShareHeight();

  QSplitter& parts_;
  QWidget* upper_;
  QVBoxLayout* panes_;
  QList<QWidget*> wide_;
  QPointer<QWidget> docked_;
  Kind kind_ = Kind::Narrow;
  bool both_ = false;                   // a pane and what is docked are shown
  std::array<int, 2> widths_ = {0, 0};  // by kind, as last seen; 0 for not yet
  int height_ = 0;                      // of what is docked, where a pane is above it
};

}  // namespace Ui
