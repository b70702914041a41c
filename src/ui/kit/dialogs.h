// Everything the program asks or tells in a box goes through this interface, so that a test can answer.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Ui {

inline constexpr const char* FlashFilters = "Binary files(*.dat)|*.dat|Tutti i file (*.*)|*.*|";

struct FileQuestion {
  QString title;
  QString filters;  // "Caption|*.dat|Caption|*.*|"
  QString folder;   // empty for the toolkit's own choice
  bool newFile =
      false;  // a file that is there already is refused later on: no question whether to replace it
};

enum class Tone { Warning, Information };
enum class Answer { Yes, No, Cancel };

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // An empty title stands for the program's name.
  virtual void Message(const QString& text, const QString& title, Tone tone = Tone::Warning) = 0;
  // One more of the same kind within a command: false where the user wants no further ones.
  virtual bool RepeatedMessage(const QString& text) = 0;
  virtual bool YesNo(const QString& question) = 0;
  // Where a Yes cannot be taken back: Enter says No.
  virtual bool FinalYesNo(const QString& question) = 0;
  virtual Answer YesNoCancel(const QString& question) = 0;
  virtual bool OkCancel(const QString& question) = 0;
  // The line typed, nothing when the user cancels. `proposed` stands there at first.
  virtual std::optional<QString> AskLine(const QString& question, const QString& proposed) = 0;
  std::optional<QString> AskLine(const QString& question) { return AskLine(question, {}); }
  // The place of the text chosen among `choices`, which must not be empty; `current` is offered first.
  virtual std::optional<int> Choose(const QString& question, const QStringList& choices, int current) = 0;
  // The chosen path, empty when the user cancels. A file to save may exist already.
  virtual QString OpenFile(const FileQuestion& question) = 0;
  virtual QString SaveFile(const FileQuestion& question) = 0;
};

}  // namespace Ui
