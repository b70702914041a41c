#include "ui/sources/sdx_commands.h"

#include "base/file.h"
#include "base/text.h"
#include "edit/told.h"
#include "formats/sdx_import.h"
#include "ui/kit/patience.h"
#include "ui/kit/text.h"
#include "ui/session/filter_texts.h"
#include "ui/sources/missing_window.h"
#include "ui/sources/sdx_dialogs.h"

#include <QMainWindow>

#include <algorithm>

namespace Ui {

using Routines::State;

namespace {

// "3 righe fuori banda", which have no transponder they could stand on; empty for none.
QString OutOfBandText(int rows) {
  return rows == 0 ? QString() : Counted(rows, "riga fuori banda", "righe fuori banda");
}

struct ListRows {
  Formats::SdxTable table;
  std::set<std::pair<int, int>> services;  // of all lines, as ServicesOf() has them
};

ListRows RowsIn(std::string_view text, const Formats::SdxOptions& options) {
  ListRows rows{Formats::ReadSatcodx(text, options), Formats::ServicesOf(text)};
  Formats::KeepOthers(rows.table, Formats::ReadSatcodx(text, Formats::WithoutFilters(options)));
  return rows;
}

QString RowName(const Formats::SdxRow& row) { return CodePageText(Base::TrimmedRight(row.name)); }

}  // namespace

void SdxCommands::Connect(Actions& actions) {
  actions.Connect("SDX", [this] { Open(); });
  actions.Connect("RicercaSDX", [this] { Find(); });
  actions.Connect("ImportaTuttoSDX", [this] { ImportAll(); });
  actions.ConnectButton("Copy SDX", [this] { CopySDX(); });
  FollowFilter(session_, pane_.Filter(), pane_.Hits(), "righe SDX");
  QObject::connect(&pane_, &SdxPane::Shown, &pane_, [this] { MarkKnown(); });
  QObject::connect(&session_.document, &Document::Changed, &pane_, [this] { MarkKnown(); });
  session_.onChange.emplace_back([this] {
    session_.sdxShownSinceFls = session_.sdxShownSinceFls && session_.document.Tables().FromFls;
  });
  QObject::connect(&pane_, &SdxPane::Chosen, &pane_, [this](int row) { AskAndInsert(RowsOf({row})); });
  QObject::connect(&pane_, &SdxPane::CopyWanted, &pane_, [this] { CopySDX(); });
  QObject::connect(&session_.view, &ListView::SdxDropped, &pane_,
                   [this](const Edit::Slots& rows, int before) { Drop(rows, before); });
}

void SdxCommands::Open(std::string path) {
  if (path.empty()) {
    path = session_.AskOpen("Selezionare il file SDX di input",
                            "SatcoDX files(*.sdx)|*.sdx|Tutti i file (*.*)|*.*|", FolderKind::Foreign);
  }
  if (path.empty()) return;
  session_.RememberFolder(FolderKind::Foreign, path);
  Load(path);
}

void SdxCommands::Load(const std::string& path) {
  auto read = session_.Read(path);
  if (!read) return;
  const auto bytes = std::make_shared<const Base::Bytes>(std::move(*read));
  auto contents = Patiently(ReadingOf(path), [bytes] {
    const std::string_view text = Base::AsText(*bytes);
    return Base::Result(
        SdxOptionsDialog::Contents{Formats::SummaryOf(text), Formats::EncryptionCodesOf(text)});
  });
  if (!contents) return session_.Message(contents.error());
  SdxOptionsDialog dialog(PathText(Base::FileName(path)), std::move(*contents), session_, &window_);
  if (dialog.exec() != QDialog::Accepted) return;
  auto rows = Patiently(ReadingOf(path), [bytes, options = dialog.Chosen()] {
    return Base::Result(RowsIn(Base::AsText(*bytes), options));
  });
  if (!rows) return session_.Message(rows.error());
  const QString name = CodePageText(Base::TrimmedRight(rows->table.satelliteName));
  Show(std::move(rows->table), name);
  TellTaken(PathText(Base::FileName(path)));
  ListMissing(dialog.Chosen().satellite, std::move(rows->services));
}

void SdxCommands::Show(Formats::SdxTable table, const QString& name) {
  pane_.KeepPlace();
  session_.sdx = std::move(table);
  session_.sdxName = name;
  ShowPane(true);
  pane_.Refresh(name);
  MarkKnown();
}

void SdxCommands::MarkKnown() {
  if (PaneShown()) pane_.Model().ShowSlots(Formats::SlotsWith(session_.document.Tables(), session_.sdx.rows));
}

void SdxCommands::SelectNew() {
  Edit::Slots rows;
  for (int row = 1; row <= pane_.Model().rowCount(); ++row) {
    if (!pane_.Model().InChannelList(row)) rows.push_back(row);
  }
  if (!rows.empty()) pane_.ListGrid().Select(rows);
  session_.status.ShowResult(rows.empty() ? QString("La lista ha già tutte le righe a destra")
                                          : "Selezionate a destra " + Counted(rows.size(), "riga", "righe"));
}

void SdxCommands::TellTaken(const QString& file) {
  const Formats::SdxTable& table = session_.sdx;
  QString result = QString("%1: lette %2 righe, prese %3")
                       .arg(file, QString::number(table.lines), QString::number(table.rows.size()));
  if (const std::string drops = table.dropped.Text(); !drops.empty()) result += "; scartate: " + Text(drops);
  session_.status.ShowResult(result);
  if (table.full) session_.dialogs.Message("Superato il numero di canali SDX gestibili 4000", {});
}

void SdxCommands::ListMissing(int satellite, std::set<std::pair<int, int>> services) {
  const auto find = [this, listed = std::move(services), satellite] {
    Edit::Slots missing;
    for (const auto& [service, slot] : Formats::KnownServices(session_.document.Tables())) {
      if (service[0] == satellite && !listed.contains({service[1], service[2]})) missing.push_back(slot);
    }
    std::sort(missing.begin(), missing.end());
    return missing;
  };
  if (auto* earlier = OpenWindow<MissingWindow>(window_)) earlier->close();
  if (!find().empty()) (new MissingWindow(session_, find, window_))->BringUp();
}

void SdxCommands::ShowPane(bool shown) {
  pane_.setVisible(shown);
  session_.sdxShown = shown;
  session_.sdxShownSinceFls = session_.sdxShownSinceFls || shown;
  session_.ShowList();
  if (onShown) onShown(shown);
}

void SdxCommands::Find() {
  const auto answer = session_.dialogs.AskLine("Inserire il canale da ricercare");
  if (!answer || answer->isEmpty()) return;
  bool found = false;
  for (std::size_t i = 0; i < session_.sdx.rows.size(); ++i) {
    if (!CodePageText(session_.sdx.rows[i].name).contains(*answer, Qt::CaseInsensitive)) continue;
    found = true;
    const int row = static_cast<int>(i) + 1;
    pane_.ListGrid().SelectRow(row);
    if (!session_.dialogs.YesNo("Ricerco il successivo?")) return;
  }
  if (!found) session_.dialogs.Message("Canale non trovato", {}, Tone::Information);
}

void SdxCommands::CopySDX() {
  if (session_.sdx.rows.empty()) {
    session_.dialogs.Message("Canali SDX non caricati", {});
    return;
  }
  const Edit::Slots rows = pane_.ListGrid().Selected();
  if (rows.empty()) {
    session_.dialogs.Message("Nessun canale SDX selezionato", {});
    return;
  }
  AskAndInsert(RowsOf(rows));
}

void SdxCommands::AskAndInsert(const Rows& rows) {
  if (!Meets(session_, Gate(Need::List, Need::Places))) return;
  if (rows.content.empty()) {
    session_.status.ShowResult("Non inserito: " + OutOfBandText(rows.outOfBand));
    return;
  }
  const State& state = session_.document.Tables();
  // A full list has no such place to offer.
  const int behind = LastOccupied(state) + 1;
  const auto answer =
      session_.dialogs.AskLine("Inserire la posizione in cui inserire " + RowName(rows.content.front()),
                               behind <= state.ChannelCount ? QString::number(behind) : QString());
  if (!answer || answer->isEmpty()) return;
  const int position = Base::LeadingNumber(answer->toStdString());
  if (position < 1 || position > state.ChannelCount) {
    session_.dialogs.Message("Posizione non valida", {});
    return;
  }
  // Escape must not be the answer that writes over a channel.
  const Answer way = session_.dialogs.YesNoCancel("Si desidera spostare i canali verso il basso?");
  if (way == Answer::Cancel) return;
  Put(rows, Formats::SlotsFrom(state, position, rows.Count()),
      way == Answer::Yes ? Way::Shift : Way::Overwrite);
}

void SdxCommands::Drop(const Edit::Slots& numbers, int before) {
  const State& state = session_.document.Tables();
  const bool known = !numbers.empty() && numbers.front() >= 1 &&
                     numbers.back() <= static_cast<int>(session_.sdx.rows.size());
  if (!known || before > state.ChannelCount) {
    session_.status.ShowResult("Non inserito: la lista non ha altri posti dopo l'ultimo");
    return;
  }
  if (!Meets(session_, Need::Places)) return;
  const Rows rows = RowsOf(numbers);
  Put(rows, Formats::SlotsFrom(state, before, rows.Count()), Way::Shift);
}

// Rows are taken before anything is asked: a download may put others in their place meanwhile.
SdxCommands::Rows SdxCommands::RowsOf(const Edit::Slots& numbers) const {
  Rows rows;
  for (const int number : numbers) {
    const Formats::SdxRow& row = session_.sdx.rows[static_cast<std::size_t>(number) - 1];
    if (Formats::InBand(row)) {
      rows.content.push_back(row);
      rows.numbers.push_back(number);
    } else {
      ++rows.outOfBand;
    }
  }
  return rows;
}

void SdxCommands::Put(const Rows& rows, const std::vector<int>& slots, Way way) {
  Document& document = session_.document;
  const int count = static_cast<int>(slots.size());
  if (count == 0) return session_.status.ShowResult("Non inserito: " + OutOfBandText(rows.outOfBand));
  const bool shift = way == Way::Shift;
  const std::vector<int> out =
      shift ? Edit::PushedOut(document.Tables(), slots.front(), count) : std::vector<int>();
  const QString pushedOut = session_.ChannelLines(out);
  const std::string over = shift ? "" : Formats::OverwrittenBy(document.Tables(), slots).Text();
  const bool together = slots.back() - slots.front() == count - 1;
  const std::string where =
      together ? (count == 1 ? " al " : " dal ") + std::to_string(slots.front()) : " nei posti vuoti";
  QString more = over.empty() ? QString() : "; al posto di " + Text(over);
  std::string message;
  std::vector<Edit::LostFavourite> lost;
  std::string label;
  document.Apply(label, [&](State& state) {
    if (shift) lost = Edit::ShiftDown(state, slots.front(), count);
    Formats::SdxImport import(state, session_.bouquets.tables);
    for (std::size_t i = 0; i < slots.size(); ++i) import.Put(rows.content[i], slots[i], rows.numbers[i]);
    message = import.Message();
    label = Edit::Told(state, slots, "Inserito", "Inseriti", where);
    if (import.UnknownRates() > 0)
      more += QString("; %1 con SR che SR.INI non ha").arg(import.UnknownRates());
  });
  if (session_.view.Current() == View::Channels) session_.view.ListGrid().Select(slots);
  TellPut(rows, Text(label) + more + session_.Losses(lost), pushedOut);
  if (!message.empty()) session_.dialogs.Message(Text(message), {});
  TellWithoutRoom(rows, count);
}

// A whole list may drop off at the end: the line names the first ones, its button all.
void SdxCommands::TellPut(const Rows& rows, const QString& done, const QString& pushedOut) {
  constexpr int MostNamed = 20;
  QString result = done;
  QStringList names = pushedOut.split('\n', Qt::SkipEmptyParts);
  if (const auto more = names.size() - MostNamed; more > 0)
    names = names.first(MostNamed) + QStringList(QString("e altri %1").arg(more));
  if (!names.isEmpty())
    result += (names.size() == 1 ? "; perso in fondo: " : "; persi in fondo: ") + names.join(", ");
  if (rows.outOfBand > 0) result += "; " + OutOfBandText(rows.outOfBand);
  if (pushedOut.isEmpty()) {
    session_.status.ShowResult(result);
  } else {
    session_.status.ShowLoss(result, pushedOut, session_.document.Steps().LastStep());
  }
}

void SdxCommands::TellWithoutRoom(const Rows& rows, int placed) {
  const int left = rows.Count() - placed;
  if (left <= 0) return;
  // They stay selected for another place.
  pane_.ListGrid().Select(Edit::Slots(rows.numbers.begin() + placed, rows.numbers.end()));
  session_.dialogs.Message(
      Counted(left, "canale SDX non ha trovato posto", "canali SDX non hanno trovato posto"), {});
}

void SdxCommands::ImportAll() {
  if (session_.sdx.rows.empty()) {
    session_.dialogs.Message("Canali SDX non caricati", {});
    return;
  }
  const Rows rows = RowsOf(Edit::SlotRun(1, static_cast<int>(session_.sdx.rows.size())));
  SdxImportDialog dialog(session_.document.Tables(), rows.Count(), OutOfBandText(rows.outOfBand), &window_);
  if (dialog.exec() != QDialog::Accepted) return;
  const std::vector<int> slots = dialog.Slots();
  if (slots.empty() && rows.Count() > 0) {
    session_.dialogs.Message("Il canale da cui iniziare il caricamento non è valido", {});
    return;
  }
  Put(rows, slots, Way::Overwrite);
}

}  // namespace Ui
