#include "ui/sources/sdx_commands.h"

#include "base/file.h"
#include "base/text.h"
#include "formats/sdx_import.h"
#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"
#include "ui/sources/sdx_dialogs.h"

namespace Ui {

using Routines::State;

namespace {

// A list of a million lines is some 130 MB.
constexpr std::size_t LargestList = 256U << 20U;

// Transport stream and service id of each loaded channel of a satellite, with its slot.
std::vector<std::pair<std::pair<int, int>, int>> ServicesOn(const State& state, int satellite) {
  std::vector<std::pair<std::pair<int, int>, int>> services;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const auto& channel = state.Channel(slot);
    const std::size_t number = Get(channel, Routines::ChannelField::Transponder);
    if (channel.Empty() || number < 1 || static_cast<int>(number) > state.TransponderCount) continue;
    const auto& transponder = state.Transponder(number).record;
    if (static_cast<int>(Get(transponder, Routines::TransponderField::Satellite)) != satellite) continue;
    services.push_back({{static_cast<int>(Get(transponder, Routines::TransponderField::Tid)),
                         static_cast<int>(Get(channel, Routines::ChannelField::Sid))},
                        slot});
  }
  return services;
}

QString RowName(const Formats::SdxRow& row) { return CodePageText(Base::TrimmedRight(row.name)); }

}  // namespace

void SdxCommands::Connect(Actions& actions) {
  actions.Connect("SDX", [this] { Carica(); });
  actions.Connect("RicercaSDX", [this] { Ricerca(); });
  actions.Connect("ImportaTuttoSDX", [this] { ImportaTutto(); });
  actions.ConnectButton("Copy SDX", [this] { CopySDX(); });
  session_.onChange.emplace_back([this] {
    session_.sdxShownSinceFls = session_.sdxShownSinceFls && session_.document.Tables().FromFls;
  });
  QObject::connect(&pane_, &SdxPane::Chosen, &pane_, [this](int row) { AskAndInsert(row, row); });
  QObject::connect(&pane_, &SdxPane::CopyWanted, &pane_, [this] { CopySDX(); });
  QObject::connect(&session_.view, &ListView::SdxDropped, &pane_,
                   [this](int first, int last, int before) { Drop(first, last, before); });
}

void SdxCommands::Carica(std::string path) {
  if (path.empty()) {
    path = session_.AskOpen("Selezionare il file SDX di input",
                            "SatcoDX files(*.sdx)|*.sdx|Tutti i file (*.*)|*.*|", FolderKind::Foreign);
  }
  if (path.empty()) return;
  session_.RememberFolder(FolderKind::Foreign, path);
  Load(path);
}

void SdxCommands::Load(const std::string& path) {
  const auto bytes = Waiting([&] { return Base::ReadFile(path, LargestList); });
  if (!bytes) {
    session_.Message(bytes.error());
    return;
  }
  const std::string_view text = Base::AsText(*bytes);
  SdxOptionsDialog dialog(session_.bouquets.tables.satellites, Formats::EncryptionCodesOf(text),
                          session_.dialogs, &window_);
  if (dialog.exec() != QDialog::Accepted) return;
  Formats::SdxOptions options = dialog.Chosen();
  if (dialog.UseFilterList()) {
    const auto filter = Base::ReadFile(session_.programFolder + "/Filtri.txt", 1U << 20U);
    if (filter) options.filtered = Formats::FilteredServices(Base::AsText(*filter));
  }
  if (dialog.SkipKnown()) {
    for (const auto& [service, slot] : ServicesOn(session_.document.Tables(), options.satellite))
      options.known.insert({options.satellite, service.first, service.second});
  }
  Formats::SdxTable table = Formats::ReadSatcodx(text, options);
  const QString name = CodePageText(Base::TrimmedRight(table.satelliteName));
  Show(std::move(table), name);
  TellTaken(PathText(Base::FileName(path)));
  ListMissing(options.satellite, text);
}

void SdxCommands::Show(Formats::SdxTable table, const QString& name) {
  session_.sdx = std::move(table);
  ShowPane(true);
  pane_.Refresh(name);
}

void SdxCommands::TellTaken(const QString& file) {
  const Formats::SdxTable& table = session_.sdx;
  QString result = QString("%1: lette %2 righe, prese %3")
                       .arg(file, QString::number(table.lines), QString::number(table.rows.size()));
  if (const std::string drops = table.dropped.Text(); !drops.empty()) result += "; scartate: " + Text(drops);
  session_.status.ShowResult(result);
  if (table.full) session_.dialogs.Message("Superato il numero di canali SDX gestibili 4000", {});
}

void SdxCommands::ListMissing(int satellite, std::string_view text) {
  const State& state = session_.document.Tables();
  const auto listed = Formats::ServicesOf(text);
  QString lines;
  for (const auto& [service, slot] : ServicesOn(state, satellite)) {
    if (listed.contains(service)) continue;
    lines += QString("%1 %2\n")
                 .arg(slot, 4, 10, QChar('0'))
                 .arg(CodePageText(Base::TrimmedRight(state.Channel(slot).Name())));
  }
  if (auto* earlier = OpenWindow<MissingWindow>(window_)) earlier->close();
  if (!lines.isEmpty()) (new MissingWindow(lines, session_, &window_))->BringUp();
}

