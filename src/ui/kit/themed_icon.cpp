#include "ui/kit/themed_icon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

#include <utility>

namespace Ui {
namespace {

// The colours of the drawings, and what they become on a dark ground.
constexpr std::pair<const char*, const char*> DarkColours[] = {{"#667c9a", "#a9bcd6"},
                                                               {"#2b7de0", "#6db0ff"},
                                                               {"#25964a", "#5cc982"},
                                                               {"#d06a0a", "#f0a04b"},
                                                               {"#dc4343", "#ff8585"}};

// Drawn when it is first painted in the desktop's colours of that moment: most icons lie in menus that nobody opens, and
// the colours may change while the program runs.
class ThemedIcon : public QIconEngine {
 public:
  explicit ThemedIcon(QString file) : file_(std::move(file)) {}

  [[nodiscard]] QIconEngine* clone() const override { return new ThemedIcon(file_); }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double ratio = painter->device()->devicePixelRatioF();
    QPixmap drawn = pixmap(rect.size() * ratio, mode, state);
    drawn.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.topLeft(), drawn);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const QString key = QString("%1 %2x%3 %4 %5")
                            .arg(file_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(mode)
                            .arg(QApplication::palette().cacheKey());
    QPixmap drawn;
    if (!QPixmapCache::find(key, &drawn)) {
      drawn = Draw(size, mode);
      QPixmapCache::insert(key, drawn);
    }
    return drawn;
  }

 private:
  [[nodiscard]] QPixmap Draw(const QSize& size, QIcon::Mode mode) const {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    QSvgRenderer(Drawing()).render(&painter);
    painter.end();
    if (mode != QIcon::Disabled) return drawn;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, drawn, &option);
  }

  [[nodiscard]] QByteArray Drawing() const {
    QFile file(file_);
    QByteArray drawing = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    if (QApplication::palette().color(QPalette::Window).lightness() >= 128) return drawing;
    for (const auto& [light, dark] : DarkColours) drawing.replace(light, dark);
    return drawing;
  }

  QString file_;
};

}  // namespace

QIcon IconNamed(const QString& name) { return QIcon(new ThemedIcon(":/icons/" + name + ".svg")); }

}  // namespace Ui
