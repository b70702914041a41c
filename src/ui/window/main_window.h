// The main window. It builds and lays out what it is made of; each command lives with its kind.
#pragma once

#include <QMainWindow>

#include <memory>

namespace Ui {

class Actions;
class Dialogs;
class Document;
class FavouritesCommands;
class SidePart;
class TreeCommands;
class ViewCommands;
struct EditRoom;
struct FilesRoom;
struct ReviewRoom;
struct Session;
struct SourcesRoom;

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // `programFolder` holds the support files. Asks with the toolkit's own boxes, or with `dialogs`.
  explicit MainWindow(const std::string& programFolder);
  MainWindow(const std::string& programFolder, std::unique_ptr<Dialogs> dialogs);
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
  // What stands on the screen.
  struct Screen;

  void StartSession(const std::string& programFolder, QWidget& contents);
  void OpenRooms(QWidget& contents);
  void Connect();
  void ShowList();
  void ShowGuide();

  // In the order in which they need each other; they go the other way round.
  std::unique_ptr<Dialogs> dialogs_;
  std::unique_ptr<Document> document_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<Actions> actions_;
  std::unique_ptr<SourcesRoom> sources_;
  std::unique_ptr<EditRoom> edit_;
  std::unique_ptr<FavouritesCommands> favourites_;
  std::unique_ptr<ReviewRoom> review_;
  std::unique_ptr<FilesRoom> files_;
  std::unique_ptr<TreeCommands> trees_;
  std::unique_ptr<ViewCommands> views_;
  SidePart* side_ = nullptr;
  std::unique_ptr<Screen> screen_;
};

}  // namespace Ui
