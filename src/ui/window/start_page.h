// What stands in the window before a list is loaded: the first steps, ticked as they are done, and the flash images
// opened last.
#pragma once

#include "ui/session/settings_panel.h"

#include <QScrollArea>

#include <vector>

class QAction;
class QVBoxLayout;

namespace Ui {

class RecentFiles;

class StartPage : public QScrollArea {
  Q_OBJECT

 public:
  // `open` is the command that the page's button runs.
  StartPage(const SettingsPanel& settings, RecentFiles& recent, QAction& open, QWidget* parent);

  // Ticks the steps that the settings say are done.
  void ShowSteps();

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Disc;

  // A step is a number in a disc, which becomes a tick, and what to do.
  void AddStep(QVBoxLayout& column, const char* name, const QString& text, QWidget* button = nullptr);
  void ShowRecent();
  // Cuts the paths to the room that there is.
  void CutPaths();

  const SettingsPanel& settings_;
  RecentFiles& recent_;
  std::vector<Disc*> discs_;
  QWidget* recentBox_;
  QVBoxLayout* recentList_;
};

}  // namespace Ui
