// What the windows beside the list do with the channels that they have found, as the menu does with the selected ones.
#pragma once

#include "ui/session/session.h"

namespace Ui {

// One step each, named after the channels; the result says what became of their favourites.
void DeleteChannels(Session& session, const Edit::Slots& slots);
void DeactivateChannels(Session& session, const Edit::Slots& slots);

// Both ask before, naming channels that the user may not see; a warning about the set is a sentence with its stop.
void AskAndDelete(Session& session, const Edit::Slots& slots, const QString& warning = {});
void AskAndDeactivate(Session& session, const Edit::Slots& slots, const QString& warning = {});

// Selects them in the channel list, which is shown.
void SelectChannels(Session& session, const Edit::Slots& slots);

}  // namespace Ui
