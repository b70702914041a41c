// The work of the window on a full list, beside a plain table that shows as many constant cells in as much room.
#include "bare_look.h"
#include "base/file.h"
#include "beside.h"
#include "edit/list_operations.h"
#include "edit/rename.h"
#include "edit/set_fields.h"
#include "edit/sort_channels.h"
#include "formats/flash_rows.h"
#include "formats/sdx_other.h"
#include "full_list.h"
#include "model/cells.h"
#include "review/compare.h"
#include "support/pos_ini.h"
#include "ui/kit/text.h"
#include "ui/list/document.h"
#include "ui/list/grid.h"
#include "ui/list/tree_pane.h"
#include "ui/session/commands.h"
#include "ui/window/main_window.h"

#include <QAbstractButton>
#include <QAbstractTableModel>
#include <QAction>
#include <QBrush>
#include <QCoreApplication>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace Bench {
namespace {

// Where the toolkit's events have done all that they are going to do.
void Settle() {
  for (int round = 0; round < 10; ++round) QCoreApplication::processEvents();
}

class PaintSeen : public QObject {
 public:
  bool seen = false;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    seen = seen || event->type() == QEvent::Paint;
    return QObject::eventFilter(watched, event);
  }
};

// Does `work` and waits for the next picture of `view`.
void UntilPainted(QWidget& view, const std::function<void()>& work) {
  PaintSeen paint;
  view.installEventFilter(&paint);
  work();
  while (!paint.seen) QCoreApplication::processEvents();
}

// Paints every cell in view, the fixed column's too.
void RepaintCells(QTableView& table) {
  table.viewport()->repaint();
  for (auto* column : table.findChildren<QTableView*>())
    if (column->isVisible()) column->viewport()->repaint();
}

// Every cell has the same text, alignment and colours, ready made.
class ConstantModel : public QAbstractTableModel {
 public:
  explicit ConstantModel(const QAbstractItemModel& like)
      : ConstantModel(like.rowCount(), like.columnCount()) {}
  ConstantModel(int rows, int columns) : rows_(rows), columns_(columns) {}

  [[nodiscard]] int rowCount(const QModelIndex& = {}) const override { return rows_; }
  [[nodiscard]] int columnCount(const QModelIndex& = {}) const override { return columns_; }
  [[nodiscard]] QVariant data(const QModelIndex&, int role) const override { return cell_.value(role); }

 private:
  int rows_, columns_;
  QHash<int, QVariant> cell_{{Qt::DisplayRole, "12345"},
                             {Qt::TextAlignmentRole, static_cast<int>(Qt::AlignCenter)},
                             {Qt::BackgroundRole, QBrush(Qt::yellow)},
                             {Qt::ForegroundRole, QBrush(Qt::black)}};
};

// A window with a plain table whose rows and columns are as many and as large as those of a grid with a list.
class PlainWindow {
 public:
  explicit PlainWindow(const Ui::Grid& like) : model_(*like.model()), table_(new QTableView(&window_)) {
    window_.setCentralWidget(table_);
    table_->setHorizontalScrollMode(QTableView::ScrollPerPixel);
    table_->setWordWrap(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(like.verticalHeader()->defaultSectionSize());
    table_->horizontalHeader()->setDefaultSectionSize(like.viewport()->width() / model_.columnCount());
    window_.resize(like.size());
    window_.show();
    Settle();
  }

  void ShowList() { table_->setModel(&model_); }
  [[nodiscard]] QTableView& Table() const { return *table_; }

 private:
  ConstantModel model_;
  QMainWindow window_;
  QTableView* table_;
};

// The program's window with its settings chosen.
class ListWindow {
 public:
  ListWindow() {
    for (const char* name : {"Bouquets.txt", "SR.INI"})
      QFile::copy(QString(SAMPLES_FOLDER) + "/" + name, folder_.filePath(name));
    if (!Base::ReplaceFile(flash_, Image())) std::abort();
    // As where the last flash came from the same folder.
    Support::SaveFolderOf(Ui::PathBytes(folder_.path()), Support::FolderKind::Input, flash_);
    window.resize(1280, 800);  // where every column is in view, for ours as for the plain table
    window.show();
    if (!window.Start()) std::abort();
    for (const char* option : {"QuantiCanali_2", "FlashScrittura_1"})
      window.findChild<QAbstractButton*>(option)->click();
    Settle();
  }

  void OpenFlash() { window.OpenWhenChosen(flash_); }
  [[nodiscard]] Ui::Grid& Grid() const { return *window.findChild<Ui::Grid*>("Griglia"); }

 private:
  QTemporaryDir folder_;
  std::string flash_ = Ui::PathBytes(folder_.filePath("lista.dat"));

 public:
  Ui::MainWindow window{Ui::PathBytes(folder_.path())};
};

// Both windows with their lists in view.
struct Pages {
  Pages() {
    ours.OpenFlash();
    Settle();
    plain = std::make_unique<PlainWindow>(ours.Grid());
    plain->ShowList();
    Settle();
  }

