// The toolkit's own boxes.
#pragma once

#include "ui/kit/dialogs.h"

#include <QStringList>

class QWidget;

namespace Ui {

class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(QWidget* parent) : parent_(parent) {}

  void Message(const QString& text, const QString& title, Tone tone) override;
  bool RepeatedMessage(const QString& text) override;
  bool YesNo(const QString& question) override;
  bool FinalYesNo(const QString& question) override;
  Answer YesNoCancel(const QString& question) override;
  bool OkCancel(const QString& question) override;
  using Dialogs::AskLine;
  std::optional<QString> AskLine(const QString& question, const QString& proposed) override;
  std::optional<int> Choose(const QString& question, const QStringList& choices, int current) override;
  QString OpenFile(const FileQuestion& question) override;
  QString SaveFile(const FileQuestion& question) override;

 private:
  QString AskFile(const FileQuestion& question, bool save);

  QWidget* parent_;
};

// "Caption|*.dat|" pairs as the toolkit's name filters, each matching upper and lower case.
QStringList NameFilters(const QString& filters);

}  // namespace Ui
