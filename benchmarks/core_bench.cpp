// The work of the core on a full list.
#include "base/file.h"
#include "beside.h"
#include "edit/history.h"
#include "edit/list_operations.h"
#include "formats/lamedb.h"
#include "formats/satcodx.h"
#include "formats/service_rows.h"
#include "formats/text_format.h"
#include "formats/vdr_channels.h"
#include "full_list.h"
#include "model/flash_file.h"
#include "model/flash_loader.h"
#include "model/flash_writer.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace Bench {
namespace {

using namespace Routines;

// Copies bytes once, into memory that is there already.
std::function<void()> Copy(Base::ByteView from) {
  return [from, to = Base::Bytes(from.size())]() mutable {
    std::memcpy(to.data(), from.data(), from.size());
    benchmark::DoNotOptimize(to.data());
  };
}

const WritePlan FullPlan{FlashType::Two, Channels, ""};

void Load(benchmark::State& run) {
  const Base::Bytes image = Image();
  const auto state = List();
  RunBeside(run, {[&] { LoadFlash(*state, image, Channels, 0, Bouquets()); }, Copy(image)});
}

// A folder beside the results, which is on a disk where a temporary one may be in memory.
std::string ScratchFolder() {
  std::string folder = "salva-XXXXXX";
  return ::mkdtemp(folder.data()) == nullptr ? "." : folder;
}

bool WriteAndCompare(int file, const Base::Bytes& bytes) {
  Base::Bytes back(bytes.size());
  const auto whole = static_cast<ssize_t>(bytes.size());
  // What is compared has to come from the disk.
  return ::write(file, bytes.data(), bytes.size()) == whole && ::fsync(file) == 0 &&
         ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED) == 0 &&
         ::pread(file, back.data(), back.size(), 0) == whole &&
         std::memcmp(back.data(), bytes.data(), bytes.size()) == 0;
}

// Temporary file, flush, read-back, rename and flush of the folder, with bytes that are ready.
void ReplaceReadyFile(const std::string& folder, const Base::Bytes& bytes) {
  const std::string temporary = folder + "/pronto.tmp";
  const int file = ::open(temporary.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  const bool good = WriteAndCompare(file, bytes);
  ::close(file);
  if (!good || ::rename(temporary.c_str(), (folder + "/pronto.dat").c_str()) != 0) std::abort();
  const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  ::fsync(opened);
  ::close(opened);
}

// All that "Salva" does with an image that was saved before in this session.
void SaveWhole(const State& state, const std::string& path, Backups& backups) {
  const auto original = ReadFlash(path, "");
  if (!original) std::abort();
  const PatchedFlash patched = PatchFlash(state, *original, FullPlan);
  if (!SaveFlash(path, *original, patched.image, backups)) std::abort();
  if (!FindUnwritten(state, patched.image, FullPlan).Nothing()) std::abort();
}

void Save(benchmark::State& run) {
  const Base::Bytes image = Image();
  const auto state = List();
  const std::string folder = ScratchFolder();
  const std::string path = folder + "/lista.dat";
  if (!Base::ReplaceFile(path, image)) std::abort();
  Backups backups{folder, {}};
  SaveWhole(*state, path, backups);  // which leaves the copy that is made once
  RunBeside(run, {[&] { SaveWhole(*state, path, backups); }, [&] { ReplaceReadyFile(folder, image); }});
  for (const char* name : {"/lista.dat", "/lista.dat.bak", "/pronto.dat"}) {
    ::unlink((folder + name).c_str());
  }
  ::rmdir(folder.c_str());
}

void ExportText(benchmark::State& run) {
  const auto state = List();
  const std::string text = Formats::WriteText(*state);
  RunBeside(run, {[&] { benchmark::DoNotOptimize(Formats::WriteText(*state)); }, Copy(Base::AsBytes(text))});
}

void ImportText(benchmark::State& run) {
  const auto state = List();
  const std::string text = Formats::WriteText(*state);
  const auto read = [&] {
    if (!Formats::ReadText(*state, text, "lista.txt", Bouquets()).listRead) std::abort();
  };
  RunBeside(run, {read, Copy(Base::AsBytes(text))});
}

// Reads a text, beside finding its line ends.
void ReadLines(benchmark::State& run, const std::string& text, const std::function<bool()>& read) {
  const auto split = [&text] {
    std::size_t lines = 0;
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; ++at) ++lines;
    benchmark::DoNotOptimize(lines);
  };
  const auto work = [&read] {
    if (!read()) std::abort();
  };
  RunBeside(run, {work, split});
}

