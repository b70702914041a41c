#include "ui/list_view.h"

#include <QAction>
#include <QLabel>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace Ui {

ListView::ListView(const Document& document, QAction& showChannels, QAction& showTransponders,
                   QWidget* parent)
    : QWidget(parent),
      document_(document),
      showChannels_(showChannels),
      showTransponders_(showTransponders),
      channels_(document, ListModel::Channels, this),
      transponders_(document, ListModel::Transponders, this),
      marker_(new QLabel(this)),
      hint_(new QLabel(this)),
      grid_(new Griglia(this)),
      stack_(new QStackedLayout) {
  marker_->setObjectName("Text1");
  QFont bold = marker_->font();
  bold.setBold(true);
  marker_->setFont(bold);
  hint_->setObjectName("Suggerimento");
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setWordWrap(true);
  grid_->setObjectName("Griglia");
  grid_->setAccessibleName("Lista");

  stack_->addWidget(hint_);
  stack_->addWidget(grid_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(3);
  column->addWidget(marker_);
  column->addLayout(stack_, 1);
  ShowFromStart(View::None);
}

void ListView::Show(View view) {
  if (view == current_) {
    RestoreTicks();
    return;
  }
  ShowFromStart(view);
}

void ListView::ShowFromStart(View view) {
  current_ = view;
  if (view == View::None) {
    marker_->clear();
    hint_->setText(document_.Tables().Loaded
                       ? "Per vedere la lista: Utilities, Visualizza Canali o Visualizza Transponders."
                       : "Scegliere quanti canali ha il ricevitore in \"Canali da copiare\",\n"
                         "poi aprire l'immagine della flash con File, Apri Flash Input (Ctrl+O).");
    stack_->setCurrentWidget(hint_);
  } else {
    const bool channels = view == View::Channels;
    marker_->setText(channels ? "Canali" : "Transponders");
    printHeading_ = channels ? "Stampa Canali" : "Stampa Transponder";
    grid_->ShowList(channels ? &channels_ : &transponders_);
    stack_->setCurrentWidget(grid_);
  }
  marker_->setVisible(view != View::None);
  RestoreTicks();
}

void ListView::Toggle(View view) { Show(view == current_ ? View::None : view); }

void ListView::RestoreTicks() {
  showChannels_.setChecked(current_ == View::Channels);
  showTransponders_.setChecked(current_ == View::Transponders);
}

}  // namespace Ui
