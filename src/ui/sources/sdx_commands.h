// The commands of the SDX table: loading a list, showing and searching it, and carrying rows into the channel list.
#pragma once

#include "ui/session/session.h"
#include "ui/sources/sdx_pane.h"

class QWidget;

namespace Ui {

inline constexpr const char* SdxTableFull = "Superato il numero di canali SDX gestibili 4000";

class SdxCommands {
 public:
  SdxCommands(Session& session, SdxPane& pane, QWidget& window)
      : session_(session), pane_(pane), window_(window) {}

  // Tells the window that the pane has been shown or hidden.
  std::function<void(bool)> onShown;

  // Menu command SDX; asks for the list unless its path is given.
  void Carica(std::string path = {});
  void ApriSDX();  // toolbar button
  void Vedi();     // menu command VediSDX
  void Ricerca();
  void CopySDX();
  void ImportaTutto();
  // Row `row` of the table was double-clicked.
  void Insert(int row);
  // Rows were dropped in front of slot `before`.
  void Drop(int first, int last, int before);

  // The loader: the options, the table, the pane. `path` is a list on the disk.
  void Load(const std::string& path);
  // Puts other rows into the table and shows them; `name` says where they are from.
  void Show(Formats::SdxTable table, const QString& name);
  void ShowPane(bool shown);
  [[nodiscard]] bool PaneShown() const { return !pane_.isHidden(); }
  // Whether the channel list is shown, as every list that is loaded for it needs; says so where it is not.
  bool NeedsChannels();

 private:
  void TellLoaded(const std::string& path, int satellite, std::string_view text);
  void ListMissing(int satellite, std::string_view text);
  void AskAndInsert(int first, int last);
  // Rows of the table, the first of which has the number `first`.
  struct Rows {
    int first;
    std::vector<Formats::SdxRow> content;
  };

  [[nodiscard]] Rows RowsFrom(int first, int last) const;
  void Put(const Rows& rows, int position, bool shift);

  Session& session_;
  SdxPane& pane_;
  QWidget& window_;
};

}  // namespace Ui
