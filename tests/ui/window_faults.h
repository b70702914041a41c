// What must hold in the window whatever was done before.
#pragma once

#include "base/text.h"
#include "model/cells.h"
#include "ui/list/tree_model.h"
#include "ui/session/commands.h"
#include "ui/window_fixture.h"

namespace Ui {

using Routines::ListTree;
using Routines::State;

// A node and all below it.
inline bool SameNodes(const QAbstractItemModel& one, const QModelIndex& here, const QAbstractItemModel& other,
                      const QModelIndex& there) {
  bool same = here.data() == there.data() && one.rowCount(here) == other.rowCount(there);
  for (int row = 0; same && row < one.rowCount(here); ++row)
    same = SameNodes(one, one.index(row, 0, here), other, other.index(row, 0, there));
  return same;
}

class Faults {
 public:
  Faults(const MainWindow& window, const std::vector<Routines::Satellite>& satellites)
      : window_(window), satellites_(satellites), tables_(window.List().Tables()) {}

  // What of it does not hold, empty where all does.
  [[nodiscard]] std::string First() const {
    for (const auto& fault : {TablesFault(), GridFault(), TreesFault(), FavouritesFault(), FiguresFault()})
      if (!fault.empty()) return fault;
    return {};
  }

 private:
  [[nodiscard]] const Ui::Grid& Grid() const { return *window_.findChild<Ui::Grid*>("Griglia"); }
  [[nodiscard]] QString Label(const char* name) const { return window_.findChild<QLabel*>(name)->text(); }

  [[nodiscard]] std::string TablesFault() const {
    const State& state = tables_;
    const auto within = [](int value, int last) { return value >= 0 && value <= last; };
    const bool counts = within(state.MaxChannels, Routines::LastChannelSlot) &&
                        within(state.ChannelCount, Routines::LastChannelSlot) &&
                        within(state.TransponderCount, Routines::LastTransponderSlot);
    const bool blocks = state.ChannelTable[0].Empty() && state.FavouritesBlock.size() <= 65536 &&
                        state.SymbolRateTable.size() == Routines::EmptySymbolRateTable().size();
    return !counts  ? "a count is past its table"
           : blocks ? ""
                    : "slot 0 is in use, or a block's size is wrong";
  }

  [[nodiscard]] std::string GridFault() const {
    const bool channels = Label("Text1") == "Canali";
    const bool ticks =
        CommandAction(window_, "VisualizzaCanali").isChecked() == channels &&
        CommandAction(window_, "VisualizzaTransponder").isChecked() == (Label("Text1") == "Transponders");
    if (!ticks) return "marker and ticks differ";
    for (const int row : Grid().Selected())
      if (Grid().isRowHidden(row - 1)) return "a row that nobody sees is selected";
    if (!Grid().isVisible()) return {};
    const QAbstractItemModel& model = *Grid().model();
    if (model.rowCount() != (channels ? tables_.ChannelCount : tables_.TransponderCount))
      return "rows of the grid";
    if (const auto rows = Grid().Selected();
        !rows.empty() && (rows.front() < 1 || rows.back() > model.rowCount()))
      return "selection";
    const int last = Grid().rowAt(Grid().viewport()->height() - 1);
    for (int row = std::max(Grid().rowAt(0), 0); row <= (last < 0 ? model.rowCount() - 1 : last); ++row) {
      for (int column = 0; column < model.columnCount(); ++column) {
        const std::string cell =
            channels ? ChannelCell(tables_, row + 1, column) : TransponderCell(tables_, row + 1, column);
        if (model.index(row, column).data().toString() != CodePageText(Base::TrimmedRight(cell)))
          return "cell " + std::to_string(row + 1) + "," + std::to_string(column);
      }
    }
    return {};
  }

  [[nodiscard]] std::string TreesFault() const {
    for (const auto& [name, shape] : {std::pair{"TreeView1", ListTree::Shape::Bouquets},
                                      std::pair{"TreeView2", ListTree::Shape::Transponders}}) {
      const auto* tree = window_.findChild<QTreeView*>(name);
      TreeModel anew(window_.List(), satellites_, shape, nullptr);
      anew.Refresh();
      if (tree != nullptr && tree->isVisible() && !SameNodes(*tree->model(), {}, anew, {})) return name;
    }
    return {};
  }

  [[nodiscard]] std::string FavouritesFault() const {
    const auto* lists = window_.findChild<QDialog*>("ListePreferiti");
    for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
      const auto entries = Routines::FavouriteEntriesOf(tables_.FavouritesBlock, list);
      const std::size_t room = Routines::FavouriteRoom(tables_.FavouritesBlock, list);
      if (entries.size() > room || room > Routines::FavouriteEntries) return "favourites past their list";
      if (lists == nullptr || !lists->isVisible()) continue;
      const QString number = QString::number(list + 1);
      const auto* model = lists->findChild<QListView*>("Preferiti_" + number)->model();
      const QString count = lists->findChild<QLabel*>("ContaPreferiti_" + number)->text();
      if (count != QString("%1 di %2").arg(entries.size()).arg(room)) return "count of a favourites list";
      for (std::size_t i = 0; i < entries.size(); ++i) {
        const QString text = model->index(static_cast<int>(i), 0).data().toString();
        if (text.section(' ', 0, 0).toInt() != entries[i]) return "entry of a favourites list";
      }
      if (model->rowCount() != static_cast<int>(entries.size())) return "rows of a favourites list";
    }
    return {};
  }

  [[nodiscard]] std::string FiguresFault() const {
    const State& state = tables_;
    const QString channels =
        QString("Canali %1 di %2").arg(Routines::UsedChannels(state)).arg(state.ChannelCount);
    if (Label("CanaliUsati") != (state.Loaded ? channels : QString("Nessuna flash caricata")))
      return "channel figures";
    const QString transponders =
        QString("Transponder %1 di %2").arg(Routines::UsedTransponders(state)).arg(state.TransponderCount);
    if (Label("TransponderUsati") != transponders) return "transponder figures";
    if (Label("ModificheNonSalvate").isEmpty() == window_.List().Unsaved())
      return "unsaved changes are not told";
    if (!state.InputFlash.empty() && !window_.windowTitle().contains(PathText(state.InputFlash)))
      return "the title";
    const bool undo = !window_.List().Steps().UndoLabel().empty();
    if (CommandAction(window_, "Annulla").isEnabled() != undo) return "undo is offered wrongly";
    if (CommandAction(window_, "Salva").isEnabled() != state.Loaded) return "saving is offered wrongly";
    if (QApplication::activeModalWidget() != nullptr || QApplication::overrideCursor() != nullptr)
      return "a box is left";
    return {};
  }

  const MainWindow& window_;
  const std::vector<Routines::Satellite>& satellites_;
  const State& tables_;
};

}  // namespace Ui
