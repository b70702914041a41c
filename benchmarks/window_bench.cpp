// The work of the window on a full list, beside a plain table that shows as many constant cells in as much room.
#include "bench_windows.h"
#include "beside.h"
#include "full_list.h"
#include "groups.h"
#include "ui/list/list_map.h"
#include "ui/list/tree_pane.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QScrollBar>

namespace Bench {
namespace {

using Routines::ListTree;

// Both windows with their lists in view.
struct Pages {
  Pages() : ours(Opened()), plain(ours->Grid()) {
    plain.ShowList();
    Settle();
  }

  static std::unique_ptr<ListWindow> Opened() {
    auto window = std::make_unique<ListWindow>(Channels);
    window->OpenFlash();
    Settle();
    return window;
  }

  std::unique_ptr<ListWindow> ours;
  PlainWindow plain;
};

// From nothing to the first picture of the list. Each turn has two new windows.
void Open(benchmark::State& run) {
  std::unique_ptr<ListWindow> ours;
  std::unique_ptr<PlainWindow> plain;
  const Pages pages;
  RunBeside(run, 1.3,
            {[&] { UntilPainted(*ours->Grid().viewport(), [&] { ours->OpenFlash(); }); },
             [&] { UntilPainted(*plain->Table().viewport(), [&] { plain->ShowList(); }); },
             [&] {
               ours = std::make_unique<ListWindow>(Channels);
               plain = std::make_unique<PlainWindow>(pages.ours->Grid());
             }});
}

void RepaintPage(benchmark::State& run) {
  const Pages pages;
  RunBeside(run, 1.3,
            {[&] { RepaintCells(pages.ours->Grid()); }, [&] { RepaintCells(pages.plain.Table()); }});
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
  RunBeside(run, 1.3,
            {[&] { ScrollThrough(pages.ours->Grid()); }, [&] { ScrollThrough(pages.plain.Table()); },
             [&] {
               pages.ours->Grid().scrollToTop();
               pages.plain.Table().scrollToTop();
               Settle();
             }});
}

// A letter that every channel's name has is typed; the picture that follows is the grid's own repaint.
void FilterStep(benchmark::State& run) {
  const Pages pages;
  auto& field = *pages.ours->Window().findChild<QLineEdit*>("Filtro");
  RunBeside(run, 1,
            {[&] { field.setText("c"); }, [&] { RepaintCells(pages.plain.Table()); },
             [&] {
               field.clear();
               Settle();
             }});
}

// The whole map is drawn anew after each change of the list.
void RepaintMap(benchmark::State& run) {
  const Pages pages;
  Ui::Document document;
  document.Adjust([](Routines::State& state) { state = *List(); });
  Ui::ListMap map(document, nullptr);
  map.resize(16, pages.ours->Grid().height());
  map.show();
  Settle();
  RunBeside(run, 1,
            {[&] { map.repaint(); }, [&] { RepaintCells(pages.plain.Table()); },
             [&] { document.Adjust([](const Routines::State&) {}); }});
}

// The larger of the two trees, with every branch open, after two channels have changed places: up to its picture, as
// the view lays its branches out just before that.
void RebuildTree(benchmark::State& run) {
  const Pages pages;
  Ui::Document document;
  document.Adjust([](Routines::State& state) { state = *List(); });
  Ui::TreePane pane(document, Bouquets().satellites, ListTree::Shape::Transponders, "TreeView2", "Struttura",
                    nullptr);
  pane.resize(240, pages.ours->Grid().height());
  pane.show();
  auto& tree = *pane.findChild<QTreeView*>();
  tree.expandAll();
  Settle();
  const auto edit = [&document] {
    document.Adjust([](Routines::State& state) { std::swap(state.Channel(1000), state.Channel(2001)); });
  };
  RunBeside(
      run, 1,
      {[&] { UntilPainted(*tree.viewport(), edit); }, [&] { RepaintCells(pages.plain.Table()); }, Settle});
}

}  // namespace

void RegisterWindow() {
  const std::pair<const char*, void (*)(benchmark::State&)> rows[] = {
      {"aprire una flash nella finestra", Open}, {"ridisegnare una pagina della griglia", RepaintPage},
      {"scorrere tutte le righe", Scroll},       {"un passo del filtro", FilterStep},
      {"ridisegnare la mappa", RepaintMap},      {"rifare l'albero dopo una modifica", RebuildTree}};
  for (const auto& [name, function] : rows) benchmark::RegisterBenchmark(name, function)->UseManualTime();
}

}  // namespace Bench
