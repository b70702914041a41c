#include "ui/window/guide_window.h"

#include "ui/kit/screen_fit.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>
#include <map>
#include <utility>

namespace Ui {
namespace {

constexpr const char* GuidePage = "qrc:/guida/guida.md";

// Pictures of the whole window are wider than the page: they are shown smaller, as wide as there is room.
class Page : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    QVariant content = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return content;
    const QImage picture = QImage::fromData(content.toByteArray());
    pictures_.insert_or_assign(name, picture);
    return Fitted(picture);
  }

  void resizeEvent(QResizeEvent* event) override {
    QTextBrowser::resizeEvent(event);
    const int room = Room();
    if (room == std::exchange(room_, room) || pictures_.empty()) return;
    for (const auto& [name, picture] : pictures_)
      document()->addResource(QTextDocument::ImageResource, name, Fitted(picture));
    document()->markContentsDirty(0, document()->characterCount());
  }

 private:
  [[nodiscard]] int Room() const {
    constexpr int Widest = 640;
    const int margins = 2 * qRound(document()->documentMargin());
    return std::clamp(viewport()->width() - margins, 1, Widest);
  }

  [[nodiscard]] QImage Fitted(const QImage& picture) const {
    const int width = qRound(Room() * devicePixelRatioF());
    QImage fitted =
        picture.width() > width ? picture.scaledToWidth(width, Qt::SmoothTransformation) : picture;
    fitted.setDevicePixelRatio(devicePixelRatioF());
    return fitted;
  }

  std::map<QUrl, QImage> pictures_;  // in their own size
  int room_ = 0;
};

}  // namespace

GuideWindow::GuideWindow(QWidget* parent)
    : ToolWindow("FinestraGuida", "Guida a Trovalis", parent),
      sections_(new QListWidget(this)),
      page_(new Page(this)),
      field_(new QLineEdit(this)) {
  page_->setObjectName("PaginaGuida");
  page_->setAccessibleName("Guida");
  page_->setSource(QUrl(GuidePage), QTextDocument::MarkdownResource);
  sections_->setObjectName("SezioniGuida");
  sections_->setAccessibleName("Sezioni della guida");
  sections_->setWordWrap(true);
  sections_->setResizeMode(QListView::Adjust);
  sections_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  page_->setOpenExternalLinks(true);
  ListSections();
  connect(sections_, &QListWidget::currentRowChanged, this, &GuideWindow::GoToSection);

  field_->setObjectName("CercaNellaGuida");
  field_->setAccessibleName("Cerca nella guida");
  field_->setPlaceholderText("Cerca nella guida (Ctrl+F), Invio per il prossimo");
  field_->setClearButtonEnabled(true);
  connect(field_, &QLineEdit::returnPressed, this, &GuideWindow::Find);
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, field_, qOverload<>(&QWidget::setFocus));

  auto* parts = new QSplitter(this);
  parts->addWidget(sections_);
  parts->addWidget(page_);
  parts->setStretchFactor(1, 1);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(field_, 1);
  auto* column = new QVBoxLayout(this);
  column->addWidget(parts, 1);
  column->addLayout(WithClose(bottom, "ChiudiGuida"));
  ResizeOnScreen(*this, {940, 640});
  const int widest = sections_->sizeHintForColumn(0) + 2 * sections_->frameWidth() +
                     sections_->verticalScrollBar()->sizeHint().width();
  const int left = std::min(widest, width() * 3 / 10);
  parts->setSizes({left, width() - left});
}

void GuideWindow::ListSections() {
  for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() != 2) continue;
    auto* item = new QListWidgetItem(block.text(), sections_);
    item->setData(Qt::UserRole, block.position());
  }
}

void GuideWindow::GoToSection(int row) {
  if (row < 0) return;
  if (page_->source() != QUrl(GuidePage)) page_->setSource(QUrl(GuidePage), QTextDocument::MarkdownResource);
  QTextCursor cursor(page_->document());
  cursor.setPosition(sections_->item(row)->data(Qt::UserRole).toInt());
  // From the end up, the heading comes to lie at the top.
  page_->verticalScrollBar()->setValue(page_->verticalScrollBar()->maximum());
  page_->setTextCursor(cursor);
}

// Round at the end of the page.
void GuideWindow::Find() {
  if (field_->text().isEmpty() || page_->find(field_->text())) return;
  page_->moveCursor(QTextCursor::Start);
  page_->find(field_->text());
}

}  // namespace Ui
