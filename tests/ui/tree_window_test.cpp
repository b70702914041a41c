// The two trees beside the list.
#include "ui/window_fixture.h"

namespace Ui {
namespace {

class Trees : public Window {
 protected:
  void SetUp() override {
    OpenDemo();
    bouquets_ = window_->findChild<QTreeView*>("TreeView1");
    transponders_ = window_->findChild<QTreeView*>("TreeView2");
  }

  // Which of the three stands in the place beside the list.
  [[nodiscard]] std::string Beside() const {
    std::string shown;
    for (const char* name : {"GrigliaSDX", "TreeView1", "TreeView2"}) {
      if (window_->findChild<QWidget*>(name)->isVisible()) shown += name;
    }
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
  QTreeView* transponders_ = nullptr;
};

TEST_F(Trees, ShareTheirPlaceWithTheSdxPane) {
  const auto after = [this](const char* command) {
    EXPECT_TRUE(driver_->Choose(command));
    return Beside();
  };
  EXPECT_EQ(Beside(), "TreeView1");
  const std::pair<const char*, std::string> steps[] = {{"VisualizzaCanali", ""},
                                                       {"VisualizzaCanali", "TreeView1"},
                                                       {"VisualizzaTransponder", ""},
                                                       {"VediSDX", "GrigliaSDX"},
                                                       {"VisualizzaCanali", "GrigliaSDX"},
                                                       {"VediSDX", "TreeView2"},
                                                       {"VediSDX", "GrigliaSDX"},
                                                       {"VisualizzaBouquet", "TreeView2"},
                                                       {"VisualizzaTransponder", "TreeView2"},
                                                       {"VisualizzaCanali", "TreeView2"},
                                                       {"VisualizzaBouquet", "TreeView1"}};
  for (const auto& [command, shown] : steps) EXPECT_EQ(after(command), shown) << command;
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
  driver_->SelectRows(12, 12);
  EXPECT_EQ(Current(*bouquets_), "0012 Stella TV");
  const QPersistentModelIndex node = bouquets_->currentIndex();
  Click(*bouquets_, node.sibling(node.row() + 1, 0));
  const std::string next = Current(*bouquets_);
  EXPECT_EQ(driver_->Grid().Selected()->first, std::stoi(next));
  driver_->Key(Qt::Key_Up);
  EXPECT_EQ(driver_->Grid().Selected()->first, 12);
  EXPECT_TRUE(bouquets_->hasFocus()) << "the keys go on walking the tree";

  bouquets_->setCurrentIndex(node.sibling(0, 0));
  QTest::keyClicks(bouquets_, "stella");
  EXPECT_EQ(driver_->Grid().Selected()->first, 12) << "names are found by typing";

  bouquets_->expandAll();
  driver_->SelectRows(300, 300);
  const int scrolled = bouquets_->verticalScrollBar()->value();
  EXPECT_GT(scrolled, 20);
  ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
  EXPECT_EQ(Current(*bouquets_), "0300 " + driver_->Cell(300, 1).toStdString());
  EXPECT_EQ(bouquets_->verticalScrollBar()->value(), scrolled);
  EXPECT_TRUE(bouquets_->isExpanded(node.parent()));

  Delete(646, 646);
  EXPECT_EQ(Current(*bouquets_), "") << "no channel comes in the place of the last one";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(Current(*bouquets_), "0646 " + driver_->Cell(646, 1).toStdString());

  driver_->ExpectLine("Inserire il Nr. del canale su cui posizionarsi", "100");
  ASSERT_TRUE(driver_->Choose("VaiAlCanale"));
  EXPECT_EQ(std::stoi(Current(*bouquets_)), 100);

  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  ASSERT_TRUE(driver_->Choose("VisualizzaBouquet"));
  driver_->SelectRows(18, 18);
  EXPECT_TRUE(Current(*transponders_).starts_with("018  ")) << Current(*transponders_);
  const QModelIndex transponder = transponders_->currentIndex();
  driver_->SelectRows(3, 3);
  Click(*transponders_, transponder);
  EXPECT_EQ(driver_->Grid().Selected()->first, 18);
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  Click(*transponders_, transponder);
  EXPECT_EQ(driver_->Cell(driver_->Grid().Selected()->first, 2), "018");
  EXPECT_TRUE(Current(*transponders_).starts_with("018  ")) << "the channel selected is not shown back";
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  transponders_->expand(transponder);
  Click(*transponders_, transponders_->model()->index(0, 0, transponder));
  EXPECT_EQ(driver_->TextOf("Text1"), "Canali") << "a channel brings its list";
}

}  // namespace
}  // namespace Ui
