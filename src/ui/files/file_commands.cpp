#include "ui/files/file_commands.h"

#include "base/file.h"
#include "model/flash_loader.h"
#include "model/flash_writer.h"
#include "model/symbol_rates.h"
#include "ui/kit/patience.h"
#include "ui/kit/text.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

namespace Ui {

using Routines::State;

namespace {

constexpr const char* InputTitle = "Errore FLASH di Input";
constexpr const char* OutputTitle = "Errore FLASH di Output";
constexpr const char* RatesMovedText = " - SR 22000 spostato senza Converti SR";

using Written = Base::Result<std::pair<Routines::Saved, Routines::Backups>>;

// A file's name, short enough to leave room for what is said of it.
QString ShortName(const std::string& path) {
  constexpr qsizetype Longest = 60;
  const QString name = PathText(Base::FileName(path));
  return name.size() <= Longest ? name : name.left(Longest / 2) + "…" + name.right(Longest / 2);
}

int ChannelsIn(const Base::Bytes& image) {
  const auto state = std::make_unique<State>();
  return LoadFlash(*state, image, Routines::LastChannelSlot, 0, {}).channelsInImage;
}

// What the summary's number counts, as it says no more than "Canali effettivi", and whether the image had more.
QString WrittenText(const State& state, const Base::Bytes* replaced) {
  const int last = LastUsedChannel(state);
  int channels = 0;
  for (int slot = 1; slot <= last; ++slot) channels += state.Channel(slot).Empty() ? 0 : 1;
  const int before = replaced == nullptr ? 0 : ChannelsIn(*replaced);
  return QString(" (%1, fino al posto %2%3)")
      .arg(Counted(channels, "canale", "canali"))
      .arg(last)
      .arg(before > channels ? QString("; prima ne aveva %1").arg(before) : "");
}

// What to do where a list is not, or not all of it, what the user will have looked for.
QString HintFor(const Routines::LoadReport& report, const Routines::Settings& settings,
                bool anyTransponders) {
  if (report.channelsInImage > report.channelsRead && settings.Capacity() < Routines::LastChannelSlot)
    return " - per leggerli tutti scegliere in Canali da copiare un numero più grande e riaprire la flash";
  if (report.channelsInImage == 0 && !anyTransponders)
    return " - nel file non c'è una lista, forse non è l'immagine di questo tipo di ricevitore";
  return {};
}

// The channels that an append has left without a transponder of their own, in rising order.
std::vector<int> WithoutTransponder(const Routines::LoadReport& report) {
  std::vector<int> slots;
  std::ranges::merge(report.linkedToLast, report.stranded, std::back_inserter(slots));
  return slots;
}

}  // namespace

void FileCommands::Connect(Actions& actions) {
  actions.Connect("ApriFlashInput", [this] { ApriFlashInput(); });
  actions.Connect("Salva", [this] { Salva(); });
  actions.Connect("ApriFlashOutput", [this] { ApriFlashOutput(); });
  actions.Connect("SalvaCopiaNuova", [this] { SalvaCopiaNuova(); });
  actions.Connect("ConvertiSR", [this] { ConvertiSR(); });
}

// 0 to replace what is loaded; nothing where the user gives up.
std::optional<int> FileCommands::AskAppendStart() {
  Dialogs& ask = session_.dialogs;
  if (!session_.document.Tables().Loaded ||
      !ask.YesNo("Si desidera accodare la nuova Flash a quella già caricata?")) {
    return 0;
  }
  if (!ask.YesNo("La flash che si sta accodando è dello stesso dipo di quella già caricata?"))
    return std::nullopt;
  return Routines::AppendStart(session_.document.Tables());
}

void FileCommands::ApriFlashInput(std::string path, std::optional<Routines::Settings> settings) {
  const auto appendStart = AskAppendStart();
  if (!appendStart) return;
  if (*appendStart > 0) settings.reset();
  if (!settings && !Meets(session_, Need::Capacity)) return;
  if (path.empty()) path = session_.AskOpen("Selezionare la flash di input", FlashFilters, FolderKind::Input);
  if (path.empty()) return;
  const auto image = ReadFlashPatiently(path, InputTitle);
  if (!image) return session_.Message(image.error());
  session_.RememberFolder(FolderKind::Input, path);
  Load(path, *image, *appendStart, settings.value_or(session_.settings.Chosen()));
}

void FileCommands::Load(const std::string& path, const Base::Bytes& image, int appendStart,
                        const Routines::Settings& settings) {
  const auto rates = session_.LoadSymbolRates(settings);
  if (!rates) return;
  const int capacity = settings.Capacity();
  const bool appended = appendStart > 0;
  if (!appended && !session_.mayReplaceList()) return;
  session_.status.ShowProgress(30);
  const bool ratesMoved = appended && RatesMoved(*rates);
  Document& document = session_.document;
  const Routines::LoadReport report = document.Apply(
      (appended ? "Accodata " : "Aperta ") + ShortName(path).toStdString(),
      [&](State& state) {
        auto loaded = Routines::LoadFlash(state, image, capacity, appendStart, session_.bouquets.tables);
        state.SymbolRateTable = rates->table;
        state.InputFlash = path;
        if (!appended) {
          state.OutputFlash.clear();
          state.ListNumber = document.NextListNumber();
        }
        return loaded;
      },
      Edit::History::Kind::List);
  if (!appended) {
    document.MarkSaved(path);
    if (settings != session_.settings.Chosen()) session_.settings.Choose(settings);
  }
  session_.status.ShowProgress(100);
  session_.view.ShowOpened(appended ? std::string() : path);
  bool tellMore = true;
  for (const std::string& message : report.messages) {
    if (&message == &report.messages.front()) {
      session_.dialogs.Message(Text(message), {});
    } else if (tellMore) {
      tellMore = session_.dialogs.RepeatedMessage(Text(message));
    }
  }
  const QString result =
      ShortName(path) + ": " + Text(Routines::TextOf(report, document.Tables().TransponderCount, appended)) +
      (appended ? QString() : HintFor(report, settings, document.Tables().TransponderCount > 0)) +
      (ratesMoved ? RatesMovedText : "");
  const std::vector<int> lost = appended ? WithoutTransponder(report) : std::vector<int>();
  if (lost.empty()) {
    session_.status.ShowResult(result);
  } else {
    session_.status.ShowLoss(result, session_.ChannelLines(lost), document.Steps().LastStep());
  }
  if (onOpened) onOpened(path);
}

// Whether the list's codes were read with 22000 in another place than `SRDef` now says.
bool FileCommands::RatesMoved(const Support::SymbolRates& rates) const {
  return !Routines::SamePlaces(rates.table, session_.document.Tables().SymbolRateTable);
}

std::optional<FileCommands::Preparation> FileCommands::Prepare() {
  const auto rates = session_.NeedsSymbolRates();
  if (!rates) return std::nullopt;

  const State& state = session_.document.Tables();
  Preparation preparation{Routines::PlanWrite(state, session_.settings.Chosen()), RatesMoved(*rates)};
  if (!preparation.plan.warning.empty()) session_.dialogs.Message(Text(preparation.plan.warning), {});
  return preparation;
}

void FileCommands::ApriFlashOutput() {
  if (const auto preparation = Prepare()) AskAndWrite(*preparation);
}

void FileCommands::Salva() {
  const auto preparation = Prepare();
  if (!preparation) return;
  const std::string path = session_.document.Tables().OutputFlash;
  if (path.empty()) {
    AskAndWrite(*preparation);
    return;
  }
  const auto original = ReadFlashPatiently(path, OutputTitle);
  if (!original) return session_.Message(original.error());
  Write(path, *original, *preparation, Routines::SaveFlash);
}

// Into an image that is not there yet, made of the flash opened last as the disk has it now.
void FileCommands::SalvaCopiaNuova() {
  const auto preparation = Prepare();
  if (!preparation) return;
  const auto original = ReadFlashPatiently(session_.document.Tables().InputFlash, InputTitle);
  if (!original) return session_.Message(original.error());
  const std::string path = PathBytes(session_.dialogs.SaveFile(
      {"Salvare la copia nuova in", FlashFilters, session_.FolderFor(FolderKind::Output), true}));
  if (path.empty()) return;
  session_.RememberFolder(FolderKind::Output, path);
  Write(path, *original, *preparation, Routines::SaveNewFlash);
}

void FileCommands::AskAndWrite(const Preparation& preparation) {
  const std::string path =
      session_.AskOpen("Selezionare la flash di output", FlashFilters, FolderKind::Output);
  if (path.empty()) return;
  const auto original = ReadFlashPatiently(path, OutputTitle);
  if (!original) {
    const bool vanished = original.error().systemCode == ENOENT;
    return session_.Message(vanished ? Routines::WrongFlashSize(0, OutputTitle) : original.error());
  }
  session_.RememberFolder(FolderKind::Output, path);
  Write(path, *original, preparation, Routines::SaveFlash);
}

void FileCommands::Write(const std::string& path, const Base::Bytes& original, const Preparation& preparation,
                         Save save) {
  StatusLine& status = session_.status;
  status.ShowProgress(10);
  const State& state = session_.document.Tables();
  const Routines::PatchedFlash patched = Routines::PatchFlash(state, original, preparation.plan);
  status.ShowProgress(30);
  auto saved = Patiently(WritingOf(path), [save, path, original, after = patched.image,
                                           backups = session_.backups](auto& point) mutable {
    auto written = save(path, original, after, backups, LookAt(point));
    return written ? Written(std::pair(*written, std::move(backups))) : Written(written.error());
  });
  status.ShowProgress(100);
  if (!saved) return session_.Message({saved.error().message, OutputTitle, saved.error().systemCode});
  session_.backups = std::move(saved->second);
  TellWritten(path, patched, preparation, saved->first, save == Routines::SaveFlash ? &original : nullptr);
  if (onWritten) onWritten();
}

QString FileCommands::LostChannels(const Routines::Unwritten& unwritten) const {
  QString lines = session_.ChannelLines(unwritten.channels);
  for (const int slot : unwritten.extraChannels)
    lines += QString("%1 posto vuoto, nell'immagine c'è un canale\n").arg(slot, 4, 10, QChar('0'));
  return lines;
}

void FileCommands::TellWritten(const std::string& path, const Routines::PatchedFlash& patched,
                               const Preparation& preparation, const Routines::Saved& saved,
                               const Base::Bytes* replaced) {
  Document& document = session_.document;
  const Routines::Unwritten unwritten =
      Routines::FindUnwritten(document.Tables(), patched.image, preparation.plan);
  document.Adjust([&](State& state) {
    state.OutputFlash = path;
    state.MaxChannels = 0;
    if (unwritten.Nothing()) state.FromFls = false;
  });
  document.ForgetSaved(path);
  if (unwritten.Nothing()) {
    document.MarkSaved(path);
  } else {
    document.MarkUnsaved();
  }

  QString result = "Scritta " + ShortName(path) + WrittenText(document.Tables(), replaced) +
                   Text(Routines::TextOf(patched, unwritten));
  if (preparation.ratesMoved) result += RatesMovedText;
  result += Text(Routines::TextOf(saved, ShortName(path).toStdString()));
  if (unwritten.Nothing()) {
    session_.status.ForgetLosses();
    session_.status.ShowResult(result);
  } else {
    session_.status.ShowLoss(result, LostChannels(unwritten), 0);
  }
  session_.dialogs.Message(Text(Routines::WriteSummary(document.Tables(), patched)), {}, Tone::Information);
}

void FileCommands::ConvertiSR() {
  const auto place = session_.settings.Chosen().Place();
  std::string label;
  session_.document.Apply(label, [&label, place](State& state) {
    const int changed = Routines::ConvertiSR(state, place);
    label = "Convertiti gli SR di " + Base::Counted(changed, "transponder", "transponder");
  });
  session_.view.Show(View::Transponders);
  session_.status.ShowResult(Text(label));
}

}  // namespace Ui
