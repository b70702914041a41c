#include "ui/review/overview_window.h"

#include "ui/kit/flow_layout.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/list/row_colours.h"
#include "ui/list/row_look.h"
#include "ui/session/set_commands.h"

#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Ui {

using Review::OverviewLine;
using Routines::State;
using Section = Review::OverviewSection;

namespace {

enum Column : int { What, Bar, Count, Share };
constexpr int LineRole = Qt::UserRole;        // place in lines_, -1 for a section
constexpr int LengthRole = Qt::UserRole + 1;  // of the bar, 0 to 1
constexpr int ColourRole = Qt::UserRole + 2;
constexpr int SectionRole = Qt::UserRole + 3;  // of a heading

// What the filter shows while it marks the line's rows.
QString RowsTitle(const OverviewLine& line) {
  const bool tellsSection = line.section == Section::Coding || line.section == Section::Transponders ||
                            line.section == Section::Places;
  return "Riepilogo: " + (tellsSection ? Text(Review::TitleOf(line.section)) + ' ' : QString()) +
         Text(line.text);
}

// Who deletes what is there twice wants to keep one of each.
QString WarningFor(const OverviewLine& line) {
  return line.section == Section::Checks && line.text == Review::DuplicatesText
             ? "Sono tutte le copie, anche la prima: per tenerne una c'è Controlla Canali Doppi."
             : "";
}

// Of the rows in the grid where they are of one kind, else one that stands for the section.
Colour BarColour(const OverviewLine& line) {
  if (line.wrong) return Colours::Wrong;
  // In the grid those are white.
  if (line.kind == Routines::RowKind::FreeTransponder) return ColourOf(Routines::RowKind::EmptySlot);
  if (line.kind) return ColourOf(*line.kind);
  switch (line.section) {
    case Section::Satellite:
      return {0xD0A060};
    case Section::Bouquet:
      return {0x90B040};
    case Section::Coding:
      return {0x40A0E0};
    default:
      return {0x60B060};
  }
}

double ShareOf(const OverviewLine& line) {
  return line.of == 0 ? 0.0 : static_cast<double>(line.slots.size()) / line.of;
}

// The longest bar of a section fills its column where the lines are many parts of one whole; else the whole would.
double FullShare(const std::vector<OverviewLine>& lines, Section section) {
  if (section == Section::Transponders || section == Section::Places || section == Section::Checks) return 1;
  double most = 0;
  for (const OverviewLine& line : lines) {
    if (line.section == section) most = std::max(most, ShareOf(line));
  }
  return most > 0 ? most : 1;
}

bool SameTexts(const std::vector<OverviewLine>& one, const std::vector<OverviewLine>& other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](const auto& a, const auto& b) { return a.section == b.section && a.text == b.text; });
}

class BarDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const double length = index.data(LengthRole).toDouble();
    if (length <= 0) return;
    const QRect room = option.rect.adjusted(4, 3, -8, -4);
    const int width = std::max(static_cast<int>(length * room.width()), 2);
    const auto colour = index.data(ColourRole).value<QColor>();
    painter->setPen(colour.darker(160));
    painter->setBrush(colour);
    painter->drawRect(QRect(room.topLeft(), QSize(width, room.height())));
  }
};

}  // namespace

void ShowOverview(Session& session, QMainWindow& window) {
  auto* shown = OpenWindow<OverviewWindow>(window);
  if (shown == nullptr) {
    shown = new OverviewWindow(session, window);
    // At the right, where it leaves numbers and names of the rows in sight.
    shown->move(window.geometry().topRight() - QPoint(shown->width() + 12, -90));
  }
  shown->BringUp();
}

OverviewWindow::OverviewWindow(Session& session, QMainWindow& window)
    : ToolWindow("FinestraRiepilogo", "Riepilogo", &window),
      session_(session),
      tree_(new QTreeWidget(this)),
      totals_(new QLabel(this)) {
  TakeKeys(window, {"CercaSuccessivo"});
  SetUpTree();
  totals_->setObjectName("RiepilogoTotali");
  totals_->setTextFormat(Qt::PlainText);
  totals_->setWordWrap(true);
  auto* column = new QVBoxLayout(this);
  column->addWidget(totals_);
  column->addWidget(tree_, 1);
  column->addLayout(Bottom());
  ResizeOnScreen(*this, {600, 560});
  connect(&session.document, &Document::Changed, this, &OverviewWindow::Refresh);
  Refresh();
  if (!items_.empty()) tree_->setCurrentItem(items_.front());
  tree_->setFocus();
}

