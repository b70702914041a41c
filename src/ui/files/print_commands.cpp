#include "ui/files/print_commands.h"

#include "base/file.h"
#include "ui/files/print_preview.h"
#include "ui/kit/late_part.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/kit/themed_icon.h"

#include <QDialog>
#include <QPagedPaintDevice>

namespace Ui {

using Routines::State;

namespace {

int LastUsedTransponder(const State& state) {
  int slot = state.TransponderCount;
  while (slot > 0 && IsFree(state.Transponder(slot).record)) --slot;
  return slot;
}

QString WithSource(const QString& heading, const QString& source) {
  return source.isEmpty() ? heading : heading + " - " + source;
}

QString PagesText(int pages) {
  return (pages == 1 ? "Stampata " : "Stampate ") + Counted(pages, "pagina", "pagine");
}

}  // namespace

void PrintCommands::Connect(Actions& actions) {
  actions.Connect("StampaGriglia", [this] { StampaGriglia(); });
  actions.Connect("StampaSDX", [this] { StampaSDX(); });
  actions.Connect("StampaPreferiti", [this] { StampaPreferiti(); });
}

void PrintCommands::StampaGriglia() {
  const ListView& view = session_.view;
  const State& state = session_.document.Tables();
  const bool channels = view.Current() == View::Channels;
  const auto rows =
      AskRows(view.ListGrid(), channels ? Routines::LastOccupied(state) : LastUsedTransponder(state));
  if (!rows) return;
  const QString heading = WithSource(view.PrintHeading(), PathText(Base::FileName(state.InputFlash)));
  const QAbstractItemModel& table = *view.ListGrid().model();
  const PrintReport compact = channels ? CompactReportOf(table, *rows, heading) : PrintReport();
  Preview(ReportOf(table, *rows, heading), channels ? &compact : nullptr);
}

void PrintCommands::StampaSDX() {
  const int last = static_cast<int>(session_.sdx.rows.size());
  if (last == 0) {
    session_.dialogs.Message("Canali SDX non caricati", {});
    return;
  }
  if (const auto rows = AskRows(pane_.ListGrid(), last))
    Preview(ReportOf(*pane_.ListGrid().model(), *rows, WithSource("Stampa SDX", pane_.Name())));
}

void PrintCommands::StampaPreferiti() {
  const State& state = session_.document.Tables();
  const PrintReport report =
      FavouritesReportOf(state, WithSource("Stampa Preferiti", PathText(Base::FileName(state.InputFlash))));
  if (report.rows.isEmpty()) return session_.dialogs.Message("Nessun preferito da stampare", {});
  Preview(report);
}

// One selected row is where the user is, more of them may be what is to be printed.
std::optional<Edit::Slots> PrintCommands::AskRows(const Grid& grid, int lastRow) {
  Edit::Slots rows = Edit::SlotRun(1, lastRow);
  const Edit::Slots selected = grid.Selected();
  if (selected.size() > 1) {
    const Answer answer = session_.dialogs.YesNoCancel(
        QString("Stampare solo le %1 righe selezionate?\nRispondere NO per stampare tutta la lista")
            .arg(selected.size()));
    if (answer == Answer::Cancel) return std::nullopt;
    if (answer == Answer::Yes) rows = selected;
  }
  if (!rows.empty()) return rows;
  session_.dialogs.Message("Nessuna riga da stampare", {});
  return std::nullopt;
}

// The line for the status bar; empty where the file could not be written, which a box has told then.
QString PrintCommands::Save(const PrintReport& report, const std::string& path,
                            const QPagedPaintDevice& like) {
  if (const char* why = session_.WhyOnlySaved(path); why != nullptr) {
    session_.dialogs.Message(QString("Non stampato: ") + why, {});
    return {};
  }
  const auto pages = SavePdf(report, path, like.pageLayout(), like.pageRanges());
  if (pages) return PagesText(*pages) + " in " + PathText(Base::FileName(path));
  session_.Message(pages.error());
  return {};
}

void PrintCommands::Preview(const PrintReport& whole, const PrintReport* compact) {
  const auto show = FunctionOf("trovalis-print", "ShowPrintPreview");
  if (!show) return session_.Message(show.error());
  QString result;
  const auto chosen = [&](bool shorter) -> const PrintReport& { return shorter ? *compact : whole; };
  const PrintPreview preview{
      .window = window_,
      .title = whole.heading,
      .page = UsualPage(),
      .compact = compact != nullptr,
      .saveIcon = IconNamed("export"),
      .prepare =
          [](QDialog& dialog) {
            ResizeOnScreen(dialog, {900, 660});
            NameMoreButton(dialog);
          },
      .print =
          [&](QPagedPaintDevice& printer, bool shorter) {
            const auto pages = PrintPages(printer, chosen(shorter));
            result = pages ? PagesText(*pages) : QString("La stampa non è riuscita");
          },
      .save =
          [&](const QString& path, const QPagedPaintDevice& like, bool shorter) {
            result = Save(chosen(shorter), PathBytes(path), like);
            return !result.isEmpty();
          },
      .askPath =
          [this] {
            return session_.dialogs.SaveFile(
                {"Salva la stampa come PDF", "Documenti PDF (*.pdf)|*.pdf|", {}});
          },
  };
  const bool accepted = reinterpret_cast<decltype(&ShowPrintPreview)>(*show)(preview);
  if (accepted && !result.isEmpty()) session_.status.ShowResult(result);
}

}  // namespace Ui
