#include "ui/edit/cell_commands.h"

#include "edit/cell_edit.h"
#include "edit/move.h"
#include "edit/told.h"
#include "ui/kit/text.h"
#include "ui/session/gate.h"

namespace Ui {

using Routines::State;
using Routines::ChannelColumn::Flags;
using Routines::ChannelColumn::Name;

namespace {

CellKind ChannelKind(int column) {
  using namespace Routines;
  switch (column) {
    case ChannelColumn::Number:
      return CellKind::Fixed;
    case ChannelColumn::Name:
      return CellKind::Name;
    case ChannelColumn::Transponder:
    case ChannelColumn::Flags:
      return CellKind::OpenList;
    case ChannelColumn::Active:
      return CellKind::Toggle;
    default:
      return CellKind::Number;
  }
}

CellKind TransponderKind(int column) {
  using namespace Routines;
  switch (column) {
    case TransponderColumn::Frequency:
    case TransponderColumn::Tid:
    case TransponderColumn::Nid:
      return CellKind::Number;
    case TransponderColumn::SymbolRate:
    case TransponderColumn::Fec:
    case TransponderColumn::Satellite:
      return CellKind::ClosedList;
    case TransponderColumn::Polarisation:
    case TransponderColumn::Tone:
      return CellKind::Toggle;
    default:
      return CellKind::Fixed;
  }
}

QStringList Texts(const std::vector<std::string>& utf8) {
  QStringList texts;
  for (const std::string& text : utf8) texts += Text(text);
  return texts;
}

// Every satellite that the list can tell apart by a letter, with its name where it has one.
QStringList Satellites(const std::vector<Routines::Satellite>& named) {
  QStringList texts;
  for (std::uint32_t satellite = 0; satellite < 26; ++satellite) {
    const std::string label = Routines::SatelliteLabel(satellite);
    const auto found =
        std::find_if(named.begin(), named.end(), [&](const auto& one) { return one.label == label; });
    texts += Text(label) + (found == named.end() ? QString() : " " + CodePageText(found->name).trimmed());
  }
  return texts;
}

// The header calls the column of the names after the channel.
std::string Title(const QAbstractItemModel& list, int column, bool channels) {
  if (channels && column == Name) return "Nome";
  return list.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().toStdString();
}

}  // namespace

CellKind CellCommands::KindOf(int column) const {
  return Channels() ? ChannelKind(column) : TransponderKind(column);
}

QStringList CellCommands::Choices(int column) const {
  const State& state = session_.document.Tables();
  if (Channels()) {
    if (column == Routines::ChannelColumn::Transponder) return Texts(Edit::TransponderChoices(state));
    if (column == Flags) return Texts({Edit::Codings.begin(), Edit::Codings.end()});
    return {"S", "N"};
  }
  switch (column) {
    case Routines::TransponderColumn::SymbolRate:
      return Texts(Edit::SymbolRateChoices(state));
    case Routines::TransponderColumn::Fec:
      return {"1/2", "2/3", "3/4", "5/6", "7/8", "Auto"};
    case Routines::TransponderColumn::Polarisation:
      return {"H", "V"};
    case Routines::TransponderColumn::Tone:
      return {"On", "Off"};
    default:
      return Satellites(session_.bouquets.tables.satellites);
  }
}

// "Modificato Rai Uno (12)", "Modificato il transponder 3"
std::string CellCommands::ToldEdit(bool channel, int slot) const {
  const State& state = session_.document.Tables();
  if (!channel) return "Modificato il transponder " + std::to_string(slot);
  if (state.Channel(slot).Empty()) return "Riempito il " + Edit::NameIn(state, slot);
  return "Modificato " + Edit::NameIn(state, slot) + " (" + std::to_string(slot) + ")";
}

// An editor may be closed by the very command that shows the other list: the cell says whose it is.
QString CellCommands::Take(const QModelIndex& cell, const QString& typed) {
  const int slot = cell.row() + 1;
  const int column = cell.column();
  const std::string text = typed.toStdString();
  const bool channels = static_cast<const ListModel*>(cell.model())->OfChannels();
  const std::string title = Title(*cell.model(), column, channels);
  std::string label = ToldEdit(channels, slot) + ", " + title + ": " + typed.trimmed().toStdString();
  const int revision = session_.document.Revision();
  const Base::Outcome done = session_.document.Apply(label, [&](State& state) {
    return channels ? Edit::EditChannel(state, slot, column, text)
                    : Edit::EditTransponder(state, slot, column, text, session_.bouquets.tables);
  });
  if (!done) {
    session_.status.ShowResult("Non modificato: " + Text(done.error().message));
    return Text(done.error().message);
  }
  if (session_.document.Revision() != revision) session_.status.ShowResult(Text(label));
  return {};
}

Edit::Slots CellCommands::Rows() const {
  return Channels() ? session_.view.ListGrid().Selected() : Edit::Slots();
}

void CellCommands::Rename() {
  Grid& grid = session_.view.ListGrid();
  if (!Channels() || !grid.currentIndex().isValid()) return;
  const QModelIndex name = grid.currentIndex().siblingAtColumn(Name);
  grid.selectionModel()->setCurrentIndex(name, QItemSelectionModel::NoUpdate);
  grid.edit(name);
}

void CellCommands::InsertRows() {
  const Edit::Slots rows = Rows();
  if (rows.empty() || !Meets(session_, Need::Places)) return;
  const std::string at = std::to_string(rows.front());
  const std::string label = rows.size() == 1
                                ? "Inserita 1 riga vuota al " + at
                                : "Inserite " + std::to_string(rows.size()) + " righe vuote dal " + at;
  const auto inserted =
      session_.document.Apply(label, [&](State& state) { return Edit::InsertEmpty(state, rows); });
  if (!inserted) {
    session_.Message(inserted.error());
    return;
  }
  session_.view.ListGrid().Select(inserted->rows);
  session_.status.ShowResult(Text(label) + session_.Losses(inserted->lost));
}

void CellCommands::SetColumn(int column, const QString& value) {
  const Edit::Slots rows = Rows();
  if (rows.empty()) return;
  const State& tables = session_.document.Tables();
  Edit::Slots channels = rows;
  std::erase_if(channels, [&tables](int slot) { return tables.Channel(slot).Empty(); });
  const std::string what =
      ", " + Title(*session_.view.ListGrid().model(), column, true) + " " + value.toStdString();
  const std::string label = column == Routines::ChannelColumn::Active
                                ? Edit::ToldActive(tables, channels, value == "S")
                                : Edit::Told(tables, channels, "Modificato", "Modificati", what);
  const auto changed = session_.document.Apply(
      label, [&](State& state) { return Edit::EditChannels(state, rows, column, value.toStdString()); });
  if (!changed) {
    session_.Message(changed.error());
    return;
  }
  session_.status.ShowResult(*changed == 0 ? QString("Nessun canale fra le righe selezionate") : Text(label));
}

void CellCommands::AskTransponder() {
  const Edit::Slots rows = Rows();
  if (rows.empty()) return;
  const State& state = session_.document.Tables();
  const QStringList choices = Texts(Edit::TransponderChoices(state));
  if (choices.isEmpty()) {
    session_.status.ShowResult("La lista non ha transponder");
    return;
  }
  const QString now = Text(Routines::ChannelCell(state, rows.front(), Routines::ChannelColumn::Transponder));
  const auto at = std::find_if(choices.begin(), choices.end(),
                               [&](const QString& choice) { return choice.startsWith(now + ' '); });
  const auto chosen = session_.dialogs.Choose(
      rows.size() == 1    ? QString("Transponder del canale %1").arg(rows.front())
      : Edit::IsRun(rows) ? QString("Transponder dei canali da %1 a %2").arg(rows.front()).arg(rows.back())
                          : QString("Transponder di %1 canali").arg(rows.size()),
      choices, now.isEmpty() || at == choices.end() ? 0 : static_cast<int>(at - choices.begin()));
  if (chosen) SetColumn(Routines::ChannelColumn::Transponder, choices[*chosen].section(' ', 0, 0));
}

void CellCommands::AskCoding() {
  if (Rows().empty()) return;
  const auto answer = session_.dialogs.AskLine("Inserire la codifica, due cifre esadecimali");
  if (answer && !answer->isEmpty()) SetColumn(Flags, answer->trimmed());
}

void CellCommands::GoToTransponder() {
  const Edit::Slots rows = Rows();
  if (rows.empty()) return;
  const State& state = session_.document.Tables();
  const auto& channel = state.Channel(rows.front());
  const int number = static_cast<int>(Get(channel, Routines::ChannelField::Transponder));
  if (channel.Empty() || number < 1 || number > state.TransponderCount) {
    session_.status.ShowResult(QString("Il canale %1 non ha un transponder nella lista").arg(rows.front()));
    return;
  }
  session_.view.GoToRow(View::Transponders, number);
}

}  // namespace Ui
