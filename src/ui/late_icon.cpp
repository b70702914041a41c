#include "ui/late_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace Ui {
namespace {

class Engine : public QIconEngine {
 public:
  explicit Engine(QString path) : path_(std::move(path)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
    Icon().paint(painter, place, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }
  // `size` is in the screen's own pixels, the icon's in those that `scale` of them make up.
  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
    return Icon().pixmap(size / scale, scale, mode, state);
  }
  bool isNull() override { return Icon().isNull(); }
  [[nodiscard]] QIconEngine* clone() const override { return new Engine(path_); }

 private:
  const QIcon& Icon() {
    if (icon_.isNull()) icon_ = QIcon(path_);
    return icon_;
  }

  QString path_;
  QIcon icon_;
};

}  // namespace

QIcon LateIcon(const QString& path) { return QIcon(new Engine(path)); }

}  // namespace Ui