void SdxCommands::ShowPane(bool shown) {
  pane_.setVisible(shown);
  session_.sdxShown = shown;
  session_.sdxShownSinceFls = session_.sdxShownSinceFls || shown;
  session_.ShowList();
  if (onShown) onShown(shown);
}

void SdxCommands::Ricerca() {
  const auto answer = session_.dialogs.AskLine("Inserire il canale da ricercare");
  if (!answer || answer->isEmpty()) return;
  bool found = false;
  for (std::size_t i = 0; i < session_.sdx.rows.size(); ++i) {
    if (!CodePageText(session_.sdx.rows[i].name).contains(*answer, Qt::CaseInsensitive)) continue;
    found = true;
    const int row = static_cast<int>(i) + 1;
    pane_.ListGrid().Select({row, row});
    if (!session_.dialogs.YesNo("Ricerco il successivo?")) return;
  }
  if (!found) session_.dialogs.Message("Canale non trovato", {}, Tone::Information);
}

void SdxCommands::CopySDX() {
  if (session_.sdx.rows.empty()) {
    session_.dialogs.Message("Canali SDX non caricati", {});
    return;
  }
  const auto rows = pane_.ListGrid().Selected();
  if (!rows) {
    session_.dialogs.Message("Nessun canale SDX selezionato", {});
    return;
  }
  AskAndInsert(rows->first, rows->last);
}

void SdxCommands::AskAndInsert(int first, int last) {
  if (!Meets(session_, Need::List)) return;
  const Rows rows = RowsFrom(first, last);
  const auto answer =
      session_.dialogs.AskLine("Inserire la posizione in cui inserire " + RowName(rows.content.front()));
  if (!answer || answer->isEmpty()) return;
  const int position = Base::LeadingNumber(answer->toStdString());
  if (position < 1 || position > session_.document.Tables().ChannelCount) {
    session_.dialogs.Message("Posizione non valida", {});
    return;
  }
  Put(rows, position, session_.dialogs.YesNo("Si desidera spostare i canali verso il basso?"));
}

void SdxCommands::Drop(int first, int last, int before) {
  const bool rows = first >= 1 && first <= last && last <= static_cast<int>(session_.sdx.rows.size());
  if (!rows || before > session_.document.Tables().ChannelCount) {
    session_.status.ShowResult("Dopo l'ultimo posto della lista non si può inserire");
    return;
  }
  Put(RowsFrom(first, last), before, true);
}

// Rows are taken before anything is asked: a download may put others in their place meanwhile.
SdxCommands::Rows SdxCommands::RowsFrom(int first, int last) const {
  const auto begin = session_.sdx.rows.begin();
  return {first, {begin + first - 1, begin + last}};
}

void SdxCommands::Put(const Rows& rows, int position, bool shift) {
  const int room = session_.document.Tables().ChannelCount - position + 1;
  const int all = static_cast<int>(rows.content.size());
  const int count = std::min(all, room);
  const std::string label = "Inserisci " + Base::Counted(count, "canale SDX", "canali SDX");
  QString result = Text(label) + QString(" dal %1").arg(position);
  std::string message;
  std::vector<Edit::LostFavourite> lost;
  session_.document.Apply(label, [&](State& state) {
    if (shift) lost = Edit::ShiftDown(state, position, count);
    Formats::SdxImport import(state, session_.bouquets.tables);
    for (int i = 0; i < count; ++i) {
      import.Put(rows.content[static_cast<std::size_t>(i)], position + i, rows.first + i);
    }
    message = import.Message();
    if (import.UnknownRates() > 0)
      result += QString(", %1 con SR che SR.INI non ha").arg(import.UnknownRates());
  });
  result += session_.Losses(lost);
  if (session_.view.Current() == View::Channels)
    session_.view.ListGrid().Select({position, position + count - 1});
  session_.status.ShowResult(result);
  if (!message.empty()) session_.dialogs.Message(Text(message), {});
  if (const int left = all - count; left > 0) {
    session_.dialogs.Message(
        Counted(left, "canale SDX non ha trovato posto", "canali SDX non hanno trovato posto"), {});
  }
}

void SdxCommands::ImportaTutto() {
  if (session_.sdx.rows.empty()) {
    session_.dialogs.Message("Canali SDX non caricati", {});
    return;
  }
  const Rows rows = RowsFrom(1, static_cast<int>(session_.sdx.rows.size()));
  SdxImportDialog dialog(&window_);
  if (dialog.exec() != QDialog::Accepted) return;
  const int start = Base::LeadingNumber(dialog.Start().toStdString());
  if (start < 1 || start > session_.document.Tables().ChannelCount) {
    session_.dialogs.Message("Il canale da cui iniziare il caricamento non è valido", {});
    return;
  }
  Put(rows, start, false);
}

}  // namespace Ui
