// What can be said of the windows' colours by rule: they can be told apart.
#include "ui/kit/readable_style.h"
#include "ui/window_fixture.h"

namespace Ui {

// The colours of the whole program, until the end of a test.
class Looks : public SmallWindow {
 protected:
  ~Looks() override {
    window_.reset();
    QApplication::setPalette(QPalette());
  }
};

TEST_F(Looks, EveryRowCanBeRead) {
  const auto look = [this](int row, Qt::ItemDataRole role) {
    return driver_->Grid().model()->index(row - 1, 1).data(role).value<QBrush>().color();
  };
  for (const char* text : {"Uno", "HD"}) window_->findChild<QLineEdit*>("Filtro")->setText(text);
  EXPECT_EQ(look(1, Qt::BackgroundRole), QColor(255, 255, 0)) << "television";
  EXPECT_EQ(driver_->Grid().model()->index(0, 1).data(Qt::AccessibleDescriptionRole), "TV")
      << "no longer found";
  for (const char* view : {"VisualizzaCanali", "VisualizzaTransponder"}) {
    if (!Action(view).isChecked()) Action(view).trigger();
    for (int row = 1; row <= driver_->Grid().model()->rowCount(); ++row)
      EXPECT_GE(Contrast(look(row, Qt::ForegroundRole), look(row, Qt::BackgroundRole)), 4.5) << view << row;
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
    for (const int drawnInNone : {17, 300})
      EXPECT_EQ(button->icon().pixmap(drawnInNone).size(), QSize(drawnInNone, drawnInNone)) << key;
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