void ReadSdx(benchmark::State& run) {
  const std::string text = SatcodxText();
  Formats::SdxOptions options;
  options.codes = {"____"};
  ReadLines(run, text,
            [&] { return Formats::ReadSatcodx(text, options).rows.size() == Formats::MostSdxRows; });
}

// Rows of the services at 13.0E that are in DVB-S and free.
void ReadChannelsConf(benchmark::State& run) {
  const std::string text = ChannelsConf();
  Formats::ListOptions options;
  options.satellites[130] = 0;
  options.codes = {"04"};
  ReadLines(run, text, [&] {
    Formats::VdrReader reader(text);
    return Formats::RowsOf(reader, options).rows.size() == Formats::MostSdxRows;
  });
}

// Every service of it, as an order has it: rows end with the four thousandth.
void ReadLamedb(benchmark::State& run) {
  const std::string text = LamedbText();
  ReadLines(run, text, [&] {
    Formats::LamedbReader reader(text);
    int services = 0;
    while (reader.Read()) services += reader.Service().valid ? 1 : 0;
    return services == LamedbServices;
  });
}

// Every pair of channels on different transponders is in the wrong order.
std::unique_ptr<State> WorstToSort() {
  auto state = List();
  for (int slot = 1; slot <= Channels; ++slot) {
    Set(state->Channel(slot), ChannelField::Transponder,
        static_cast<std::uint32_t>(Transponders - (slot - 1) * Transponders / Channels));
  }
  for (int number = 1; number <= Transponders; ++number) {
    state->Transponder(number).SetBouquet("Bouquet", std::to_string(10 + number * 80 / Transponders));
  }
  return state;
}

void Sort(benchmark::State& run) {
  const auto worst = WorstToSort();
  std::vector<std::pair<std::uint32_t, int>> keys;
  for (int slot = 1; slot <= Channels; ++slot) {
    const auto number = Get(worst->Channel(slot), ChannelField::Transponder);
    keys.emplace_back(number, slot);
  }
  const auto state = std::make_unique<State>();
  auto sorted = keys;
  const auto byKey = [](const auto& one, const auto& other) { return one.first < other.first; };
  RunBeside(run, {[&] { Edit::OrdinaPerBouquet(*state, 1); },
                  [&] { std::stable_sort(sorted.begin(), sorted.end(), byKey); },
                  [&] {
                    *state = *worst;
                    sorted = keys;
                  }});
}

void SnapshotAndRestore(benchmark::State& run) {
  auto state = List();
  Edit::History history;
  Edit::Clipboard clipboard;
  const auto work = [&] {
    history.Push("Modifica", Edit::History::Kind::Edit, std::make_unique<State>(*state));
    history.Undo(state, clipboard);
  };
  RunBeside(run, {work, Copy({reinterpret_cast<const Base::Byte*>(state.get()), sizeof(State)})});
}

}  // namespace

void RegisterCore() {
  Register({{"caricare un'immagine", 5, Load},
            {"\"Salva\" per intero", 1.3, Save},
            {"esportare come testo", 30, ExportText},
            {"importare da testo", 25, ImportText},
            {".sdx di 100.000 righe, 4000 prese", 3, ReadSdx},
            {"channels.conf di 100.000 righe, 4000 prese", 4, ReadChannelsConf},
            {"lamedb di 20.000 servizi", 6, ReadLamedb},
            {"ordinare per bouquet, caso peggiore", 10, Sort},
            {"copia per Annulla e ritorno", 1.5, SnapshotAndRestore}});
}

}  // namespace Bench
