#include "ui/window/main_window.h"

#include "ui/kit/qt_dialogs.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/scroll_strip.h"
#include "ui/kit/text.h"
#include "ui/kit/themed_icon.h"
#include "ui/review/duplicates_window.h"
#include "ui/review/overview_window.h"
#include "ui/session/commands.h"
#include "ui/session/control_tips.h"
#include "ui/window/about_dialog.h"
#include "ui/window/channel_menu.h"
#include "ui/window/error_pane.h"
#include "ui/window/guide_window.h"
#include "ui/window/start_page.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace Ui {
namespace {

constexpr const char* Title = "Trovalis ";
constexpr const char* VersionText = " - Versione 1.0ß";

// The window shows "[*]" in its title only where it is written twice.
QString Caption(const std::string& path) {
  QString caption = QString(Title) + VersionText;
  if (!path.empty()) caption += " (" + PathText(path).trimmed() + ")";
  return caption.replace("[*]", "[*][*]");
}

}  // namespace

MainWindow::MainWindow(const std::string& programFolder, std::unique_ptr<Dialogs> dialogs)
    : dialogs_(dialogs ? std::move(dialogs) : std::make_unique<QtDialogs>(this)),
      document_(new Document(this)) {
  setObjectName("CopiaTCSTPT");
  setWindowIcon(IconNamed("trovalis"));
  BuildMenus(*this);
  BuildToolbar(*this);

  // First of all a command does: what is being typed in a cell is no longer open to doubt.
  for (QAction* command : findChildren<QAction*>())
    connect(command, &QAction::triggered, this, [this] { session_->view.FinishEditing(); });

  auto* contents = new QWidget(this);
  auto* settings = new SettingsPanel(contents);
  auto* view = new ListView(*document_, CommandAction(*this, "VisualizzaCanali"),
                            CommandAction(*this, "VisualizzaTransponder"), contents);
  auto* status = new StatusLine(*statusBar());
  session_ = std::unique_ptr<Session>(new Session{programFolder,
                                                  Support::LoadBouquets(programFolder),
                                                  {programFolder, {}},
                                                  *dialogs_,
                                                  *document_,
                                                  *settings,
                                                  *view,
                                                  *status,
                                                  [this] { close(); }});
  files_ = std::make_unique<FileCommands>(*session_);
  exchange_ = std::make_unique<ExchangeCommands>(*session_);
  edit_ = std::make_unique<EditCommands>(*session_);
  cells_ = std::make_unique<CellCommands>(*session_);
  favourites_ = std::make_unique<FavouritesCommands>(*session_, *this);
  lists_ = std::make_unique<ListCommands>(*session_);
  kept_ = std::make_unique<KeptWork>(*session_, this);
  compare_ = std::make_unique<CompareCommands>(*session_, *this);

  auto* column = new QVBoxLayout(contents);
  column->setContentsMargins(8, 6, 8, 4);
  column->addWidget(new ScrollStrip(settings, contents));
  auto* pane = new SdxPane(session_->sdx, contents);
  pane->hide();
  sdx_ = std::make_unique<SdxCommands>(*session_, *pane, *this);
  print_ = std::make_unique<PrintCommands>(*session_, *pane, *this);
  auto* frame = new DownloadFrame(contents);
  download_ = std::make_unique<DownloadCommands>(*session_, *sdx_, *frame, *this);
  foreign_ = std::make_unique<ForeignCommands>(*session_, *sdx_, *this);
  column->addWidget(frame);
  auto* lists = new QSplitter(contents);
  lists->setChildrenCollapsible(false);
  lists->addWidget(view);
  lists->addWidget(pane);
  // The trees keep their width, these two share the rest.
  for (const int list : {0, 1}) lists->setStretchFactor(list, 1);
  trees_ = std::make_unique<TreeCommands>(*session_, *sdx_, CommandAction(*this, "VisualizzaBouquet"),
                                          SettingsFile(), *lists);
  column->addWidget(lists, 1);
  column->addWidget(new ErrorPane(session_->bouquets.errors, contents));
  column->addWidget(status->ResultLine());
  auto* area = InScrollArea(contents, this);
  FollowFocus(*area);
  setCentralWidget(area);

  ConnectFileCommands();
  ConnectExchangeCommands();
  ConnectListCommands();
  ConnectEditCommands();
  ConnectCellCommands();
  ConnectPrintCommands();
  ConnectSdxCommands();
  ConnectTreeCommands();
  ConnectForeignCommands();
  ConnectOverview();
  ConnectFirstMinutes();
  ConnectCompareCommands();
  ConnectToolbar();
  connect(document_, &Document::Changed, this, &MainWindow::ShowList);
  ShowList();
  ShowTips(*this);
  setAcceptDrops(true);
  ResizeOnScreen(*this, {1024, 700});
  restoreGeometry(QSettings(SettingsFile(), QSettings::IniFormat).value("Finestra/Geometria").toByteArray());
}

