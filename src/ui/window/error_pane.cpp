#include "ui/window/error_pane.h"

#include "ui/kit/dialogs.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>

namespace Ui {

ErrorPane::ErrorPane(const std::vector<std::string>& errors, QWidget* parent)
    : QGroupBox("Errori di caricamento Bouquets", parent) {
  setObjectName("FrameErrori");
  setVisible(!errors.empty());
  if (errors.empty()) return;
  auto* list = new QListWidget(this);
  list->setObjectName("ListaErrori");
  list->setAccessibleName(title());
  KeepLines(*list, 2);
  for (const std::string& error : errors) list->addItem(Text(error));
  auto* close = new QPushButton("Chiudi", this);
  close->setObjectName("ChiudiErrori");
  connect(close, &QPushButton::clicked, this, &QWidget::hide);

  auto* row = new QHBoxLayout(this);
  row->addWidget(list, 1);
  row->addWidget(close, 0, Qt::AlignTop);
  setMaximumHeight(160);
}

}  // namespace Ui
