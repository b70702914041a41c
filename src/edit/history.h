// Undo and redo: a bounded stack of snapshots of the one state value.
#pragma once

#include "model/routines.h"

#include <deque>
#include <memory>
#include <string>

namespace Edit {

class History {
 public:
  // What a step changed. A replaced list brings its own output and limits back; an edit leaves those alone, as a save
  // may have set them since. A continued edit makes one step with the one before it.
  enum class Kind { Edit, Continued, List };

  // The steps kept; at some 135 KB each they stay below 30 MB.
  static constexpr std::size_t MostSteps = 200;

  // Records a change that has just been made: `before` is what it started from. Forgets what was undone.
  void Push(std::string label, Kind kind, std::unique_ptr<Routines::State> before);

  // Labels of the steps that would be taken back and done again; empty when there is none.
  [[nodiscard]] std::string UndoLabel() const { return done_ == 0 ? "" : steps_[done_ - 1].label; }
  [[nodiscard]] std::string RedoLabel() const { return done_ == steps_.size() ? "" : steps_[done_].label; }

  // Exchanges `state` with the other side of a step: the two values change hands, neither is copied. False when there
  // is none.
  bool Undo(std::unique_ptr<Routines::State>& state);
  bool Redo(std::unique_ptr<Routines::State>& state);

 private:
  struct Step {
    std::string label;
    Kind kind;
    std::unique_ptr<Routines::State> other;
  };

  static void Exchange(Step& step, std::unique_ptr<Routines::State>& state);

  std::deque<Step> steps_;
  std::size_t done_ = 0;  // steps from here on are taken back
};

}  // namespace Edit
