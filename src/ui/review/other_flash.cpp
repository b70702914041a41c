#include "ui/review/other_flash.h"

#include "base/file.h"
#include "model/flash_loader.h"
#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"

#include <QFileInfo>

namespace Ui {

using Routines::State;

Base::Outcome OtherFlash::Read(const Session& session) {
  const State& mine = session.document.Tables();
  const bool output = OnDisk() && path_ == mine.OutputFlash;
  const char* const title = output ? "Errore FLASH di Output" : "Errore FLASH di Input";
  const auto image = Waiting([&] { return Routines::ReadFlash(path_, title); });
  if (!image) return image.error();
  written_ = Written();
  auto list = std::make_unique<State>();
  const int capacity = Capacity(session.settings.Chosen(), *image);
  const Routines::LoadReport report = Routines::LoadFlash(*list, *image, capacity, 0, {});
  channelsRead_ = report.channelsRead;
  channelsInImage_ = report.channelsInImage;
  list->SymbolRateTable = symbolRates_;
  list_ = std::move(list);
  return Base::Done{};
}

// As many channels as the receiver knows that the user has chosen.
int OtherFlash::Capacity(const Routines::Settings& settings, Base::ByteView image) const {
  const int most = Routines::CapacityOf(image);
  if (OnDisk())
    return settings.flashScrittura
               ? std::min(most, Routines::FlashScrittura[*settings.flashScrittura].channels)
               : most;
  return settings.quantiCanali ? std::min(most, settings.Capacity()) : most;
}

QDateTime OtherFlash::Written() const { return QFileInfo(PathText(path_)).lastModified(); }

void OtherFlash::Follow(const Session& session) {
  if (!OnDisk()) return;
  const std::string path = PathOnDisk(session.document.Tables());
  if (path == path_ && Written() == written_) return;
  // What cannot be read any more stays as it was read last.
  OtherFlash now(kind_, path);
  if (now.Read(session)) *this = std::move(now);
}

Review::Comparison OtherFlash::Compare(const Session& session) {
  const State& mine = session.document.Tables();
  // Codes are written as they are, whatever rates they stand for.
  if (OnDisk()) list_->SymbolRateTable = mine.SymbolRateTable;
  Review::Comparison comparison = Review::Compare(mine, *list_);
  const Routines::Settings settings = session.settings.Chosen();
  const bool written = !settings.flashScrittura || settings.Type() == Routines::FlashType::Two;
  if (OnDisk() && !written) comparison.favourites.clear();
  return comparison;
}

QString OtherFlash::Title() const {
  const QString all = channelsInImage_ > channelsRead_ ? QString(" di %1").arg(channelsInImage_) : QString();
  return PathText(Base::FileName(path_)) + (all.isEmpty() ? ", " : ", letti ") +
         QString("%1%2 canali").arg(channelsRead_).arg(all);
}

}  // namespace Ui
