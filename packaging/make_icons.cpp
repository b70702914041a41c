// Draws the program's icon in the sizes that desktops ask for:
//   make_icons ICON.svg FOLDER
// leaves FOLDER/48x48/apps/trovalis.png and the like.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 3) {
    std::fputs("make_icons ICON.svg FOLDER\n", stderr);
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    QImage picture(size, size, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    const QString folder = QString("%1/%2x%2/apps").arg(QString::fromLocal8Bit(argv[2])).arg(size);
    if (!drawing.isValid() || !QDir().mkpath(folder) || !picture.save(folder + "/trovalis.png")) return 1;
  }
  return 0;
}
