#include "session.h"

#include "ui/kit/text.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QScreen>
#include <QTest>

#include <cstdio>
#include <initializer_list>

namespace Demo {
namespace {

// A box as desktops show it, with its title above: a display without a window manager puts no frame round it.
QPixmap Framed(QWidget& box) {
  const QPixmap inside = box.grab();
  const int bar = 2 * box.fontMetrics().height();
  QPixmap whole(inside.width() + 2, inside.height() + bar + 2);
  whole.fill(QColor(120, 120, 120));
  QPainter painter(&whole);
  const QRect title(1, 1, inside.width(), bar);
  painter.fillRect(title, QColor(216, 220, 226));
  painter.setPen(QColor(40, 40, 40));
  painter.drawText(title, Qt::AlignCenter, box.windowTitle());
  painter.drawPixmap(1, bar + 1, inside);
  return whole;
}

}  // namespace

Session::Session(const QString& flash, const QString& support, const QString& output)
    : flash_(QFileInfo(flash).absoluteFilePath()), output_(QDir(output).absolutePath()) {
  QDir(output_).removeRecursively();
  QApplication::setCursorFlashTime(0);  // pictures of one session are those of the next
  for (const QString& folder : {ProgramFolder(), output_ + "/guida"}) QDir().mkpath(folder);
  for (const char* name : {"Bouquets.txt", "SR.INI", "SDX.INI"}) {
    QFile::copy(support + "/" + name, ProgramFolder() + "/" + name);
  }
  foreign_ = QFileInfo(support + "/demo.csv").absoluteFilePath();
  copy_ = output_ + "/copia.dat";
  QFile::copy(flash_, copy_);
  QFile::setPermissions(copy_, QFile::ReadOwner | QFile::WriteOwner);
}

int Session::Run() {
  const bool started = Start();
  Step("start", started, window_->windowTitle());
  for (const auto scene : std::initializer_list<void (Session::*)()>{&Session::ChooseSettings,
                                                                     &Session::OpenFlash,
                                                                     &Session::LookAtTransponders,
                                                                     &Session::LookAtOverview,
                                                                     &Session::BrowseTrees,
                                                                     &Session::TurnDark,
                                                                     &Session::SortView,
                                                                     &Session::MoveRows,
                                                                     &Session::WorkOnFound,
                                                                     &Session::EditCells,
                                                                     &Session::RenameMany,
                                                                     &Session::SetMany,
                                                                     &Session::SortChannels,
                                                                     &Session::GroupRadio,
                                                                     &Session::ArrangeFavourites,
                                                                     &Session::CompareWithDisk,
                                                                     &Session::CompareWithSpreadsheet,
                                                                     &Session::OrderAsFavourites,
                                                                     &Session::RemoveDuplicates,
                                                                     &Session::PrintList,
                                                                     &Session::TakeFromSdx,
                                                                     &Session::ShowAdditionalFlash,
                                                                     &Session::ImportForeignList,
                                                                     &Session::TakeFromListOfToday,
                                                                     &Session::CheckTransponders,
                                                                     &Session::ShowAbout,
                                                                     &Session::Convert,
                                                                     &Session::SaveCopy,
                                                                     &Session::OpenCopyAgain,
                                                                     &Session::SaveNewCopy,
                                                                     &Session::EndWithUnsavedWork}) {
    (this->*scene)();
  }
  CheckBoxes();
  std::printf("%s: %d steps, %d failed; pictures in %s\n", failed_ == 0 ? "OK" : "FAILED", steps_, failed_,
              qPrintable(output_));
  return failed_ == 0 ? 0 : 1;
}

bool Session::Start() {
  driver_.reset();
  window_ = std::make_unique<Ui::MainWindow>(Ui::PathBytes(ProgramFolder()));
  driver_ = std::make_unique<WindowDriver>(*window_);
  window_->show();
  return QTest::qWaitForWindowExposed(window_.get()) && window_->Start();
}

void Session::CheckBoxes() {
  for (const QString& failure : driver_->Failures()) Step("boxes", false, failure);
}

// Prints a step and takes its picture.
void Session::Step(const char* name, bool good, const QString& seen) {
  QTest::qWait(80);
  ++steps_;
  if (!good) ++failed_;
  std::printf("%2d %-24s %-6s %s\n", steps_, name, good ? "ok" : "FAILED", qPrintable(seen));
  std::fflush(stdout);
  Picture(QString(name).replace(' ', '-'));
}

void Session::Picture(const QString& name) {
  const QPixmap picture = window_->screen()->grabWindow(0);
  picture.save(QString("%1/%2-%3.png").arg(output_).arg(++pictures_, 2, 10, QChar('0')).arg(name));
}

void Session::PictureBoxes(const QString& name) {
  driver_->onBox = [this, name](const QString&) {
    QTest::qWait(150);
    Picture(name);
  };
}

void Session::KeepForGuide(const char* name, const QPixmap& picture) const {
  picture.save(QString("%1/guida/%2.png").arg(output_, name));
}

// A picture of the guide: the main window with whatever menu is open over it.
void Session::Guide(const char* name) {
  QTest::qWait(250);  // until the grid has scrolled to the pointer
  const QPoint corner = window_->mapToGlobal(QPoint()) - window_->screen()->geometry().topLeft();
  KeepForGuide(name,
               window_->screen()->grabWindow(0, corner.x(), corner.y(), window_->width(), window_->height()));
}

// One of a window beside the main one.
void Session::GuideBox(const char* name, QWidget& box) {
  QTest::qWait(250);
  KeepForGuide(name, Framed(box));
}

// One of both, that window at the lower right.
void Session::GuideOver(const char* name, QWidget& box) {
  QTest::qWait(250);
  QPixmap whole = window_->grab();
  const QPixmap framed = Framed(box);
  QPainter(&whole).drawPixmap(whole.width() - framed.width() - 12, whole.height() - framed.height() - 66,
                              framed);
  KeepForGuide(name, whole);
}

void Session::Undo(int steps) {
  for (int step = 0; step < steps; ++step) driver_->Choose("Annulla");
}

}  // namespace Demo