// Windows and controls may still tell the commands of what was being typed in them.
MainWindow::~MainWindow() {
  qDeleteAll(findChildren<QDialog*>(Qt::FindDirectChildrenOnly));
  delete takeCentralWidget();
}

bool MainWindow::Start() {
  const auto rates = session_->LoadSymbolRates();
  if (!rates) return false;
  document_->Adjust([&rates](Routines::State& state) { state.SymbolRateTable = rates->table; });
  return true;
}

void MainWindow::OfferKeptWork() { kept_->Offer(); }

void MainWindow::OpenWhenChosen(const std::string& path) { opening_->OpenWhenChosen(path); }

template <class Slot>
void MainWindow::Connect(const char* command, Slot slot) {
  QAction& action = CommandAction(*this, command);
  connect(&action, &QAction::triggered, this, slot);
  action.setEnabled(true);
}

void MainWindow::ToggleView(View view) {
  if (session_->NeedsFlash()) session_->view.Toggle(view);
  session_->view.RestoreTicks();
}

void MainWindow::VisualizzaCanali() {
  ToggleView(View::Channels);
  if (session_->view.Current() == View::Channels) trees_->BringBack();
}

void MainWindow::ConnectFileCommands() {
  Connect("ApriFlashInput", [this] { files_->ApriFlashInput(); });
  Connect("Salva", [this] { files_->Salva(); });
  Connect("ApriFlashOutput", [this] { files_->ApriFlashOutput(); });
  Connect("ConvertiSR", [this] { files_->ConvertiSR(); });
  Connect("VisualizzaTransponder", [this] { ToggleView(View::Transponders); });
  Connect("Fine", [this] { close(); });
  Connect("Guida", [this] { ShowGuide(); });
  Connect("About", [this] {
    if (AboutDialog(this).exec() == QDialog::Accepted) ShowGuide();
  });
}

void MainWindow::ConnectExchangeCommands() {
  Connect("FormatoTesto", [this] { exchange_->FormatoTesto(); });
  Connect("FormatoFLASH", [this] { exchange_->FormatoFLASH(); });
  Connect("DaEsportatoTesto", [this] { exchange_->DaEsportatoTesto(); });
  Connect("CaricaImportato", [this] { exchange_->DaEsportatoTesto(); });
  Connect("DaEsportato", [this] { exchange_->DaEsportato(); });
}

void MainWindow::ConnectListCommands() {
  Connect("OrdinaPerBouquet", [this] { lists_->OrdinaPerBouquet(); });
  Connect("SpostaRadio", [this] { lists_->SpostaRadio(); });
  Connect("CanaliDoppi", [this] { CanaliDoppi(*session_, *this); });
  Connect("Azzera", [this] { lists_->Azzera(); });
  Connect("InvertiSatelliti", [this] { lists_->InvertiSatelliti(); });
  Connect("RiportaAB", [this] { lists_->RiportaAB(); });
  Connect("CercaCanale", [this] { lists_->CercaCanale(); });
  Connect("CercaSuccessivo", [this] { lists_->CercaSuccessivo(); });
  Connect("Filtra", [this] { lists_->Filtra(); });
  Connect("VaiAlCanale", [this] { lists_->VaiAlCanale(); });
}

void MainWindow::ConnectEditCommands() {
  Connect("Annulla", [this] { edit_->Undo(); });
  Connect("Ripeti", [this] { edit_->Redo(); });
  Connect("Copia", [this] { edit_->Copy(); });
  Connect("Taglia", [this] { edit_->Cut(); });
  Connect("Incolla", [this] { edit_->Paste(); });
  Connect("Elimina", [this] { edit_->Delete(); });
  Connect("SpostaSu", [this] { edit_->MoveBy(-1); });
  Connect("SpostaGiu", [this] { edit_->MoveBy(1); });
  Connect("SpostaA", [this] { edit_->SpostaA(); });
  for (const Command& command : Commands) {
    if (command.forRows) session_->view.ListGrid().addAction(&CommandAction(*this, command.name));
  }
  connect(&session_->view, &ListView::Dropped, this,
          [this](int first, int last, int before, bool copy) { edit_->Drop(first, last, before, copy); });
}

