#include "ui/sources/column_header.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QSignalBlocker>
#include <QTableView>

namespace Ui {
namespace {

constexpr std::array<const char*, Formats::Meanings> Captions = {
    "—",   "Nome", "Frequenza", "Polarizzazione", "Symbol rate", "FEC", "PID video", "PID audio", "PCR",
    "SID", "TID",  "NID",       "Tipo",           "Codifica"};
constexpr int Margin = 3;

}  // namespace

ColumnHeader::ColumnHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setObjectName("Contenuti");
  setSectionsClickable(false);
  setDefaultAlignment(Qt::AlignLeft | Qt::AlignBottom);
  connect(this, &QHeaderView::sectionResized, this, &ColumnHeader::Place);
}

void ColumnHeader::ShowColumns(const std::vector<Formats::ForeignColumn>& columns) {
  columns_ = columns;
  while (choosers_.size() > columns.size()) {
    delete choosers_.back().meaning;
    delete choosers_.back().hexadecimal;
    choosers_.pop_back();
  }
  while (choosers_.size() < columns.size())
    choosers_.push_back(MakeChooser(static_cast<int>(choosers_.size())));
  Refresh();
  Place();
}

ColumnHeader::Chooser ColumnHeader::MakeChooser(int column) {
  auto* meaning = new QComboBox(viewport());
  for (const char* caption : Captions) meaning->addItem(caption);
  meaning->setObjectName(QString("Contenuto_%1").arg(column));
  // The name of a list without a label is what it shows, so it is described as well.
  meaning->setAccessibleName(QString("Contenuto della colonna %1").arg(column + 1));
  meaning->setAccessibleDescription(meaning->accessibleName());
  meaning->setMaxVisibleItems(static_cast<int>(Captions.size()));
  auto* hexadecimal = new QCheckBox("esadecimale", viewport());
  hexadecimal->setObjectName(QString("Esadecimale_%1").arg(column));
  hexadecimal->setToolTip("I numeri della colonna sono esadecimali");
  hexadecimal->setAccessibleName(QString("Colonna %1 in esadecimale").arg(column + 1));
  for (QWidget* control : {static_cast<QWidget*>(meaning), static_cast<QWidget*>(hexadecimal)})
    control->installEventFilter(this);
  connect(meaning, &QComboBox::currentIndexChanged, this,
          [this, column](int index) { Choose(column, index); });
  connect(hexadecimal, &QCheckBox::toggled, this, [this, column](bool on) {
    columns_[static_cast<std::size_t>(column)].hexadecimal = on;
    Q_EMIT Changed();
  });
  return {meaning, hexadecimal};
}

void ColumnHeader::ComeAfter(QWidget& control) {
  QWidget* before = &control;
  for (const auto& [meaning, hexadecimal] : choosers_) {
    setTabOrder(before, meaning);
    setTabOrder(meaning, hexadecimal);
    before = hexadecimal;
  }
}

// A chooser that gets the focus by the keyboard comes into view.
bool ColumnHeader::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    auto& table = *qobject_cast<QTableView*>(parentWidget());
    const auto at = std::find_if(choosers_.begin(), choosers_.end(), [watched](const Chooser& chooser) {
      return chooser.meaning == watched || chooser.hexadecimal == watched;
    });
    table.scrollTo(table.model()->index(table.rowAt(0), static_cast<int>(at - choosers_.begin())));
  }
  return QHeaderView::eventFilter(watched, event);
}

// A field of the channel stands in one column: it leaves the one that it was in.
void ColumnHeader::Choose(int column, int meaning) {
  const auto chosen = static_cast<Formats::Meaning>(meaning);
  for (Formats::ForeignColumn& other : columns_) {
    if (other.meaning == chosen) other.meaning = Formats::Meaning::None;
  }
  Formats::ForeignColumn& own = columns_[static_cast<std::size_t>(column)];
  own.meaning = chosen;
  own.hexadecimal = own.hexadecimal && Formats::HasBase(chosen);
  Refresh();
  Q_EMIT Changed();
}

void ColumnHeader::Refresh() {
  for (std::size_t i = 0; i < choosers_.size(); ++i) {
    const auto& [meaning, hexadecimal] = choosers_[i];
    const QSignalBlocker quiet(meaning);
    const QSignalBlocker quietToo(hexadecimal);
    meaning->setCurrentIndex(static_cast<int>(columns_[i].meaning));
    hexadecimal->setChecked(columns_[i].hexadecimal);
    hexadecimal->setVisible(Formats::HasBase(columns_[i].meaning));
  }
}

int ColumnHeader::ChooserWidth() const {
  return choosers_.empty() ? 0 : choosers_.front().meaning->sizeHint().width() + 4 * Margin;
}

QSize ColumnHeader::sizeHint() const {
  QSize size = QHeaderView::sizeHint();
  if (!choosers_.empty()) {
    size.rheight() += choosers_.front().meaning->sizeHint().height() +
                      choosers_.front().hexadecimal->sizeHint().height() + 3 * Margin;
  }
  return size;
}

void ColumnHeader::updateGeometries() {
  QHeaderView::updateGeometries();
  Place();
}

void ColumnHeader::Place() {
  for (std::size_t i = 0; i < choosers_.size(); ++i) {
    const auto& [meaning, hexadecimal] = choosers_[i];
    const int section = static_cast<int>(i);
    const int left = sectionViewportPosition(section) + Margin;
    const int width = sectionSize(section) - 2 * Margin;
    const int height = meaning->sizeHint().height();
    meaning->setGeometry(left, Margin, width, height);
    hexadecimal->setGeometry(left, height + 2 * Margin, width, hexadecimal->sizeHint().height());
    meaning->show();
  }
}

}  // namespace Ui
