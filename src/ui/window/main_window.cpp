#include "ui/window/main_window.h"

#include "ui/edit/edit_room.h"
#include "ui/favourites/favourites_commands.h"
#include "ui/files/files_room.h"
#include "ui/kit/qt_dialogs.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/scroll_strip.h"
#include "ui/kit/settings_file.h"
#include "ui/kit/side_part.h"
#include "ui/kit/text.h"
#include "ui/kit/themed_icon.h"
#include "ui/review/review_room.h"
#include "ui/session/actions.h"
#include "ui/session/control_tips.h"
#include "ui/session/lines_window.h"
#include "ui/session/session.h"
#include "ui/sources/sources_room.h"
#include "ui/window/about_dialog.h"
#include "ui/window/channel_menu.h"
#include "ui/window/error_pane.h"
#include "ui/window/guide_window.h"
#include "ui/window/options_fold.h"
#include "ui/window/start_page.h"
#include "ui/window/tree_commands.h"
#include "ui/window/view_commands.h"

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
constexpr const char* GeometryKey = "Finestra/Geometria";
constexpr const char* SidesKey = "Finestra/ParteDestra";
constexpr const char* VersionText = " - Versione 1.0ß";

// The window shows "[*]" in its title only where it is written twice.
QString Caption(const std::string& path) {
  QString caption = QString(Title) + VersionText;
  if (!path.empty()) caption += " (" + PathText(path).trimmed() + ")";
  return caption.replace("[*]", "[*][*]");
}

}  // namespace

// It may tell the commands of what is being typed in it until it is gone.
struct MainWindow::Screen {
  explicit Screen(QMainWindow& owner) : window(owner) {}
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen() {
    // A field takes what is being typed in it when its window is hidden, which has to be whole then.
    for (QDialog* tool : window.findChildren<QDialog*>()) tool->hide();
    qDeleteAll(ToolWindows());
    delete window.takeCentralWidget();
  }

  [[nodiscard]] QList<QDialog*> ToolWindows() const {
    return window.findChildren<QDialog*>(Qt::FindDirectChildrenOnly);
  }

  QMainWindow& window;
};

MainWindow::MainWindow(const std::string& programFolder) : MainWindow(programFolder, nullptr) {}

MainWindow::MainWindow(const std::string& programFolder, std::unique_ptr<Dialogs> dialogs)
    : dialogs_(dialogs ? std::move(dialogs) : std::make_unique<QtDialogs>(this)),
      document_(std::make_unique<Document>()) {
  setObjectName("CopiaTCSTPT");
  setWindowIcon(IconNamed("trovalis"));
  BuildMenus(*this);
  BuildToolbar(*this);
  auto* contents = new QWidget(this);
  StartSession(programFolder, *contents);
  OpenRooms(*contents);
  auto* area = InScrollArea(contents, this);
  FollowFocus(*area);
  setCentralWidget(area);
  screen_ = std::make_unique<Screen>(*this);

  Connect();
  ShowList();
  ShowTips(*this);
  setAcceptDrops(true);
  ResizeOnScreen(*this, {1024, 700});
  if (const QString fault = SettingsFault(session_->SettingsFile()); !fault.isEmpty())
    session_->status.ShowResult(fault + ": le impostazioni non vengono conservate");
  restoreGeometry(Setting(session_->SettingsFile(), GeometryKey).toByteArray());
}

MainWindow::~MainWindow() = default;

void MainWindow::StartSession(const std::string& programFolder, QWidget& contents) {
  auto* settings = new SettingsPanel(&contents);
  auto* view = new ListView(*document_, CommandAction(*this, "VisualizzaCanali"),
                            CommandAction(*this, "VisualizzaTransponder"), &contents);
  session_ = std::unique_ptr<Session>(new Session{programFolder,
                                                  Support::LoadBouquets(programFolder),
                                                  {programFolder, {}},
                                                  *dialogs_,
                                                  *document_,
                                                  *settings,
                                                  *view,
                                                  *new StatusLine(*statusBar()),
                                                  [this] { close(); }});
  actions_ = std::make_unique<Actions>(*session_, *this);
}

