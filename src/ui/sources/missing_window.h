// `ElencoNonInSDX`: the loaded channels of a satellite that a SatcoDX list does not have. It follows the channel list.
#pragma once

#include "ui/session/session.h"
#include "ui/session/tool_window.h"

#include <functional>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace Ui {

class MissingWindow : public ToolWindow {
  Q_OBJECT

 public:
  using Find = std::function<Edit::Slots()>;

  // `find` gives the slots of the channels, in rising order, again after every change.
  MissingWindow(Session& session, Find find, QMainWindow& window);

 private:
  void SetUpTree();
  QLayout* Buttons();
  // Ticks stay on channels that are unchanged, wherever these have moved.
  void Refresh();
  QTreeWidgetItem* Item(int slot) const;
  void TellCount();
  void TickAll(bool on);
  // The ticked ones, or all of them where none is.
  [[nodiscard]] Edit::Slots Chosen() const;
  [[nodiscard]] Edit::Slots Ticked() const;
  void GoTo(QTreeWidgetItem* item);

  Session& session_;
  Find find_;
  Edit::Slots slots_;  // by row
  std::vector<Routines::ChannelRecord> records_;
  QTreeWidget* tree_;
  QLabel* count_;
  std::vector<QPushButton*> forAny_;
  std::vector<QPushButton*> forTicked_;
};

}  // namespace Ui
