// What can be said of the windows' looks by rule: colours that can be told apart, and room for every text.
#include "demo_sdx.h"
#include "ui/kit/readable_style.h"
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

namespace Ui {

// The letters of the whole program, and its colours, until the end of a test.
class Looks : public Window {
 protected:
  ~Looks() override {
    window_.reset();
    QApplication::setFont(font_);
    QApplication::setPalette(QPalette());
  }

  // In the room that the window gives it, or that can be scrolled to.
  static bool IsInSight(const QWidget& control) {
    const QWidget* at = control.parentWidget();
    while (!at->isWindow() && qobject_cast<const QAbstractScrollArea*>(at) == nullptr)
      at = at->parentWidget();
    const bool scrolls = !at->isWindow();
    return scrolls || at->rect().contains(QRect(control.mapTo(at, QPoint(0, 0)), control.size()));
  }

  static void ExpectRoom(const QWidget& window) {
    const QSize screen = window.screen()->availableGeometry().size();
    EXPECT_EQ(window.size().boundedTo(screen), window.size()) << window.objectName().toStdString();
    for (const QWidget* control : window.findChildren<QWidget*>()) {
      const auto* button = qobject_cast<const QAbstractButton*>(control);
      const auto* label = qobject_cast<const QLabel*>(control);
      const bool elided = label != nullptr && (label->wordWrap() || label->inherits("Ui::ElidedLabel"));
      if (!control->isVisible() || control->window() != &window || (button == nullptr && label == nullptr))
        continue;
      const std::string name = (window.objectName() + '/' + control->objectName()).toStdString();
      EXPECT_GE(control->width(), elided ? 0 : control->sizeHint().width()) << name;
      EXPECT_TRUE(IsInSight(*control)) << name;
    }
  }

 private:
  QFont font_ = QApplication::font();
};

class LargeLetters : public Looks, public testing::WithParamInterface<int> {
 protected:
  // A box that has to be answered.
  void ExpectRoomIn(const char* command, const QString& title) {
    driver_->ExpectDialog(title, [](QDialog& box) {
      ExpectRoom(box);
      box.reject();
    });
    Action(command).trigger();
  }
};

// At the larger size most windows want more room than the screen has.
INSTANTIATE_TEST_SUITE_P(Points, LargeLetters, testing::Values(16, 32));

TEST_P(LargeLetters, NothingIsCut) {
  QFont large = QApplication::font();
  large.setPointSize(GetParam());
  QApplication::setFont(large);
  OpenDemo();
  QTest::qWait(50);
  ExpectRoom(*window_);
  EXPECT_GE(driver_->Grid().viewport()->visibleRegion().boundingRect().height(),
            2 * driver_->Grid().rowHeight(0));
  driver_->SelectRows(34, 35);
  driver_->Press("Toolbar1_Copy");
  Paste(60, 2);
  for (const auto& [command, name] :
       {std::pair{"CanaliDoppi", "FinestraCanaliDoppi"}, std::pair{"ConfrontaDisco", "FinestraConfronto"},
        std::pair{"VisualizzaPreferiti", "ListePreferiti"}, std::pair{"Riepilogo", "FinestraRiepilogo"},
        std::pair{"Guida", "FinestraGuida"}}) {
    Action(command).trigger();
    auto* window = window_->findChild<QDialog*>(name);
    ASSERT_NE(window, nullptr) << name;
    QTest::qWait(50);
    ExpectRoom(*window);
    window->close();
  }
  for (const char* command : {"VaiAlCanale", "ImpostaTransponder"}) ExpectRoomIn(command, "Trovalis");
  ExpectRoomIn("About", "About");
  driver_->ExpectFile("Selezionare il file da importare",
                      PathText(folder_.Write("lista.csv", "Uno;99;11766;V;10\nDue;98;12092;H;11\n")));
  ExpectRoomIn("Pelko", "Da File Pelko");
  driver_->ExpectFile("Selezionare il file SDX di input",
                      PathText(folder_.Write("lista.sdx", Samples::DemoSdx())));
  ExpectRoomIn("SDX", "Opzioni importazione SDX");
}

TEST_F(Looks, EveryRowCanBeRead) {
  OpenDemo();
  window_->findChild<QLineEdit*>("Filtro")->setText("HD");
  for (const char* view : {"VisualizzaCanali", "VisualizzaTransponder"}) {
    if (!Action(view).isChecked()) Action(view).trigger();
    const QAbstractItemModel& list = *driver_->Grid().model();
    for (int row = 0; row < list.rowCount(); ++row) {
      for (int column = 0; column < 2; ++column) {
        const QModelIndex cell = list.index(row, column);
        EXPECT_GE(Contrast(cell.data(Qt::ForegroundRole).value<QBrush>().color(),
                           cell.data(Qt::BackgroundRole).value<QBrush>().color()),
                  4.5)
            << view << " row " << row << " column " << column;
      }
    }
  }
  for (const auto& [text, ground] : {std::pair{Qt::white, Qt::cyan}, std::pair{Qt::black, Qt::darkBlue}}) {
    QPalette colours;
    colours.setColor(QPalette::HighlightedText, text);
    colours.setColor(QPalette::Highlight, ground);
    ReadableStyle("fusion").polish(colours);
    EXPECT_GE(Contrast(colours.color(QPalette::HighlightedText), colours.color(QPalette::Highlight)), 4.5);
  }
  QPalette dark(QColor(45, 45, 45));
  ReadableStyle("fusion").polish(dark);
  EXPECT_GE(Contrast(dark.color(QPalette::Disabled, QPalette::Text),
                     dark.color(QPalette::Disabled, QPalette::Base)),
            2);
}

TEST_F(Looks, ADarkGroundShowsUntickedBoxesAndIcons) {
  const QColor ground(45, 45, 45);
  QApplication::setPalette(QPalette(ground));
  const auto strongest = [](const QImage& picture, const QColor& on) {
    double most = 1;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, y).alpha() > 128)
          most = std::max(most, Contrast(picture.pixelColor(x, y), on));
      }
    }
    return most;
  };
  EXPECT_GE(strongest(QCheckBox().grab().toImage(), ground), 3);
  Start();
  for (const char* key : {"Open", "Canali", "Delete", "Find", "Fine_Programma"}) {
    const auto* button = window_->findChild<QToolButton*>(QString("Toolbar1_") + key);
    EXPECT_GE(strongest(button->icon().pixmap(24, 24).toImage(), ground), 4.5) << key;
  }
}

// What a box says can be copied from it, so nothing is put into a path to make it break.
TEST_F(Looks, ABoxBreaksLongPathsAndSaysThemToTheLetter) {
  const QString sentence = "Impossibile leggere /" + QString(300, 'W') + ": il file non esiste";
  driver_->ExpectDialog("Trovalis", [&](QDialog& box) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), sentence);
    const QLabel* shown = nullptr;
    for (const QLabel* label : box.findChildren<QLabel*>())
      if (label->isVisible() && label->text() == sentence) shown = label;
    ASSERT_NE(shown, nullptr);
    const int line = shown->fontMetrics().horizontalAdvance(sentence);
    EXPECT_LE(box.width(), 600);
    EXPECT_GE(shown->height(), (line / shown->width() + 1) * shown->fontMetrics().height());
    box.reject();
  });
  QtDialogs(window_.get()).Message(sentence, {}, Tone::Warning);
}

}  // namespace Ui
