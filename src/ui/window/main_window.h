// The main window. It builds and wires what it is made of; each command lives with its kind.
#pragma once

#include "ui/edit/cell_commands.h"
#include "ui/edit/edit_commands.h"
#include "ui/edit/list_commands.h"
#include "ui/favourites/favourites_commands.h"
#include "ui/files/exchange_commands.h"
#include "ui/files/file_commands.h"
#include "ui/files/file_opening.h"
#include "ui/files/kept_work.h"
#include "ui/files/print_commands.h"
#include "ui/kit/dialogs.h"
#include "ui/review/compare_commands.h"
#include "ui/session/session.h"
#include "ui/sources/download_commands.h"
#include "ui/sources/foreign_commands.h"
#include "ui/sources/sdx_commands.h"
#include "ui/window/tree_commands.h"

#include <QMainWindow>

#include <memory>

namespace Ui {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // `programFolder` holds the support files. Without `dialogs` the toolkit's own boxes are used.
  explicit MainWindow(const std::string& programFolder, std::unique_ptr<Dialogs> dialogs = nullptr);
  ~MainWindow() override;

  // Reads the symbol rates, as every start does; false where a malformed SR.INI ends the program.
  bool Start();

  // Asks whether to take up the work that an earlier session has left, where there is any. After Start().
  void OfferKeptWork();

  // Opens a flash as soon as the number of channels has been chosen.
  void OpenWhenChosen(const std::string& path);

  [[nodiscard]] const Document& List() const { return *document_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ConnectFileCommands();
  void ConnectExchangeCommands();
  void ConnectListCommands();
  void ConnectEditCommands();
  void ConnectCellCommands();
  void ConnectSdxCommands();
  void ConnectTreeCommands();
  void ConnectCompareCommands();
  void ConnectPrintCommands();
  void ConnectForeignCommands();
  void ConnectToolbar();
  void ConnectFirstMinutes();
  void ConnectOverview();
  // Runs `slot` when the command is chosen, and enables it.
  template <class Slot>
  void Connect(const char* command, Slot slot);
  void ToggleView(View view);
  void VisualizzaCanali();
  void ShowSteps();
  void ShowList();
  void ShowGuide();
  [[nodiscard]] QString SettingsFile() const;

  std::unique_ptr<Dialogs> dialogs_;
  Document* document_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<FileCommands> files_;
  std::unique_ptr<ExchangeCommands> exchange_;
  std::unique_ptr<EditCommands> edit_;
  std::unique_ptr<CellCommands> cells_;
  std::unique_ptr<FavouritesCommands> favourites_;
  std::unique_ptr<ListCommands> lists_;
  std::unique_ptr<CompareCommands> compare_;
  std::unique_ptr<SdxCommands> sdx_;
  std::unique_ptr<PrintCommands> print_;
  std::unique_ptr<DownloadCommands> download_;
  std::unique_ptr<TreeCommands> trees_;
  std::unique_ptr<ForeignCommands> foreign_;
  std::unique_ptr<KeptWork> kept_;
  FileOpening* opening_ = nullptr;
  bool sdxShownSinceFls_ = false;
};

}  // namespace Ui
