#include "formats/fls_format.h"

#include "base/text.h"
#include "model/flash_image.h"

namespace Formats {
namespace {

using namespace Routines;

constexpr std::size_t RecordSize = 30;
constexpr std::string_view Channels = "[CANALI] ";
constexpr std::string_view Transponders = "[TRANSPONDERS] ";
constexpr std::string_view Favourites = "[PREFERITI] ";

void Append(Base::Bytes& file, std::string_view record) {
  std::string padded(record);
  padded.resize(RecordSize, ' ');
  file.insert(file.end(), padded.begin(), padded.end());
}

// Record by record through a file; bytes missing at the end of the last one count as zero.
class Records {
 public:
  explicit Records(Base::ByteView file) : rest_(Base::AsText(file)) {}

  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

  std::string Next() {
    std::string record(rest_.substr(0, RecordSize));
    rest_.remove_prefix(record.size());
    record.resize(RecordSize, '\0');
    return record;
  }

  std::string Rest() { return std::string(rest_); }

 private:
  std::string_view rest_;
};

// The number behind a header's text, at most `most`; 0 where the text is another.
int CountBehind(std::string_view record, std::string_view header, std::size_t most) {
  return record.starts_with(header) ? Base::LeadingCount(record.substr(header.size()), static_cast<int>(most))
                                    : 0;
}

template <class Record>
void Store(Record& target, const std::string& record) {
  std::copy_n(record.begin(), target.bytes.size(), target.bytes.begin());
}

}  // namespace

Base::Bytes WriteFls(const State& state) {
  Base::Bytes file;
  Append(file, std::string(Channels) + Base::ZeroPadded(state.ChannelCount, 4));
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    Append(file, Base::AsText(state.Channel(slot).bytes));
  }
  Append(file, std::string(Transponders) + std::to_string(state.TransponderCount));
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    Append(file, Base::AsText(state.Transponder(slot).record.bytes));
  }
  if (state.FavouritesBlock.empty()) return file;
  std::string_view block = Base::AsText(state.FavouritesBlock);
  Append(file, std::string(Favourites) + Base::ZeroPadded(static_cast<int>(block.size()), 4));
  for (; !block.empty(); block.remove_prefix(std::min(RecordSize, block.size()))) {
    Append(file, block.substr(0, RecordSize));
  }
  return file;
}

ImportReport ReadFls(State& state, Base::ByteView file, const BouquetTables& bouquets) {
  ImportReport report;
  report.whole = Base::Error{"Formato input sconosciuto"};
  Records records(file);
  const int channels = CountBehind(records.Next(), Channels, file.size());
  if (channels <= 0) return report;

  report.changed = report.transpondersRead = true;
  for (std::size_t slot = 1; slot < state.ChannelTable.size(); ++slot) state.Channel(slot) = {};
  for (std::size_t slot = 1; slot < state.TransponderTable.size(); ++slot)
    state.Transponder(slot).record = {};
  for (int slot = 1; slot <= channels && !records.AtEnd(); ++slot) {
    const std::string record = records.Next();
    if (slot <= LastChannelSlot) Store(state.Channel(slot), record);
  }
  const int transponders = CountBehind(records.Next(), Transponders, file.size());
  state.TransponderCount = std::min(transponders, LastTransponderSlot);
  if (transponders < 1) return report;
  for (int slot = 1; slot <= transponders && !records.AtEnd(); ++slot) {
    const std::string record = records.Next();
    if (slot <= LastTransponderSlot) Store(state.Transponder(slot).record, record);
  }
  NameBouquets(state, bouquets);
  report.listRead = true;

  // A file without favourites always ends here, with the sentence above: its readers have learnt to expect it.
  if (records.AtEnd()) state.FavouritesBlock.clear();
  const std::string header = records.Next();
  if (!header.starts_with(Favourites)) return report;
  // A file cut short has less of it: the names lie where the header's length puts them all the same.
  std::string block = records.Rest();
  block.resize(static_cast<std::size_t>(CountBehind(header, Favourites, SectorSize)), '\0');
  state.FavouritesBlock.assign(block.begin(), block.end());
  report.whole = Base::Done{};
  return report;
}

}  // namespace Formats