  ListWindow ours;
  std::unique_ptr<PlainWindow> plain;
};

// The same look with as many rows in its table, and as many in its tree as there are transponders.
struct FilledLook {
  explicit FilledLook(const Ui::Grid& like) : rows(*like.model()) {
    look.resize(1280, 800);
    look.table->verticalHeader()->setDefaultSectionSize(like.verticalHeader()->defaultSectionSize());
    look.table->horizontalHeader()->setDefaultSectionSize(like.viewport()->width() / rows.columnCount());
    look.tree->setHeaderHidden(true);
    look.tree->setUniformRowHeights(true);
    look.show();
    Settle();
  }
  void Show() {
    look.tree->setModel(&nodes);
    look.table->setModel(&rows);
  }

  ConstantModel rows, nodes{Transponders, 1};
  BareLook look;
};

// From nothing to the first picture of the list. Each turn has two new windows.
void Open(benchmark::State& run) {
  std::unique_ptr<ListWindow> ours;
  std::unique_ptr<FilledLook> plain;
  const Pages pages;
  RunBeside(run, {[&] { UntilPainted(*ours->Grid().viewport(), [&] { ours->OpenFlash(); }); },
                  [&] { UntilPainted(*plain->look.table->viewport(), [&] { plain->Show(); }); },
                  [&] {
                    ours = std::make_unique<ListWindow>();
                    plain = std::make_unique<FilledLook>(pages.ours.Grid());
                  }});
}

void RepaintPage(benchmark::State& run) {
  const Pages pages;
  RunBeside(run, {[&] { RepaintCells(pages.ours.Grid()); }, [&] { RepaintCells(pages.plain->Table()); }});
}

// As far as a turn of the mouse wheel goes at a time.
void ScrollThrough(QTableView& table) {
  constexpr int Step = 3;
  QScrollBar& bar = *table.verticalScrollBar();
  for (int row = 0; row <= bar.maximum(); row += Step) {
    bar.setValue(row);
    QCoreApplication::processEvents();
  }
}

void Scroll(benchmark::State& run) {
  const Pages pages;
  RunBeside(run, {[&] { ScrollThrough(pages.ours.Grid()); }, [&] { ScrollThrough(pages.plain->Table()); },
                  [&] {
                    pages.ours.Grid().scrollToTop();
                    pages.plain->Table().scrollToTop();
                    Settle();
                  }});
}

// What is typed at a stroke; the picture that follows is the grid's own repaint.
void FilterStep(benchmark::State& run, const QString& words) {
  const Pages pages;
  auto& field = *pages.ours.window.findChild<QLineEdit*>("Filtro");
  RunBeside(run, {[&] { field.setText(words); }, [&] { RepaintCells(pages.plain->Table()); },
                  [&] {
                    field.clear();
                    Settle();
                  }});
}

// A letter that every channel's name has.
void FilterLetter(benchmark::State& run) { FilterStep(run, "c"); }

void FilterWords(benchmark::State& run) { FilterStep(run, "sat:A tv -radio f:11766 \"can\""); }

// The rows alone, as the view has them in another order.
void SortView(benchmark::State& run) {
  const Pages pages;
  constexpr int ChannelName = 1;
  const auto order = [&](bool descending) { pages.ours.Grid().SortView(ChannelName, descending); };
  RunBeside(run, {[&] { UntilPainted(*pages.ours.Grid().viewport(), [&] { order(true); }); },
                  [&] { RepaintCells(pages.plain->Table()); },
                  [&] {
                    order(false);
                    Settle();
                  }});
}

// Nearly every second row, up to the picture of what is left, beside one move of the table and one repaint.
void DeleteScattered(benchmark::State& run) {
  constexpr int Deleted = 2000;
  const Pages pages;
  Ui::Grid& grid = pages.ours.Grid();
  Edit::Slots slots;
  for (int i = 0; i < Deleted; ++i) slots.push_back(1 + i * (Channels - 1) / (Deleted - 1));
  const auto state = List();
  const auto limit = [&] {
    Routines::ChannelRecord* table = state->ChannelTable.data();
    std::memmove(table, table + 1, (state->ChannelTable.size() - 1) * sizeof(Routines::ChannelRecord));
    RepaintCells(pages.plain->Table());
  };
  const auto command = [&](Ui::CommandName name) { Ui::CommandAction(pages.ours.window, name).trigger(); };
  const auto selectAndDelete = [&] {
    grid.Select(slots);
    command("Elimina");
  };
  RunBeside(run, {[&] { UntilPainted(*grid.viewport(), selectAndDelete); }, limit,
                  [&] {
                    if (pages.ours.window.List().Steps().UndoLabel().starts_with("Eliminati"))
                      command("Annulla");
                    Settle();
                  }});
}

// The larger of the two trees, with every branch open, after two channels have changed places: up to its picture, as
// the view lays its branches out just before that.
void RebuildTree(benchmark::State& run) {
  const Pages pages;
  Ui::Document document;
  document.Adjust([](Routines::State& state) { state = *List(); });
  Ui::TreePane pane(document, Bouquets().satellites, Routines::ListTree::Shape::Transponders, "TreeView2",
                    "Struttura", nullptr);
  pane.resize(240, pages.ours.Grid().height());
  pane.show();
  auto& tree = *pane.findChild<QTreeView*>();
  tree.expandAll();
  Settle();
  const auto edit = [&document] {
    document.Adjust([](Routines::State& state) { std::swap(state.Channel(1000), state.Channel(2001)); });
  };
  RunBeside(run, {[&] { UntilPainted(*tree.viewport(), edit); }, [&] { RepaintCells(pages.plain->Table()); },
                  Settle});
}

// Of 4000 rows: every third has another name, every fifth other PIDs, every seventh another transponder; and all are in
// another order.
Formats::SdxTable RowsLike(const Routines::State& list) {
  Formats::SdxTable table = Formats::ReadFlashRows(Image(), list.SymbolRateTable, Bouquets());
  table.rows.resize(Formats::MostSdxRows, table.rows.front());
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    Formats::SdxRow& row = table.rows[i];
    if (i % 3 == 0) row.name = "Un altro nome";
    if (i % 5 == 0) row.vpid = "777";
    if (i % 7 == 0) row.transponder = table.rows[(i + 1000) % table.rows.size()].transponder;
  }
  std::reverse(table.rows.begin(), table.rows.end());
  return table;
}

