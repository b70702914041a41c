// What can be said of the windows' colours by rule: they can be told apart.
#include "ui/kit/readable_style.h"
#include "ui/window_fixture.h"

#include <set>

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

// Television, radio, data and what is not active, each in the cell of its name; nothing else is in the pictures.
TEST_F(Looks, SoftColoursTellKindsAndSelectionApartAndLeaveEveryTextReadable) {
  for (const QColor& window : {QColor(240, 240, 240), QColor(45, 45, 45)}) {
    QApplication::setPalette(QPalette(window));
    OpenSmall();
    if (!Action("ColoriTenui").isChecked()) Action("ColoriTenui").trigger();
    std::set<QRgb> grounds;
    std::set<QRgb> strips;
    for (const bool selected : {false, true}) {
      for (const int row : {1, 8, 10, 12}) {
        driver_->Grid().SelectRow(selected ? row : 2);
        const QImage picture = driver_->Grid().viewport()->grab().toImage();
        const auto cell = [&](int column) {
          return driver_->Grid().visualRect(driver_->Grid().model()->index(row - 1, column));
        };
        for (const int column : {0, 1, 3}) {
          const QColor ground = picture.pixelColor(cell(column).center().x(), cell(column).top() + 3);
          double most = 1;
          for (int x = cell(column).left() + 6; x < cell(column).right() - 6; ++x)
            for (int y = cell(column).top() + 4; y < cell(column).bottom() - 4; ++y)
              most = std::max(most, Contrast(picture.pixelColor(x, y), ground));
          EXPECT_GE(most, 4.5) << row << " " << column;
          EXPECT_LE(Contrast(ground, window), 2) << "it glares";
          if (column != 1) continue;
          grounds.insert(ground.rgb());
          const bool lighter = ground.lightness() > QApplication::palette().base().color().lightness();
          EXPECT_TRUE(row != 12 || lighter == (window.lightness() < 128)) << "towards the letters";
        }
        strips.insert(picture.pixel(cell(0).right() - 2, cell(0).center().y()));
      }
    }
    EXPECT_EQ(grounds.size(), 8U) << "four kinds, selected and not";
    EXPECT_EQ(strips.size(), 4U) << "of a kind, be it selected or not";
  }
  StartEmpty();
  EXPECT_TRUE(Action("ColoriTenui").isChecked()) << "remembered";
  Action("ColoriTenui").trigger();
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
