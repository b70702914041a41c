#include "ui/sources/download_commands.h"

#include "base/file.h"
#include "model/flash_copies.h"
#include "support/sdx_ini.h"
#include "ui/kit/text.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QTimer>

#include <algorithm>
#include <cerrno>

namespace Ui {
namespace {

constexpr std::size_t LargestDownload = 64U << 20U;

QString SizeText(qint64 bytes) {
  return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

// "1,2 MB di 4,0 MB, 350,0 kB al secondo" after so many milliseconds; `total` is -1 where the server has not said it.
QString TransferText(qint64 received, qint64 total, qint64 milliseconds) {
  const QString all = total > 0 ? " di " + SizeText(total) : QString();
  return SizeText(received) + all + ", " + SizeText(received * 1000 / std::max<qint64>(milliseconds, 1)) +
         " al secondo";
}

}  // namespace

DownloadCommands::DownloadCommands(Session& session, SdxCommands& sdx, DownloadFrame& frame, QWidget& window)
    : session_(session), sdx_(sdx), frame_(frame), window_(window) {
  connect(&frame_, &DownloadFrame::Chosen, this, &DownloadCommands::Fetch);
}

void DownloadCommands::Connect(Actions& actions) {
  actions.Connect("ScaricaInternet", [this] { ScaricaInternet(); });
}

void DownloadCommands::ScaricaInternet() {
  if (download_ && download_->Running()) {
    session_.status.ShowResult("Uno scaricamento è già in corso");
    return;
  }
  const auto addresses = Support::LoadAddresses(session_.programFolder);
  if (!addresses) {
    session_.Message(addresses.error());
    return;
  }
  QStringList lines;
  for (const std::string& address : *addresses) lines += CodePageText(address);
  frame_.Ask(lines);
}

void DownloadCommands::Fetch(const QString& address) {
  if (address.trimmed().isEmpty()) {
    session_.dialogs.Message("Si deve specificare il file da scaricare", {});
    return;
  }
  if (!MakeReady()) return;
  frame_.hide();
  path_ = session_.AskSave("Selezionare il file SDX di OUTPUT", "SatcoDX files(*.sdx)|*.sdx|",
                           FolderKind::Foreign, "Non scaricato");
  if (path_.empty()) return;
  session_.RememberFolder(FolderKind::Foreign, path_);
  // Whatever becomes of the transfer, the file no longer holds an older list.
  auto emptied = KeepOldList();
  if (emptied) emptied = Base::ReplaceFile(path_, {});
  if (!emptied) {
    session_.Message(emptied.error());
    return;
  }
  address_ = address.trimmed();
  OpenProgress();
  download_->Start(address_);
}

bool DownloadCommands::MakeReady() {
  if (download_) return true;
  auto download = NewDownload();
  if (!download) {
    session_.Message(download.error());
    return false;
  }
  download_ = std::move(*download);
  download_->onProgress = [this](qint64 received, qint64 total) { ShowProgress(received, total); };
  download_->onFinished = [this](bool good, const QByteArray& reply) { Take(good, reply); };
  return true;
}

// Beside it, until a list has come in its place.
Base::Outcome DownloadCommands::KeepOldList() {
  const std::string target = Base::ResolvedPath(path_);
  const auto old = Base::ReadFile(target, LargestDownload);
  if (!old && old.error().systemCode != ENOENT) return old.error();
  if (!old || old->empty()) return Base::Done{};
  const std::string folder = Base::FolderOf(target);
  const QStringList before = QDir(PathText(folder)).entryList(QDir::Files | QDir::Hidden);
  const auto copy = Routines::KeepCopy(folder, target, *old);
  if (!copy) return copy.error();
  OldList& known = oldLists_[target];
  const bool madeEarlier = known.made && known.copy == Base::PathIn(folder, *copy);
  known = {Base::PathIn(folder, *copy), madeEarlier || !before.contains(PathText(*copy))};
  return Base::Done{};
}

void DownloadCommands::RemoveOldList() {
  const auto old = oldLists_.extract(Base::ResolvedPath(path_));
  if (old && old.mapped().made) QFile::remove(PathText(old.mapped().copy));
}

void DownloadCommands::TellFailed(const QString& what) {
  const auto old = oldLists_.find(Base::ResolvedPath(path_));
  const QString rest = old == oldLists_.end()
                           ? QString()
                           : "; la lista di prima resta come " + PathText(Base::FileName(old->second.copy));
  session_.status.ShowResult(what + rest);
}

void DownloadCommands::OpenProgress() {
  progress_ = new QProgressDialog({}, "Annulla", 0, 0, &window_);
  auto* text = new QLabel("Scaricamento di " + address_ + "\nAttesa del server…", progress_);
  text->setTextFormat(Qt::PlainText);
  text->setAlignment(Qt::AlignCenter);
  progress_->setLabel(text);
  progress_->setObjectName("Scaricamento");
  progress_->setWindowTitle("Trovalis");
  progress_->setAttribute(Qt::WA_DeleteOnClose);
  progress_->setMinimumDuration(0);
  progress_->setAutoReset(false);
  progress_->setValue(0);
  since_.start();
  connect(progress_, &QProgressDialog::canceled, this, [this] {
    download_->Cancel();
    progress_->deleteLater();
    TellFailed("Scaricamento annullato");
  });
}

void DownloadCommands::ShowProgress(qint64 received, qint64 total) {
  if (progress_ == nullptr) return;
  progress_->setMaximum(total > 0 ? 1000 : 0);
  progress_->setValue(total > 0 ? static_cast<int>(received * 1000 / total) : 0);
  progress_->setLabelText("Scaricamento di " + address_ + "\n" +
                          TransferText(received, total, since_.elapsed()));
}

void DownloadCommands::Take(bool good, const QByteArray& reply) {
  if (progress_ != nullptr) {
    progress_->disconnect(this);
    progress_->close();
  }
  // Whoever answers a box is not to find another table behind it.
  if (QApplication::activeModalWidget() != nullptr) {
    QTimer::singleShot(200, this, [this, good, reply] { Take(good, reply); });
    return;
  }
  const std::string_view text(reply.constData(), static_cast<std::size_t>(reply.size()));
  if (!good || !Formats::LooksLikeSatcodx(text)) {
    TellFailed("Scaricamento non riuscito: " +
               (good ? "la risposta non è una lista SatcoDX" : download_->Reason()));
    session_.dialogs.Message("Errore di connessione a : " + address_ + CodePageText(text.substr(0, 80)), {});
    return;
  }
  const auto written = ReplaceFilePatiently(path_, Base::AsBytes(Formats::DownloadedLines(text)));
  if (!written) {
    TellFailed("Scaricamento non riuscito");
    session_.Message(written.error());
    return;
  }
  RemoveOldList();
  if (onLoad) onLoad();
  sdx_.Load(path_);
}

}  // namespace Ui
