#include "ui/kit/themed_icon.h"

#include "ui/kit/icon_sizes.h"

#include <QApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QResource>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Ui {
namespace {

// Read when it is first painted, for the desktop's colours of that moment: most icons lie in menus that nobody opens, and
// the colours may change while the program runs.
class ThemedIcon : public QIconEngine {
 public:
  explicit ThemedIcon(QString name) : name_(std::move(name)) {}

  [[nodiscard]] QIconEngine* clone() const override { return new ThemedIcon(name_); }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double ratio = painter->device()->devicePixelRatioF();
    QPixmap drawn = pixmap(rect.size() * ratio, mode, state);
    drawn.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.topLeft(), drawn);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const QString key = QString("%1 %2x%3 %4 %5")
                            .arg(name_)
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
    QPixmap drawn = Picture(size);
    if (mode != QIcon::Disabled) return drawn;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, drawn, &option);
  }

  // The next larger picture, scaled down; the largest, where more is wanted.
  [[nodiscard]] QPixmap Picture(const QSize& size) const {
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    const int side = std::max(size.width(), size.height());
    const auto* drawn =
        std::find_if(std::begin(IconSizes), std::end(IconSizes), [side](int each) { return each >= side; });
    const int found = drawn == std::end(IconSizes) ? *std::prev(drawn) : *drawn;
    const QResource pixels(QString(":/icons/%1/%2/%3").arg(dark ? "dark" : "light").arg(found).arg(name_));
    const QByteArray bytes = pixels.uncompressedData();
    if (bytes.size() != qsizetype{4} * found * found) return {};
    const QImage picture(reinterpret_cast<const uchar*>(bytes.constData()), found, found,
                         QImage::Format_ARGB32_Premultiplied);
    const QSize shown = QSize(found, found).scaled(size, Qt::KeepAspectRatio);
    return QPixmap::fromImage(found == side
                                  ? picture.copy()
                                  : picture.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }

  QString name_;
};

}  // namespace

QIcon IconNamed(const QString& name) { return QIcon(new ThemedIcon(name)); }

}  // namespace Ui
