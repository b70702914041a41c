// Every window without a mouse, without eyes and with large letters: names for a screen reader, the way of the Tab key,
// letters after Alt, Esc, and room for every text.
#include "demo_sdx.h"
#include "ui/kit/text.h"
#include "ui/session/commands.h"
#include "ui/window/contrast_rules.h"
#include "ui/window_fixture.h"

#include <map>
#include <set>

namespace Ui {
namespace {

std::string Told(const QWidget& widget) {
  return QString("%1 \"%2\"").arg(widget.metaObject()->className(), widget.objectName()).toStdString();
}

// What the user can put the focus on.
std::set<QWidget*> Controls(QWidget& shown) {
  std::set<QWidget*> controls;
  for (QWidget* widget : shown.findChildren<QWidget*>()) {
    const bool part = widget->parentWidget()->focusProxy() != nullptr || widget->focusProxy() != nullptr ||
                      qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr ||
                      widget->inherits("QTableCornerButton");
    if (widget->window() == &shown && widget->isVisible() && !part &&
        (widget->focusPolicy() != Qt::NoFocus || qobject_cast<QAbstractButton*>(widget) != nullptr))
      controls.insert(widget);
  }
  return controls;
}

// What a screen reader says of it. A list is called by the entry it shows, and told apart by its label or description.
bool IsNamed(QWidget& widget) {
  const QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(&widget);
  if (qobject_cast<QComboBox*>(&widget) == nullptr) return !told.text(QAccessible::Name).isEmpty();
  return !told.relations(QAccessible::Label).isEmpty() || !told.text(QAccessible::Description).isEmpty();
}

void CheckTitles(const QHeaderView& header) {
  for (int column = 0; column < header.count() && header.isVisible(); ++column) {
    const auto title = [&](int role) {
      return header.model()->headerData(column, header.orientation(), role).toString();
    };
    EXPECT_FALSE((title(Qt::AccessibleTextRole) + title(Qt::DisplayRole)).isEmpty())
        << Told(*header.parentWidget()) << column;
  }
}

// The letter after "&", "&&" left out.
QChar Letter(QString text) {
  const qsizetype at = text.replace("&&", "").indexOf('&');
  return at < 0 || at + 1 == text.size() ? QChar() : text[at + 1].toLower();
}

void CheckLetters(const QStringList& texts) {
  std::set<QChar> taken;
  for (const QString& text : texts)
    EXPECT_TRUE(Letter(text).isNull() || taken.insert(Letter(text)).second) << text.toStdString();
}

QStringList TextsWithLetters(QWidget& shown) {
  QStringList texts;
  for (QWidget* widget : shown.findChildren<QWidget*>()) {
    if (widget->window() != &shown || !widget->isVisible()) continue;
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) texts += button->text();
    if (auto* box = qobject_cast<QGroupBox*>(widget)) texts += box->title();
    if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
      texts += label->text();
  }
  return texts;
}

// Whichever window is in front: on a busy machine another one comes back late.
QWidget* FocusIn(QWidget& shown) { return shown.focusWidget() == nullptr ? &shown : shown.focusWidget(); }

// The key comes to every control that is enabled and leaves it again; radio buttons share one stop.
void CheckTab(QWidget& shown, const std::set<QWidget*>& controls) {
  std::set<QWidget*> reached;
  // A page of text takes it for each of its links.
  for (int pressed = 0; pressed < 300; ++pressed) {
    QTest::keyClick(FocusIn(shown), Qt::Key_Tab);
    reached.insert(shown.focusWidget());
  }
  for (QWidget* control : controls) {
    const bool byTab = control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0 &&
                       qobject_cast<QRadioButton*>(control) == nullptr;
    EXPECT_TRUE(!byTab || reached.contains(control)) << Told(*control);
  }
}

void CheckAccess(QWidget& shown) {
  QTest::qWait(20);  // until an activation of the window before has been told
  shown.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
  EXPECT_FALSE(shown.windowTitle().isEmpty());
  const std::set<QWidget*> controls = Controls(shown);
  for (QWidget* control : controls) EXPECT_TRUE(IsNamed(*control)) << Told(*control);
  for (const auto* header : shown.findChildren<QHeaderView*>()) CheckTitles(*header);
  CheckLetters(TextsWithLetters(shown));
  CheckTab(shown, controls);
}

// In the room that the window gives it, or that can be scrolled to.
bool IsInSight(const QWidget& control) {
  const QWidget* at = control.parentWidget();
  while (!at->isWindow() && qobject_cast<const QAbstractScrollArea*>(at) == nullptr) at = at->parentWidget();
  return !at->isWindow() || at->rect().contains(QRect(control.mapTo(at, QPoint(0, 0)), control.size()));
}

// What has less room than it needs.
std::string Cramped(QWidget& shown) {
  for (const QWidget* control : shown.findChildren<QWidget*>()) {
    const auto* label = qobject_cast<const QLabel*>(control);
    const bool elided = label != nullptr && (label->wordWrap() || label->inherits("Ui::ElidedLabel"));
    if (!control->isVisible() || control->window() != &shown ||
        (qobject_cast<const QAbstractButton*>(control) == nullptr && label == nullptr))
      continue;
    if (control->width() < (elided ? 0 : control->sizeHint().width()) || !IsInSight(*control))
      return Told(*control);
  }
  return {};
}

void CheckRoom(QWidget& shown) {
  QTest::qWait(50);
  EXPECT_EQ(shown.size().boundedTo(shown.screen()->availableGeometry().size()), shown.size());
  EXPECT_TRUE(QTest::qWaitFor([&shown] { return Cramped(shown).empty(); }, 3000)) << Cramped(shown);
  EXPECT_EQ(UnreadableTexts(shown).Lines(), "");
}

}  // namespace