void MainWindow::ConnectCellCommands() {
  session_->view.EditWith(*cells_);
  auto* menu = new ChannelMenu(*session_, *cells_, favourites_->Edits(), *this);
  connect(&session_->view.ListGrid(), &Grid::MenuWanted, menu, &ChannelMenu::Show);
  connect(&CommandAction(*this, "VisualizzaPreferiti"), &QAction::triggered, this,
          [this] { favourites_->Show(); });
  // The receivers of the first type keep no favourites that could be written.
  connect(&session_->settings, &SettingsPanel::Clicked, this, [this] {
    const Routines::Settings chosen = session_->settings.Chosen();
    if (Routines::CheckSettings(chosen)) favourites_->Enable(chosen.Type() != Routines::FlashType::One);
  });
  exchange_->onImported = [this] { favourites_->Enable(true); };
}

void MainWindow::ConnectSdxCommands() {
  Connect("SDX", [this] { sdx_->Carica(); });
  Connect("ScaricaInternet", [this] { download_->ScaricaInternet(); });
  Connect("RicercaSDX", [this] { sdx_->Ricerca(); });
  Connect("ImportaTuttoSDX", [this] { sdx_->ImportaTutto(); });
  sdx_->onShown = [this](bool shown) {
    sdxShownSinceFls_ = sdxShownSinceFls_ || shown;
    ShowList();
    CommandAction(*this, "VediSDX").setChecked(shown);
    if (shown) trees_->Hide();
    for (const char* name : {"RicercaSDX", "StampaSDX", "ImportaTuttoSDX"})
      CommandAction(*this, name).setEnabled(shown);
  };
  sdx_->ShowPane(false);
  auto* pane = findChild<SdxPane*>();
  connect(pane, &SdxPane::Chosen, this, [this](int row) { sdx_->Insert(row); });
  connect(pane, &SdxPane::CopyWanted, this, [this] { sdx_->CopySDX(); });
  connect(&session_->view, &ListView::SdxDropped, this,
          [this](int first, int last, int before) { sdx_->Drop(first, last, before); });
}

void MainWindow::ConnectCompareCommands() {
  Connect("Confronta", [this] { compare_->Confronta(); });
  Connect("ConfrontaDisco", [this] { compare_->ConfrontaDisco(); });
}

void MainWindow::ConnectTreeCommands() {
  Connect("VisualizzaBouquet", [this] { trees_->VisualizzaBouquet(); });
  Connect("VediSDX", [this] {
    sdx_->Vedi();
    if (!sdx_->PaneShown()) trees_->FollowSdx();
  });
  Connect("VisualizzaCanali", [this] { VisualizzaCanali(); });
  download_->onLoad = [this] { trees_->HideTransponders(); };
}

void MainWindow::ConnectPrintCommands() {
  Connect("StampaGriglia", [this] { print_->StampaGriglia(); });
  Connect("StampaSDX", [this] { print_->StampaSDX(); });
}

void MainWindow::ConnectForeignCommands() {
  Connect("CaricaAggiuntiva", [this] { foreign_->CaricaAggiuntiva(); });
  for (const char* kind : {"Digiquest", "Pelko"}) {
    Connect(kind, [this, kind] { foreign_->Importa(kind, CommandAction(*this, kind).text()); });
  }
}

void MainWindow::ConnectOverview() {
  Connect("FormatoCSV", [this] { exchange_->FormatoCSV(); });
  Connect("Riepilogo", [this] { ShowOverview(*session_, *this); });
}

void MainWindow::ConnectFirstMinutes() {
  QAction& open = CommandAction(*this, "ApriFlashInput");
  auto* recent = new RecentFiles(SettingsFile(), *this);
  opening_ = new FileOpening(*session_, *files_, *exchange_, *sdx_, *recent, open, this);
  session_->view.StartWith(new StartPage(session_->settings, *recent, open, &session_->view));
}

