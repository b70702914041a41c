// What the windows beside the list do with the channels that they have found, as the menu does with the selected ones.
#pragma once

#include "ui/session/session.h"

namespace Ui {

// One step each, named after the channels; the result says what became of their favourites.
void DeleteChannels(Session& session, const Edit::Slots& slots);
void DeactivateChannels(Session& session, const Edit::Slots& slots);

// Both ask before, naming channels that the user may not see.
void AskAndDelete(Session& session, const Edit::Slots& slots);
void AskAndDeactivate(Session& session, const Edit::Slots& slots);

// Selects them in the channel list, which is shown.
void SelectChannels(Session& session, const Edit::Slots& slots);

}  // namespace Ui
