// The same change of some fields for many channels: what becomes of each is known before anything changes.
#pragma once

#include "edit/cell_edit.h"

namespace Edit {

// What all channels get in a column of the channel list (see ChannelColumn), as it would be typed there (UTF-8).
struct FieldValue {
  int column = 0;
  std::string text;
};

// What is added to a column of numbers, from the SID to the PCR; -65535..65535.
struct FieldShift {
  int column = 0;
  int by = 0;
};

struct FieldChanges {
  std::vector<FieldValue> values;
  std::vector<FieldShift> shifts;
};

struct ChangedChannel {
  int slot = 0;
  Routines::ChannelRecord after;
  std::string fault;  // which number would not fit: the channel stays as it is then; UTF-8
};

// The channels of `slots` that the changes change, or cannot change. A PID that is no stream is not shifted, and none may
// become one. An error says which value no channel can have.
Base::Result<std::vector<ChangedChannel>> PlanFields(const State& state, const Slots& slots,
                                                     const FieldChanges& changes);

// Follows a plan of this state, but for channels with a fault; the transponders' counts go along. Returns how many channels
// have changed.
int SetFields(State& state, const std::vector<ChangedChannel>& plan);

}  // namespace Edit
