#include "ui/list/filter_bar.h"

#include "ui/kit/elided_label.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

namespace Ui {

FilterBar::FilterBar(const QString& suffix, const QString& placeholder, Find find, QWidget* parent)
    : QWidget(parent),
      find_(std::move(find)),
      field_(new QLineEdit(this)),
      count_(new ElidedLabel(Qt::ElideRight, this)),
      only_(new QCheckBox("Solo i trovati", this)) {
  field_->setObjectName("Filtro" + suffix);
  field_->setAccessibleName("Filtro");
  field_->setPlaceholderText(placeholder);
  field_->setClearButtonEnabled(true);
  for (auto* clear : field_->findChildren<QAbstractButton*>()) clear->setAccessibleName("Svuota il filtro");
  field_->setMinimumWidth(Letters(*field_, 14));
  field_->setMaximumWidth(field_->fontMetrics().horizontalAdvance(field_->placeholderText()) + 40);
  field_->installEventFilter(this);
  count_->setObjectName("FiltroTrovati" + suffix);
  count_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  only_->setObjectName("SoloTrovati" + suffix);
  auto* help = new QToolButton(this);
  help->setObjectName("ParoleFiltro" + suffix);
  help->setText("?");
  help->setAccessibleName("Parole del filtro");
  help->setFocusPolicy(Qt::StrongFocus);
  help->setAutoRaise(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch(1);
  row->addWidget(count_);
  row->addWidget(field_, 1000);  // up to the width that it wants
  row->addWidget(help);
  row->addWidget(only_);
  connect(field_, &QLineEdit::textChanged, this, [this] {
    rows_ = {};
    Refresh();
    // The field's own signal for it comes before this one, when the hits are still those of the text before.
    if (field_->isModified()) Q_EMIT Typed();
  });
  connect(help, &QToolButton::clicked, this, &FilterBar::HelpWanted);
  connect(only_, &QCheckBox::toggled, this, &FilterBar::Changed);
  connect(only_, &QCheckBox::toggled, this, &FilterBar::OnlyToggled);
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
  filter_ = rows_.find ? Review::Filter() : Review::Filter(field_->text().toStdString());
  matches_ = rows_.find ? rows_.find() : find_(filter_);
  ShowPlace(0);
  Q_EMIT Changed();
}

bool FilterBar::Only() const { return only_->isChecked() && Asks(); }

void FilterBar::SetOnly(bool only) { only_->setChecked(only); }

// Words that wait for something are told first, as the hits are not yet what they will be.
void FilterBar::ShowPlace(std::size_t place) {
  QStringList told;
  if (!filter_.Unfinished().empty()) told += Text(filter_.Unfinished().front());
  if (Asks()) {
    told += place == 0 ? Counted(matches_.size(), "trovato", "trovati")
                       : QString("%1 di %2").arg(place).arg(matches_.size());
  }
  count_->Show(told.join("; "));
}

bool FilterBar::TakeKey(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
      Q_EMIT Step((key.modifiers() & Qt::ShiftModifier) == 0);
      return true;
    case Qt::Key_Up:
      Q_EMIT Step(false);
      return true;
    case Qt::Key_Escape:
      field_->clear();
      Q_EMIT Left();
      return true;
    default:
      if (!key.matches(QKeySequence::SelectAll) || matches_.empty()) return false;
      Q_EMIT SelectWanted();
      return true;
  }
}

bool FilterBar::eventFilter(QObject* watched, QEvent* event) {
  const bool taken = event->type() == QEvent::KeyPress && TakeKey(*static_cast<QKeyEvent*>(event));
  return taken || QWidget::eventFilter(watched, event);
}

}  // namespace Ui
