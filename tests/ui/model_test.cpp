// Random sequences of everything that a user can do in the window, on random images and with random answers; what must
// always hold is checked after every step. A sequence is its seed and the numbers of its steps. Each step draws from a
// generator of its own, so that the others stay what they are when one is left out, and a sequence that fails is made
// as short as it goes before it is told.
//   TROVALIS_MODEL_SECONDS=600                          goes on with new seeds for that long
//   TROVALIS_MODEL_SEED=7 TROVALIS_MODEL_STEPS=3,17,44  plays one sequence and tells its steps; "1-200" stands for all
#include "base/file.h"
#include "base/text.h"
#include "demo_flash.h"
#include "demo_sdx.h"
#include "image_builder.h"
#include "model/favourites.h"
#include "model/flash_loader.h"
#include "model/list_tree.h"
#include "support/bouquets_txt.h"
#include "support/test_folder.h"
#include "ui/commands.h"
#include "ui/griglia.h"
#include "ui/main_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <numeric>
#include <random>

namespace Ui {
namespace {

using Routines::ListTree;
using Routines::State;

class Random {
 public:
  void Seed(unsigned sequence, int step) { engine_.seed(sequence * 100003U + static_cast<unsigned>(step)); }
  unsigned Next() { return static_cast<unsigned>(engine_()); }
  int Below(int bound) { return bound > 0 ? static_cast<int>(Next() % static_cast<unsigned>(bound)) : 0; }
  bool Chance(int percent) { return Below(100) < percent; }
  template <class List>
  const auto& Pick(const List& list) {
    return list[static_cast<decltype(list.size())>(Below(static_cast<int>(list.size())))];
  }
  QString Number(int last) {
    const QStringList odd = {"", "0", "-3", "x", " 7", "65536", "99999999999", QString::number(last)};
    return Chance(25) ? Pick(odd) : QString::number(1 + Below(last));
  }
  QString Words() {
    static const QStringList texts = {"Città", "a",  "ARTE|x", "<b>", "",      "中",
                                      "A4",    "12", "S",      "H",   "11766", "Nome lunghissimo"};
    return Pick(texts);
  }
  template <class Record>
  void Fill(Record& record) {
    for (auto& byte : record.bytes) byte = static_cast<Base::Byte>(Next());
  }

 private:
  std::mt19937 engine_;
};

// Sections of any size at any place, good records among junk; now and then a directory or a length that is wrong.
Base::Bytes RandomImage(Random& random) {
  Samples::ImageBuilder image(random.Next());
  std::vector<Routines::TransponderRecord> transponders;
  for (int i = random.Below(300); i > 0; --i) {
    auto& record = transponders.emplace_back(
        Samples::MakeTransponder(10600 + random.Below(2300), random.Chance(50), random.Below(4),
                                 random.Below(16), random.Below(7), random.Below(65536), random.Below(400)));
    if (random.Chance(5)) random.Fill(record);
  }
  image.PutRecords(1, 1, 16 + static_cast<std::size_t>(random.Below(3000)), "TPT", transponders);
  const int most = random.Chance(30) ? 2000 : 60;
  for (std::size_t sector = 2; sector < 5; ++sector) {
    std::vector<Routines::ChannelRecord> channels;
    for (int i = random.Below(most); i > 0; --i) {
      auto& record = channels.emplace_back(Samples::MakeChannel(
          "C" + std::to_string(random.Below(200)), random.Below(256), random.Below(500),
          random.Chance(30) ? 65535 : random.Below(9000), random.Chance(20) ? 65535 : random.Below(9000)));
      if (random.Chance(5)) random.Fill(record);
      if (random.Chance(10)) record = {};
    }
    image.PutRecords(sector, 0, 16 + static_cast<std::size_t>(random.Below(4000)), "TCS", channels);
  }
  Base::Bytes block(random.Chance(80) ? Routines::NormalFavouritesSize
                                      : static_cast<std::size_t>(random.Below(6000)));
  for (std::size_t at = 0; at + 1 < block.size(); at += 2) {
    if (random.Chance(20)) continue;
    const int slot = random.Below(random.Chance(90) ? 3 * most : 65536);
    block[at] = static_cast<Base::Byte>(slot >> 8);
    block[at + 1] = static_cast<Base::Byte>(slot & 255);
  }
  if (random.Chance(85)) image.PutFavourites(5, 2, 100, block, static_cast<std::size_t>(random.Below(500)));
  if (random.Chance(20))
    image.SetDirectory(1 + static_cast<std::size_t>(random.Below(8)), 5, random.Next() & 65535U);
  if (random.Chance(20)) image.SetLength(2, 16, random.Next() & 65535U);
  return image.Image();
}

class RandomAnswers : public Dialogs {
 public:
  RandomAnswers(Random& random, const Tests::TestFolder& folder) : random_(random), folder_(folder) {}