void OverviewWindow::SetUpTree() {
  tree_->setObjectName("RiepilogoVoci");
  tree_->setAccessibleName("Riepilogo");
  tree_->setHeaderLabels({"Voce", "", "Quanti", "%"});
  tree_->headerItem()->setData(Bar, Qt::AccessibleTextRole, "Barra");
  for (const int column : {Count, Share}) tree_->headerItem()->setTextAlignment(column, Qt::AlignRight);
  tree_->header()->setStretchLastSection(false);
  tree_->header()->setSectionResizeMode(QHeaderView::Fixed);
  tree_->header()->setSectionResizeMode(Bar, QHeaderView::Stretch);
  for (const int column : {Count, Share}) tree_->setColumnWidth(column, Letters(*tree_, 10));
  tree_->setItemDelegateForColumn(Bar, new BarDelegate(tree_));
  tree_->setUniformRowHeights(true);
  KeepLines(*tree_, 5);
  tree_->setAllColumnsShowFocus(true);
  connect(tree_, &QTreeWidget::itemClicked, this, &OverviewWindow::GoTo);
  connect(tree_, &QTreeWidget::itemActivated, this, &OverviewWindow::GoTo);
  const auto sectionOf = [](const QTreeWidgetItem* item) {
    return static_cast<Section>(item->data(What, SectionRole).toInt());
  };
  connect(tree_, &QTreeWidget::itemCollapsed, this,
          [this, sectionOf](QTreeWidgetItem* item) { closed_.insert(sectionOf(item)); });
  connect(tree_, &QTreeWidget::itemExpanded, this,
          [this, sectionOf](QTreeWidgetItem* item) { closed_.erase(sectionOf(item)); });
}

QLayout* OverviewWindow::Bottom() {
  auto* row = new FlowLayout;
  auto* hint = new QLabel("Un clic o Invio mostra le righe; F3 va alla prossima.", this);
  hint->setWordWrap(true);
  goTo_ = AddButton(*row, "VaiAlleRighe", "Vai alle righe", [this] { GoTo(tree_->currentItem()); });
  // On copies: what is done makes the lines anew.
  const auto onFound = [this](const auto& command) {
    return [this, command] {
      const OverviewLine* line = LineOf(tree_->currentItem());
      if (HasChannels(line)) command(Edit::Slots(line->slots), WarningFor(*line));
    };
  };
  const auto select = [this](const Edit::Slots& slots, const QString&) { SelectChannels(session_, slots); };
  const auto remove = [this](const Edit::Slots& slots, const QString& warning) {
    AskAndDelete(session_, slots, warning);
  };
  const auto deactivate = [this](const Edit::Slots& slots, const QString& warning) {
    AskAndDeactivate(session_, slots, warning);
  };
  forChannels_ = {AddButton(*row, "SelezionaRighe", "Seleziona i trovati", onFound(select)),
                  AddButton(*row, "EliminaRighe", "Elimina…", onFound(remove)),
                  AddButton(*row, "DisattivaRighe", "Disattiva…", onFound(deactivate))};
  connect(tree_, &QTreeWidget::currentItemChanged, this, &OverviewWindow::EnableButtons);
  auto* column = new QVBoxLayout;
  column->addWidget(hint);
  column->addLayout(row);
  return WithClose(column, "ChiudiRiepilogo");
}

void OverviewWindow::Refresh() {
  const State& state = session_.document.Tables();
  Lines lines = state.Loaded ? Review::Overview(state, session_.bouquets.tables.satellites) : Lines();
  const bool rebuild = !SameTexts(lines, lines_);
  lines_ = std::move(lines);
  if (rebuild) Rebuild();
  FillTexts();
  TellTotals();
}

