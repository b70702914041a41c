#include "ui/window/view_commands.h"

#include "ui/kit/settings_file.h"
#include "ui/list/column_menu.h"
#include "ui/list/row_look.h"

#include <QAction>
#include <QApplication>
#include <QFontInfo>
#include <QSettings>

#include <algorithm>

namespace Ui {
namespace {

constexpr int WriteAfter = 500;  // milliseconds
constexpr int SmallerSteps = -3;
constexpr int LargerSteps = 15;
constexpr const char* FileKey = "Viste/File";
constexpr const char* LettersKey = "Viste/Lettere";
constexpr const char* SoftKey = "Viste/ColoriTenui";
constexpr const char* SdxNameKey = "Viste/SDX_Nome";

QString Key(const QString& list, const char* what) { return QString("Viste/%1_%2").arg(list, what); }

// "3 7"
QString ColumnsText(const ColumnSet& columns) {
  QStringList all;
  for (const int column : columns) all += QString::number(column);
  return all.join(' ');
}

ColumnSet ColumnsFrom(const QString& text) {
  ColumnSet columns;
  for (const QString& one : text.split(' ', Qt::SkipEmptyParts)) columns.insert(one.toInt());
  return columns;
}

// "1:200 4:60"
QString WidthsText(const ColumnWidths& widths) {
  QStringList all;
  for (const auto& [column, width] : widths) all += QString("%1:%2").arg(column).arg(width);
  return all.join(' ');
}

ColumnWidths WidthsFrom(const QString& text) {
  ColumnWidths widths;
  for (const QString& one : text.split(' ', Qt::SkipEmptyParts))
    widths[one.section(':', 0, 0).toInt()] = one.section(':', 1).toInt();
  return widths;
}

struct ViewKey {
  View view;
  const char* name;
};
constexpr ViewKey Views[] = {{View::Channels, "Canali"}, {View::Transponders, "Transponder"}};

void Store(QSettings& settings, const QString& key, const QString& text) {
  text.isEmpty() ? settings.remove(key) : settings.setValue(key, text);
}

}  // namespace

ViewCommands::ViewCommands(Session& session, SdxPane& pane, std::vector<TreePane*> trees, Actions& actions)
    : session_(session),
      pane_(pane),
      lists_{{{Views[0].name, session.view.ListGrid(), session.view.ListOf(View::Channels)},
              {Views[1].name, session.view.ListGrid(), session.view.ListOf(View::Transponders)},
              {"SDX", pane.ListGrid(), pane.Model()}}},
      trees_(std::move(trees)) {
  actions.Connect("LarghezzeIniziali", [this] { ResetWidths(); });
  actions.Connect("LetterePiuGrandi", [this] { ChangeLetters(letters_ + 1); });
  actions.Connect("LetterePiuPiccole", [this] { ChangeLetters(letters_ - 1); });
  actions.Connect("LettereIniziali", [this] { ChangeLetters(0); });
  // Plus and minus where they need no shift key, and where they share a key with others.
  actions["LetterePiuGrandi"].setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
  actions.Connect("ColoriTenui", [this, &actions] { ShowSoft(actions["ColoriTenui"].isChecked()); });
  RowLook::OfProgram().SetSoft(Setting(session.SettingsFile(), SoftKey).toBool());
  actions["ColoriTenui"].setChecked(RowLook::OfProgram().Soft());
  write_.setSingleShot(true);
  write_.setInterval(WriteAfter);
  connect(&write_, &QTimer::timeout, this, &ViewCommands::Write);
  for (Grid* grid : {&session.view.ListGrid(), &pane.ListGrid()})
    connect(grid, &Grid::ColumnsChanged, &write_, qOverload<>(&QTimer::start));
  ConnectMenus(actions);
  Read();
}

// Of the grid that the user is in.
void ViewCommands::ConnectMenus(Actions& actions) {
  auto* list = new ColumnMenu(session_.view.ListGrid(), "");
  auto* sdx = new ColumnMenu(pane_.ListGrid(), "SDX");
  actions.Connect("MenuDellaColonna",
                  [this, list, sdx] { (pane_.ListGrid().hasFocus() ? sdx : list)->ShowCurrent(); });
  actions.Connect("OrdineDellaLista", [this] {
    session_.view.ListGrid().ShowListOrder();
    pane_.ListGrid().ShowListOrder();
    session_.status.ShowResult(ListOrderTold);
  });
  TellSorted(session_.view.ListGrid(), "Vista ordinata: Ordine della lista (Ctrl+Shift+L) la toglie");
  TellSorted(pane_.ListGrid(), "Righe a destra ordinate: Ordine della lista (Ctrl+Shift+L) le riporta");
  for (const ColumnMenu* menu : {list, sdx})
    connect(menu, &ColumnMenu::Told, this,
            [this](const QString& result) { session_.status.ShowResult(result); });
}

void ViewCommands::TellSorted(Grid& grid, const QString& text) {
  connect(&grid, &Grid::ViewSorted, this, [this, &grid, text] {
    session_.status.ShowHidden("ordine " + grid.objectName(), grid.IsSorted() ? text : QString());
  });
}

void ViewCommands::Read() {
  ReadSettings(session_.SettingsFile(), [this](const QSettings& settings) {
    const auto text = [&settings](const QString& key) { return settings.value(key).toString(); };
    SetLetters(settings.value(LettersKey).toInt());
    for (const Shown& shown : lists_) {
      shown.grid.SetWidths(shown.list, WidthsFrom(text(Key(shown.name, "Larghezze"))));
      shown.grid.SetHidden(shown.list, ColumnsFrom(text(Key(shown.name, "Nascoste"))));
    }
    LeftPlaces& places = session_.view.Places();
    const int earlier = 0;  // no list of this session has that number
    places.SetFile(earlier, PathBytes(text(FileKey)));
    for (const auto& [view, name] : Views) {
      if (const QString place = text(Key(name, "Posto")); !place.isEmpty())
        places.Keep(earlier, view, PlaceFrom(place));
    }
    pane_.SetLeft(text(SdxNameKey), PlaceFrom(text(Key("SDX", "Posto"))));
    for (TreePane* tree : trees_)
      tree->OpenAtFirst(text(Key(tree->Name(), "Rami")).split('|', Qt::SkipEmptyParts));
  });
}

void ViewCommands::Write() {
  write_.stop();
  session_.view.KeepPlace();
  pane_.KeepPlace();
  ChangeSettings(session_.SettingsFile(), [this](QSettings& settings) {
    for (const Shown& shown : lists_) {
      Store(settings, Key(shown.name, "Larghezze"), WidthsText(shown.grid.WidthsOf(shown.list)));
      Store(settings, Key(shown.name, "Nascoste"), ColumnsText(shown.grid.HiddenOf(shown.list)));
    }
    Store(settings, LettersKey, letters_ == 0 ? QString() : QString::number(letters_));
    const LeftPlaces& places = session_.view.Places();
    const int list = session_.document.Tables().ListNumber;
    Store(settings, FileKey, PathText(places.FileOf(list)));
    for (const auto& [view, name] : Views) {
      const auto place = places.Of(list, view);
      Store(settings, Key(name, "Posto"), place ? PlaceText(*place) : QString());
    }
    Store(settings, SdxNameKey, pane_.LeftName());
    Store(settings, Key("SDX", "Posto"), PlaceText(pane_.LeftAt()));
    for (const TreePane* tree : trees_)
      Store(settings, Key(tree->Name(), "Rami"), tree->OpenBranches().join('|'));
  });
}

// By points, from the size that the desktop gives.
void ViewCommands::SetLetters(int steps) {
  letters_ = std::clamp(steps, SmallerSteps, LargerSteps);
  QFont font;
  if (letters_ != 0) font.setPointSizeF(QFontInfo(QApplication::font()).pointSizeF() + letters_);
  for (const Shown& shown : lists_) shown.grid.setFont(font);
  for (TreePane* tree : trees_) tree->SetLetters(font);
}

void ViewCommands::ChangeLetters(int steps) {
  const int before = letters_;
  SetLetters(steps);
  Write();
  const QString size = QString::number(qRound(lists_.front().grid.fontInfo().pointSizeF())) + " punti";
  const bool end = letters_ == before && steps != 0;
  session_.status.ShowResult((end ? "Le lettere restano di " : "Lettere di griglie e alberi di ") + size +
                             (letters_ == 0 ? ", come all'inizio" : ""));
}

void ViewCommands::ShowSoft(bool soft) {
  RowLook::OfProgram().SetSoft(soft);
  KeepSetting(session_.SettingsFile(), SoftKey, soft);
}

void ViewCommands::ResetWidths() {
  for (const Shown& shown : lists_) shown.grid.SetWidths(shown.list, {});
  Write();
  session_.status.ShowResult("Le colonne hanno di nuovo le larghezze dell'inizio");
}

}  // namespace Ui
