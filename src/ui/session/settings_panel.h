// The three option groups above the grid: capacity, flash type and place of the 22000 symbol rate. A button folds them
// into one line that says what is chosen.
#pragma once

#include "model/write_settings.h"

#include <QWidget>

class QButtonGroup;
class QGroupBox;
class QToolButton;

namespace Ui {

class SettingsPanel : public QWidget {
  Q_OBJECT

 public:
  explicit SettingsPanel(QWidget* parent);

  [[nodiscard]] Routines::Settings Chosen() const;
  // Groups without a choice in `settings` stay as they are.
  void Choose(const Routines::Settings& settings);

  // Shows the groups and makes the first one without a choice stand out until it has one, with the focus in it.
  void PointOutMissing();

  void Fold(bool folded);
  [[nodiscard]] bool Folded() const;
  // How much higher the groups are than the line, in pixels.
  [[nodiscard]] int FoldedAway() const;

 Q_SIGNALS:
  // The user has chosen an option of any group, or all of them have come back.
  void Clicked();
  // The user wants one line, or the groups.
  void FoldWanted(bool folded);
  void Missing();

 private:
  void ShowLine();
  QButtonGroup* AddGroup(const char* name, const QString& title,
                         const std::vector<std::string_view>& captions);

  QToolButton* fold_;
  QWidget* groups_;
  QButtonGroup* quantiCanali_;
  QButtonGroup* flashScrittura_;
  QButtonGroup* srDef_;
};

}  // namespace Ui
