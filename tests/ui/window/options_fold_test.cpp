// The option groups as one line.
#include "ui/window_fixture.h"

namespace Ui {

class OptionsLine : public SmallWindow {
 protected:
  [[nodiscard]] QAbstractButton& Button() const {
    return *window_->findChild<QAbstractButton*>("RiduciOpzioni");
  }
  [[nodiscard]] bool Groups() const { return window_->findChild<QWidget*>("QuantiCanali")->isVisible(); }
  void Resize(int height, bool groups) {
    window_->resize(900, height);
    QTest::qWait(20);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Groups() == groups; })) << height;
  }
};

TEST_F(OptionsLine, ComesByItselfWhereTheListIsShortUntilTheUserSaysOtherwise) {
  Resize(700, true);
  Resize(430, false);
  EXPECT_EQ(Button().text(), "999 canali · scrive D-2.x · SR 22000 come 2");
  Resize(700, true);
  Resize(430, false);
  Button().click();
  EXPECT_TRUE(Groups());
  StartEmpty();
  Resize(430, true);
  Open(flash_, "QuantiCanali_0");
  ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  EXPECT_TRUE(Groups()) << "opened by hand once";
}

TEST_F(OptionsLine, IsRememberedAndMakesWayForAChoiceThatIsMissing) {
  Resize(700, true);
  Button().click();
  EXPECT_FALSE(Groups());
  StartEmpty();
  EXPECT_TRUE(Groups()) << "nothing is chosen yet";
  Open(flash_, "QuantiCanali_0");
  ASSERT_TRUE(driver_->Pick("FlashScrittura_2"));
  QTest::qWait(20);
  EXPECT_FALSE(Groups());
  StartEmpty();
  Open(flash_, "QuantiCanali_0");
  Button().click();
  EXPECT_EQ(Button().text(), "999 canali · tipo di flash: da scegliere · SR 22000 come 2");
  Tells("Salva", "Si deve selezionare il tipo di FLASH da registrare");
  EXPECT_TRUE(Groups());
  EXPECT_EQ(window_->focusWidget()->objectName(), "FlashScrittura_0");
}

}  // namespace Ui
