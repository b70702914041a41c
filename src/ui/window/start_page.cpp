#include "ui/window/start_page.h"

#include "ui/files/recent_files.h"
#include "ui/kit/screen_fit.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace Ui {
namespace {

int PageWidth(const QWidget& page) { return std::max(660, Letters(page, 90)); }

int DiscSize(const QWidget& page) { return std::max(28, page.fontMetrics().height() * 7 / 4); }

// Enlarges the font that a label has.
void Enlarge(QLabel& label, double factor) {
  QFont font = label.font();
  font.setPointSizeF(font.pointSizeF() * factor);
  font.setBold(true);
  label.setFont(font);
}

// A wrapped text, which layouts ask again and again how high it is.
class StepText : public QLabel {
 public:
  explicit StepText(const QString& text) : QLabel(text) { setWordWrap(true); }

  [[nodiscard]] int heightForWidth(int width) const override {
    if (!heights_.contains(width)) heights_[width] = QLabel::heightForWidth(width);
    return heights_[width];
  }

 protected:
  void changeEvent(QEvent* event) override {
    heights_.clear();
    QLabel::changeEvent(event);
  }

 private:
  mutable QHash<int, int> heights_;
};

}  // namespace

// The number of a step, or a tick where it is done.
class StartPage::Disc : public QLabel {
 public:
  explicit Disc(int size) {
    setFixedSize(size, size);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
  }

  void Show(int step, bool done) {
    setText(done ? QString("✓") : QString::number(step));
    setAccessibleName(QString(done ? "Passo %1, fatto" : "Passo %1").arg(step));
    colour_ = done ? 0x27764a : 0x3d6fa8;
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(colour_));
    painter.drawEllipse(rect());
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignCenter, text());
  }

 private:
  QRgb colour_ = 0;
};

StartPage::StartPage(const SettingsPanel& settings, RecentFiles& recent, QAction& open, QWidget* parent)
    : QScrollArea(parent),
      settings_(settings),
      recent_(recent),
      recentBox_(new QWidget(this)),
      recentList_(new QVBoxLayout(recentBox_)) {
  setObjectName("Inizio");
  setAccessibleName("Primi passi");
  setFrameShape(NoFrame);
  setWidgetResizable(true);
  setAlignment(Qt::AlignCenter);

  auto* title = new QLabel("Per cominciare");
  Enlarge(*title, 1.6);
  auto* button = new QPushButton("Apri Flash Input…");
  button->setObjectName("InizioApri");
  button->setIcon(open.icon());
  connect(button, &QPushButton::clicked, &open, &QAction::trigger);
  connect(&open, &QAction::changed, button, [button, &open] { button->setEnabled(open.isEnabled()); });

  auto* page = new QWidget;
  page->setMaximumWidth(PageWidth(*this));
  auto* column = new QVBoxLayout(page);
  column->setSpacing(14);
  column->addStretch(1);
  column->addWidget(title);
  AddStep(*column, "Passo_1", "In alto, in \"Canali da copiare\", scegliere quanti canali ha il ricevitore.");
  AddStep(*column, "Passo_2",
          "Aprire l'immagine della flash del ricevitore (*.dat), o trascinarla su questa finestra.", button);
  AddStep(*column, "Passo_3",
          "Per salvare, scegliere il ricevitore di destinazione in \"Tipo Flash in scrittura\".");
  recentList_->setContentsMargins(0, 6, 0, 0);
  recentList_->setSpacing(2);
  column->addWidget(recentBox_);
  column->addStretch(2);
  auto* centred = new QWidget;
  auto* row = new QHBoxLayout(centred);
  row->addStretch(1);
  row->addWidget(page, 20);
  row->addStretch(1);
  setWidget(centred);

  connect(&settings, &SettingsPanel::Clicked, this, &StartPage::ShowSteps);
  connect(&recent, &RecentFiles::Changed, this, &StartPage::ShowRecent, Qt::QueuedConnection);
  ShowSteps();
  ShowRecent();
}

void StartPage::AddStep(QVBoxLayout& column, const char* name, const QString& text, QWidget* button) {
  auto* disc = new Disc(DiscSize(*this));
  disc->setObjectName(name);
  auto* what = new StepText(text);
  auto* row = new QHBoxLayout;
  row->setSpacing(12);
  row->addWidget(disc);
  row->addWidget(what, 1);
  if (button != nullptr) row->addWidget(button);
  column.addLayout(row);
  discs_.push_back(disc);
}

void StartPage::ShowSteps() {
  const Routines::Settings chosen = settings_.Chosen();
  std::size_t step = 0;
  for (const bool done : {chosen.quantiCanali.has_value(), false, chosen.flashScrittura.has_value()}) {
    discs_[step]->Show(static_cast<int>(step) + 1, done);
    ++step;
  }
}

void StartPage::ShowRecent() {
  for (QObject* old : recentBox_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) delete old;
  const QStringList paths = recent_.Paths();
  recentBox_->setVisible(!paths.isEmpty());
  if (paths.isEmpty()) return;
  auto* title = new QLabel("File recenti");
  Enlarge(*title, 1.1);
  recentList_->addWidget(title);
  int number = 0;
  for (const QString& path : paths) {
    auto* button = new QPushButton;
    button->setObjectName(QString("InizioRecente_%1").arg(++number));
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet("text-align: left; padding: 3px 6px");
    button->setAccessibleName(path);
    button->setAccessibleDescription("Apre la flash");
    button->setToolTip("<span>" + path.toHtmlEscaped() + "</span>");
    connect(button, &QPushButton::clicked, &recent_, [this, path] { Q_EMIT recent_.Chosen(path); });
    recentList_->addWidget(button);
  }
  CutPaths();
}

void StartPage::CutPaths() {
  const int room =
      std::min(PageWidth(*this), viewport()->width()) - 4 * style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
  for (auto* button : recentBox_->findChildren<QPushButton*>()) {
    const QString path = button->accessibleName();
    button->setText(button->fontMetrics().elidedText(path, Qt::ElideMiddle, room).replace('&', "&&"));
  }
}

void StartPage::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  CutPaths();
}

void StartPage::showEvent(QShowEvent* event) {
  ShowSteps();
  QScrollArea::showEvent(event);
}

}  // namespace Ui