  void Message(const QString&, const QString&, Tone) override {}
  bool YesNo(const QString&) override { return yes = random_.Chance(50), ++questions, yes; }
  Answer YesNoCancel(const QString&) override {
    return random_.Pick(std::vector{Answer::Yes, Answer::No, Answer::Cancel});
  }
  bool OkCancel(const QString&) override { return random_.Chance(50); }
  std::optional<QString> AskLine(const QString&) override {
    if (random_.Chance(10)) return std::nullopt;
    return random_.Chance(80) ? random_.Number(random_.Chance(50) ? 60 : 4000) : random_.Words();
  }
  std::optional<int> Choose(const QString&, const QStringList& choices, int) override {
    return random_.Chance(10) ? std::nullopt : std::optional(random_.Below(static_cast<int>(choices.size())));
  }
  QString OpenFile(const FileQuestion& question) override {
    if (random_.Chance(10)) return {};
    for (const QString ending : {"dat", "sdx", "txt", "fls"}) {
      if (question.filters.contains("*." + ending)) return File(ending);
    }
    return File("dat");
  }
  QString SaveFile(const FileQuestion& question) override {
    if (random_.Chance(10)) return {};
    return File(question.filters.contains("*.pdf")   ? "pdf"
                : question.filters.contains("*.fls") ? "fls"
                                                     : "txt");
  }

  int questions = 0;
  bool yes = false;

 private:
  QString File(const QString& ending) {
    static const QStringList names = {"1", "2", "3", "1", "2", "odd"};
    return PathText(folder_.Path((random_.Pick(names) + "." + ending).toStdString()));
  }

  Random& random_;
  const Tests::TestFolder& folder_;
};

// What a step holds: a save sets the other two outside of every step.
bool SameTables(const State& one, State other) {
  other.MaxChannels = one.MaxChannels;
  other.OutputFlash = one.OutputFlash;
  return one == other;
}

std::string TreeFault(const QAbstractItemModel& model, const ListTree& tree, const QModelIndex& at,
                      int number) {
  const ListTree::Group& group = tree.Groups()[static_cast<std::size_t>(number)];
  const auto channels = tree.Channels(number);
  const int rows = group.groups > 0 ? group.groups : static_cast<int>(channels.size());
  if (model.rowCount(at) != rows)
    return "rows below \"" + at.data().toString().toStdString() + "\" in the tree";
  for (int row = 0; row < rows; ++row) {
    const QModelIndex index = model.index(row, 0, at);
    const int child = group.firstGroup + row;
    const std::string text = group.groups > 0 ? TreeText(tree.Groups()[static_cast<std::size_t>(child)])
                                              : TreeText(channels[static_cast<std::size_t>(row)]);
    if (index.data().toString() != CodePageText(text)) return "node \"" + text + "\" of the tree";
    if (group.groups == 0) continue;
    if (std::string fault = TreeFault(model, tree, index, child); !fault.empty()) return fault;
  }
  return {};
}

// One sequence, from the start of the program on.
class Play {
 public:
  explicit Play(unsigned seed) : seed_(seed) {
    for (const char* name : {"Bouquets.txt", "SR.INI", "SDX.INI"})
      std::filesystem::copy(std::string(SAMPLES_FOLDER) + "/" + name, folder_.Path(name));
    bouquets_ = Support::LoadBouquets(folder_.Path());
    random_.Seed(seed_, 0);
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
  std::string Step(int number) {
    random_.Seed(seed_, number);
    const auto before = std::make_unique<State>(Tables());
    const std::string label = window_->List().Steps().UndoLabel();
    changes_ = 0;
    fault_.clear();
    const auto& [name, run] = random_.Pick(steps_);
    name_ = name;
    run();
    Settle();
    if (tell)
      std::cout << "  " << number << " " << name_ << ": " << Label("UltimoRisultato").toStdString()
                << std::endl;
    if (fault_.empty()) fault_ = Fault();
    const bool history = name == "Annulla" || name == "Ripeti" || name == "restart";
    if (fault_.empty() && !history && !Editor()) UndoAndRedo(*before, label);
    return fault_.empty() ? "" : name_ + ": " + fault_;
  }

  bool tell = false;

 private:
  [[nodiscard]] const State& Tables() const { return window_->List().Tables(); }
  [[nodiscard]] Griglia& Grid() const { return *window_->findChild<Griglia*>("Griglia"); }
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

  static void Settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void Open() {
    auto answers = std::make_unique<RandomAnswers>(random_, folder_);
    answers_ = answers.get();
    window_ = std::make_unique<CopiaTCSTPT>(folder_.Path(), std::move(answers));
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
      Add(name, often ? 4 : 1, [this, &command] { CommandAction(*window_, command.name).trigger(); });
    }
    for (const ToolbarButton& button : ToolbarButtons) {
      if (std::string_view(button.key) != "Fine Programma")
        Add(std::string("button ") + button.key, 1,
            [this, &button] { ButtonAction(*window_, button.key).trigger(); });
    }
    Add("restart", 1, [this] { Restart(); });
    Add("select", 12, [this] { SelectRows(); });
    Add("cell", 12, [this] { EditCell(); });
    Add("key", 12, [this] { PressKey(); });
    Add("popup", 12, [this] { ChooseInPopup(); });
    Add("drop", 6, [this] { Drop(); });
    Add("option", 4, [this] { ChooseOption(); });
    Add("filter", 2,
        [this] { window_->findChild<QLineEdit*>("Filtro")->setText(random_.Chance(40) ? "" : "c1"); });
    Add("tree", 6, [this] { ClickTree(); });
    Add("favourites", 10, [this] { UseFavourites(); });
    Add("window", 10, [this] { UseWindow(); });
  }