// Every press comes here with its button's key; the keys are told apart in this order.
void MainWindow::ConnectToolbar() {
  const std::vector<std::pair<const char*, std::function<void()>>> keys = {
      {"CanaliXTransponder", [this] { lists_->CanaliXTransponder(); }},
      {"Goto", [this] { CommandAction(*this, "VaiAlCanale").trigger(); }},
      {"TRANSPONDERS", [this] { ToggleView(View::Transponders); }},
      {"Canali", [this] { VisualizzaCanali(); }},
      {"Rectangle", [this] { dialogs_->Message("Add 'Rectangle' button code.", {}); }},
      {"New", [this] { dialogs_->Message("Add 'New' button code.", {}); }},
      {"Fine Programma", [this] { close(); }},
      {"Open", [this] { opening_->OpenFlash(); }},
      {"Save", [this] { files_->ApriFlashOutput(); }},
      {"Copy", [this] { edit_->Copy(); }},
      {"Paste", [this] { edit_->Paste(); }},
      {"Cut", [this] { edit_->Cut(); }},
      {"Delete", [this] { edit_->Delete(); }},
      {"Find", [this] { lists_->CercaCanale(); }},
      {"Print", [this] { print_->StampaGriglia(); }},
      {"Internet", [this] { download_->ScaricaInternet(); }},
      {"Find SDX", [this] { CommandAction(*this, "RicercaSDX").trigger(); }},
      {"Copy SDX", [this] { sdx_->CopySDX(); }},
      {"Apri SDX", [this] { sdx_->ApriSDX(); }}};
  for (const auto& [key, run] : keys) {
    QAction& action = ButtonAction(*this, key);
    connect(&action, &QAction::triggered, this, run);
    action.setEnabled(true);
  }
}

void MainWindow::ShowList() {
  const Routines::State& state = document_->Tables();
  setWindowTitle(Caption(state.InputFlash));
  for (const char* name :
       {"Salva", "ApriFlashOutput", "ConvertiSR", "CercaCanale", "VaiAlCanale", "StampaGriglia"}) {
    CommandAction(*this, name).setEnabled(state.Loaded);
  }
  // What an exchange file of raw records makes unavailable; the pane comes back with a list to show in it.
  if (!state.FromFls) sdxShownSinceFls_ = false;
  const std::pair<const char*, bool> blocked[] = {{"ApriFlashInput", state.FromFls},
                                                  {"VediSDX", state.FromFls && !sdxShownSinceFls_}};
  for (const auto& [name, off] : blocked) {
    QAction& action = CommandAction(*this, name);
    action.setEnabled(!off);
    action.setStatusTip(off ? "Non disponibile dopo l'importazione da formato FLASH: Annulla la toglie"
                            : CommandTip(name));
  }
  ShowSteps();
  session_->ShowList();
}

void MainWindow::ShowSteps() {
  const std::pair<const char*, std::string> steps[] = {{"Annulla", document_->Steps().UndoLabel()},
                                                       {"Ripeti", document_->Steps().RedoLabel()}};
  for (const auto& [name, label] : steps) {
    QAction& action = CommandAction(*this, name);
    action.setEnabled(!label.empty());
    action.setText(label.empty() ? QString(name) : name + (" " + Text(label)));
  }
}

void MainWindow::ShowGuide() {
  auto* guide = findChild<GuideWindow*>();
  if (guide == nullptr) guide = new GuideWindow(this);
  guide->show();
  guide->raise();
  guide->activateWindow();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  opening_->Drop(*event->mimeData());
}

// Nothing is asked on the way out, as unsaved work is kept; only where it cannot be kept the user decides.
void MainWindow::closeEvent(QCloseEvent* event) {
  // What is being typed counts, in a cell also while the focus is elsewhere.
  const QPointer<QWidget> focus = QApplication::focusWidget();
  if (focus) focus->clearFocus();
  session_->view.FinishEditing();
  const auto kept = kept_->Flush();
  if (!kept &&
      !dialogs_->FinalYesNo(Text(kept.error().message) +
                            "\n\nLe modifiche non salvate andrebbero perse. Si desidera chiudere?")) {
    event->ignore();
    QWidget& goOn = focus && focus->isVisible() ? *focus : session_->view.ListGrid();
    goOn.setFocus();
    return;
  }
  QSettings(SettingsFile(), QSettings::IniFormat).setValue("Finestra/Geometria", saveGeometry());
  favourites_->CloseWindow();
  compare_->CloseWindow();
  event->accept();
}

QString MainWindow::SettingsFile() const { return PathText(session_->programFolder + "/trovalis.ini"); }

}  // namespace Ui
