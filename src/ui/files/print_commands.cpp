#include "ui/files/print_commands.h"

#include "base/file.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/kit/themed_icon.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsView>
#include <QIcon>
#include <QLayout>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>
#include <QToolButton>

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

// The toolkit's preview leaves its buttons to the mouse and two controls without a name.
void MakeReachable(QPrintPreviewDialog& dialog) {
  for (auto* button : dialog.findChildren<QToolButton*>()) button->setFocusPolicy(Qt::TabFocus);
  for (auto* page : dialog.findChildren<QGraphicsView*>()) page->setAccessibleName(dialog.windowTitle());
  for (auto* scale : dialog.findChildren<QComboBox*>()) scale->setAccessibleDescription("Ingrandimento");
  for (auto* number : dialog.findChildren<QLineEdit*>()) number->setAccessibleName("Pagina");
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
QString PrintCommands::Save(const PrintReport& report, const std::string& path, const QPrinter& printer) {
  if (session_.IsFlashOfList(path)) {
    session_.dialogs.Message(QString("Non stampato: ") + FlashOfListChosen, {});
    return {};
  }
  const auto pages = SavePdf(report, path, printer.pageLayout(), printer.pageRanges());
  if (pages) return PagesText(*pages) + " in " + PathText(Base::FileName(path));
  session_.Message(pages.error());
  return {};
}

// A preview draws on the printer before anything is chosen there. Once the print dialog has named a file the drawing
// goes where every PDF does, so that the file is whole and a refusal is told.
void PrintCommands::Preview(const PrintReport& whole, const PrintReport* compact) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(UsualPage());
  printer.setDocName(whole.heading);
  QPrintPreviewDialog dialog(&printer, &window_);
  dialog.setObjectName("AnteprimaStampa");
  dialog.setWindowTitle(whole.heading);
  ResizeOnScreen(dialog, {900, 660});
  NameMoreButton(dialog);
  QString result;
  auto* shorter = new QCheckBox("Compatta: solo numero e nome, in più colonne", &dialog);
  shorter->setObjectName("StampaCompatta");
  shorter->setVisible(compact != nullptr);
  dialog.layout()->addWidget(shorter);
  const auto chosen = [&]() -> const PrintReport& { return shorter->isChecked() ? *compact : whole; };
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* to) {
    if (!to->outputFileName().isEmpty()) {
      result = Save(chosen(), PathBytes(to->outputFileName()), *to);
      return;
    }
    const auto pages = PrintPages(*to, chosen());
    result = pages ? PagesText(*pages) : QString("La stampa non è riuscita");
  });
  QObject::connect(shorter, &QCheckBox::toggled, dialog.findChild<QPrintPreviewWidget*>(),
                   &QPrintPreviewWidget::updatePreview);
  auto* save = dialog.findChild<QToolBar*>()->addAction(IconNamed("export"), "Salva come PDF");
  save->setObjectName("SalvaPdf");
  QObject::connect(save, &QAction::triggered, &dialog, [&] {
    const QString path =
        session_.dialogs.SaveFile({"Salva la stampa come PDF", "Documenti PDF (*.pdf)|*.pdf|", {}});
    if (path.isEmpty()) return;
    result = Save(chosen(), PathBytes(path), printer);
    if (!result.isEmpty()) dialog.accept();
  });
  MakeReachable(dialog);
  if (dialog.exec() == QDialog::Accepted && !result.isEmpty()) session_.status.ShowResult(result);
}

}  // namespace Ui