  void SelectRows() {
    const int rows = Grid().model() == nullptr ? 0 : Grid().model()->rowCount();
    if (rows == 0) return;
    const int first = 1 + random_.Below(random_.Chance(70) ? std::min(rows, 40) : rows);
    Grid().Select({first, std::min(rows, first + random_.Below(random_.Chance(90) ? 6 : rows))});
  }

  // Leaves the editor open at times: the next command has to cope with it.
  void EditCell() {
    if (Grid().model() == nullptr || Grid().isHidden()) return;
    const int row = random_.Below(std::min(Grid().model()->rowCount(), 60));
    const QModelIndex index = Grid().model()->index(row, random_.Below(Grid().model()->columnCount()));
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
    static const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> keys = {
        {Qt::Key_Up, {}},
        {Qt::Key_Down, {}},
        {Qt::Key_PageDown, {}},
        {Qt::Key_Home, Qt::ControlModifier},
        {Qt::Key_End, Qt::ControlModifier},
        {Qt::Key_Down, Qt::ShiftModifier},
        {Qt::Key_Left, {}},
        {Qt::Key_Right, {}},
        {Qt::Key_Delete, {}},
        {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_X, Qt::ControlModifier},
        {Qt::Key_V, Qt::ControlModifier},
        {Qt::Key_Up, Qt::AltModifier},
        {Qt::Key_Down, Qt::AltModifier},
        {Qt::Key_F2, {}},
        {Qt::Key_F3, {}},
        {Qt::Key_A, {}},
        {Qt::Key_Escape, {}},
        {Qt::Key_Return, {}},
        {Qt::Key_1, Qt::ControlModifier},
        {Qt::Key_8, Qt::ControlModifier},
        {Qt::Key_A, Qt::ControlModifier}};
    window_->activateWindow();
    if (random_.Chance(70)) Grid().setFocus();
    QWidget* focus = QApplication::focusWidget();
    const auto& [key, modifiers] = random_.Pick(keys);
    QTest::keyClick(focus == nullptr ? &Grid() : focus, key, modifiers);
  }

  void ChooseInPopup() {
    if (random_.Chance(50)) SelectRows();
    Q_EMIT Grid().MenuWanted(QPoint(100, 100));
    auto* menu = window_->findChild<QMenu*>("MenuCanali");
    while (menu != nullptr && menu->isVisible()) {
      QAction* action = random_.Pick(menu->actions());
      const bool deeper = action->menu() != nullptr && action->isEnabled();
      for (QAction* chosen = deeper ? random_.Pick(action->menu()->actions()) : action; chosen != nullptr;
           chosen = nullptr) {
        name_ += " " + chosen->objectName().toStdString();
        menu->close();
        chosen->trigger();
      }
    }
  }

