// Between whoever does a piece of work on a thread of its own and whoever may give it up.
#pragma once

#include <atomic>

namespace Base {

class PointOfNoReturn {
 public:
  // For the work, before a step that cannot be taken back: false where it has been given up and must leave things as
  // they are.
  bool Pass() { return Become(State::Passed); }
  // False where the work has passed the point and goes on to its end.
  bool GiveUp() { return Become(State::GivenUp); }

 private:
  enum class State { Open, Passed, GivenUp };

  bool Become(State wanted) {
    State now = State::Open;
    return state_.compare_exchange_strong(now, wanted) || now == wanted;
  }

  std::atomic<State> state_ = State::Open;
};

}  // namespace Base
