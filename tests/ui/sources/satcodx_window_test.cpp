// A SatcoDX list goes into the channel list.
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

namespace Ui {

class SatcodxWindow : public SmallWindow {
 protected:
  // Three channels on 11766 MHz, horizontal, a line that is too short, and one below every band.
  void SetUp() override {
    SmallWindow::SetUp();
    std::string sdx;
    for (int i = 1; i <= 3; ++i)
      sdx += "SATCODX103HOTBIRD 13E       TMPG2011766000HNuovo " + std::to_string(i) +
             " 0130___     ______29700200" + std::to_string(50 + i) + "0060005000" + std::to_string(70 + i) +
             "0031812300_________NAGV            \r\n";
    const std::string low =
        std::string(sdx).replace(sdx.find("011766"), 6, "003720").substr(0, sdx.find('\n') + 1);
    driver_->ExpectFile("Selezionare il file SDX di input",
                        PathText(folder_.Write("prova.sdx", sdx + "SATCODX corta\r\n" + low)));
    driver_->ExpectDialog("Opzioni importazione SDX", [this](QDialog& box) { Answer(box); });
    ASSERT_TRUE(driver_->Choose("SDX"));
  }

  void ImportAll(const std::function<void(QDialog&, const QString&)>& settle) {
    driver_->ExpectDialog("Importazione canali SDX", [settle](QDialog& box) {
      settle(box, box.findChild<QLineEdit*>("Partenza")->text());
      box.accept();
    });
  }
  [[nodiscard]] Ui::Grid& Pane() const { return *window_->findChild<Ui::Grid*>("GrigliaSDX"); }

