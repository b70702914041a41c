#include "model/write_settings.h"

namespace Routines {

Base::Outcome CheckSettings(const Settings& settings) {
  if (!settings.quantiCanali) return Base::Error{std::string(NoCapacityChosen)};
  if (!settings.flashScrittura) return Base::Error{"Si deve selezionare il tipo di FLASH da registrare"};
  if (!settings.srDef) return Base::Error{"Si deve definere la posizione dell' SR 22000"};
  return Base::Done{};
}

WritePlan PlanWrite(const State& state, const Settings& settings) {
  const std::size_t index = *settings.flashScrittura;
  const CapacityOption& target = FlashScrittura[index];
  // After a write MaxChannels is 0: the list's own count then keeps a second save from writing less than the
  // first.
  const int inForce = state.MaxChannels > 0 ? state.MaxChannels : state.ChannelCount;
  const int wanted =
      state.MaxChannels > 0 ? inForce + settings.Capacity() : std::max(inForce, settings.Capacity());

  WritePlan plan;
  plan.type = settings.Type();
  plan.maxChannels = std::min(wanted, target.channels);
  if (plan.type != FlashType::Two && inForce > target.channels) {
    const std::string limit = std::to_string(target.channels);
    plan.warning = "Impossibile gestire più di " + limit + " canali sulla FLASH tipo " +
                   std::string(target.caption) + "\nne verranno salvati solo " + limit;
  }
  return plan;
}

}  // namespace Routines
