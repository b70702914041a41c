// The real window on the demo list, driven by its menus, controls and boxes.
#pragma once

#include "base/code_page.h"
#include "demo_flash.h"
#include "image_builder.h"
#include "model/favourites.h"
#include "model/flash_image.h"
#include "support/sr_ini.h"
#include "support/test_folder.h"
#include "ui/kit/qt_dialogs.h"
#include "ui/kit/text.h"
#include "ui/list/document.h"
#include "ui/list/grid.h"
#include "window_driver.h"

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <filesystem>

namespace Ui {

using Tests::Contents;

inline const QString InputDialog = "Selezionare la flash di input";
inline const QString OutputDialog = "Selezionare la flash di output";
inline const QString HowToPaste =
    "Sposto o sovrascrivo i canali a partire dal %1 per %2 Canali?\nRispondere SI per spostare NO per "
    "sovrascrivere";
inline const QString NoFlash = "Si deve caricare prima una FLASH di input";

// A list of eleven channels, SIDs 101 to 112, four on each transponder: slot 4 is empty, 8 and 9 are radio, 10 has data,
// 11 has the name of 2, 12 is not active. Favourites
// list 1, "Cinema", has 2, 3 and 5, list 2, "Sport", has 10.
inline Base::Bytes SmallFlash() {
  const char* names[] = {"Uno",   "Due",        "Tre",        "",     "Cinque", "Città HD",
                         "Sette", "Radio Otto", "Radio Nove", "Dati", "due",    "Dodici"};
  std::vector<Routines::ChannelRecord> channels;
  for (int slot = 1; slot <= 12; ++slot) {
    const int vpid = slot >= 8 && slot <= 10 ? 0 : 500 + slot;
    channels.push_back(Samples::MakeChannel(*Base::FromUtf8(names[slot - 1]), (slot + 3) / 4, 100 + slot,
                                            vpid, slot == 10 ? 0 : 600 + slot, slot == 12 ? 0x20 : 0x04));
    if (slot == 4) channels.back() = {};
  }
  channels.resize(60);
  std::vector<Routines::TransponderRecord> transponders = {
      Samples::MakeTransponder(11766, false, 0, 3, 2, 1200, 318),
      Samples::MakeTransponder(12092, true, 0, 3, 2, 5400, 318),
      Samples::MakeTransponder(10719, false, 1, 3, 2, 1100, 1)};
  transponders.resize(10);
  Base::Bytes favourites(Routines::NormalFavouritesSize);
  for (const auto& [list, name, slots] :
       {std::tuple{0U, "Cinema", std::vector{2, 3, 5}}, {1U, "Sport", {10}}}) {
    Routines::SetFavouriteEntries(favourites, list, slots);
    std::copy_n(name, std::strlen(name),
                favourites.begin() +
                    static_cast<std::ptrdiff_t>(Routines::FavouriteNameOffset(favourites.size(), list)));
  }
  return Samples::ImageBuilder(1)
      .PutRecords(2, 0, 16, "TCS", std::vector(channels.begin(), channels.begin() + 8))
      .Put(2, 1, 16 + Routines::EntryHeaderSize + 8 * Routines::ChannelRecord::Size, "EPG", {})
      .PutRecords(4, 0, 16, "TCS", std::vector(channels.begin() + 8, channels.end()))
      .PutRecords(3, 0, 16, "TPT", transponders)
      .PutFavourites(5, 0, 16, favourites, 50)
      .Image();
}

class Window : public testing::Test {
 protected:
  Window() {
    for (const char* name : {"Bouquets.txt", "SR.INI"}) {
      std::filesystem::copy(std::string(SAMPLES_FOLDER) + "/" + name, folder_.Path(name));
    }
    const auto table = Support::CaricaTabelleSR(folder_.Path(), Routines::Sr22000::Come2);
    flash_ = folder_.Write("demo.dat", Samples::DemoFlash(table->table));
  }

  ~Window() override { EXPECT_EQ(driver_->Failures().join("\n").toStdString(), ""); }

