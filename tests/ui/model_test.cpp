// Random sequences of everything that a user can do in the window, on random images and with random answers; what must
// always hold is checked after every step.
//   TROVALIS_MODEL_SECONDS=600  goes on with new seeds for that long
//   TROVALIS_MODEL_SEED=7       begins with that one
//   TROVALIS_MODEL_STEPS=10000  lets a sequence have so many steps
#include "demo_sdx.h"
#include "model/flash_file.h"
#include "model/flash_loader.h"
#include "support/bouquets_txt.h"
#include "ui/list/cell_delegate.h"
#include "ui/random_input.h"
#include "ui/window_faults.h"

#include <iostream>

namespace Ui {
namespace {

// What a step holds: a save sets the other three outside of every step.
bool SameTables(const State& one, State other) {
  other.MaxChannels = one.MaxChannels;
  other.OutputFlash = one.OutputFlash;
  other.FromFls = one.FromFls;
  return one == other;
}

// One sequence, from the start of the program on.
class Play {
 public:
  explicit Play(unsigned seed) : random_(seed) {
    for (const char* name : {"Bouquets.txt", "SR.INI", "SDX.INI"})
      std::filesystem::copy(std::string(SAMPLES_FOLDER) + "/" + name, folder_.Path(name));
    bouquets_ = Support::LoadBouquets(folder_.Path());
    for (const char* name : {"1.dat", "2.dat"}) folder_.Write(name, RandomImage(random_));
    const auto rates = Support::CaricaTabelleSR(folder_.Path(), Routines::Sr22000::Come2);
    folder_.Write("3.dat", Samples::DemoFlash(rates->table));
    for (const char* name : {"1.sdx", "2.sdx", "3.sdx"}) folder_.Write(name, RandomSdx());
    for (const char* name : {"odd.dat", "odd.sdx", "odd.txt", "odd.fls", "1.txt", "1.fls"})
      folder_.Write(name,
                    Base::ByteView(Contents("1.dat")).first(static_cast<std::size_t>(random_.Below(9000))));
    Open();
    for (int i = 0; i < 6; ++i) ChooseOption();
    for (int i = 0; i < 5 && !Tables().Loaded; ++i) CommandAction(*window_, "ApriFlashInput").trigger();
    // Queued, as an answer may bring up the next box, and a timer does not call a slot that it still waits for.
    QObject::connect(
        &boxes_, &QTimer::timeout, &boxes_, [this] { AnswerBox(); }, Qt::QueuedConnection);
    boxes_.start(1);
    FillSteps();
  }

  // Plays one step; what no longer holds after it, empty where all does.
  std::string Step() {
    const auto before = std::make_unique<State>(Tables());
    const auto steps = window_->List().Steps().UndoLabels().size();
    changes_ = 0;
    fault_.clear();
    const auto& [name, run] = random_.Pick(steps_);
    name_ = name;
    run();
    Settle();
    if (fault_.empty()) fault_ = Fault();
    if (fault_.empty()) fault_ = SavedFault();
    const bool history = name.starts_with("Annulla") || name == "Ripeti" || name == "restart" ||
                         name == "button Undo" || name == "button Redo";
    if (fault_.empty() && !history && !Editor()) UndoAndRedo(*before, steps);
    return fault_.empty() ? "" : name_ + ": " + fault_;
  }

 private:
  [[nodiscard]] const State& Tables() const { return window_->List().Tables(); }
  [[nodiscard]] Ui::Grid& Grid() const { return *window_->findChild<Ui::Grid*>("Griglia"); }
  [[nodiscard]] QString Label(const char* name) const { return window_->findChild<QLabel*>(name)->text(); }
  [[nodiscard]] Base::Bytes Contents(const char* name) const { return Tests::Contents(folder_.Path(name)); }
  [[nodiscard]] QWidget* Editor() const {
    for (auto* editor : Grid().findChildren<QWidget*>(CellEditorName))
      if (editor->isVisible()) return editor;
    return nullptr;
  }

