#include "ui/session/order_file.h"

#include "base/file.h"
#include "formats/list_format.h"
#include "ui/kit/patience.h"
#include "ui/kit/text.h"

namespace Ui {

std::optional<OrderFile> AskOrder(Session& session) {
  const std::string path = session.AskOpen("Selezionare l'elenco",
                                           "Elenchi e liste(*.txt *.conf *.tv *.radio *.dat)|*.txt *.conf "
                                           "*.tv *.radio *.dat|Tutti i file (*.*)|*.*|",
                                           FolderKind::Foreign);
  if (path.empty()) return std::nullopt;
  session.RememberFolder(FolderKind::Foreign, path);
  auto bytes = session.Read(path);
  if (!bytes) return std::nullopt;
  auto order = Patiently(ReadingOf(path),
                         [own = std::move(*bytes)] { return Base::Result(Formats::OrderInFile(own)); });
  if (!order) {
    session.Message(order.error());
    return std::nullopt;
  }
  OrderFile file{PathText(Base::FileName(path)), std::move(*order)};
  if (!file.order.entries.empty()) return file;
  session.dialogs.Message(file.name + " non è un elenco di canali", {});
  return std::nullopt;
}

QString UnreadableIn(const OrderFile& file) {
  if (file.order.unreadable == 0) return {};
  return file.name + ": " + Counted(file.order.unreadable, "riga non è un canale", "righe non sono canali");
}

}  // namespace Ui
