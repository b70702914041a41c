// An icon whose drawing is read when it is first painted: most of a program's icons lie in menus that nobody opens,
// and reading all of them is a good part of its start.
#pragma once

#include <QIcon>
#include <QString>

namespace Ui {

// `path` names an SVG drawing.
QIcon LateIcon(const QString& path);

}  // namespace Ui
