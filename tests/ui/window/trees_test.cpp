// The two trees beside the list.
#include "ui/window_fixture.h"

namespace Ui {
namespace {

class Trees : public SmallWindow {
 protected:
  void SetUp() override {
    OpenSmall();
    bouquets_ = window_->findChild<QTreeView*>("TreeView1");
  }

  // Which of the three stands in the place beside the list.
  [[nodiscard]] std::string Beside() const {
    std::string shown;
    for (const char* name : {"GrigliaSDX", "TreeView1", "TreeView2"})
      if (const auto* pane = window_->findChild<QWidget*>(name); pane != nullptr && pane->isVisible())
        shown += name;
    EXPECT_EQ(Action("VisualizzaBouquet").isChecked(), shown == "TreeView2");
    EXPECT_EQ(Action("VediSDX").isChecked(), shown == "GrigliaSDX");
    EXPECT_EQ(Action("RicercaSDX").isEnabled(), shown == "GrigliaSDX");
    return shown;
  }
  [[nodiscard]] static std::string Current(const QTreeView& tree) {
    return tree.currentIndex().data().toString().toStdString();
  }
  static void Click(QTreeView& tree, const QModelIndex& index) {
    QTest::qWait(20);  // a tree that has just been shown has not got its place yet
    tree.scrollTo(index);
    Window::Click(tree, index);
  }

  QTreeView* bouquets_ = nullptr;
};

TEST_F(Trees, ShareTheirPlaceWithTheSdxPane) {
  const auto after = [this](const char* command) {
    EXPECT_TRUE(driver_->Choose(command));
    return Beside();
  };
  EXPECT_EQ(Beside(), "TreeView1");
  EXPECT_EQ(bouquets_->parentWidget()->nextInFocusChain(), bouquets_) << "the keys come to it last of all";
  for (const QString& step :
       QString("VisualizzaCanali= VisualizzaCanali=TreeView1 VisualizzaTransponder= VediSDX=GrigliaSDX "
               "VisualizzaCanali=GrigliaSDX VediSDX=TreeView2 VediSDX=GrigliaSDX VisualizzaBouquet=TreeView2 "
               "VisualizzaTransponder=TreeView2 VisualizzaCanali=TreeView2 VisualizzaBouquet=TreeView1")
           .split(' '))
    EXPECT_EQ(after(qPrintable(step.section('=', 0, 0))), step.section('=', 1).toStdString())
        << step.toStdString();
  Open(flash_);
  EXPECT_EQ(Beside(), "TreeView1");

  window_->findChild<QToolButton*>("ChiudiTreeView1")->click();
  EXPECT_EQ(Beside(), "");
  StartEmpty();
  driver_->ExpectMessage(NoFlash);
  EXPECT_EQ(after("VisualizzaBouquet"), "");
  after("VediSDX");
  EXPECT_EQ(after("VediSDX"), "") << "there is no list to show in a tree";
  Open(flash_);
  EXPECT_EQ(Beside(), "") << "closed by the user, in this session or an earlier one";
  after("VisualizzaCanali");
  EXPECT_EQ(after("VisualizzaCanali"), "TreeView1");
  after("VisualizzaBouquet");
  EXPECT_EQ(after("Annulla"), "") << "no list is loaded any more";
}

TEST_F(Trees, AndTheGridFollowEachOther) {
  driver_->SelectRows(3, 3);
  EXPECT_EQ(Current(*bouquets_), "0003 Tre");
  const QPersistentModelIndex node = bouquets_->currentIndex();
  Click(*bouquets_, node.sibling(node.row() - 1, 0));
  EXPECT_EQ(driver_->Grid().Selected().front(), 2);
  driver_->Key(Qt::Key_Down);
  EXPECT_EQ(driver_->Grid().Selected().front(), 3);
  EXPECT_TRUE(bouquets_->hasFocus()) << "the keys go on walking the tree";
  QTest::keyClicks(bouquets_, "uno");
  EXPECT_EQ(driver_->Grid().Selected().front(), 1) << "names are found by typing";
  driver_->ExpectLine("Inserire il Nr. del canale su cui posizionarsi", "9");
  ASSERT_TRUE(driver_->Choose("VaiAlCanale"));
  EXPECT_EQ(Current(*bouquets_), "0009 Radio Nove");
}

TEST_F(Trees, KeepTheirPlaceThroughEdits) {
  bouquets_->expandAll();
  bouquets_->setFixedHeight(100);
  QTest::qWait(20);
  driver_->SelectRows(7, 7);
  const QPersistentModelIndex branch = bouquets_->currentIndex().parent();
  bouquets_->verticalScrollBar()->setValue(3);
  ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
  EXPECT_EQ(Current(*bouquets_), "0007 Radio Otto");
  EXPECT_EQ(bouquets_->verticalScrollBar()->value(), 3);
  EXPECT_TRUE(bouquets_->isExpanded(branch));
  Delete(11, 11);
  EXPECT_EQ(Current(*bouquets_), "") << "no channel comes in the place of the last one";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(Current(*bouquets_), "0011 Dodici");
}

TEST_F(Trees, ATransponderLeadsToItselfOrToItsChannels) {
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  ASSERT_TRUE(driver_->Choose("VisualizzaBouquet"));
  driver_->SelectRows(2, 2);
  auto& transponders = *window_->findChild<QTreeView*>("TreeView2");
  EXPECT_TRUE(Current(transponders).starts_with("002  ")) << Current(transponders);
  const QModelIndex transponder = transponders.currentIndex();
  driver_->SelectRows(3, 3);
  Click(transponders, transponder);
  EXPECT_EQ(driver_->Grid().Selected().front(), 2);
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  Click(transponders, transponder);
  EXPECT_EQ(driver_->Grid().Selected().front(), 5);
  EXPECT_TRUE(Current(transponders).starts_with("002  ")) << "the channel selected is not shown back";
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  transponders.expand(transponder);
  Click(transponders, transponders.model()->index(0, 0, transponder));
  EXPECT_EQ(driver_->TextOf("Text1"), "Canali") << "a channel brings its list";
}

}  // namespace
}  // namespace Ui