  // Rows of both grids and of the favourites lists, some of them out of any range.
  void Drop() {
    QMimeData data;
    const int first = random_.Below(80);
    const QString rows =
        QString("%1 %2").arg(first).arg(first + random_.Below(random_.Chance(90) ? 5 : 5000));
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
    static const QStringList names = {"QuantiCanali_0",   "QuantiCanali_1",   "QuantiCanali_2",
                                      "FlashScrittura_0", "FlashScrittura_1", "FlashScrittura_2",
                                      "SRDef_0",          "SRDef_1"};
    window_->findChild<QAbstractButton*>(random_.Pick(names))->click();
  }

  void ClickTree() {
    auto* tree = window_->findChild<QTreeView*>(random_.Chance(50) ? "TreeView1" : "TreeView2");
    QModelIndex index;
    while (tree->model()->rowCount(index) > 0 && (!index.isValid() || random_.Chance(85))) {
      index = tree->model()->index(random_.Below(tree->model()->rowCount(index)), 0, index);
    }
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
  void UndoAndRedo(const State& before, const std::string& label) {
    const std::string now = window_->List().Steps().UndoLabel();
    const bool continued = now == label && now.starts_with("Sposta");
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

  [[nodiscard]] std::string Fault() const {
    for (const auto& fault : {TablesFault(), GridFault(), TreesFault(), FavouritesFault(), FiguresFault()})
      if (!fault.empty()) return fault;
    return {};
  }

  [[nodiscard]] std::string TablesFault() const {
    const State& state = Tables();
    const auto within = [](int value, int last) { return value >= 0 && value <= last; };
    if (!within(state.MaxChannels, Routines::LastChannelSlot) ||
        !within(state.ChannelCount, Routines::LastChannelSlot) ||
        !within(state.TransponderCount, Routines::LastTransponderSlot))
      return "a count is past its table";
    if (!state.ChannelTable[0].Empty()) return "slot 0 is in use";
    if (state.FavouritesBlock.size() > 65536 ||
        state.SymbolRateTable.size() != Routines::EmptySymbolRateTable().size())
      return "a block has a wrong size";
    return {};
  }

  [[nodiscard]] std::string GridFault() const {
    const bool channels = Label("Text1") == "Canali";
    const bool ticks =
        CommandAction(*window_, "VisualizzaCanali").isChecked() == channels &&
        CommandAction(*window_, "VisualizzaTransponder").isChecked() == (Label("Text1") == "Transponders");
    if (!ticks) return "marker and ticks differ";
    if (!Grid().isVisible()) return {};
    const QAbstractItemModel& model = *Grid().model();
    if (model.rowCount() != (channels ? Tables().ChannelCount : Tables().TransponderCount))
      return "rows of the grid";
    if (const auto rows = Grid().Selected(); rows && (rows->first < 1 || rows->last > model.rowCount()))
      return "selection";
    const int last = Grid().rowAt(Grid().viewport()->height() - 1);
    for (int row = std::max(Grid().rowAt(0), 0); row <= (last < 0 ? model.rowCount() - 1 : last); ++row) {
      for (int column = 0; column < model.columnCount(); ++column) {
        const std::string cell =
            channels ? ChannelCell(Tables(), row + 1, column) : TransponderCell(Tables(), row + 1, column);
        if (model.index(row, column).data().toString() != CodePageText(Base::TrimmedRight(cell)))
          return "cell " + std::to_string(row + 1) + "," + std::to_string(column);
      }
    }
    return {};
  }

  [[nodiscard]] std::string TreesFault() const {
    for (const auto& [name, shape] : {std::pair{"TreeView1", ListTree::Shape::Bouquets},
                                      std::pair{"TreeView2", ListTree::Shape::Transponders}}) {
      const auto* tree = window_->findChild<QTreeView*>(name);
      if (!tree->isVisible()) continue;
      std::string fault =
          TreeFault(*tree->model(), ListTree(Tables(), bouquets_.tables.satellites, shape), {}, 0);
      if (!fault.empty()) return name + (": " + fault);
    }
    return {};
  }

  [[nodiscard]] std::string FavouritesFault() const {
    const auto* lists = window_->findChild<QDialog*>("ListePreferiti");
    for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
      const auto entries = Routines::FavouriteEntriesOf(Tables().FavouritesBlock, list);
      const std::size_t room = Routines::FavouriteRoom(Tables().FavouritesBlock, list);
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
    const State& state = Tables();
    const QString channels =
        QString("Canali %1 di %2").arg(Routines::UsedChannels(state)).arg(state.ChannelCount);
    if (Label("CanaliUsati") != (state.Loaded ? channels : QString("Nessuna flash caricata")))
      return "channel figures";
    const QString transponders =
        QString("Transponder %1 di %2").arg(Routines::UsedTransponders(state)).arg(state.TransponderCount);
    if (Label("TransponderUsati") != transponders) return "transponder figures";
    if (Label("ModificheNonSalvate").isEmpty() == window_->List().Unsaved())
      return "unsaved changes are not told";
    if (!state.InputFlash.empty() && !window_->windowTitle().contains(PathText(state.InputFlash)))
      return "the title";
    const bool undo = !window_->List().Steps().UndoLabel().empty();
    if (CommandAction(*window_, "Annulla").isEnabled() != undo) return "undo is offered wrongly";
    if (CommandAction(*window_, "Salva").isEnabled() != state.Loaded) return "saving is offered wrongly";
    if (QApplication::activeModalWidget() != nullptr || QApplication::overrideCursor() != nullptr)
      return "a box is left";
    return {};
  }

  unsigned seed_;
  Tests::TestFolder folder_;
  Random random_;
  Support::BouquetDefinitions bouquets_;
  std::unique_ptr<CopiaTCSTPT> window_;
  RandomAnswers* answers_ = nullptr;
  std::unique_ptr<State> last_;
  int changes_ = 0;
  int boxTicks_ = 0;
  QTimer boxes_;
  std::vector<std::pair<std::string, std::function<void()>>> steps_;
  std::string name_;
  std::string fault_;
};

using Numbers = std::vector<int>;

// Plays the steps up to the first that leaves something wrong, which ends `steps` then.
std::string PlaySteps(unsigned seed, Numbers& steps, bool tell = false) {
  Play play(seed);
  play.tell = tell;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    std::string fault = play.Step(steps[i]);
    if (fault.empty()) continue;
    steps.resize(i + 1);
    return fault;
  }
  return {};
}

// Leaves out what the fault does not need: large pieces first, for at most a minute.
void Shrink(unsigned seed, Numbers& steps) {
  QElapsedTimer time;
  time.start();
  for (std::size_t piece = steps.size() / 2; piece > 0; piece = piece == 1 ? 0 : (piece + 1) / 2) {
    for (std::size_t at = 0; at + piece < steps.size() && time.elapsed() < 60000;) {
      Numbers fewer = steps;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(at),
                  fewer.begin() + static_cast<std::ptrdiff_t>(at + piece));
      if (PlaySteps(seed, fewer).empty()) {
        at += piece;
      } else {
        steps = fewer;
      }
    }
  }
}

void Try(unsigned seed, Numbers steps) {
  std::cout << "seed " << seed << ", " << steps.size() << " steps"
            << std::endl;  // a crash leaves this behind
  const std::string first = PlaySteps(seed, steps);
  if (first.empty()) return;
  Shrink(seed, steps);
  std::string numbers;
  for (const int step : steps) numbers += (numbers.empty() ? "" : ",") + std::to_string(step);
  ADD_FAILURE() << first << "\nTROVALIS_MODEL_SEED=" << seed << " TROVALIS_MODEL_STEPS=" << numbers;
  PlaySteps(seed, steps, true);
}

}  // namespace

TEST(Model, WhateverIsDoneTheWindowAndTheTablesAgree) {
  Numbers steps(200);
  std::iota(steps.begin(), steps.end(), 1);
  if (qEnvironmentVariableIsSet("TROVALIS_MODEL_SEED")) {
    const QString chosen = qEnvironmentVariable("TROVALIS_MODEL_STEPS", "1-200");
    steps.assign(static_cast<std::size_t>(chosen.contains('-') ? chosen.section('-', 1).toInt() : 0), 0);
    std::iota(steps.begin(), steps.end(), 1);
    for (const QString& number : chosen.split(',')) {
      if (!chosen.contains('-')) steps.push_back(number.toInt());
    }
    const std::string fault =
        PlaySteps(static_cast<unsigned>(qEnvironmentVariableIntValue("TROVALIS_MODEL_SEED")), steps, true);
    EXPECT_EQ(fault, "");
    return;
  }
  const int seconds = qEnvironmentVariableIntValue("TROVALIS_MODEL_SECONDS");
  QElapsedTimer time;
  time.start();
  unsigned seed = seconds > 0 ? std::random_device{}() % 1000000 : 1;
  for (int played = 0; seconds > 0 ? time.elapsed() < seconds * 1000 : played < 3; ++played)
    Try(seed++, steps);
}

}  // namespace Ui
