// Every window without a mouse and without eyes: names for a screen reader, the way of the Tab key, letters after Alt, Esc.
#include "demo_sdx.h"
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

#include <map>
#include <set>

namespace Ui {
namespace {

QString Told(const QWidget& widget) {
  return QString("%1 \"%2\"").arg(widget.metaObject()->className(), widget.objectName());
}

// What a screen reader says of it. A list is called by the entry it shows, and told apart by its label or description.
bool IsNamed(QWidget& widget) {
  const QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(&widget);
  if (qobject_cast<QComboBox*>(&widget) == nullptr) return !told.text(QAccessible::Name).isEmpty();
  return !told.relations(QAccessible::Label).isEmpty() || !told.text(QAccessible::Description).isEmpty();
}

bool HasTitle(const QHeaderView& header, int column) {
  const auto title = [&](int role) {
    return header.model()->headerData(column, header.orientation(), role).toString();
  };
  return !title(Qt::AccessibleTextRole).isEmpty() || !title(Qt::DisplayRole).isEmpty();
}

// The letter after "&", "&&" left out.
QChar Letter(QString text) {
  const qsizetype at = text.replace("&&", "").indexOf('&');
  return at < 0 || at + 1 == text.size() ? QChar() : text[at + 1].toLower();
}

class Access : public Window {
 protected:
  // A window that is shown, from its first control to the last.
  static void Check(QWidget& shown) {
    SCOPED_TRACE(Told(shown).toStdString() + " " + shown.windowTitle().toStdString());
    shown.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
    EXPECT_FALSE(shown.windowTitle().isEmpty());
    const std::set<QWidget*> controls = Controls(shown);
    for (QWidget* control : controls) {
      EXPECT_TRUE(IsNamed(*control)) << Told(*control).toStdString();
    }
    for (const auto* header : shown.findChildren<QHeaderView*>()) {
      for (int column = 0; column < header->count() && header->isVisible(); ++column)
        EXPECT_TRUE(HasTitle(*header, column)) << Told(*header->parentWidget()).toStdString() << column;
    }
    CheckLetters(shown);
    CheckTab(shown, controls);
  }

  // What the user can put the focus on.
  static std::set<QWidget*> Controls(QWidget& shown) {
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

  static void CheckLetters(QWidget& shown) {
    std::map<QChar, QString> taken;
    for (QWidget* widget : shown.findChildren<QWidget*>()) {
      if (widget->window() != &shown || !widget->isVisible()) continue;
      QString text;
      if (auto* button = qobject_cast<QAbstractButton*>(widget)) text = button->text();
      if (auto* box = qobject_cast<QGroupBox*>(widget)) text = box->title();
      if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
        text = label->text();
      const QChar letter = Letter(text);
      if (letter.isNull()) continue;
      EXPECT_FALSE(taken.contains(letter)) << text.toStdString() << " and " << taken[letter].toStdString();
      taken[letter] = text;
    }
  }

  // The key comes to every control that is enabled and leaves it again; radio buttons share one stop.
  static void CheckTab(QWidget& shown, const std::set<QWidget*>& controls) {
    std::set<QWidget*> reached;
    // A page of text takes it for each of its links.
    for (int pressed = 0; pressed < 300; ++pressed) {
      QWidget* focus = QApplication::focusWidget();
      QTest::keyClick(focus == nullptr ? &shown : focus, Qt::Key_Tab);
      reached.insert(QApplication::focusWidget());
    }
    for (QWidget* control : controls) {
      const bool byTab = control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0 &&
                         qobject_cast<QRadioButton*>(control) == nullptr;
      EXPECT_TRUE(!byTab || reached.contains(control)) << Told(*control).toStdString();
    }
  }

  // Esc closes it.
  static void CheckAndClose(QWidget* dialog) {
    ASSERT_NE(dialog, nullptr);
    Check(*dialog);
    const QPointer<QWidget> kept(dialog);
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus == nullptr ? dialog : focus, Qt::Key_Escape);
    EXPECT_TRUE(kept.isNull() || !kept->isVisible()) << Told(*dialog).toStdString();
  }

  void ExpectAndCheck(const QString& title) {
    driver_->ExpectDialog(title, [](QDialog& dialog) { CheckAndClose(&dialog); });
  }

