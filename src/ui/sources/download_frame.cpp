#include "ui/sources/download_frame.h"

#include "ui/kit/blank_entries.h"
#include "ui/session/control_tips.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace Ui {

DownloadFrame::DownloadFrame(QWidget* parent) : QGroupBox("File SDX da scaricare", parent) {
  setObjectName("FinestraSDX");
  hide();
}

// At its first use: most sessions have none.
void DownloadFrame::Fill() {
  addresses_ = new QComboBox(this);
  addresses_->setObjectName("Combo3");
  addresses_->setAccessibleName(title());
  addresses_->setAccessibleDescription(title());
  addresses_->setEditable(true);
  addresses_->lineEdit()->setAccessibleName(title());
  addresses_->setInsertPolicy(QComboBox::NoInsert);
  auto* fetch = new QPushButton("Scarica", this);
  fetch->setObjectName("Scarica");
  auto* cancel = new QPushButton("Annulla", this);
  cancel->setObjectName("Annulla2");
  connect(fetch, &QPushButton::clicked, this, [this] { Q_EMIT Chosen(addresses_->currentText()); });
  connect(cancel, &QPushButton::clicked, this, &QWidget::hide);
  connect(addresses_->lineEdit(), &QLineEdit::returnPressed, fetch, &QPushButton::click);
  auto* leave = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  leave->setContext(Qt::WidgetWithChildrenShortcut);
  connect(leave, &QShortcut::activated, cancel, &QPushButton::click);
  auto* row = new QHBoxLayout(this);
  row->addWidget(addresses_, 1);
  row->addWidget(fetch);
  row->addWidget(cancel);
  ShowTips(*this);
}

void DownloadFrame::Ask(const QStringList& addresses) {
  if (addresses_ == nullptr) Fill();
  addresses_->clear();
  addresses_->addItems(addresses);
  NameBlankEntries(*addresses_);
  addresses_->setCurrentIndex(-1);
  addresses_->clearEditText();
  show();
  addresses_->setFocus();
}

}  // namespace Ui
