// The toolkit's preview of what is printed, with all that it wants of the program. It is a part that comes late, as the
// toolkit's printing is behind it.
#pragma once

#include <QIcon>
#include <QPageLayout>
#include <QString>

#include <functional>

class QDialog;
class QPagedPaintDevice;
class QWidget;

namespace Ui {

struct PrintPreview {
  QWidget& window;
  QString title;
  QPageLayout page;
  bool compact;  // whether there is a compact report, for the user to choose
  QIcon saveIcon;
  std::function<void(QDialog&)> prepare;  // before it is shown
  std::function<void(QPagedPaintDevice& printer, bool compact)> print;
  // Whether a PDF with pages like those of a device has been written.
  std::function<bool(const QString& path, const QPagedPaintDevice& like, bool compact)> save;
  std::function<QString()> askPath;  // of a PDF; empty where the user gives up
};

// Whether the user has printed or saved.
extern "C" Q_DECL_EXPORT bool ShowPrintPreview(const PrintPreview& preview);

}  // namespace Ui
