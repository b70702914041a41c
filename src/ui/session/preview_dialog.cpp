#include "ui/session/preview_dialog.h"

#include "ui/kit/screen_fit.h"
#include "ui/session/control_tips.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace Ui {

bool ConfirmsPreview(const PreviewText& text, std::vector<PreviewLine> lines, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setObjectName(text.name);
  dialog.setWindowTitle(text.title);
  auto* preview = new PreviewModel(text.columns, false, &dialog);
  preview->Show(std::move(lines));
  auto* table = new QTableView(&dialog);
  table->setObjectName("Anteprima");
  table->setAccessibleName(text.title);
  ShowPreview(*table, *preview, text.letters);
  auto* outcome = new QLabel(text.outcome, &dialog);
  outcome->setObjectName("Esito");
  outcome->setTextFormat(Qt::PlainText);
  outcome->setWordWrap(true);
  const PreviewButtons buttons(dialog, *preview, text.confirm);
  buttons.confirm->setEnabled(text.anythingToDo);
  auto* column = new QVBoxLayout(&dialog);
  column->addWidget(table, 1);
  column->addWidget(outcome);
  column->addWidget(buttons.box);
  table->setFocus();
  ShowTips(dialog);
  ResizeOnScreen(dialog, {560, 560});
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace Ui
