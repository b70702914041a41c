#include "edit/history.h"

namespace Edit {

using Routines::State;

void History::Push(std::string label, Kind kind, std::unique_ptr<State> before) {
  steps_.resize(done_);
  if (kind == Kind::Continued && done_ > 0) return;
  steps_.push_back({std::move(label), kind, std::move(before)});
  if (steps_.size() > MostSteps) steps_.pop_front();
  done_ = steps_.size();
}

bool History::Undo(std::unique_ptr<State>& state) {
  if (done_ == 0) return false;
  Exchange(steps_[--done_], state);
  return true;
}

bool History::Redo(std::unique_ptr<State>& state) {
  if (done_ == steps_.size()) return false;
  Exchange(steps_[done_++], state);
  return true;
}

void History::Exchange(Step& step, std::unique_ptr<State>& state) {
  std::swap(step.other, state);
  if (step.kind == Kind::List) return;
  state->MaxChannels = step.other->MaxChannels;
  state->OutputFlash = step.other->OutputFlash;
}

}  // namespace Edit