void CompareRows(benchmark::State& run) {
  const Pages pages;
  const auto list = List();
  const Formats::SdxTable table = RowsLike(*list);
  const auto compare = [&] {
    if (Review::Compare(*list, Formats::OtherListOf(table, list->SymbolRateTable)).Nothing()) std::abort();
  };
  RunBeside(run, {compare, [&] { RepaintCells(pages.plain->Table()); }});
}

// What the core does to all channels at one go, planned and followed.
void ChangeAll(benchmark::State& run, const std::function<bool(Routines::State&)>& change) {
  const Pages pages;
  const auto list = List();
  const auto state = std::make_unique<Routines::State>();
  const auto work = [&] {
    if (!change(*state)) std::abort();
  };
  RunBeside(run, {work, [&] { RepaintCells(pages.plain->Table()); }, [&] { *state = *list; }});
}

void Rename(benchmark::State& run) {
  const std::vector<Edit::RenameRule> rules = {
      {Edit::RenameKind::Replace, "a", "ae"}, {Edit::RenameKind::Upper}, {Edit::RenameKind::Tidy}};
  ChangeAll(run, [&rules](Routines::State& state) {
    const auto names = Edit::NewNames(state, Edit::SlotRun(1, Channels), rules, {});
    return Edit::RenameChannels(state, *names) > 0;
  });
}

void SortAll(benchmark::State& run) {
  const Edit::SortOrder order{{Edit::SortKey::HdFirst, Edit::SortKey::Coding, Edit::SortKey::Name}};
  ChangeAll(run, [&order](Routines::State& state) {
    const Edit::SortPlan plan = Edit::PlanSort(state, Edit::SlotRun(1, Channels), order);
    Edit::SortChannels(state, plan);
    return plan.moved > 0;
  });
}

void SetAll(benchmark::State& run) {
  using namespace Routines;
  const Edit::FieldChanges changes{{{ChannelColumn::Flags, "A4 Via"}, {ChannelColumn::Transponder, "254"}},
                                   {{ChannelColumn::Sid, 1}, {ChannelColumn::Vpid, 1}}};
  ChangeAll(run, [&changes](State& state) {
    return Edit::SetFields(state, *Edit::PlanFields(state, Edit::SlotRun(1, Channels), changes)) > 0;
  });
}

}  // namespace

void RegisterWindow() {
  Register({{"aprire una flash nella finestra", 1.5, Open},
            {"ridisegnare una pagina della griglia", 1.3, RepaintPage},
            {"scorrere tutte le righe", 1.3, Scroll, 5},
            {"un passo del filtro", 1, FilterLetter},
            {"un passo del filtro con cinque parole", 1, FilterWords},
            {"ordinare la vista per nome", 3, SortView},
            {"eliminare 2000 righe sparse", 20, DeleteScattered},
            {"confrontare 3996 canali con 4000 righe", 1, CompareRows},
            {"cambiare 3996 nomi", 1, Rename},
            {"ordinare 3996 canali per tre criteri", 1, SortAll},
            {"impostare 3996 canali", 1, SetAll},
            {"rifare l'albero dopo una modifica", 1, RebuildTree}});
}

}  // namespace Bench
