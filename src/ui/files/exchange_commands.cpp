#include "ui/files/exchange_commands.h"

#include "base/code_page.h"
#include "base/file.h"
#include "formats/csv_format.h"
#include "formats/fls_format.h"
#include "formats/list_import.h"
#include "formats/text_format.h"
#include "model/flash_loader.h"
#include "ui/kit/text.h"

namespace Ui {

using Routines::State;

namespace {

// A whole list is some 300 KB in either format.
constexpr std::size_t LargestImport = 16U << 20U;

}  // namespace

void ExchangeCommands::Connect(Actions& actions) {
  actions.Connect("FormatoTesto", [this] { FormatoTesto(); });
  actions.Connect("FormatoFLASH", [this] { FormatoFLASH(); });
  actions.Connect("FormatoCSV", [this] { FormatoCSV(); });
  actions.Connect("DaEsportatoTesto", [this] { DaEsportatoTesto(); });
  actions.Connect("CaricaImportato", [this] { DaEsportatoTesto(); });
  actions.Connect("DaEsportato", [this] { DaEsportato(); });
}

std::string ExchangeCommands::AskExport(const QString& filters) {
  return session_.AskSave("Selezionare il file di output", filters, FolderKind::Input, "Non esportato");
}

void ExchangeCommands::Export(const std::string& path, Base::ByteView bytes, const std::string& lost) {
  const auto written = ReplaceFilePatiently(path, bytes);
  session_.status.ShowResult(written ? "Esportato " + PathText(Base::FileName(path)) +
                                           (lost.empty() ? QString() : ": " + Text(lost))
                                     : Text(written.error().message));
}

void ExchangeCommands::FormatoTesto() {
  const std::string path = AskExport("Files di testo(*.txt)|*.txt");
  if (path.empty()) return;
  const State& state = session_.document.Tables();
  Export(path, Base::AsBytes(Formats::WriteText(state)), Formats::CodingsLostAsText(state).Text());
}

void ExchangeCommands::FormatoCSV() {
  const State& state = session_.document.Tables();
  const bool transponders = session_.view.Current() == View::Transponders;
  Edit::Slots rows = Edit::SlotRun(1, transponders ? state.TransponderCount : state.ChannelCount);
  const Edit::Slots selected =
      session_.view.Current() == View::None ? Edit::Slots() : session_.view.ListGrid().Selected();
  if (selected.size() > 1) {
    const Answer answer = session_.dialogs.YesNoCancel("Esportare solo le righe selezionate?");
    if (answer == Answer::Cancel) return;
    if (answer == Answer::Yes) rows = selected;
  }
  const std::string path = AskExport("File CSV(*.csv)|*.csv");
  if (path.empty()) return;
  Export(path, Base::AsBytes(transponders ? Formats::WriteTranspondersCsv(state, rows)
                                          : Formats::WriteChannelsCsv(state, rows)));
}

void ExchangeCommands::FormatoFLASH() {
  const Routines::Settings chosen = session_.settings.Chosen();
  const std::string flash = session_.document.Tables().InputFlash;
  const std::string path = AskExport("Files di testo(*.fls)|*.fls");
  if (path.empty()) return;
  const auto image = ReadFlashPatiently(flash, "Errore FLASH di Input");
  if (!image) return session_.Message(image.error());
  const auto rates = session_.LoadSymbolRates();
  if (!rates) return;
  Document& document = session_.document;
  auto reloaded = std::make_unique<State>(document.Tables());
  Routines::LoadFlash(*reloaded, *image, chosen.Capacity(), 0, session_.bouquets.tables);
  reloaded->SymbolRateTable = rates->table;
  reloaded->FromFls = document.Tables().FromFls;
  // The list gives way to the image only where it is another one.
  const bool another = *reloaded != document.Tables();
  if (another && !session_.mayReplaceList()) return;
  const auto written = ReplaceFilePatiently(path, Formats::WriteFls(*reloaded));
  if (!written) {
    session_.status.ShowResult(Text(written.error().message));
    return;
  }
  QString replaced;
  if (another) {
    reloaded->ListNumber = document.NextListNumber();
    replaced = QString(" al posto della lista di %1%2: Ctrl+Z la riporta")
                   .arg(Counted(Routines::UsedChannels(document.Tables()), "canale", "canali"))
                   .arg(document.Unsaved() ? " con modifiche non salvate" : "");
  }
  document.Apply(
      "Ricaricata " + Base::FileName(flash), [&reloaded](State& state) { state = *reloaded; },
      Edit::History::Kind::List);
  document.MarkSaved(document.Tables().InputFlash);
  session_.status.ShowResult("Esportato " + PathText(Base::FileName(path)) + "; ricaricata la flash " +
                             PathText(Base::FileName(flash)) + replaced);
}

// An import replaces the list, so what is loaded now does not count.
std::optional<ExchangeCommands::Preparation> ExchangeCommands::Prepare() {
  const auto rates = session_.NeedsSymbolRates();
  if (!rates) return std::nullopt;
  return Preparation{Routines::PlanWrite(*std::make_unique<State>(), session_.settings.Chosen()),
                     rates->table};
}

std::optional<Base::Bytes> ExchangeCommands::ReadImport(const QString& title, const QString& filters,
                                                        std::string& path) {
  if (path.empty()) path = session_.AskOpen(title, filters, FolderKind::Input);
  if (path.empty()) return std::nullopt;
  return session_.Read(path, LargestImport);
}

template <class Read>
void ExchangeCommands::Import(const std::string& path, const Preparation& preparation, Read read) {
  if (!session_.mayReplaceList()) return;
  Document& document = session_.document;
  const auto report = document.Apply(
      "Importata " + Base::FileName(path),
      [&](State& state) {
        Formats::ImportReport told = Formats::ImportList(state, preparation.symbolRates, read);
        if (told.changed) {
          state.OutputFlash.clear();
          state.ListNumber = document.NextListNumber();
        }
        return told;
      },
      Edit::History::Kind::List);
  if (report.listRead) session_.view.ShowOpened(path);
  if (report.listRead && report.whole) {
    session_.favouritesAtHand = true;
    session_.ShowList();
  }
  TellImported(path, report);
}

void ExchangeCommands::TellImported(const std::string& path, const Formats::ImportReport& report) {
  if (report.listRead) {
    session_.status.ShowResult(PathText(Base::FileName(path)) + ": " + Text(Formats::TextOf(report)));
  } else if (report.changed) {
    session_.status.ShowResult(QString("Importazione interrotta: %1, %2")
                                   .arg(Counted(report.channelsRead, "canale letto", "canali letti"))
                                   .arg(session_.document.Tables().Loaded
                                            ? "scritti fra quelli della lista: Annulla la riporta com'era"
                                            : "non usati"));
  }
  if (!report.whole) session_.Message(report.whole.error());
}

void ExchangeCommands::DaEsportatoTesto(std::string path) {
  const auto preparation = Prepare();
  if (!preparation) return;
  const auto bytes = ReadImport("Selezionare il file di testo contenente i CANALI e i TRANSPONDERS",
                                "File di testo(*.txt)|*.txt|", path);
  if (!bytes) return;
  const std::string text = Base::FromMarkedUtf8(Base::AsText(*bytes));
  Import(path, *preparation,
         [&](State& state) { return Formats::ReadText(state, text, path, session_.bouquets.tables); });
}

void ExchangeCommands::DaEsportato(std::string path) {
  const auto preparation = Prepare();
  if (!preparation) return;
  const auto bytes = ReadImport("Selezionare il file di da importare", "Files di testo(*.fls)|*.fls", path);
  if (!bytes) return;
  Import(path, *preparation, [&](State& state) {
    auto report = Formats::ReadFls(state, *bytes, session_.bouquets.tables);
    if (report.changed) state.ChannelCount = preparation->plan.maxChannels;
    if (report.whole) state.FromFls = true;
    return report;
  });
}

}  // namespace Ui
