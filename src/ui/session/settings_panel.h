// The three option groups above the grid: capacity, flash type and place of the 22000 symbol rate.
#pragma once

#include "model/write_settings.h"

#include <QWidget>

class QButtonGroup;
class QGroupBox;

namespace Ui {

class SettingsPanel : public QWidget {
  Q_OBJECT

 public:
  explicit SettingsPanel(QWidget* parent);

  [[nodiscard]] Routines::Settings Chosen() const;
  // Groups without a choice in `settings` stay as they are.
  void Choose(const Routines::Settings& settings);

  // Makes the first group without a choice stand out until it has one, and gives it the focus.
  void PointOutMissing();

 Q_SIGNALS:
  // The user has chosen an option of any group, or all of them have come back.
  void Clicked();

 private:
  QButtonGroup* AddGroup(const char* name, const QString& title,
                         const std::vector<std::string_view>& captions);

  QButtonGroup* quantiCanali_;
  QButtonGroup* flashScrittura_;
  QButtonGroup* srDef_;
};

}  // namespace Ui
