// The window's two bottom lines: what came of the last command, and below it the status bar with the list's figures,
// unsaved changes and the flash chosen for writing.
#pragma once

#include "model/routines.h"
#include "ui/kit/elided_label.h"

#include <QObject>

#include <map>
#include <vector>

class QProgressBar;
class QPushButton;
class QStatusBar;

namespace Ui {

class StatusLine : public QObject {
  Q_OBJECT

 public:
  explicit StatusLine(QStatusBar& bar);

  // The line of the last result and the progress bar; it belongs above the status bar.
  [[nodiscard]] QWidget* ResultLine() const { return line_; }

  // `slot` is where the result can be seen; a button beside it leads there.
  void ShowResult(const QString& text, int slot = 0);
  // Stands behind the result of the command that is running, or alone where it has none.
  void Remark(const QString& text);
  // Says for as long as it is so that rows of a grid are hidden; an empty text says that none are.
  void ShowHidden(const QString& grid, const QString& text);
  // A result that lost something stays beside later ones, with a warning sign. `channels` are lines for the window that
  // "Quali?" opens; without any there is no such button.
  // It stays until the next save or, where it was an edit, until its step is undone; `step` is 0 for a save.
  void ShowLoss(const QString& text, const QString& channels, int step);
  void ForgetLosses();
  void ForgetLossOf(int step);
  void ShowList(const Routines::State& state, bool unsaved, int clipboard);
  // Whether unsaved work is put aside against a crash, from the next list shown on.
  void SetKept(bool kept) { kept_ = kept; }
  // 0..100 while a command runs; 100 hides the bar again.
  void ShowProgress(int percent);

 Q_SIGNALS:
  // The user wants to see the channels of a loss.
  void ChannelsWanted(const QString& lines);
  void ResultShown(const QString& text);
  // The user wants to see what the result tells of.
  void GoToWanted(int slot);

 private:
  struct Loss {
    QString text;
    QString channels;
    int step;
  };

  ElidedLabel* AddFigure(QStatusBar& bar, const char* name);
  void ShowLastLoss();

  QWidget* line_;
  ElidedLabel* loss_;
  QPushButton* which_;
  ElidedLabel* result_;
  QPushButton* link_;
  int slot_ = 0;  // where that leads to
  ElidedLabel* channels_;
  ElidedLabel* transponders_;
  ElidedLabel* clipboard_;
  ElidedLabel* unsaved_;
  ElidedLabel* hidden_;
  ElidedLabel* output_;
  QProgressBar* progress_;
  std::vector<Loss> losses_;  // the last one is shown
  bool kept_ = true;
  bool resultShown_ = false;               // since a remark
  std::map<QString, QString> hiddenRows_;  // by grid
};

}  // namespace Ui
