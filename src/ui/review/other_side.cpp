#include "ui/review/other_side.h"

#include "base/file.h"
#include "formats/sdx_other.h"
#include "model/flash_loader.h"
#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"

#include <QFileInfo>

namespace Ui {

using Routines::State;

const char* OtherSide::BoxTitle(const Session& session) const {
  const bool output = OnDisk() && path_ == session.document.Tables().OutputFlash;
  return output ? "Errore FLASH di Output" : "Errore FLASH di Input";
}

Base::Outcome OtherSide::Read(const Session& session) {
  const auto image = ReadFlashPatiently(path_, BoxTitle(session));
  if (!image) return image.error();
  Take(session, *image);
  return Base::Done{};
}

void OtherSide::Take(const Session& session, Base::ByteView image) {
  written_ = Written();
  auto list = std::make_unique<State>();
  const int capacity = Capacity(session.settings.Chosen(), image);
  const Routines::LoadReport report = Routines::LoadFlash(*list, image, capacity, 0, {});
  channelsRead_ = report.channelsRead;
  channelsInImage_ = report.channelsInImage;
  list->SymbolRateTable = symbolRates_;
  list_ = Routines::OtherListOf(*list);
}

// As many channels as the receiver knows that the user has chosen.
int OtherSide::Capacity(const Routines::Settings& settings, Base::ByteView image) const {
  const int most = Routines::CapacityOf(image);
  if (OnDisk())
    return settings.flashScrittura
               ? std::min(most, Routines::FlashScrittura[*settings.flashScrittura].channels)
               : most;
  return settings.quantiCanali ? std::min(most, settings.Capacity()) : most;
}

QDateTime OtherSide::Written() const { return QFileInfo(PathText(path_)).lastModified(); }

void OtherSide::Follow(const Session& session) {
  if (!OnDisk()) return;
  const std::string path = PathOnDisk(session.document.Tables());
  if (path == path_ && Written() == written_) return;
  // What cannot be read any more stays as it was read last.
  OtherSide now(kind_, path);
  const auto image = Waiting([&] { return Routines::ReadFlash(path, now.BoxTitle(session)); });
  if (!image) return;
  now.Take(session, *image);
  *this = std::move(now);
}

Review::Comparison OtherSide::Compare(const Session& session) {
  const State& mine = session.document.Tables();
  // Codes are written as they are, whatever rates they stand for.
  if (OnDisk()) list_.symbolRates = mine.SymbolRateTable;
  if (kind_ == Kind::Rows) {
    list_ = Formats::OtherListOf(session.sdx, mine.SymbolRateTable);
    name_ = session.sdxName;
  }
  if (kind_ == Kind::Order) {
    Review::OrderMatch match = Review::MatchOrder(mine, order_, numbering_);
    list_ = std::move(match.list);
    return std::move(match.found);
  }
  Review::Comparison comparison = Review::Compare(mine, list_);
  const Routines::Settings settings = session.settings.Chosen();
  const bool written = !settings.flashScrittura || settings.Type() == Routines::FlashType::Two;
  if (OnDisk() && !written)
    std::erase_if(comparison.differences, [](const auto& one) { return one.Has(Review::Mark::Favourites); });
  return comparison;
}

QString OtherSide::Title() const {
  if (kind_ == Kind::Rows || kind_ == Kind::Csv)
    return name_ + ", " + Counted(list_.offered, "riga", "righe");
  if (kind_ == Kind::Order) return name_ + ", " + Counted(order_.entries.size(), "voce", "voci");
  const QString all = channelsInImage_ > channelsRead_ ? QString(" di %1").arg(channelsInImage_) : QString();
  return PathText(Base::FileName(path_)) + (all.isEmpty() ? ", " : ", letti ") +
         QString("%1%2 canali").arg(channelsRead_).arg(all);
}

}  // namespace Ui
