// Undo and redo: a bounded stack of snapshots of the one state value.
#pragma once

#include "edit/clipboard.h"
#include "model/routines.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace Edit {

class History {
 public:
  // What a step changed. A replaced list brings its own output and limits back; an edit leaves those alone, as a save
  // may have set them since. A continued edit makes one step with the one before it, which takes its label.
  enum class Kind { Edit, Continued, List };

  // The steps kept; at some 135 KB each they stay below 30 MB, and below 100 MB where each cut the whole list.
  // The last one that brought a list is always among them: undoing it may be the only way back from what that list makes
  // unavailable.
  static constexpr std::size_t MostSteps = 200;

  // Records a change that has just been made: `before` is what it started from. Forgets what was undone. A step that
  // changed the clipboard too, from `copied` to `copiedNow`, carries both: what a cut took out of the list is in one of
  // the two wherever undo and redo lead.
  void Push(std::string label, Kind kind, std::unique_ptr<Routines::State> before,
            const Clipboard& copied = {}, const Clipboard& copiedNow = {});

  // Labels of the steps that would be taken back and done again; empty when there is none.
  [[nodiscard]] std::string UndoLabel() const { return done_ == 0 ? "" : steps_[done_ - 1].label; }
  [[nodiscard]] std::string RedoLabel() const { return done_ == steps_.size() ? "" : steps_[done_].label; }
  // All of them, in the order in which they would be.
  [[nodiscard]] std::vector<std::string> UndoLabels() const;
  [[nodiscard]] std::vector<std::string> RedoLabels() const;

  // A number of the last step done that no other one ever has; 0 where there is none.
  [[nodiscard]] int LastStep() const { return done_ == 0 ? 0 : steps_[done_ - 1].number; }

  // Exchanges `state` with the other side of a step: the two values change hands, neither is copied. The clipboard
  // becomes what the step had there; one that left it alone leaves it alone again. False when there is no step.
  bool Undo(std::unique_ptr<Routines::State>& state, Clipboard& clipboard);
  bool Redo(std::unique_ptr<Routines::State>& state, Clipboard& clipboard);

 private:
  struct Copied {
    Clipboard before;
    Clipboard after;
  };
  struct Step {
    std::string label;
    Kind kind;
    int number;
    std::unique_ptr<Routines::State> other;
    std::unique_ptr<const Copied> clipboard;  // of a step that changed it
  };

  void DropOldest();
  static void Exchange(Step& step, std::unique_ptr<Routines::State>& state);

  std::deque<Step> steps_;
  std::size_t done_ = 0;  // steps from here on are taken back
  int lastNumber_ = 0;
};

}  // namespace Edit
