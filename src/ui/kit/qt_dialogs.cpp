#include "ui/kit/qt_dialogs.h"

#include "ui/kit/breaking_label.h"
#include "ui/kit/screen_fit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
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

// The box's own label, which keeps the text, breaks lines between words only: a path would be cut off.
void BreakLines(QMessageBox& box) {
  constexpr int Widest = 500;
  auto* own = box.findChild<QLabel*>("qt_msgbox_label");
  if (own == nullptr || box.layout() == nullptr) return;
  const int room = box.screen()->availableGeometry().width() / 2;
  auto* lines = new BreakingLabel(box.text(), std::min(Widest, room), &box);
  delete box.layout()->replaceWidget(own, lines);
  own->hide();
}

QMessageBox::StandardButton Show(QWidget* parent, QMessageBox::Icon icon, const QString& text,
                                 const QString& title, QMessageBox::StandardButtons buttons,
                                 QMessageBox::StandardButton onEnter = QMessageBox::NoButton) {
  QMessageBox box(icon, title.isEmpty() ? QString("Trovalis") : title, text, buttons, parent);
  box.setDefaultButton(onEnter);
  box.setTextFormat(Qt::PlainText);
  BreakLines(box);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

void SetUp(QInputDialog& dialog, const QString& question) {
  dialog.setWindowTitle("Trovalis");
  dialog.setLabelText(question);
  if (auto* label = dialog.findChild<QLabel*>()) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  ResizeOnScreen(dialog, {420, 0});
}

}  // namespace

void QtDialogs::Message(const QString& text, const QString& title, Tone tone) {
  Show(parent_, tone == Tone::Information ? QMessageBox::Information : QMessageBox::Warning, text, title,
       QMessageBox::Ok);
}

bool QtDialogs::RepeatedMessage(const QString& text) {
  QMessageBox box(QMessageBox::Warning, "Trovalis", text, QMessageBox::Ok, parent_);
  box.setTextFormat(Qt::PlainText);
  auto* noMore = new QCheckBox("Non ripetere per questo caricamento", &box);
  noMore->setObjectName("NonRipetere");
  box.setCheckBox(noMore);
  BreakLines(box);
  box.exec();
  return !noMore->isChecked();
}

bool QtDialogs::YesNo(const QString& question) {
  return Show(parent_, QMessageBox::Question, question, {}, QMessageBox::Yes | QMessageBox::No) ==
         QMessageBox::Yes;
}

bool QtDialogs::FinalYesNo(const QString& question) {
  return Show(parent_, QMessageBox::Warning, question, {}, QMessageBox::Yes | QMessageBox::No,
              QMessageBox::No) == QMessageBox::Yes;
}

Answer QtDialogs::YesNoCancel(const QString& question) {
  const auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  switch (Show(parent_, QMessageBox::Question, question, {}, buttons)) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

bool QtDialogs::OkCancel(const QString& question) {
  return Show(parent_, QMessageBox::Warning, question, {}, QMessageBox::Ok | QMessageBox::Cancel) ==
         QMessageBox::Ok;
}

std::optional<QString> QtDialogs::AskLine(const QString& question, const QString& proposed) {
  QInputDialog dialog(parent_);
  SetUp(dialog, question);
  dialog.setTextValue(proposed);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.textValue();
}

std::optional<int> QtDialogs::Choose(const QString& question, const QStringList& choices, int current) {
  QInputDialog dialog(parent_);
  dialog.setComboBoxItems(choices);
  dialog.setTextValue(choices[current]);
  // As wide as the dialog, whatever the longest choice says.
  if (auto* list = dialog.findChild<QComboBox*>()) {
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(20);
  }
  SetUp(dialog, question);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return static_cast<int>(choices.indexOf(dialog.textValue()));
}

QString QtDialogs::OpenFile(const FileQuestion& question) { return AskFile(question, false); }

QString QtDialogs::SaveFile(const FileQuestion& question) { return AskFile(question, true); }

QString QtDialogs::AskFile(const FileQuestion& question, bool save) {
  const bool exists = !question.folder.isEmpty() && QDir(question.folder).exists();
  QFileDialog dialog(parent_, question.title, exists ? question.folder : QString());
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilters(NameFilters(question.filters));
  if (save) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, question.newFile);
    dialog.setDefaultSuffix(question.filters.section("*.", 1).section(QRegularExpression("[)|]"), 0, 0));
  }
  ResizeOnScreen(dialog, {860, 560});
  if (auto* details = dialog.findChild<QTreeView*>("treeView")) {
    details->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }
  // The toolkit's labels do not say what they are the labels of.
  for (const QString name : {"lookIn", "fileType"}) {
    auto* label = dialog.findChild<QLabel*>(name + "Label");
    auto* list = dialog.findChild<QWidget*>(name + "Combo");
    if (label != nullptr && list != nullptr) list->setAccessibleDescription(label->text());
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
