// Draws the program's icons when it is built, so that the program itself needs no reader of vector drawings:
//   make_icons DRAWINGS FOLDER
// leaves in FOLDER, for each NAME.svg of the folder DRAWINGS, light/24/NAME, dark/24/NAME and the like (bare pixels) with
// icons.qrc, which lists them; and of trovalis.svg the sizes that desktops ask for (hicolor/48x48/apps/trovalis.png …) and
// trovalis.ico.
#include "ui/kit/icon_sizes.h"

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <iterator>
#include <utility>

namespace {

constexpr int DesktopSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};
constexpr int WindowsSizes[] = {16, 20, 24, 32, 40, 48, 64, 256};

// The colours of the drawings, and what they become on a dark ground.
constexpr std::pair<const char*, const char*> DarkColours[] = {{"#667c9a", "#a9bcd6"},
                                                               {"#2b7de0", "#6db0ff"},
                                                               {"#25964a", "#5cc982"},
                                                               {"#d06a0a", "#f0a04b"},
                                                               {"#dc4343", "#ff8585"}};

QByteArray ReadAll(const QString& file) {
  QFile source(file);
  return source.open(QFile::ReadOnly) ? source.readAll() : QByteArray();
}

bool WriteAll(const QString& file, const QByteArray& bytes) {
  QFile target(file);
  return !bytes.isEmpty() && QDir().mkpath(QFileInfo(file).path()) && target.open(QFile::WriteOnly) &&
         target.write(bytes) == bytes.size() && target.flush();
}

QByteArray InDarkColours(QByteArray drawing) {
  for (const auto& [light, dark] : DarkColours) drawing.replace(light, dark);
  return drawing;
}

// Nothing where the drawing is none.
QImage Draw(const QByteArray& drawing, int size) {
  QSvgRenderer renderer(drawing);
  if (!renderer.isValid()) return {};
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  renderer.render(&painter);
  return picture;
}

QByteArray Png(const QImage& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  return picture.save(&buffer, "PNG") ? bytes : QByteArray();
}

// As they are painted: a format of pictures would have the program load every reader of them at its start.
QByteArray Pixels(const QImage& picture) {
  return {reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()};
}

// The icons of commands in both sets of colours, and the list of them for the resource compiler.
bool DrawCommands(const QDir& drawings, const QString& folder) {
  QByteArray list = "<RCC>\n  <qresource prefix=\"/icons\">\n";
  for (const QFileInfo& file : drawings.entryInfoList({"*.svg"}, QDir::Files, QDir::Name)) {
    const QByteArray light = ReadAll(file.filePath());
    const std::pair<const char*, QByteArray> sets[] = {{"light", light}, {"dark", InDarkColours(light)}};
    for (const auto& [set, drawing] : sets) {
      for (const int size : Ui::IconSizes) {
        const QString name = QString("%1/%2/%3").arg(set).arg(size).arg(file.baseName());
        if (!WriteAll(folder + '/' + name, Pixels(Draw(drawing, size)))) return false;
        list += QString("    <file>%1</file>\n").arg(name).toUtf8();
      }
    }
  }
  return WriteAll(folder + "/icons.qrc", list + "  </qresource>\n</RCC>\n");
}

bool DrawForDesktops(const QByteArray& drawing, const QString& folder) {
  for (const int size : DesktopSizes) {
    const QString file = QString("%1/hicolor/%2x%2/apps/trovalis.png").arg(folder).arg(size);
    if (!WriteAll(file, Png(Draw(drawing, size)))) return false;
  }
  return true;
}

// Windows' own kind of file: a directory of pictures, and behind it the pictures.
QByteArray IconFile(const QByteArray& drawing) {
  constexpr quint32 HeaderBytes = 6;
  constexpr quint32 EntryBytes = 16;
  QByteArray file;
  QByteArray pictures;
  QDataStream out(&file, QDataStream::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out << quint16{0} << quint16{1} << static_cast<quint16>(std::size(WindowsSizes));
  for (const int size : WindowsSizes) {
    const QByteArray picture = Png(Draw(drawing, size));
    const auto side = static_cast<quint8>(size % 256);  // 256 is written as 0
    out << side << side << quint8{0} << quint8{0} << quint16{1} << quint16{32}
        << static_cast<quint32>(picture.size())
        << HeaderBytes + EntryBytes * static_cast<quint32>(std::size(WindowsSizes)) +
               static_cast<quint32>(pictures.size());
    pictures += picture;
  }
  return file + pictures;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("make_icons DRAWINGS FOLDER\n", stderr);
    return 2;
  }
  const QDir drawings(QString::fromLocal8Bit(argv[1]));
  const QString folder = QString::fromLocal8Bit(argv[2]);
  const QByteArray own = ReadAll(drawings.filePath("trovalis.svg"));
  const bool drawn = DrawCommands(drawings, folder) && DrawForDesktops(own, folder) &&
                     WriteAll(folder + "/trovalis.ico", IconFile(own));
  return drawn ? 0 : 1;
}