  void ChooseAndCheck(const char* command, const char* dialog) {
    SCOPED_TRACE(command);
    ASSERT_TRUE(driver_->Choose(command));
    CheckAndClose(window_->findChild<QDialog*>(dialog));
  }
};

}  // namespace

TEST_F(Access, TheMainWindowInEveryState) {
  StartEmpty();
  Check(*window_);
  OpenDemo();
  Check(*window_);
  ASSERT_TRUE(driver_->Choose("VisualizzaBouquet"));
  Check(*window_);
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  Check(*window_);
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  ASSERT_TRUE(driver_->Choose("VediSDX"));
  folder_.Write("SDX.INI", std::string("http://127.0.0.1/lista.sdx\r\n"));
  ASSERT_TRUE(driver_->Choose("ScaricaInternet"));
  Check(*window_);
  for (QMenu* menu : window_->findChildren<QMenu*>()) {
    std::set<QChar> letters;
    for (const QAction* action : menu->actions()) {
      const QChar letter = Letter(action->text());
      EXPECT_TRUE(letter.isNull() || !action->isVisible() || letters.insert(letter).second)
          << menu->title().toStdString() << ": " << action->text().toStdString();
    }
  }
  for (const QAction* action : window_->findChildren<QAction*>()) {
    const QString name = action->objectName();
    if (name.isEmpty() || name.startsWith("_q_") || name.startsWith("FileRecenti_")) continue;
    EXPECT_FALSE(action->toolTip().isEmpty()) << name.toStdString();
    EXPECT_FALSE(action->statusTip().isEmpty()) << name.toStdString();
  }
  for (const QAbstractButton* button : window_->findChildren<QAbstractButton*>()) {
    const QString name = button->objectName();
    if (name.isEmpty() || name.startsWith("qt_") || button->text() == "Chiudi") continue;
    EXPECT_FALSE(button->toolTip().isEmpty()) << name.toStdString();
  }
}

TEST_F(Access, MenusAnswerToFirstLettersAndHaveEveryButton) {
  OpenDemo();
  driver_->SelectRows(2, 2);
  driver_->Key(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(window_->findChild<QMenu*>("MenuCanali")->isVisible());
  window_->findChild<QMenu*>("MenuCanali")->close();
  auto* menu = qobject_cast<QMenu*>(Action("SpostaRadio").associatedObjects().value(0));
  menu->popup(window_->pos());
  for (const char* next : {"SpostaRadio", "InvertiSatelliti", "RiportaAB", "CanaliXTransponder"}) {
    QTest::keyClick(menu, next == std::string("InvertiSatelliti") ? Qt::Key_I : Qt::Key_R);
    ASSERT_NE(menu->activeAction(), nullptr);
    EXPECT_EQ(menu->activeAction()->objectName(), next);
  }
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_FALSE(menu->isVisible());
  EXPECT_EQ(Said(), "Ricalcola il numero di Canali per transponder");
}

TEST_F(Access, EveryDialog) {
  OpenDemo();
  driver_->ExpectDialog("About", [](QDialog& box) { box.findChild<QPushButton*>("ApriGuida")->click(); });
  ChooseAndCheck("About", "FinestraGuida");
  ChooseAndCheck("Riepilogo", "FinestraRiepilogo");
  ChooseAndCheck("VisualizzaPreferiti", "ListePreferiti");
  driver_->SelectRows(3, 4);
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy"));
  Paste(20, 2);
  ChooseAndCheck("CanaliDoppi", "FinestraCanaliDoppi");
  ChooseAndCheck("ConfrontaDisco", "FinestraConfronto");

  const std::pair<const char*, const char*> boxes[] = {{"About", "About"},
                                                       {"VaiAlCanale", "Trovalis"},
                                                       {"ApriFlashOutput", "Selezionare la flash di output"},
                                                       {"FormatoCSV", "Selezionare il file di output"}};
  driver_->Grid().clearSelection();
  for (const auto& [command, title] : boxes) {
    ExpectAndCheck(title);
    ASSERT_TRUE(driver_->Choose(command));
  }
  ExpectAndCheck("Stampa Canali - demo.dat");
  ASSERT_TRUE(driver_->Choose("StampaGriglia"));
  driver_->SelectRows(1, 3);
  ExpectAndCheck("Trovalis");
  ASSERT_TRUE(driver_->Choose("StampaGriglia"));

  const std::string text = folder_.Write("lista.csv", "Uno;99;11766;V;10\nDue;98;12092;H;11\n");
  driver_->ExpectFile("Selezionare il file da importare", PathText(text));
  ExpectAndCheck("Da File Pelko");
  ASSERT_TRUE(driver_->Choose("Pelko"));

  const std::string sdx = folder_.Write("lista.sdx", Samples::DemoSdx());
  driver_->ExpectFile("Selezionare il file SDX di input", PathText(sdx));
  driver_->ExpectDialog("Opzioni importazione SDX", [](QDialog& box) {
    Check(box);
    box.findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
    box.findChild<QListWidget*>("List1")->selectAll();
    box.findChild<QPushButton*>("Command1")->click();
  });
  ASSERT_TRUE(driver_->Choose("SDX"));
  CheckAndClose(window_->findChild<QDialog*>("ElencoNonInSDX"));
  Check(*window_);
  ExpectAndCheck("Importazione canali SDX");
  ASSERT_TRUE(driver_->Choose("ImportaTuttoSDX"));
}

}  // namespace Ui
