// A part that is loaded with the first preview.
#include "ui/files/print_preview.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsView>
#include <QLayout>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>
#include <QToolButton>

namespace Ui {
namespace {

// The toolkit's preview leaves its buttons to the mouse and two controls without a name.
void MakeReachable(QPrintPreviewDialog& dialog) {
  for (auto* button : dialog.findChildren<QToolButton*>()) button->setFocusPolicy(Qt::TabFocus);
  for (auto* page : dialog.findChildren<QGraphicsView*>()) page->setAccessibleName(dialog.windowTitle());
  for (auto* scale : dialog.findChildren<QComboBox*>()) scale->setAccessibleDescription("Ingrandimento");
  for (auto* number : dialog.findChildren<QLineEdit*>()) number->setAccessibleName("Pagina");
}

}  // namespace

// A preview draws on the printer before anything is chosen there. Once the print dialog has named a file the drawing
// goes where every PDF does, so that the file is whole and a refusal is told.
bool ShowPrintPreview(const PrintPreview& preview) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(preview.page);
  printer.setDocName(preview.title);
  QPrintPreviewDialog dialog(&printer, &preview.window);
  dialog.setObjectName("AnteprimaStampa");
  dialog.setWindowTitle(preview.title);
  preview.prepare(dialog);
  auto* compact = new QCheckBox("Compatta: solo numero e nome, in più colonne", &dialog);
  compact->setObjectName("StampaCompatta");
  compact->setVisible(preview.compact);
  dialog.layout()->addWidget(compact);
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* to) {
    if (to->outputFileName().isEmpty()) return preview.print(*to, compact->isChecked());
    preview.save(to->outputFileName(), *to, compact->isChecked());
  });
  QObject::connect(compact, &QCheckBox::toggled, dialog.findChild<QPrintPreviewWidget*>(),
                   &QPrintPreviewWidget::updatePreview);
  auto* save = dialog.findChild<QToolBar*>()->addAction(preview.saveIcon, "Salva come PDF");
  save->setObjectName("SalvaPdf");
  QObject::connect(save, &QAction::triggered, &dialog, [&] {
    const QString path = preview.askPath();
    if (!path.isEmpty() && preview.save(path, printer, compact->isChecked())) dialog.accept();
  });
  MakeReachable(dialog);
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace Ui
