#include "edit/set_fields.h"

#include "model/cells.h"

namespace Edit {
namespace {

using namespace Routines;

constexpr int Largest = 65535;

struct NumberField {
  int column;
  const char* name;
  Field<ChannelRecord> field;
};

constexpr NumberField NumberFields[] = {
    {ChannelColumn::Sid, "SID", ChannelField::Sid},    {ChannelColumn::Vpid, "VPID", ChannelField::Vpid},
    {ChannelColumn::Apid, "APID", ChannelField::Apid}, {ChannelColumn::Aecm, "AECM", ChannelField::Aecm},
    {ChannelColumn::Vecm, "VECM", ChannelField::Vecm}, {ChannelColumn::Pcr, "PCR", ChannelField::Pcr}};

// Why the number cannot be; empty where it has been set.
std::string Shift(ChannelRecord& channel, const NumberField& number, int by) {
  const bool pid = number.column != ChannelColumn::Sid;
  const std::uint32_t before = Get(channel, number.field);
  if (pid && !HasStream(before)) return {};
  const int after = static_cast<int>(before) + by;
  const bool fits = after >= 0 && after <= Largest;
  if (!fits || (pid && !HasStream(static_cast<std::uint32_t>(after))))
    return std::string(number.name) + " sarebbe " + std::to_string(after) +
           (fits ? ", cioè nessun PID" : ", fuori da 0-65535");
  Set(channel, number.field, static_cast<std::uint32_t>(after));
  return {};
}

std::string ShiftAll(ChannelRecord& channel, const std::vector<FieldShift>& shifts) {
  for (const FieldShift& shift : shifts) {
    for (const NumberField& number : NumberFields) {
      if (number.column != shift.column) continue;
      if (std::string fault = Shift(channel, number, shift.by); !fault.empty()) return fault;
    }
  }
  return {};
}

}  // namespace

Base::Result<std::vector<ChangedChannel>> PlanFields(const State& state, const Slots& slots,
                                                     const FieldChanges& changes) {
  std::vector<ChangedChannel> plan;
  for (const int slot : slots) {
    const ChannelRecord& before = state.Channel(slot);
    if (before.Empty()) continue;
    ChangedChannel channel{slot, before, {}};
    for (const FieldValue& value : changes.values)
      if (const auto set = SetCell(state, channel.after, value.column, value.text); !set) return set.error();
    channel.fault = ShiftAll(channel.after, changes.shifts);
    if (!channel.fault.empty() || channel.after != before) plan.push_back(std::move(channel));
  }
  return plan;
}

int SetFields(State& state, const std::vector<ChangedChannel>& plan) {
  int changed = 0;
  for (const ChangedChannel& channel : plan) {
    if (!channel.fault.empty()) continue;
    StoreChannel(state, channel.slot, channel.after);
    ++changed;
  }
  return changed;
}

}  // namespace Edit