void OverviewWindow::Rebuild() {
  const QTreeWidgetItem* current = tree_->currentItem();
  const QString wanted = current == nullptr ? QString() : current->text(What);
  const QSignalBlocker quiet(tree_);
  tree_->clear();
  items_.clear();
  QFont bold = tree_->font();
  bold.setBold(true);
  int widest = 0;
  QTreeWidgetItem* head = nullptr;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const Section section = lines_[i].section;
    if (i == 0 || section != lines_[i - 1].section) {
      head = new QTreeWidgetItem(tree_, {Text(Review::TitleOf(section))});
      head->setFont(What, bold);
      head->setSizeHint(What, {0, tree_->fontMetrics().height() + 6});
      head->setData(What, LineRole, -1);
      head->setData(What, SectionRole, static_cast<int>(section));
      head->setExpanded(!closed_.contains(section));
    }
    auto* item = new QTreeWidgetItem(head, {Text(lines_[i].text)});
    item->setData(What, LineRole, static_cast<int>(i));
    item->setSizeHint(What, head->sizeHint(What));
    item->setToolTip(What, "<span>" + Text(lines_[i].text).toHtmlEscaped() + "</span>");
    for (const int column : {Count, Share}) item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    if (item->text(What) == wanted) tree_->setCurrentItem(item);
    items_.push_back(item);
    widest = std::max(widest, tree_->fontMetrics().horizontalAdvance(item->text(What)));
  }
  tree_->setColumnWidth(What, std::min(widest + 2 * tree_->indentation() + 16, width() / 2));
}

void OverviewWindow::FillTexts() {
  const RowLook& look = RowLook::OfProgram();
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const OverviewLine& line = lines_[i];
    QTreeWidgetItem& item = *items_[i];
    item.setData(Bar, LengthRole, ShareOf(line) / FullShare(lines_, line.section));
    item.setData(Bar, ColourRole, look.Mark(ToColor(BarColour(line)), palette()));
    item.setText(Count, QString::number(line.slots.size()));
    item.setText(Share, QString::number(100 * ShareOf(line), 'f', 1).replace('.', ','));
  }
}

void OverviewWindow::TellTotals() {
  QString text = "Nessuna flash caricata";
  if (!lines_.empty()) {
    const State& state = session_.document.Tables();
    text = QString("%1 canali in %2 posti, %3 transponder in %4 posti. ")
               .arg(Routines::UsedChannels(state))
               .arg(state.ChannelCount)
               .arg(Routines::UsedTransponders(state))
               .arg(state.TransponderCount);
    const auto checks = std::count_if(lines_.begin(), lines_.end(), [](const OverviewLine& line) {
      return line.section == Section::Checks && !line.slots.empty();
    });
    text += checks == 0 ? QString("Niente da controllare.")
                        : "Da controllare: " + Counted(checks, "voce", "voci") + ", in fondo.";
  }
  totals_->setText(text);
  EnableButtons();
}

// Places and transponders are no channels that a command could work on.
bool OverviewWindow::HasChannels(const OverviewLine* line) {
  return line != nullptr && !line->transponders && line->section != Section::Places && !line->slots.empty();
}

void OverviewWindow::EnableButtons() {
  const OverviewLine* line = LineOf(tree_->currentItem());
  goTo_->setEnabled(line != nullptr);
  for (QPushButton* button : forChannels_) button->setEnabled(HasChannels(line));
}

const OverviewLine* OverviewWindow::LineOf(const QTreeWidgetItem* item) const {
  const int place = item == nullptr ? -1 : item->data(What, LineRole).toInt();
  return place < 0 || static_cast<std::size_t>(place) >= lines_.size()
             ? nullptr
             : &lines_[static_cast<std::size_t>(place)];
}

void OverviewWindow::GoTo(const QTreeWidgetItem* item) {
  const OverviewLine* found = LineOf(item);
  if (found == nullptr) return;
  const OverviewLine& line = *found;
  const QString title = RowsTitle(line);
  if (line.slots.empty()) {
    session_.status.ShowResult(title + ": nessuna riga");
    return;
  }
  const QString told = title + ": " + Text(Review::CountedRows(line));
  const auto find = [&session = session_, section = line.section, text = line.text] {
    return Review::OverviewSlots(session.document.Tables(), session.bouquets.tables.satellites, section,
                                 text);
  };
  session_.view.ShowRows({title, line.transponders, find});
  session_.status.ShowResult(told);
}

}  // namespace Ui
