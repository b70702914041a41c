// The commands of the SDX table: loading a list, showing and searching it, and carrying rows into the channel list.
#pragma once

#include "ui/session/actions.h"
#include "ui/session/session.h"
#include "ui/sources/sdx_pane.h"

#include <set>
#include <utility>

class QMainWindow;

namespace Ui {

class SdxCommands {
 public:
  SdxCommands(Session& session, SdxPane& pane, QMainWindow& window)
      : session_(session), pane_(pane), window_(window) {}

  void Connect(Actions& actions);

  // Tells the window that the pane has been shown or hidden.
  std::function<void(bool)> onShown;

  // Menu command SDX; asks for the list unless its path is given.
  void Open(std::string path = {});
  // The loader: the options, the table, the pane. `path` is a list on the disk.
  void Load(const std::string& path);
  // Puts other rows into the table and shows them; `name` says where they are from.
  void Show(Formats::SdxTable table, const QString& name);
  // Tells how many lines of a file the table took and dropped, and why.
  void TellTaken(const QString& file);
  void ShowPane(bool shown);
  // Selects the rows that the list does not have.
  void SelectNew();
  void CopySDX();
  [[nodiscard]] bool PaneShown() const { return !pane_.isHidden(); }

 private:
  void Find();
  // Marks the rows that the list has.
  void MarkKnown();
  void ImportAll();
  // Rows were dropped in front of slot `before`.
  void Drop(const Edit::Slots& rows, int before);
  // `services` are those of the list, as Formats::ServicesOf() has them.
  void ListMissing(int satellite, std::set<std::pair<int, int>> services);
  // Rows of the table that can become channels, with their numbers in it, and how many cannot.
  struct Rows {
    std::vector<Formats::SdxRow> content;
    std::vector<int> numbers;
    int outOfBand = 0;

    [[nodiscard]] int Count() const { return static_cast<int>(content.size()); }
  };

  [[nodiscard]] Rows RowsOf(const Edit::Slots& numbers) const;
  void AskAndInsert(const Rows& rows);
  enum class Way { Overwrite, Shift };
  // The first rows go into the slots, one each.
  void Put(const Rows& rows, const std::vector<int>& slots, Way way);
  void TellPut(const Rows& rows, const QString& done, const QString& pushedOut);
  // The first `placed` rows have found room.
  void TellWithoutRoom(const Rows& rows, int placed);

  Session& session_;
  SdxPane& pane_;
  QMainWindow& window_;
};

}  // namespace Ui
