// The window's two bottom lines: what came of the last command, and below it the status bar with the list's figures,
// unsaved changes and the flash chosen for writing.
#pragma once

#include "model/routines.h"
#include "ui/kit/elided_label.h"

#include <QObject>

class QProgressBar;
class QStatusBar;

namespace Ui {

class StatusLine : public QObject {
  Q_OBJECT

 public:
  explicit StatusLine(QStatusBar& bar);

  // The line of the last result and the progress bar; it belongs above the status bar.
  [[nodiscard]] QWidget* ResultLine() const { return line_; }

  void ShowResult(const QString& text);
  void ShowList(const Routines::State& state, bool unsaved, int clipboard);
  // Whether unsaved work is put aside against a crash, from the next list shown on.
  void SetKept(bool kept) { kept_ = kept; }
  // 0..100 while a command runs; 100 hides the bar again.
  void ShowProgress(int percent);

 Q_SIGNALS:
  void ResultShown(const QString& text);

 private:
  ElidedLabel* AddFigure(QStatusBar& bar, const char* name);

  QWidget* line_;
  ElidedLabel* result_;
  ElidedLabel* channels_;
  ElidedLabel* transponders_;
  ElidedLabel* clipboard_;
  ElidedLabel* unsaved_;
  ElidedLabel* output_;
  QProgressBar* progress_;
  bool kept_ = true;
};

}  // namespace Ui
