#include "ui/list/filter_bar.h"

#include "review/filter.h"
#include "ui/kit/screen_fit.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace Ui {

FilterBar::FilterBar(const Document& document, QWidget* parent)
    : QWidget(parent), document_(document), field_(new QLineEdit(this)), count_(new QLabel(this)) {
  field_->setObjectName("Filtro");
  field_->setAccessibleName("Filtro");
  field_->setPlaceholderText("Nome, SID o transponder (Ctrl+Shift+F)");
  field_->setClearButtonEnabled(true);
  for (auto* clear : field_->findChildren<QAbstractButton*>()) clear->setAccessibleName("Svuota il filtro");
  field_->setMinimumWidth(Letters(*field_, 14));
  field_->setMaximumWidth(field_->fontMetrics().horizontalAdvance(field_->placeholderText()) + 40);
  field_->installEventFilter(this);
  count_->setObjectName("FiltroTrovati");
  count_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch(1);
  row->addWidget(count_);
  row->addWidget(field_, 1000);  // up to the width that it wants
  connect(field_, &QLineEdit::textChanged, this, [this] {
    rows_ = {};
    Refresh();
  });
}

void FilterBar::StartTyping() {
  field_->setFocus();
  field_->selectAll();
}

void FilterBar::Show(Rows rows) {
  field_->setText(rows.title);
  field_->setCursorPosition(0);
  rows_ = std::move(rows);
  Refresh();
}

void FilterBar::Refresh() {
  matches_ = rows_.find
                 ? rows_.find(document_.Tables())
                 : Review::MatchingSlots(document_.Tables(), Review::Filter(field_->text().toStdString()));
  const auto found = matches_.size();
  count_->setText(field_->text().trimmed().isEmpty() ? QString()
                  : found == 1                       ? "1 trovato"
                                                     : QString("%1 trovati").arg(found));
  Q_EMIT Changed();
}

bool FilterBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
      Q_EMIT Step((key->modifiers() & Qt::ShiftModifier) == 0);
      return true;
    case Qt::Key_Up:
      Q_EMIT Step(false);
      return true;
    case Qt::Key_Escape:
      field_->clear();
      Q_EMIT Left();
      return true;
    default:
      return QWidget::eventFilter(watched, event);
  }
}

}  // namespace Ui
