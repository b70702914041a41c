#include "bench_windows.h"

#include "base/file.h"
#include "full_list.h"
#include "support/pos_ini.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QBrush>
#include <QFile>
#include <QHeaderView>

#include <cstdlib>
#include <utility>

namespace Bench {
namespace {

// Chooses the file and agrees to replace what is loaded.
class Answers : public Ui::Dialogs {
 public:
  explicit Answers(QString flash) : flash_(std::move(flash)) {}

  void Message(const QString&, const QString&, Ui::Tone) override {}
  bool RepeatedMessage(const QString&) override { return true; }
  bool YesNo(const QString&) override { return false; }
  bool FinalYesNo(const QString&) override { return false; }
  Ui::Answer YesNoCancel(const QString&) override { return Ui::Answer::Cancel; }
  bool OkCancel(const QString&) override { return false; }
  std::optional<QString> AskLine(const QString&) override { return std::nullopt; }
  std::optional<int> Choose(const QString&, const QStringList&, int) override { return std::nullopt; }
  QString OpenFile(const Ui::FileQuestion&) override { return flash_; }
  QString SaveFile(const Ui::FileQuestion&) override { return {}; }

 private:
  QString flash_;
};

class PaintSeen : public QObject {
 public:
  bool seen = false;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    seen = seen || event->type() == QEvent::Paint;
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

void Settle() {
  for (int round = 0; round < 10; ++round) QCoreApplication::processEvents();
}

void UntilPainted(QWidget& view, const std::function<void()>& work) {
  PaintSeen paint;
  view.installEventFilter(&paint);
  work();
  while (!paint.seen) QCoreApplication::processEvents();
}

void RepaintCells(QTableView& table) {
  table.viewport()->repaint();
  for (auto* column : table.findChildren<QTableView*>()) {
    if (column->isVisible()) column->viewport()->repaint();
  }
}

int ConstantModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int ConstantModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

QVariant ConstantModel::data(const QModelIndex& index, int role) const {
  static const QVariant text = QString("12345");
  static const QVariant alignment = static_cast<int>(Qt::AlignCenter);
  static const QVariant background = QBrush(Qt::yellow);
  static const QVariant foreground = QBrush(Qt::black);
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return text;
    case Qt::TextAlignmentRole:
      return alignment;
    case Qt::BackgroundRole:
      return background;
    case Qt::ForegroundRole:
      return foreground;
    default:
      return {};
  }
}

PlainWindow::PlainWindow(const Ui::Grid& like)
    : model_(like.model()->rowCount(), like.model()->columnCount()), table_(new QTableView(&window_)) {
  window_.setCentralWidget(table_);
  table_->setHorizontalScrollMode(QTableView::ScrollPerPixel);
  table_->setWordWrap(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(like.verticalHeader()->defaultSectionSize());
  table_->horizontalHeader()->setDefaultSectionSize(like.viewport()->width() / model_.columnCount({}));
  window_.resize(like.size());
  window_.show();
  Settle();
}

ListWindow::ListWindow(int channels) {
  const std::string folder = Ui::PathBytes(folder_.path());
  for (const char* name : {"Bouquets.txt", "SR.INI"}) {
    QFile::copy(QString(SAMPLES_FOLDER) + "/" + name, folder_.filePath(name));
  }
  const std::string flash = folder + "/lista.dat";
  if (!Base::ReplaceFile(flash, Image(channels))) std::abort();
  // As where the last flash came from the same folder.
  Support::SaveFolderOf(folder, Support::FolderKind::Input, flash);
  window_ = std::make_unique<Ui::MainWindow>(folder, std::make_unique<Answers>(Ui::PathText(flash)));
  window_->resize(1280, 800);  // where every column is in view, for ours as for the plain table
  window_->show();
  if (!window_->Start()) std::abort();
  for (const char* option : {"QuantiCanali_2", "FlashScrittura_1"}) {
    window_->findChild<QAbstractButton*>(option)->click();
  }
  Settle();
}

void ListWindow::OpenFlash() { window_->findChild<QAction*>("ApriFlashInput")->trigger(); }

Ui::Grid& ListWindow::Grid() const { return *window_->findChild<Ui::Grid*>("Griglia"); }

}  // namespace Bench
