// Ways to open a file beside its command: recent files and dropped ones.
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

namespace Ui {

class OpeningFiles : public SmallWindow {
 protected:
  void Drop(const QList<QUrl>& files) {
    QMimeData data;
    data.setUrls(files);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &drop);
    QTest::qWait(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return driver_->Idle(); }, 5000));
  }
};

TEST_F(OpeningFiles, TheLastEightAreOfferedWithTheirOptionsAndVanishedOnesGo) {
  std::vector<std::string> copies;
  for (int i = 0; i < 9; ++i)
    copies.push_back(folder_.Write("a&b, " + std::to_string(i) + ".dat", Contents(flash_)));
  StartEmpty();
  for (const std::string& copy : copies) {
    Open(copy, "QuantiCanali_1");
    if (copy == copies[2]) {
      ASSERT_TRUE(driver_->Pick("FlashScrittura_2"));
    }
  }
  ASSERT_TRUE(driver_->Pick("FlashScrittura_0"));
  StartEmpty();
  EXPECT_TRUE(Action("FileRecenti_8").isVisible());
  EXPECT_EQ(Action("FileRecenti_8").statusTip(), PathText(copies[1]));
  EXPECT_TRUE(Action("FileRecenti_1").text().endsWith("a&&b, 8.dat"));
  Tells("FileRecenti_8", "Si deve selezionare il numero di canali da visualizzare");
  ASSERT_TRUE(driver_->Pick("QuantiCanali_2"));
  ASSERT_TRUE(driver_->Choose("FileRecenti_8"));
  EXPECT_EQ(List().InputFlash, copies[1]);
  EXPECT_EQ(Action("FileRecenti_1").statusTip(), PathText(copies[1]));
  const auto chosen = [this](const char* option) {
    return window_->findChild<QRadioButton*>(option)->isChecked();
  };
  StartEmpty();
  ASSERT_TRUE(driver_->Choose("FileRecenti_2"));
  EXPECT_EQ(List().ChannelCount, 2000);
  EXPECT_TRUE(chosen("QuantiCanali_1") && chosen("FlashScrittura_2"))
      << "not what was chosen for the next one";
  ASSERT_TRUE(driver_->Pick("QuantiCanali_0"));
  const QString append = "Si desidera accodare la nuova Flash a quella già caricata?";
  folder_.Write("a&b, 7.dat", Base::Bytes(3, 'x'));
  driver_->ExpectQuestion(append, false);
  Tells("FileRecenti_3", "Dimensione FLASH selezionata errata 3", "Errore FLASH di Input");
  driver_->ExpectQuestion(append, true);
  driver_->ExpectQuestion("La flash che si sta accodando è dello stesso dipo di quella già caricata?", true);
  ASSERT_TRUE(driver_->Choose("FileRecenti_1"));
  EXPECT_TRUE(chosen("QuantiCanali_0")) << "an append takes what is chosen";
  std::filesystem::remove(copies[8]);
  Tells("FileRecenti_1", "Flash non trovata: " + PathText(copies[8]) + "\nViene tolta dai file recenti");
  EXPECT_FALSE(Action("FileRecenti_8").isVisible());
}

TEST_F(OpeningFiles, TheOneGivenAtTheStartWaitsForTheNumberOfChannels) {
  const std::string other = folder_.Write("altra.dat", Contents(flash_));
  StartEmpty();
  window_->OpenWhenChosen(other);
  EXPECT_FALSE(List().Loaded);
  ASSERT_TRUE(driver_->Pick("QuantiCanali_0"));
  EXPECT_EQ(List().InputFlash, other);
  StartEmpty();
  window_->OpenWhenChosen(other);
  ASSERT_TRUE(driver_->Choose("FileRecenti_2"));
  EXPECT_EQ(List().InputFlash, flash_) << "another one is wanted now";
  StartEmpty();
  driver_->ExpectMessage("Impossibile leggere manca.dat: il file o la cartella non esiste",
                         "Errore FLASH di Input");
  window_->OpenWhenChosen(folder_.Path("manca.dat"));
  EXPECT_TRUE(driver_->Idle()) << "told at once";
}

TEST_F(OpeningFiles, DroppedOnesOpenLikeTheirCommandsOrItIsSaidWhyNot) {
  const std::string text = folder_.Path("lista.TXT");
  Export("FormatoTesto", text);
  const std::string raw = folder_.Path("lista.fls");
  Export("FormatoFLASH", raw);
  std::filesystem::create_directory(folder_.Path("cartella.dat"));
  const std::string bouquet =
      folder_.Write("preferiti.txt", "#NAME Miei\n#SERVICE 1:0:1:1:2:3:820000:0:0:0:\n");
  const auto file = [](const std::string& path) { return QUrl::fromLocalFile(PathText(path)); };
  const std::pair<QList<QUrl>, const char*> drops[] = {
      {{file(text)}, "lista.TXT: importati 11 canali, 1 codifica cambiata"},
      {{file(raw)}, "lista.fls: importati 11 canali"},
      {{file(flash_)},
       "Non disponibile dopo l'importazione da formato FLASH, fino ad Annulla o a un salvataggio completo"},
      {{file(folder_.Path("SR.INI"))},
       "Non aperto: SR.INI non è un file .dat, .sdx, .txt o .fls, né una lista VDR, DVBv5 o Enigma2"},
      {{file(folder_.Path("cartella.dat"))}, "Non aperto: cartella.dat è una cartella"},
      {{QUrl("http://127.0.0.1/lista.dat")}, "Non aperto: lista.dat non è su questo computer"}};
  for (const auto& [files, told] : drops) {
    Drop(files);
    EXPECT_EQ(Said(), told);
    EXPECT_EQ(window_->findChild<QMenu*>("FileRecenti")->isEnabled(), !List().FromFls) << told;
  }
  driver_->ExpectMessage(
      "preferiti.txt (Enigma2 userbouquet) contiene solo l'ordine dei canali, nessun dato dei canali: lo usa "
      "Ordina come un elenco…");
  Drop({file(bouquet)});
  EXPECT_TRUE(driver_->Idle());
}

TEST_F(OpeningFiles, SeveralDroppedOnesMakeAListAndAPaneAndTheOthersAreOffered) {
  const auto file = [this](const char* name, const Base::Bytes& bytes) {
    return QUrl::fromLocalFile(PathText(folder_.Write(name, bytes)));
  };
  const std::string conf = "Uno;A:11766:hC23:S13.0E:27500:501=2:601:0:0:101:318:1200:0\n";
  const QUrl rows = file("channels.conf", Base::Bytes(conf.begin(), conf.end()));
  const QUrl odd = file("odd.xyz", {});
  const QUrl second = file("seconda.dat", Contents(flash_));
  const QUrl first = file("prima.dat", Contents(flash_));
  driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
  driver_->ExpectQuestion("Si desidera aprire anche seconda.dat?", false);
  driver_->ExpectDialog("Da lista VDR, DVBv5 o Enigma2", [](QDialog& options) { options.accept(); });
  driver_->ExpectMessage(
      "Non aperto: odd.xyz non è un file .dat, .sdx, .txt o .fls, né una lista VDR, DVBv5 o Enigma2");
  Drop({rows, odd, first, second});
  EXPECT_EQ(List().InputFlash, folder_.Path("prima.dat"));
  EXPECT_TRUE(window_->findChild<QWidget*>("GrigliaSDX")->isVisible());
}

}  // namespace Ui