  void Answer(QDialog& box) {
    EXPECT_EQ(box.findChild<QLabel*>("FileSDX")->text(), "prova.sdx: 5 righe, HOTBIRD 13E");
    driver_->ExpectMessage("Si deve specificare il codice da assegnare al satellite");
    box.findChild<QPushButton*>("Command1")->click();
    box.findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
    driver_->ExpectMessage("Non sono state selezionate codifiche da importare");
    box.findChild<QPushButton*>("Command1")->click();
    EXPECT_EQ(box.findChild<QListWidget*>("List1")->count(), 2) << "NAGV and Tutte";
    box.findChild<QListWidget*>("List1")->selectAll();
    box.findChild<QPushButton*>("Command1")->click();
  }
};

TEST_F(SatcodxWindow, ItsRowsAreShownAndInserted) {
  EXPECT_EQ(Said(), "prova.sdx: lette 5 righe, prese 4; scartate: symbol rate 1");
  auto* missing = window_->findChild<QDialog*>("ElencoNonInSDX");
  ASSERT_NE(missing, nullptr) << "the list's own channels";
  const Base::Bytes image = Contents(flash_);
  ExpectOpenedFlashChosen("Salva l'elenco");
  missing->findChild<QPushButton*>("SalvaNonInSDX")->click();
  EXPECT_TRUE(Contents(flash_) == image) << "no text is saved over the opened flash";
  auto* gone = missing->findChild<QTreeWidget*>();
  EXPECT_EQ(gone->topLevelItemCount(), 7);
  for (const int row : {1, 4}) gone->topLevelItem(row)->setCheckState(0, Qt::Checked);
  missing->findChild<QPushButton*>("SelezionaNonInSDX")->click();
  EXPECT_EQ(driver_->Grid().Selected(), Edit::Slots({2, 6}));
  missing->findChild<QPushButton*>("EliminaNonInSDX")->click();
  EXPECT_EQ(gone->topLevelItemCount(), 5) << "it follows the list";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  missing->close();
  EXPECT_TRUE(Pane().isVisible());
  Tells("Toolbar1_Copy_SDX", "Nessun canale SDX selezionato");
  Pane().Select({1, 3});
  driver_->ExpectDialog("Trovalis", [](QDialog& box) {
    EXPECT_EQ(dynamic_cast<QInputDialog&>(box).textValue(), "13") << "behind the last channel";
    box.reject();
  });
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 1", "1000");
  Tells("Toolbar1_Copy_SDX", "Posizione non valida");
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 1", "1");
  driver_->ExpectDialog("Trovalis", [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  EXPECT_EQ(Names(1, 1), "Uno") << "giving up writes over nothing";
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 1", "1");
  driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", true);
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  EXPECT_EQ(Names(1, 4), "Nuovo 1,Nuovo 3,Uno,Due");
  EXPECT_EQ(driver_->Cell(1, 2), "004") << "a transponder of its own";
}

TEST_F(SatcodxWindow, ThePaneMarksWhatTheListHasAndClosesByItself) {
  window_->findChild<QDialog*>("ElencoNonInSDX")->close();
  EXPECT_EQ(driver_->TextOf("ConteggioSDX"), "4 righe");
  Pane().Select({1, 3});
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 1", "2");
  driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", true);
  Pane().setFocus();
  driver_->Key(Qt::Key_F10, Qt::ShiftModifier);
  auto* menu = window_->findChild<QMenu*>("MenuSDX");
  ASSERT_TRUE(menu->isVisible());
  EXPECT_FALSE(Action("VaiAlGiaInLista").isEnabled());
  menu->close();
  Action("InserisciSDX").trigger();
  const auto cell = [this](int row, int column, int role = Qt::DisplayRole) {
    return Pane().model()->index(row - 1, column).data(role).toString();
  };
  EXPECT_EQ(cell(1, 1, Qt::AccessibleDescriptionRole) + cell(3, 2, Qt::ToolTipRole),
            "già in listaGià in lista al 0003");
  EXPECT_EQ(cell(2, 1, Qt::AccessibleDescriptionRole) + cell(2, 1, Qt::ToolTipRole), "");
  EXPECT_EQ(cell(1, 4) + cell(1, 8), "00510050") << "PIDs of one width";
  Pane().SelectRow(3);
  driver_->Key(Qt::Key_F10, Qt::ShiftModifier);
  menu->close();
  Action("VaiAlGiaInLista").trigger();
  EXPECT_EQ(driver_->Grid().Selected(), Edit::Slots({3}));
  Action("SelezionaNuoviSDX").trigger();
  EXPECT_EQ(Pane().Selected(), Edit::Slots({2})) << "row 4 is the service of row 1";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(cell(1, 1, Qt::ToolTipRole), "") << "with the list";

  Pane().horizontalScrollBar()->setValue(20);
  auto* frozen = Pane().findChild<QTableView*>("ColonnaFissa");
  EXPECT_TRUE(frozen->isVisible() && frozen->width() == Pane().columnWidth(0) + Pane().columnWidth(1));
  const QObjectList& stacked = Pane().children();
  EXPECT_LT(stacked.indexOf(Pane().horizontalHeader()), stacked.indexOf(frozen)) << "titles of other columns";
  QTest::mouseClick(window_->findChild<QToolButton*>("ChiudiSDX"), Qt::LeftButton);
  EXPECT_FALSE(Pane().isVisible() || Action("VediSDX").isChecked());
}

TEST_F(Window, ASatelliteThatIsNotTheFilesIsWarnedOf) {
  std::string sdx;
  for (int slot = 1; slot <= List().TransponderCount; ++slot) {
    const Routines::TransponderRecord& record = List().Transponder(slot).record;
    if (Get(record, Routines::TransponderField::Satellite) != 1) continue;
    const bool horizontal = Get(record, Routines::TransponderField::Horizontal) != 0;
    sdx += "SATCODX103ASTRA 19E         TMPG20" + std::to_string(FrequencyMHz(record)) + "000" +
           (horizontal ? 'H' : 'V') + "Nuovo   0192___     ______2970020051006000500007000001\r\n";
  }
  driver_->ExpectFile("Selezionare il file SDX di input", PathText(folder_.Write("prova.sdx", sdx)));
  driver_->ExpectDialog("Opzioni importazione SDX", [](QDialog& box) {
    const auto warning = [&box](int satellite) {
      box.findChild<QComboBox*>("Combo1")->setCurrentIndex(satellite);
      return box.findChild<QLabel*>("AvvisoSatellite")->text();
    };
    EXPECT_EQ(warning(0), "⚠ Nella lista i transponder del file sono in SAT B, non in SAT A");
    EXPECT_EQ(warning(1), "");
    box.reject();
  });
  ASSERT_TRUE(driver_->Choose("SDX"));
}

TEST_F(SatcodxWindow, AllItsRowsGoWhereTheUserSaysAsFarAsThereIsRoom) {
  ImportAll([](QDialog& box, const QString& start) {
    const auto* outcome = box.findChild<QLabel*>("EsitoImportazione");
    EXPECT_EQ(start, "13") << "behind the last channel";
    EXPECT_EQ(outcome->text(), "3 posti liberi per 3 canali; 1 riga fuori banda");
    box.findChild<QRadioButton*>("DallInizio")->click();
    EXPECT_EQ(outcome->text(), "sovrascrive 3 canali, 2 voci di preferiti; 1 riga fuori banda");
  });
  ASSERT_TRUE(driver_->Choose("ImportaTuttoSDX"));
  EXPECT_EQ(
      Said(),
      "Inseriti 3 canali dal 1: Nuovo 1, Nuovo 2, Nuovo 3; al posto di 3 canali, 2 voci di preferiti; 1 "
      "riga fuori banda");
  EXPECT_EQ(Names(1, 5), "Nuovo 1,Nuovo 2,Nuovo 3,,Cinque") << "nothing moves";
  ImportAll([](QDialog& box, const QString&) { box.findChild<QLineEdit*>("Partenza")->setText("998"); });
  Tells("ImportaTuttoSDX", "1 canale SDX non ha trovato posto");
  EXPECT_EQ(Names(998, 999), "Nuovo 1,Nuovo 2");
  EXPECT_EQ(Pane().Selected().front(), 3) << "for another place";
  ImportAll([](QDialog& box, const QString& start) {
    const auto* confirm = box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    EXPECT_TRUE(start.isEmpty() && !confirm->isEnabled()) << "nothing is free behind the last channel";
    box.findChild<QRadioButton*>("NeiPostiVuoti")->click();
    EXPECT_TRUE(confirm->isEnabled());
  });
  ASSERT_TRUE(driver_->Choose("ImportaTuttoSDX"));
  EXPECT_EQ(Said(), "Inseriti 3 canali nei posti vuoti: Nuovo 1, Nuovo 2, Nuovo 3; 1 riga fuori banda");
  EXPECT_EQ(Names(4, 4) + Names(13, 14), "Nuovo 1Nuovo 2,Nuovo 3");
}

TEST_F(SatcodxWindow, ChannelsThatDropOffStayInSight) {
  ImportAll([](QDialog& box, const QString&) { box.findChild<QLineEdit*>("Partenza")->setText("997"); });
  ASSERT_TRUE(driver_->Choose("ImportaTuttoSDX"));
  Pane().SelectRow(1);
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 1", "999");
  driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", true);
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  EXPECT_EQ(Said(), "Inserito Nuovo 1 al 999; perso in fondo: 0999 Nuovo 3");
  ASSERT_TRUE(driver_->Choose("InvertiSatelliti"));
  EXPECT_EQ(driver_->TextOf("RisultatoConPerdite"), "⚠ Inserito Nuovo 1 al 999; perso in fondo: 0999 Nuovo 3")
      << "beside what is said later";
  Click("QualiCanali");
  auto* lost = window_->findChild<QPlainTextEdit*>("RigheCanaliPersi");
  ASSERT_NE(lost, nullptr);
  EXPECT_EQ(lost->toPlainText(), "0999 Nuovo 3\n");
  lost->window()->close();
  for (const bool stays : {true, false}) {
    ASSERT_TRUE(driver_->Choose("Annulla"));
    EXPECT_EQ(window_->findChild<QWidget*>("RisultatoConPerdite")->isVisible(), stays)
        << "until its own step";
  }
}

}  // namespace Ui
