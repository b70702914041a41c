#include "ui/qt_dialogs.h"

#include "base/code_page.h"

#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QTreeView>

namespace Ui {
namespace {

QString AnyCase(const QString& pattern) {
  if (pattern == "*.*") return "*";
  QString result;
  for (const QChar c : pattern) {
    if (c.isLetter()) {
      result += QString("[%1%2]").arg(c.toLower()).arg(c.toUpper());
    } else {
      result += c;
    }
  }
  return result;
}

QMessageBox::StandardButton Show(QWidget* parent, QMessageBox::Icon icon, const QString& text,
                                 const QString& title, QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, title.isEmpty() ? QString("Trovalis") : title, text, buttons, parent);
  box.setTextFormat(Qt::PlainText);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

QString CodePageText(std::string_view bytes) { return Text(Base::ToUtf8(bytes)); }

QString PathText(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

std::string PathBytes(const QString& path) { return QFile::encodeName(path).toStdString(); }

void QtDialogs::Message(const QString& text, const QString& title) {
  Show(parent_, title.isEmpty() ? QMessageBox::Information : QMessageBox::Warning, text, title,
       QMessageBox::Ok);
}

bool QtDialogs::YesNo(const QString& question) {
  return Show(parent_, QMessageBox::Question, question, {}, QMessageBox::Yes | QMessageBox::No) ==
         QMessageBox::Yes;
}

QString QtDialogs::OpenFile(const FileQuestion& question) {
  QFileDialog dialog(parent_, question.title, question.folder);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(question.filters));
  dialog.resize(860, 560);
  if (auto* details = dialog.findChild<QTreeView*>("treeView")) {
    details->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QStringList NameFilters(const QString& filters) {
  const QStringList parts = filters.split('|', Qt::SkipEmptyParts);
  QStringList result;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    result += QString("%1 (%2)").arg(parts[i], AnyCase(parts[i + 1]));
  }
  return result;
}

}  // namespace Ui