// With letters of that many points; 0 for the usual ones.
class EveryWindow : public Window, public testing::WithParamInterface<int> {
 protected:
  EveryWindow() {
    if (GetParam() == 0) return;
    QFont large = usual_;
    large.setPointSize(GetParam());
    QApplication::setFont(large);
  }
  ~EveryWindow() override {
    window_.reset();
    QApplication::setFont(usual_);
  }

  void Check(QWidget& shown) {
    SCOPED_TRACE(Told(shown) + " " + shown.windowTitle().toStdString());
    if (GetParam() == 0) CheckAccess(shown);
    CheckRoom(shown);
  }

  // Esc closes it.
  void CheckAndClose(QWidget* shown) {
    ASSERT_NE(shown, nullptr);
    Check(*shown);
    const QPointer<QWidget> kept(shown);
    QTest::keyClick(FocusIn(*shown), Qt::Key_Escape);
    EXPECT_TRUE(kept.isNull() || !kept->isVisible()) << Told(*shown);
  }

  void CheckWindow(const char* command, const char* name) {
    SCOPED_TRACE(command);
    Action(command).trigger();
    CheckAndClose(window_->findChild<QDialog*>(name));
  }

  // A box that the program waits for.
  void CheckBox(const char* command, const QString& title) {
    driver_->ExpectDialog(title, [this](QDialog& box) { CheckAndClose(&box); });
    Action(command).trigger();
  }

 private:
  QFont usual_ = QApplication::font();
};

// At the largest size most windows want more room than the screen has.
INSTANTIATE_TEST_SUITE_P(Points, EveryWindow, testing::Values(0, 16, 32));

TEST_P(EveryWindow, MainWindowInEveryState) {
  StartEmpty();
  Check(*window_);
  OpenDemo();
  Check(*window_);
  EXPECT_TRUE(QTest::qWaitFor([this] {
    const Grid& grid = driver_->Grid();
    return grid.viewport()->visibleRegion().boundingRect().height() >= 2 * grid.rowHeight(0);
  }));
  folder_.Write("SDX.INI", std::string("http://127.0.0.1/lista.sdx\r\n"));
  for (const char* command :
       {"VisualizzaBouquet", "VisualizzaTransponder", "VisualizzaCanali", "ScaricaInternet"}) {
    Action(command).trigger();
    Check(*window_);
  }
  if (GetParam() == 0) {
    window_->resize(1366, 768);
    QTest::qWait(20);
    Action("VisualizzaPreferiti").trigger();
    CheckAccess(*window_);
  }
  for (QMenu* menu : window_->findChildren<QMenu*>()) {
    QStringList texts;
    for (const QAction* action : menu->actions())
      if (action->isVisible()) texts += action->text();
    CheckLetters(texts);
  }
  for (const QAction* action : window_->findChildren<QAction*>()) {
    const QString name = action->objectName();
    if (name.isEmpty() || name.startsWith("_q_") || name.startsWith("FileRecenti_")) continue;
    EXPECT_FALSE(action->toolTip().isEmpty() || action->statusTip().isEmpty()) << name.toStdString();
  }
  for (const QAbstractButton* button : window_->findChildren<QAbstractButton*>()) {
    const QString name = button->objectName();
    const bool toolkits = name.startsWith("qt_") || name.startsWith("Scroll");
    if (name.isEmpty() || toolkits || button->text() == "Chiudi") continue;
    EXPECT_FALSE(button->toolTip().isEmpty()) << name.toStdString();
  }
}

