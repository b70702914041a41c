// Changing many channels at one go, in the real window.
#include "ui/window_fixture.h"

namespace Ui {
namespace {

class Bulk : public Window {
 protected:
  void SetUp() override { OpenSmall(); }

  static void ClickIn(QWidget& dialog, const char* button) {
    dialog.findChild<QAbstractButton*>(button)->click();
  }
};

TEST_F(Bulk, NamesChangeByKeptRulesAsThePreviewShowsThem) {
  driver_->SelectRows(1, 3);
  driver_->ExpectDialog("Cambia nomi", [](QDialog& dialog) {
    dialog.findChild<QComboBox*>("TipoRegola")->setCurrentText("Metti dietro");
    dialog.findChild<QLineEdit*>("TestoRegola")->setText("Italia Uno 12");
    const auto* names = dialog.findChild<QTableView*>("NomiNuovi")->model();
    ASSERT_EQ(names->rowCount(), 3);
    EXPECT_FALSE(names->index(0, 0).data(Qt::ToolTipRole).toString().isEmpty()) << "too long";
    EXPECT_FALSE(dialog.findChild<QAbstractButton*>("Command1")->isEnabled());
    dialog.findChild<QLineEdit*>("TestoRegola")->setText("HD");
    EXPECT_EQ(names->index(1, 2).data().toString(), "Due HD");
    EXPECT_EQ(names->index(1, 3).data().toString(), "6 di 16");
    dialog.findChild<QTableView*>("NomiNuovi")
        ->model()
        ->setData(names->index(2, 0), Qt::Unchecked, Qt::CheckStateRole);
    dialog.findChild<QComboBox*>("RegoleTenute")->setCurrentText("alta/definizione");
    ClickIn(dialog, "TieniRegole");
    dialog.findChild<QComboBox*>("RegoleTenute")->setFocus();
    QTest::keyClick(dialog.findChild<QComboBox*>("RegoleTenute"), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "Enter there is about the rules";
    dialog.accept();
  });
  ASSERT_TRUE(driver_->Choose("CambiaNomi"));
  EXPECT_EQ(Said(), "Cambiati 2 nomi, nelle righe selezionate");
  EXPECT_EQ(driver_->Cell(2, 1), "Due HD");
  EXPECT_EQ(driver_->Cell(3, 1), "Tre") << "left out";

  window_->findChild<QLineEdit*>("Filtro")->setText("tre");
  driver_->SelectRows(1, 1);
  driver_->ExpectDialog("Cambia nomi", [](QDialog& dialog) {
    auto* kept = dialog.findChild<QComboBox*>("RegoleTenute");
    ASSERT_EQ(kept->itemText(0), "alta/definizione");
    Q_EMIT kept->textActivated("alta/definizione");
    ClickIn(dialog, "AmbitoTrovati");
    dialog.accept();
  });
  ASSERT_TRUE(driver_->Choose("CambiaNomi"));
  EXPECT_EQ(Said(), "Rinominato Tre in Tre HD");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(driver_->Cell(3, 1), "Tre");
}

TEST_F(Bulk, FieldsAreSetAsThePreviewShowsThem) {
  driver_->SelectRows(1, 5);
  driver_->ExpectDialog("Imposta", [](QDialog& dialog) {
    const auto* lines = dialog.findChild<QTableView*>("ValoriNuovi")->model();
    const auto* outcome = dialog.findChild<QLabel*>("Esito");
    EXPECT_EQ(lines->rowCount(), 0);
    EXPECT_FALSE(dialog.findChild<QAbstractButton*>("Command1")->isEnabled());
    dialog.findChild<QComboBox*>("NuovaCodifica")->setCurrentText("2");
    EXPECT_TRUE(outcome->text().startsWith("Servono due cifre")) << outcome->text().toStdString();
    dialog.findChild<QComboBox*>("NuovaCodifica")->setCurrentText("24 Seca");
    dialog.findChild<QSpinBox*>("SommaSID")->setValue(-102);
    EXPECT_EQ(lines->rowCount(), 4);
    EXPECT_EQ(lines->index(0, 4).data().toString(), "SID sarebbe -1, fuori da 0-65535");
    EXPECT_EQ(lines->index(1, 2).data().toString(), "Codifica 04, SID 102");
    EXPECT_EQ(lines->index(1, 3).data().toString(), "Codifica 24, SID 0");
    EXPECT_EQ(outcome->text(),
              "Da cambiare: 3 canali; Codifica 04 → 24 (3); in rosso quelli che non possono cambiare: 1");
    dialog.accept();
  });
  ASSERT_TRUE(driver_->Choose("ImpostaCampi"));
  EXPECT_EQ(Said(), "Modificati 3 canali, Codifica 24 Seca, SID -102: Due, Tre, Cinque");
  EXPECT_EQ(driver_->Cell(5, 3) + " " + driver_->Cell(5, 9), "3 24");
  EXPECT_EQ(driver_->Cell(1, 3), "101");
}

TEST_F(Bulk, ASortIsSeenBeforeItHappensAndBringsTheFavourites) {
  driver_->ExpectDialog("Ordina Canali", [](QDialog& dialog) {
    dialog.findChild<QComboBox*>("GruppiAMultipli")->setCurrentText("a un multiplo di 100");
    EXPECT_FALSE(dialog.findChild<QAbstractButton*>("Command1")->isEnabled()) << "more groups than hundreds";
    dialog.findChild<QComboBox*>("GruppiAMultipli")->setCurrentIndex(0);
    dialog.findChild<QSpinBox*>("OrdinaDa")->setValue(2);
    const auto* list = dialog.findChild<QTableView*>("NuovoOrdine")->model();
    EXPECT_EQ(list->index(0, 1).data().toString(), "Cinque");
    EXPECT_EQ(list->index(0, 2).data().toString(), "5");
    dialog.accept();
  });
  ASSERT_TRUE(driver_->Choose("OrdinaCanali"));
  EXPECT_EQ(driver_->Cell(1, 1), "Uno");
  EXPECT_EQ(driver_->Cell(2, 1), "Cinque");
  EXPECT_EQ(driver_->Cell(6, 1), "Due") << "as the one that was before the other";
  EXPECT_EQ(Routines::FavouriteEntriesOf(List().FavouritesBlock, 0), (std::vector{6, 11, 2}));
}

}  // namespace
}  // namespace Ui
