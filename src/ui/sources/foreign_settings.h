// What was chosen for the lists of another program, in trovalis.ini, a group for each kind.
#pragma once

#include "formats/foreign_layout.h"

#include <QString>

namespace Ui {

void RememberLayout(const QString& iniFile, const QString& group, const Formats::ForeignLayout& layout);

// Nothing where nothing was chosen yet, or where somebody has spoiled the file.
std::optional<Formats::ForeignLayout> RememberedLayout(const QString& iniFile, const QString& group);

}  // namespace Ui
