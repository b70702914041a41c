// The list that the window works on. Every change of it goes through one gate, so that no view is ever out of
// date and a command that changed nothing leaves no trace.
#pragma once

#include "edit/history.h"
#include "model/routines.h"

#include <QObject>

#include <map>
#include <memory>
#include <type_traits>

namespace Ui {

class Document : public QObject {
  Q_OBJECT

 public:
  explicit Document(QObject* parent = nullptr);

  [[nodiscard]] const Routines::State& Tables() const { return *state_; }
  // The channels copied or cut.
  [[nodiscard]] const Edit::Clipboard& Copied() const { return clipboard_; }
  // What is copied is no part of the list, and so no step.
  void Copy(Edit::Clipboard channels) { clipboard_ = std::move(channels); }

  // Runs `operation` on the tables as one step that can be undone, named `label` (UTF-8), and tells the views
  // where it changed any; `operation` may still write the label. Without a change there is no step. One that
  // takes the clipboard as well, as cutting and pasting do, changes both in that step. Returns what `operation`
  // returns, if anything.
  template <class Operation>
  auto Apply(const std::string& label, Operation operation,
             Edit::History::Kind kind = Edit::History::Kind::Edit) {
    if (kind == Edit::History::Kind::List) Q_EMIT AboutToReplace();
    auto before = std::make_unique<Routines::State>(*state_);
    const Edit::Clipboard copied = clipboard_;
    if constexpr (std::is_void_v<decltype(Run(operation))>) {
      Run(operation);
      Keep(label, kind, std::move(before), copied);
    } else {
      auto result = Run(operation);
      Keep(label, kind, std::move(before), copied);
      return result;
    }
  }

  // Changes what is no part of the list itself, and so no step: where it is written, how rates are shown.
  template <class Operation>
  void Adjust(Operation operation) {
    operation(*state_);
    Tell();
  }

  [[nodiscard]] const Edit::History& Steps() const { return history_; }
  // Take back and do again that many steps, or all that there are.
  void Undo(int steps = 1);
  void Redo(int steps = 1);

  // Another one after every change.
  [[nodiscard]] int Revision() const { return revision_; }

  // A number for a list that takes the place of the loaded one; never the same twice.
  int NextListNumber() { return ++lastListNumber_; }

  // Whether the tables hold anything that no flash image gives back.
  [[nodiscard]] bool Unsaved() const;
  // The tables are as the image at `path` has them.
  void MarkSaved(const std::string& path);
  // That image has been written over: what it had before is saved no longer.
  void ForgetSaved(const std::string& path);
  // No image on the disk has them whole, however little was changed.
  void MarkUnsaved();

 Q_SIGNALS:
  // Another list may take the place of this one.
  void AboutToReplace();
  void Changed();

 private:
  template <class Operation>
  auto Run(Operation& operation) {
    if constexpr (std::is_invocable_v<Operation&, Routines::State&, Edit::Clipboard&>) {
      return operation(*state_, clipboard_);
    } else {
      return operation(*state_);
    }
  }
  // Makes a step of what came after `before` and `copied`, if anything has changed since.
  void Keep(const std::string& label, Edit::History::Kind kind, std::unique_ptr<Routines::State> before,
            const Edit::Clipboard& copied);
  void Tell();

  std::unique_ptr<Routines::State> state_;
  Edit::Clipboard clipboard_;
  struct Saved {
    std::string path;  // resolved, as one image may have many names
    std::unique_ptr<Routines::State> state;
  };
  std::map<int, Saved> saved_;  // of each list, by number, what the disk has
  Edit::History history_;
  int lastListNumber_ = 0;
  int revision_ = 0;
};

}  // namespace Ui
