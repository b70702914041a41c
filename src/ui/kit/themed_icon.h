// The icons of commands, in brighter colours where the desktop's own are dark.
#pragma once

#include <QIcon>

namespace Ui {

// The icon of that name among the program's own.
QIcon IconNamed(const QString& name);

}  // namespace Ui
