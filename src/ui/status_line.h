// The status bar: the last result, the list's figures, unsaved changes and the flash chosen for writing.
#pragma once

#include "model/routines.h"

#include <QLabel>
#include <QObject>

class QProgressBar;
class QStatusBar;

namespace Ui {

class StatusLine : public QObject {
  Q_OBJECT

 public:
  explicit StatusLine(QStatusBar& bar);

  // What came of the last command.
  void ShowResult(const QString& text);
  void ShowList(const Routines::State& state, bool unsaved);
  // 0..100 while a command runs; 100 hides the bar again.
  void ShowProgress(int percent);

 private:
  QLabel* AddPermanent(QStatusBar& bar, const char* name);

  QLabel* result_;
  QProgressBar* progress_;
  QLabel* channels_;
  QLabel* transponders_;
  QLabel* unsaved_;
  QLabel* output_;
};

}  // namespace Ui
