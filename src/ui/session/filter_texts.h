// What the filter above a grid tells: its words, that rows are hidden, and that they are shown again.
#pragma once

#include "ui/session/session.h"

namespace Ui {

// `rows` is what the grid's rows are called.
void FollowFilter(Session& session, FilterBar& filter, Finder& hits, const QString& rows);

}  // namespace Ui