  std::string RandomSdx() {
    std::string text = Samples::DemoSdx();
    if (random_.Chance(30))
      text[static_cast<std::size_t>(random_.Below(static_cast<int>(text.size())))] = '\r';
    return text;
  }

  // What is chosen in a menu that a step has brought up belongs to that step.
  static void Settle() {
    for (int i = 0; i < 3 || qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr; ++i)
      QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void Open() {
    auto answers = std::make_unique<RandomAnswers>(random_, folder_);
    answers_ = answers.get();
    window_ = std::make_unique<MainWindow>(folder_.Path(), std::move(answers));
    window_->show();
    if (!window_->Start()) fault_ = "the program does not start";
    last_ = std::make_unique<State>(Tables());
    QObject::connect(&window_->List(), &Document::Changed, [this] {
      if (SameTables(*last_, Tables())) return;
      ++changes_;
      *last_ = Tables();
    });
  }

  // Ends the program and starts it again: unsaved work is offered, and comes back as it was.
  void Restart() {
    window_->close();
    const auto before = std::make_unique<State>(Tables());
    const bool unsaved = window_->List().Unsaved();
    const QString copied = Label("CanaliCopiati");
    window_.reset();
    began_.clear();
    Open();
    window_->OfferKeptWork();
    if (unsaved && answers_->questions == 0) fault_ = "unsaved work is not offered";
    if (answers_->questions == 0 || !answers_->yes) return;
    before->ListNumber = Tables().ListNumber;
    if (unsaved && !(Tables() == *before)) fault_ = "the work that came back is not the one left";
    if (unsaved && Label("CanaliCopiati") != copied) fault_ = "copied channels did not come back";
  }

  void Add(const std::string& name, int weight, const std::function<void()>& run) {
    for (int i = 0; i < weight; ++i) steps_.emplace_back(name, run);
  }

  void FillSteps() {
    for (const Command& command : Commands) {
      const std::string name = command.name;
      if (name == "Fine") continue;
      const bool often =
          name == "ApriFlashInput" || name == "Annulla" || name == "Ripeti" || name.starts_with("Salva");
      Add(name, often ? 4 : 1, [this, &command] { CommandAction(*window_, command).trigger(); });
    }
    for (const ToolbarButton& button : ToolbarButtons) {
      if (std::string_view(button.name) != "Fine Programma")
        Add(std::string("button ") + button.name, 1,
            [this, &button] { ButtonAction(*window_, button).trigger(); });
    }
    Add("restart", 1, [this] { Restart(); });
    Add("select", 12, [this] { SelectRows(); });
    Add("cell", 12, [this] { EditCell(); });
    Add("key", 12, [this] { PressKey(); });
    Add("popup", 12, [this] { ChooseInPopup(); });
    Add("drop", 6, [this] { Drop(); });
    Add("option", 4, [this] { ChooseOption(); });
    Add("filter", 2, [this] {
      const QStringList words = {"", "", "c1", "-tv", "doppi", "sat:a", "pref:1 -radio", "1"};
      window_->findChild<QLineEdit*>("Filtro")->setText(random_.Pick(words));
    });
    Add("tree", 6, [this] { ClickTree(); });
    Add("favourites", 10, [this] { UseFavourites(); });
    Add("window", 10, [this] { UseWindow(); });
  }

  void SelectRows() {
    const int rows = Grid().model() == nullptr ? 0 : Grid().model()->rowCount();
    if (rows == 0) return;
    Edit::Slots slots;
    for (int row = 1 + random_.Below(random_.Chance(70) ? std::min(rows, 40) : rows); row <= rows;) {
      slots.push_back(row);
      if (random_.Chance(20)) break;
      row += random_.Chance(70) ? 1 : 1 + random_.Below(rows);
    }
    Grid().Select(slots);
  }

  // Leaves the editor open at times: the next command has to cope with it.
  void EditCell() {
    if (Grid().model() == nullptr || Grid().isHidden()) return;
    const int row = random_.Below(std::min(Grid().model()->rowCount(), 60));
    const QModelIndex index = Grid().model()->index(row, random_.Below(Grid().model()->columnCount()));
    if (Grid().isRowHidden(row)) return;
    Grid().setCurrentIndex(index);
    if (index.isValid()) static_cast<QAbstractItemView&>(Grid()).edit(index);
    QWidget* editor = Editor();
    if (editor == nullptr) return;
    auto* field = qobject_cast<QLineEdit*>(editor);
    if (auto* list = qobject_cast<QComboBox*>(editor)) {
      list->setCurrentIndex(random_.Below(list->count()));
      field = list->isEditable() ? list->lineEdit() : nullptr;
    }
    if (field != nullptr)
      field->selectAll(), field->insert(random_.Chance(60) ? random_.Number(255) : random_.Words());
    const std::vector<Qt::Key> ends = {Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab};
    if (random_.Chance(80)) QTest::keyClick(editor, random_.Pick(ends));
  }

  void PressKey() {
    static const QStringList keys =
        QString(
            "Up Down PgDown Ctrl+Home Ctrl+End Shift+Down Left Right Del Ctrl+C Ctrl+X Ctrl+V Alt+Up "
            "Alt+Down Alt+Home Alt+End Alt+Ins Ctrl+Space Ctrl+Down Ctrl+Shift+Down F2 F3 A Esc Return "
            "Ctrl+1 Ctrl+8 Ctrl+A")
            .split(' ');
    window_->activateWindow();
    if (random_.Chance(70)) Grid().setFocus();
    QWidget* focus = QApplication::focusWidget();
    const QKeyCombination key = QKeySequence(random_.Pick(keys))[0];
    QTest::keyClick(focus == nullptr ? &Grid() : focus, key.key(), key.keyboardModifiers());
  }

  void ChooseInPopup() {
    if (random_.Chance(50)) SelectRows();
    Q_EMIT Grid().MenuWanted(QPoint(100, 100));
    auto* menu = window_->findChild<QMenu*>("MenuCanali");
    while (menu != nullptr && menu->isVisible()) {
      QAction* chosen = random_.Pick(menu->actions());
      if (chosen->menu() != nullptr && chosen->isEnabled()) chosen = random_.Pick(chosen->menu()->actions());
      name_ += " " + chosen->objectName().toStdString();
      menu->close();
      chosen->trigger();
    }
  }

  // Rows of both grids and of the favourites lists, some of them out of any range.
  void Drop() {
    QMimeData data;
    const int first = random_.Below(80);
    QString rows = QString::number(first);
    while (random_.Chance(70))
      rows += " " + QString::number(first + random_.Below(random_.Chance(90) ? 10 : 5000));
    auto* lists = window_->findChild<QDialog*>("ListePreferiti");
    if (random_.Chance(50)) lists = nullptr;
    const QString entries = QString::number(random_.Below(9)) + " 0 " + rows;
    const bool own = random_.Chance(60);
    data.setData(own                ? SlotsType
                 : lists != nullptr ? "application/x-trovalis-preferiti"
                                    : SdxRowsType,
                 (own || lists == nullptr ? rows : entries).toLatin1());
    QAbstractItemView* view = &Grid();
    if (lists != nullptr)
      view = lists->findChild<QListView*>("Preferiti_" + QString::number(1 + random_.Below(8)));
    if (view->model() == nullptr) return;
    const int row = random_.Chance(10) ? -1 : random_.Below(std::min(view->model()->rowCount(), 60) + 1);
    view->model()->dropMimeData(&data, random_.Chance(70) ? Qt::MoveAction : Qt::CopyAction, row, 0, {});
  }

  void ChooseOption() {
    static const std::vector<std::pair<QString, int>> groups = {
        {"QuantiCanali_", 3}, {"FlashScrittura_", 3}, {"SRDef_", 2}};
    const auto& [group, options] = random_.Pick(groups);
    window_->findChild<QAbstractButton*>(group + QString::number(random_.Below(options)))->click();
  }

  void ClickTree() {
    auto* tree = window_->findChild<QTreeView*>(random_.Chance(50) ? "TreeView1" : "TreeView2");
    if (tree == nullptr) return;  // it has not been shown yet
    QModelIndex index;
    while (tree->model()->rowCount(index) > 0 && (!index.isValid() || random_.Chance(85)))
      index = tree->model()->index(random_.Below(tree->model()->rowCount(index)), 0, index);
    tree->setCurrentIndex(index);
    if (tree->isVisible() && index.isValid()) Q_EMIT tree->clicked(index);
  }

  void UseFavourites() {
    auto* lists = window_->findChild<QDialog*>("ListePreferiti");
    if (lists == nullptr) return CommandAction(*window_, "VisualizzaPreferiti").trigger();
    const QString number = QString::number(1 + random_.Below(8));
    auto* view = lists->findChild<QListView*>("Preferiti_" + number);
    view->setFocus();
    view->setCurrentIndex(view->model()->index(random_.Below(view->model()->rowCount()), 0));
    if (random_.Chance(30)) view->selectAll();
    if (random_.Chance(20)) {
      auto* name = lists->findChild<QLineEdit*>("NomePreferiti_" + number);
      name->setFocus();
      name->insert(random_.Words());
      name->setModified(true);
    } else if (random_.Chance(30)) {
      QTest::keyClick(view, random_.Pick(std::vector{Qt::Key_Delete, Qt::Key_Return}));
    } else {
      PressAnyButton(*lists);
    }
  }

  void PressAnyButton(QWidget& window) {
    QList<QAbstractButton*> buttons = window.findChildren<QAbstractButton*>();
    buttons.removeIf(
        [](const QAbstractButton* button) { return !button->isVisible() || !button->isEnabled(); });
    if (buttons.isEmpty()) return;
    QAbstractButton* button = random_.Pick(buttons);
    name_ += " " + button->objectName().toStdString();
    button->click();
  }

  // Any window that stays open beside the list.
  void UseWindow() {
    for (QDialog* dialog : window_->findChildren<QDialog*>(Qt::FindDirectChildrenOnly)) {
      if (!dialog->isVisible() || !random_.Chance(60)) continue;
      for (auto* tree : dialog->findChildren<QTreeView*>()) tree->selectAll();
      return PressAnyButton(*dialog);
    }
  }

  // A dialog that the program waits for: anything chosen in it, then any button, in the end none.
  void AnswerBox() {
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      QAction* action = random_.Pick(menu->actions());
      menu->close();
      return action->trigger();
    }
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return void(boxTicks_ = 0);
    const bool print = dialog->objectName() == "AnteprimaStampa";
    if (print || ++boxTicks_ > 4) return dialog->reject();
    for (auto* list : dialog->findChildren<QComboBox*>()) list->setCurrentIndex(random_.Below(list->count()));
    for (auto* field : dialog->findChildren<QLineEdit*>()) field->setText(random_.Number(60));
    const QList<QAbstractButton*> buttons = dialog->findChildren<QAbstractButton*>();
    for (auto* button : buttons)
      if (button->isCheckable() && random_.Chance(40)) button->setChecked(!button->isChecked());
    auto* confirm = dialog->findChild<QAbstractButton*>("Command1");
    if (confirm != nullptr && confirm->isEnabled() && random_.Chance(70)) return confirm->click();
    PressAnyButton(*dialog);
  }

