#include "ui/list/column_menu.h"

#include "ui/kit/menu_letters.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>

#include <functional>

namespace Ui {

ColumnMenu::ColumnMenu(Grid& grid, const QString& suffix)
    : QObject(&grid), grid_(grid), suffix_(suffix), menu_(new QMenu(&grid)) {
  menu_->setObjectName("MenuColonna" + suffix);
  menu_->setAccessibleName("Colonna");
  MenuLetters::Follow(*menu_);
  connect(&grid, &Grid::ColumnMenuWanted, this, &ColumnMenu::Show);
}

const TableModel& ColumnMenu::List() const { return *static_cast<const TableModel*>(grid_.model()); }

QString ColumnMenu::Title(int column) const {
  return List().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().trimmed();
}

QAction* ColumnMenu::Add(QMenu& menu, const QString& name, const QString& caption,
                         const std::function<void()>& run) {
  QAction* action = menu.addAction(QString(caption).replace('&', "&&"));
  action->setObjectName(name + suffix_);
  connect(action, &QAction::triggered, this, run);
  return action;
}

void ColumnMenu::ShowCurrent() {
  const QModelIndex current = grid_.currentIndex();
  if (!current.isValid()) return;
  const QHeaderView& header = *grid_.horizontalHeader();
  Show(current.column(),
       header.mapToGlobal(QPoint(header.sectionViewportPosition(current.column()), header.height())));
}

void ColumnMenu::Show(int column, QPoint place) {
  menu_->clear();
  AddOrders(column);
  menu_->addSeparator();
  Add(*menu_, "NascondiColonna", "Nascondi " + Title(column), [this, column] {
    Hide(column, true);
  })->setEnabled(Grid::MayHide(column));
  QMenu* columns = menu_->addMenu("Colonne");
  columns->setObjectName("Colonne" + suffix_);
  MenuLetters::Follow(*columns);
  AddTicks(*columns);
  Add(*menu_, "MostraColonne", "Mostra tutte le colonne", [this] {
    ShowAll();
  })->setEnabled(!grid_.HiddenOf(List()).empty());
  menu_->addSeparator();
  Add(*menu_, "LarghezzeLista", "Larghezze come all'inizio", [this] { ResetWidths(); });
  menu_->popup(place);
}

void ColumnMenu::AddOrders(int column) {
  const QString caption = "Ordina la vista per " + Title(column);
  Add(*menu_, "OrdinaVista", caption, [this, column] { Sort(column, false); });
  Add(*menu_, "OrdinaVistaIndietro", caption + ", dal fondo", [this, column] { Sort(column, true); });
  Add(*menu_, "OrdineLista", "Ordine della lista", [this] {
    grid_.ShowListOrder();
    Q_EMIT Told(ListOrderTold);
  })->setEnabled(grid_.IsSorted());
}

void ColumnMenu::Sort(int column, bool descending) {
  grid_.SortView(column, descending);
  Q_EMIT Told("Vista ordinata per " + Title(column) + (descending ? ", dal fondo" : "") +
              "; la lista non è cambiata: Ordine della lista (Ctrl+Shift+L) la mostra com'è");
}

void ColumnMenu::AddTicks(QMenu& menu) {
  for (int column = 0; column < List().columnCount(); ++column) {
    const bool shown = !grid_.isColumnHidden(column);
    QAction* tick = Add(menu, QString("Colonna_%1").arg(column), Title(column),
                        [this, column, shown] { Hide(column, shown); });
    tick->setCheckable(true);
    tick->setChecked(shown);
    tick->setEnabled(Grid::MayHide(column));
  }
}

void ColumnMenu::Hide(int column, bool hide) {
  ColumnSet hidden = grid_.HiddenOf(List());
  hide ? static_cast<void>(hidden.insert(column)) : static_cast<void>(hidden.erase(column));
  grid_.SetHidden(List(), std::move(hidden));
  Q_EMIT Told(hide ? "Nascosta la colonna " + Title(column) +
                         ": si mostra di nuovo dal menu dei titoli (tasto destro), Colonne"
                   : "Mostrata la colonna " + Title(column));
}

void ColumnMenu::ShowAll() {
  grid_.SetHidden(List(), {});
  Q_EMIT Told("Mostrate tutte le colonne");
}

void ColumnMenu::ResetWidths() {
  grid_.SetWidths(List(), {});
  Q_EMIT grid_.ColumnsChanged();
  Q_EMIT Told("Le colonne di questa lista hanno di nuovo le larghezze dell'inizio");
}

}  // namespace Ui
