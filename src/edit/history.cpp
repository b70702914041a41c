#include "edit/history.h"

#include <algorithm>

namespace Edit {

using Routines::State;

void History::Push(std::string label, Kind kind, std::unique_ptr<State> before, const Clipboard& copied,
                   const Clipboard& copiedNow) {
  steps_.resize(done_);
  auto clipboard = copied == copiedNow ? nullptr : std::make_unique<const Copied>(Copied{copied, copiedNow});
  if (kind == Kind::Continued && done_ > 0 && clipboard == nullptr) {
    steps_[done_ - 1].label = std::move(label);
    return;
  }
  steps_.push_back({std::move(label), kind, ++lastNumber_, std::move(before), std::move(clipboard)});
  if (steps_.size() > MostSteps) DropOldest();
  done_ = steps_.size();
}

// The oldest, but for the step that the list came with: as snapshots, those beside a step that is left out fit together.
void History::DropOldest() {
  const auto lists =
      std::count_if(steps_.begin(), steps_.end(), [](const Step& step) { return step.kind == Kind::List; });
  steps_.erase(steps_.begin() + (steps_.front().kind == Kind::List && lists == 1 ? 1 : 0));
}

std::vector<std::string> History::UndoLabels() const {
  std::vector<std::string> labels;
  for (std::size_t step = done_; step > 0; --step) labels.push_back(steps_[step - 1].label);
  return labels;
}

std::vector<std::string> History::RedoLabels() const {
  std::vector<std::string> labels;
  for (std::size_t step = done_; step < steps_.size(); ++step) labels.push_back(steps_[step].label);
  return labels;
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
  state->FromFls = step.other->FromFls;
}

}  // namespace Edit
