#include "ui/download_frame.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace Ui {

DownloadFrame::DownloadFrame(QWidget* parent) : QGroupBox("File SDX da scaricare", parent) {
  setObjectName("FinestraSDX");
  addresses_ = new QComboBox(this);
  addresses_->setObjectName("Combo3");
  addresses_->setAccessibleName(title());
  addresses_->setEditable(true);
  addresses_->setInsertPolicy(QComboBox::NoInsert);
  auto* fetch = new QPushButton("Scarica", this);
  fetch->setObjectName("Scarica");
  auto* cancel = new QPushButton("Annulla", this);
  cancel->setObjectName("Annulla2");
  connect(fetch, &QPushButton::clicked, this, [this] { Q_EMIT Chosen(addresses_->currentText()); });
  connect(cancel, &QPushButton::clicked, this, &QWidget::hide);
  auto* row = new QHBoxLayout(this);
  row->addWidget(addresses_, 1);
  row->addWidget(fetch);
  row->addWidget(cancel);
  hide();
}

void DownloadFrame::Ask(const QStringList& addresses) {
  addresses_->clear();
  addresses_->addItems(addresses);
  addresses_->setCurrentIndex(-1);
  addresses_->clearEditText();
  show();
  addresses_->setFocus();
}

}  // namespace Ui