void MainWindow::OpenRooms(QWidget& contents) {
  Session& session = *session_;
  auto* pane = new SdxPane(session.sdx, &contents);
  pane->hide();
  auto* frame = new DownloadFrame(&contents);
  auto* lists = new QSplitter(&contents);
  lists->setChildrenCollapsible(false);
  lists->addWidget(&session.view);
  lists->setStretchFactor(0, 1);
  side_ = new SidePart(*lists);
  side_->Restore(Setting(session.SettingsFile(), SidesKey).toString());
  side_->Add(*pane, SidePart::Kind::Wide);

  edit_ = std::make_unique<EditRoom>(session, *actions_);
  sources_ = std::make_unique<SourcesRoom>(session, *actions_, *pane, *frame, *this);
  favourites_ = std::make_unique<FavouritesCommands>(session, *actions_, *this, *side_);
  review_ = std::make_unique<ReviewRoom>(session, *actions_, *this);
  files_ = std::make_unique<FilesRoom>(session, *actions_, *sources_, *this);
  trees_ = std::make_unique<TreeCommands>(session, *sources_, *actions_, *side_);
  views_ = std::make_unique<ViewCommands>(session, *pane, trees_->Panes(), *actions_);

  auto* column = new QVBoxLayout(&contents);
  column->setContentsMargins(8, 4, 8, 2);
  column->setSpacing(2);
  column->addWidget(new ScrollStrip(&session.settings, &contents));
  column->addWidget(frame);
  column->addWidget(lists, 1);
  column->addWidget(new ErrorPane(session.bouquets.errors, &contents));
  column->addWidget(session.status.ResultLine());
  new OptionsFold(session, this);
}

void MainWindow::Connect() {
  Session& session = *session_;
  actions_->Connect("Fine", [this] { close(); });
  actions_->Connect("Guida", [this] { ShowGuide(); });
  actions_->Connect("About", [this, &session] {
    if (AboutDialog(PathText(session.programFolder), this).exec() == QDialog::Accepted) ShowGuide();
  });
  actions_->ConnectButton("Rectangle", [this] { dialogs_->Message("Add 'Rectangle' button code.", {}); });
  actions_->ConnectButton("New", [this] { dialogs_->Message("Add 'New' button code.", {}); });
  auto* menu = new ChannelMenu(session, edit_->cells, favourites_->Edits(), *this);
  connect(&session.view.ListGrid(), &Grid::MenuWanted, menu, &ChannelMenu::Show);
  session.view.StartWith(
      new StartPage(session.settings, files_->recent, (*actions_)["ApriFlashInput"], &session.view));
  connect(&session.status, &StatusLine::ChannelsWanted, this, [this, &session](const QString& lines) {
    (new LinesWindow("ElencoCanaliPersi", "Canali dell'ultimo avviso", lines, session, this))->BringUp();
  });
  connect(document_.get(), &Document::Changed, this, &MainWindow::ShowList);
}

bool MainWindow::Start() {
  const auto rates = session_->LoadSymbolRates();
  if (!rates) return false;
  document_->Adjust([&rates](Routines::State& state) { state.SymbolRateTable = rates->table; });
  return true;
}

void MainWindow::OfferKeptWork() { files_->kept.Offer(); }

void MainWindow::OpenWhenChosen(const std::string& path) { files_->opening.OpenWhenChosen(path); }

void MainWindow::ShowList() {
  setWindowTitle(Caption(document_->Tables().InputFlash));
  session_->ShowList();
}

void MainWindow::ShowGuide() {
  auto* open = OpenWindow<GuideWindow>(*this);
  (open != nullptr ? open : new GuideWindow(this))->BringUp();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  files_->opening.Drop(*event->mimeData());
}

// Nothing is asked on the way out, as unsaved work is kept; only where it cannot be kept the user decides.
void MainWindow::closeEvent(QCloseEvent* event) {
  // What is being typed counts, in a cell also while the focus is elsewhere.
  const QPointer<QWidget> focus = QApplication::focusWidget();
  if (focus) focus->clearFocus();
  session_->view.FinishEditing();
  const auto kept = files_->kept.Flush();
  if (!kept &&
      !dialogs_->FinalYesNo(Text(kept.error().message) + WorkWouldBeLost + " Si desidera chiudere?")) {
    event->ignore();
    QWidget& goOn = focus && focus->isVisible() ? *focus : session_->view.ListGrid();
    goOn.setFocus();
    return;
  }
  ChangeSettings(session_->SettingsFile(), [this](QSettings& settings) {
    settings.setValue(GeometryKey, saveGeometry());
    settings.setValue(SidesKey, side_->Sizes());
  });
  views_->Write();
  for (QDialog* window : screen_->ToolWindows()) window->close();
  event->accept();
}

}  // namespace Ui
