#include "ui/main_window.h"

#include "ui/commands.h"
#include "ui/error_pane.h"
#include "ui/qt_dialogs.h"

#include <QAction>
#include <QCloseEvent>
#include <QIcon>
#include <QSettings>
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

CopiaTCSTPT::CopiaTCSTPT(const std::string& programFolder, std::unique_ptr<Dialogs> dialogs)
    : dialogs_(dialogs ? std::move(dialogs) : std::make_unique<QtDialogs>(this)),
      document_(new Document(this)) {
  setObjectName("CopiaTCSTPT");
  setWindowIcon(QIcon(":/icons/trovalis.svg"));
  BuildMenus(*this);
  BuildToolbar(*this);

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

  auto* column = new QVBoxLayout(contents);
  column->setContentsMargins(8, 6, 8, 4);
  column->addWidget(settings);
  column->addWidget(view, 1);
  column->addWidget(new ErrorPane(session_->bouquets.errors, contents));
  setCentralWidget(contents);

  ConnectCommands();
  connect(document_, &Document::Changed, this, &CopiaTCSTPT::ShowList);
  ShowList();
  resize(1024, 700);
  restoreGeometry(QSettings(SettingsFile(), QSettings::IniFormat).value("Finestra/Geometria").toByteArray());
}

CopiaTCSTPT::~CopiaTCSTPT() = default;

bool CopiaTCSTPT::Start() {
  const auto rates = session_->LoadSymbolRates();
  if (!rates) return false;
  document_->Apply([&rates](Routines::State& state) {
    state.SymbolRateTable = rates->table;
    return Base::Done{};
  });
  return true;
}

void CopiaTCSTPT::ConnectCommands() {
  const auto connectTo = [this](QAction& action, auto slot) {
    connect(&action, &QAction::triggered, this, slot);
    action.setEnabled(true);
  };
  const auto toggle = [this](View view) {
    return [this, view] {
      if (session_->NeedsFlash()) session_->view.Toggle(view);
      session_->view.RestoreTicks();
    };
  };
  connectTo(CommandAction(*this, "ApriFlashInput"), [this] { files_->ApriFlashInput(); });
  connectTo(CommandAction(*this, "Salva"), [this] { files_->Salva(); });
  connectTo(CommandAction(*this, "ApriFlashOutput"), [this] { files_->ApriFlashOutput(); });
  connectTo(CommandAction(*this, "ConvertiSR"), [this] { files_->ConvertiSR(); });
  connectTo(CommandAction(*this, "VisualizzaCanali"), toggle(View::Channels));
  connectTo(CommandAction(*this, "VisualizzaTransponder"), toggle(View::Transponders));
  connectTo(CommandAction(*this, "Fine"), [this] { close(); });
  connectTo(CommandAction(*this, "About"), [this] { ShowAbout(); });

  connectTo(ButtonAction(*this, "Open"), [this] { files_->ApriFlashInput(); });
  connectTo(ButtonAction(*this, "Save"), [this] { files_->ApriFlashOutput(); });
  connectTo(ButtonAction(*this, "Canali"), toggle(View::Channels));
  connectTo(ButtonAction(*this, "TRANSPONDERS"), toggle(View::Transponders));
  connectTo(ButtonAction(*this, "Fine Programma"), [this] { close(); });
}

void CopiaTCSTPT::ShowList() {
  const Routines::State& state = document_->Tables();
  setWindowTitle(Caption(state.InputFlash));
  for (const char* name : {"Salva", "ApriFlashOutput", "ConvertiSR"}) {
    CommandAction(*this, name).setEnabled(state.Loaded);
  }
  session_->status.ShowList(state, document_->Unsaved());
}

void CopiaTCSTPT::ShowAbout() {
  dialogs_->Message(
      "Trovalis 1.0ß\n\nEditor delle liste canali dei ricevitori satellitari digitali: apre l'immagine della "
      "flash, "
      "mostra canali e transponder e li riscrive nell'immagine del ricevitore.\n\nRealizzato con "
      "Qt " QT_VERSION_STR ".",
      "About");
}

void CopiaTCSTPT::closeEvent(QCloseEvent* event) {
  QSettings(SettingsFile(), QSettings::IniFormat).setValue("Finestra/Geometria", saveGeometry());
  event->accept();
}

QString CopiaTCSTPT::SettingsFile() const { return PathText(session_->programFolder + "/trovalis.ini"); }

}  // namespace Ui
