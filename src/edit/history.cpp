#include "edit/history.h"

namespace Edit {

using Routines::State;

void History::Push(std::string label, Kind kind, std::unique_ptr<State> before, const Clipboard& copied,
                   const Clipboard& copiedNow) {
  steps_.resize(done_);
  auto clipboard = copied == copiedNow ? nullptr : std::make_unique<const Copied>(Copied{copied, copiedNow});
  if (kind == Kind::Continued && done_ > 0 && clipboard == nullptr) return;
  steps_.push_back({std::move(label), kind, std::move(before), std::move(clipboard)});
  if (steps_.size() > MostSteps) steps_.pop_front();
  done_ = steps_.size();
}

bool History::Undo(std::unique_ptr<State>& state, Clipboard& clipboard) {
  if (done_ == 0) return false;
  Step& step = steps_[--done_];
  Exchange(step, state);
  if (step.clipboard != nullptr) clipboard = step.clipboard->before;
  return true;
}

bool History::Redo(std::unique_ptr<State>& state, Clipboard& clipboard) {
  if (done_ == steps_.size()) return false;
  Step& step = steps_[done_++];
  Exchange(step, state);
  if (step.clipboard != nullptr) clipboard = step.clipboard->after;
  return true;
}

void History::Exchange(Step& step, std::unique_ptr<State>& state) {
  std::swap(step.other, state);
  if (step.kind == Kind::List) return;
  state->MaxChannels = step.other->MaxChannels;
  state->OutputFlash = step.other->OutputFlash;
}

}  // namespace Edit
