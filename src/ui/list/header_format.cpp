#include "ui/list/header_format.h"

#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"

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