TEST_P(EveryWindow, EveryDialog) {
  OpenDemo();
  driver_->SelectRows(3, 4);
  driver_->Press("Toolbar1_Copy");
  Paste(20, 2);
  for (const auto& [command, name] :
       {std::pair{"Guida", "FinestraGuida"}, std::pair{"Riepilogo", "FinestraRiepilogo"},
        std::pair{"VisualizzaPreferiti", "ListePreferiti"}, std::pair{"CanaliDoppi", "FinestraCanaliDoppi"},
        std::pair{"ConfrontaDisco", "FinestraConfronto"}})
    CheckWindow(command, name);
  driver_->Grid().clearSelection();
  for (const auto& [command, title] : {std::pair{"About", "About"}, std::pair{"VaiAlCanale", "Trovalis"},
                                       std::pair{"StampaGriglia", "Stampa Canali - demo.dat"}})
    CheckBox(command, title);
  driver_->SelectRows(1, 3);
  CheckBox("StampaGriglia", "Trovalis");
  CheckBox("ImpostaTransponder", "Trovalis");
  for (const auto& [command, title] :
       {std::pair{"CambiaNomi", "Cambia nomi"}, std::pair{"ImpostaCampi", "Imposta"},
        std::pair{"OrdinaCanali", "Ordina Canali"}})
    CheckBox(command, title);

  const std::string ini = folder_.Write("lista.ini", "[DVB]\n1=11766,V,22000,34\n");
  driver_->ExpectFile("Selezionare l'elenco di transponder", PathText(ini));
  CheckWindow("ControllaTransponder", "FinestraControlloTransponder");
  const std::string text = folder_.Write("lista.csv", "Uno;99;11766;V;10\nDue;98;12092;H;11\n");
  driver_->ExpectFile("Selezionare il file da importare", PathText(text));
  CheckBox("Pelko", "Da File Pelko");
  const std::string sdx = folder_.Write("lista.sdx", Samples::DemoSdx());
  driver_->ExpectFile("Selezionare il file SDX di input", PathText(sdx));
  driver_->ExpectDialog("Opzioni importazione SDX", [this](QDialog& box) {
    Check(box);
    box.findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
    box.findChild<QListWidget*>("List1")->selectAll();
    box.findChild<QPushButton*>("Command1")->click();
  });
  Action("SDX").trigger();
  CheckAndClose(window_->findChild<QDialog*>("ElencoNonInSDX"));
  Check(*window_);
  CheckBox("ImportaTuttoSDX", "Importazione canali SDX");
  const std::string vdr =
      folder_.Write("channels.conf", "Uno;Rete:11766:VC34:S13.0E:27500:120:130:0:0:99:1:2:0\n");
  driver_->ExpectFile("Selezionare la lista da importare", PathText(vdr));
  CheckBox("ImportaElenco", "Da lista VDR, DVBv5 o Enigma2");
}

class Menus : public SmallWindow {};

TEST_F(Menus, EveryCommandAndButtonHasWhatItRuns) {
  ChooseFile("CaricaAggiuntiva", "Selezionare la flash aggiuntiva", flash_);
  for (int i = 0; i < 2; ++i) Delete(1, 1);
  ASSERT_TRUE(driver_->Choose("Annulla"));
  for (const Command& command : Commands)
    EXPECT_TRUE(CommandAction(*window_, command).isEnabled()) << command.name;
  for (const ToolbarButton& button : ToolbarButtons) {
    QAction& action = ButtonAction(*window_, button);
    action.setVisible(true);  // a hidden one counts as disabled
    EXPECT_TRUE(action.isEnabled()) << button.name;
  }
}

TEST_F(Menus, AnswerToFirstLettersAndHaveEveryButton) {
  driver_->SelectRows(2, 2);
  driver_->Key(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(window_->findChild<QMenu*>("MenuCanali")->isVisible());
  window_->findChild<QMenu*>("MenuCanali")->close();
  auto* menu = qobject_cast<QMenu*>(Action("SpostaRadio").associatedObjects().value(0));
  menu->popup(window_->pos());
  for (const char* next : {"SpostaRadio", "InvertiSatelliti", "RiportaAB", "CercaCanale", "CercaSuccessivo",
                           "Riepilogo", "CanaliXTransponder"}) {
    QTest::keyClick(menu, next == std::string("InvertiSatelliti") ? Qt::Key_I : Qt::Key_R);
    ASSERT_NE(menu->activeAction(), nullptr);
    EXPECT_EQ(menu->activeAction()->objectName(), next);
  }
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_FALSE(menu->isVisible());
  EXPECT_EQ(Said(), "Ricalcolato il numero di canali per transponder");
}

}  // namespace Ui