  void Start(const std::string& programFolder) {
    driver_.reset();
    window_.reset();  // a program ends before it is started again
    window_ = std::make_unique<MainWindow>(programFolder);
    driver_ = std::make_unique<Demo::WindowDriver>(*window_);
    window_->show();
  }
  void Start() { Start(folder_.Path()); }

  void ChooseFile(const char* command, const QString& title, const std::string& path) {
    driver_->ExpectFile(title, PathText(path));
    ASSERT_TRUE(driver_->Choose(command));
  }

  void Open(const std::string& path, const char* capacity = "QuantiCanali_2") {
    ASSERT_TRUE(driver_->Pick(capacity));
    if (List().Loaded)
      driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
    ChooseFile("ApriFlashInput", InputDialog, path);
  }

  void SetUp() override { OpenDemo(); }

  void StartEmpty() {
    Start();
    ASSERT_TRUE(window_->Start());
  }

  void OpenDemo() {
    StartEmpty();
    Open(flash_);
    ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  }

  // In the place of the demo list.
  void OpenSmall() {
    flash_ = folder_.Write("lista.dat", SmallFlash());
    StartEmpty();
    Open(flash_, "QuantiCanali_0");
    ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  }

  // The names in these rows of the grid.
  [[nodiscard]] std::string Names(int from, int to) const {
    QStringList names;
    for (int row = from; row <= to; ++row) names += driver_->Cell(row, 1);
    return names.join(',').toStdString();
  }

  // Of menus and toolbar alike, answered with a message.
  void Tells(const char* command, const QString& message, const QString& title = "Trovalis") {
    driver_->ExpectMessage(message, title);
    const bool button = std::string_view(command).starts_with("Toolbar1_");
    ASSERT_TRUE(button ? driver_->Press(command) : driver_->Choose(command)) << command;
  }

  static void Click(QAbstractItemView& view, const QModelIndex& index, bool twice = false) {
    const QPoint place = view.visualRect(index).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    if (twice) QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
  }

  void Click(const char* button) {
    QTest::mouseClick(window_->findChild<QPushButton*>(button), Qt::LeftButton);
  }

  void Delete(int from, int to) {
    driver_->SelectRows(from, to);
    ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
  }

  // In front of the channel that is there.
  void Paste(int at, int channels) {
    driver_->ExpectLine("Inserire il numero di canale da cui inserire", QString::number(at));
    driver_->ExpectQuestion(HowToPaste.arg(at).arg(channels), true);
    ASSERT_TRUE(driver_->Press("Toolbar1_Paste"));
  }

  void SaveAs(const std::string& path, int channels) {
    driver_->ExpectFile(OutputDialog, PathText(path));
    Summary(*driver_, 2, channels, true);
    ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  }

  void Export(const char* command, const std::string& path) {
    ChooseFile(command, "Selezionare il file di output", path);
  }

  // The opened flash or another, as the file to be written; the box that asks whether to write over it says yes.
  void ExpectOpenedFlashChosen(const QString& title, const std::string& other = {}) {
    driver_->ExpectFile(title, PathText(other.empty() ? flash_ : other));
    driver_->ExpectDialog(
        title, [](QDialog& box) { dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click(); });
  }

  [[nodiscard]] const Routines::State& List() const { return window_->List().Tables(); }
  [[nodiscard]] QAction& Action(const char* name) const { return *window_->findChild<QAction*>(name); }
  [[nodiscard]] std::string Said() const { return driver_->TextOf("UltimoRisultato").toStdString(); }

  static void Summary(Demo::WindowDriver& driver, int sections, int channels, bool favourites) {
    driver.ExpectMessage(QString("%1 Sezioni TCS per %2 Canali effettivi\nSezioni Preferiti: %3")
                             .arg(sections)
                             .arg(channels)
                             .arg(favourites ? "scritta" : "non scritta"));
  }

  Tests::TestFolder folder_;
  std::string flash_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<Demo::WindowDriver> driver_;
};

class SmallWindow : public Window {
 protected:
  void SetUp() override { OpenSmall(); }
};

}  // namespace Ui