  // Every step can be taken back to the state before it, and done again.
  void UndoAndRedo(const State& before, std::size_t steps) {
    const auto& now = window_->List().Steps();
    const bool continued = now.UndoLabels().size() == steps && now.UndoLabel().starts_with("Spostat");
    if (changes_ == 0 && !SameTables(before, Tables())) fault_ = "the tables changed and nobody was told";
    if (changes_ == 0 || continued) return;
    const auto after = std::make_unique<State>(Tables());
    const int changes = changes_;
    for (int i = 0; i < changes; ++i) CommandAction(*window_, "Annulla").trigger();
    Settle();
    if (!SameTables(before, Tables())) fault_ = "undo does not bring back the state before";
    if (fault_.empty()) fault_ = Fault();
    for (int i = 0; i < changes; ++i) CommandAction(*window_, "Ripeti").trigger();
    Settle();
    if (fault_.empty() && !SameTables(*after, Tables())) fault_ = "redo does not bring back the state after";
    if (fault_.empty()) fault_ = Fault();
  }

  // A list that counts as saved comes back from the image written last, or from the one opened; or from the one that it
  // began with, as a flash without anything that is appended changes nothing.
  [[nodiscard]] std::string SavedFault() {
    const State& list = Tables();
    const std::string& began = began_.emplace(list.ListNumber, list.InputFlash).first->second;
    if (!list.Loaded || window_->List().Unsaved()) return {};
    for (const std::string& path : {list.OutputFlash, list.InputFlash, began}) {
      const auto image = path.empty() ? Base::Error{} : Routines::ReadFlash(path, "");
      const auto again = std::make_unique<State>();
      if (image) LoadFlash(*again, *image, list.ChannelCount, 0, {});
      if (image && GivesBack(*again, list)) return {};
    }
    return "what counts as saved does not come back";
  }

