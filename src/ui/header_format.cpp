#include "ui/header_format.h"

#include "ui/dialogs.h"

#include <QStringList>

namespace Ui {

std::vector<HeaderColumn> ParseHeader(std::string_view format) {
  std::vector<HeaderColumn> columns;
  for (QString text : Text(format).split('|')) {
    const bool centred = text.startsWith('^');
    if (centred || text.startsWith('<')) text.remove(0, 1);
    columns.push_back(
        {text.trimmed(), text, (centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter});
  }
  return columns;
}

}  // namespace Ui
