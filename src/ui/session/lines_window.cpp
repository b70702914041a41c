#include "ui/session/lines_window.h"

#include "base/code_page.h"
#include "base/file.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Ui {

LinesWindow::LinesWindow(const char* name, const QString& title, const QString& text, Session& session,
                         QWidget* parent)
    : ToolWindow(name, title, parent) {
  const QByteArray listed = QByteArray(name).mid(static_cast<qsizetype>(std::string_view("Elenco").size()));
  auto* lines = new QPlainTextEdit(text, this);
  lines->setObjectName("Righe" + listed);
  lines->setAccessibleName(windowTitle());
  // Not to be changed, but with a cursor, by which keys and screen readers go from line to line.
  lines->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* buttons = new FlowLayout;
  AddButton(*buttons, "Copia" + listed, "Copia", [text] { QApplication::clipboard()->setText(text); });
  AddButton(*buttons, "Salva" + listed, "Salva come testo…", [&session, text] { SaveLines(session, text); });
  auto* column = new QVBoxLayout(this);
  column->addWidget(lines);
  column->addLayout(WithClose(buttons, "Chiudi" + listed));
  ResizeOnScreen(*this, {420, 480});
}

void SaveLines(Session& session, const QString& text) {
  const std::string path =
      session.AskSave("Salva l'elenco", "Files di testo(*.txt)|*.txt", FolderKind::Foreign, "Non salvato");
  if (path.empty()) return;
  const std::string bytes = Base::FromUtf8Lossy(QString(text).replace("\n", "\r\n").toStdString());
  if (const auto written = ReplaceFilePatiently(path, Base::AsBytes(bytes)); !written)
    session.Message(written.error());
}

}  // namespace Ui