  static bool GivesBack(const State& again, const State& list) {
    bool same = again.ChannelTable == list.ChannelTable;
    for (std::uint32_t slot = 1; slot <= Routines::LastTransponderSlot; ++slot) {
      const auto* ours = TransponderInUse(list, slot);
      const auto* theirs = TransponderInUse(again, slot);
      same = same && (ours == nullptr) == (theirs == nullptr) && (!ours || ours->record == theirs->record);
    }
    const Base::Bytes& block = list.FavouritesBlock;
    for (std::size_t i = 0; i < Routines::FavouriteLists && !Routines::IsBlankFavourites(block); ++i)
      same =
          same &&
          Routines::FavouriteEntriesOf(again.FavouritesBlock, i) == Routines::FavouriteEntriesOf(block, i) &&
          Routines::FavouriteNameOf(again.FavouritesBlock, i) == Routines::FavouriteNameOf(block, i);
    return same;
  }

  [[nodiscard]] std::string Fault() const { return Faults(*window_, bouquets_.tables.satellites).First(); }

  Tests::TestFolder folder_;
  Random random_;
  Support::BouquetDefinitions bouquets_;
  RandomAnswers* answers_ = nullptr;
  std::unique_ptr<State> last_;
  std::unique_ptr<MainWindow> window_;  // behind what it tells its changes to
  std::map<int, std::string> began_;    // the flash that each list was first seen with, by its number
  int changes_ = 0;
  int boxTicks_ = 0;
  QTimer boxes_;
  std::vector<std::pair<std::string, std::function<void()>>> steps_;
  std::string name_;
  std::string fault_;
};

}  // namespace

TEST(Model, WhateverIsDoneTheWindowAndTheTablesAgree) {
  const int seconds = qEnvironmentVariableIntValue("TROVALIS_MODEL_SECONDS");
  QElapsedTimer time;
  time.start();
  auto seed = static_cast<unsigned>(qEnvironmentVariableIntValue("TROVALIS_MODEL_SEED"));
  if (seed == 0) seed = seconds > 0 ? std::random_device{}() % 1000000 : 1;
  const int steps = std::max(qEnvironmentVariableIntValue("TROVALIS_MODEL_STEPS"), 200);
  for (int played = 0; seconds > 0 ? time.elapsed() < seconds * 1000 : played < 3; ++played, ++seed) {
    std::cout << "seed " << seed << std::endl;  // a crash leaves this behind
    Play play(seed);
    for (int step = 1; step <= steps; ++step)
      ASSERT_EQ(play.Step(), "") << "seed " << seed << ", step " << step;
  }
}

}  // namespace Ui
