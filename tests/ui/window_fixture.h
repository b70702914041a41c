// The real window on the demo list, driven by its menus, controls and boxes.
#pragma once

#include "demo_flash.h"
#include "support/test_folder.h"
#include "ui/griglia.h"
#include "ui/qt_dialogs.h"
#include "window_driver.h"

#include <QAction>

#include <gtest/gtest.h>

#include <filesystem>

namespace Ui {

using Tests::Contents;

inline const QString InputDialog = "Selezionare la flash di input";
inline const QString OutputDialog = "Selezionare la flash di output";
inline const QString NoFlash = "Si deve caricare prima una FLASH di input";

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

  void Start() {
    driver_.reset();
    window_.reset();  // a program ends before it is started again
    window_ = std::make_unique<CopiaTCSTPT>(folder_.Path());
    driver_ = std::make_unique<Demo::WindowDriver>(*window_);
    window_->show();
  }

  void Open(const std::string& path, const char* capacity = "QuantiCanali_2") {
    ASSERT_TRUE(driver_->Pick(capacity));
    if (List().Loaded)
      driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
    driver_->ExpectFile(InputDialog, PathText(path));
    ASSERT_TRUE(driver_->Choose("ApriFlashInput"));
  }

  void OpenDemo() {
    Start();
    ASSERT_TRUE(window_->Start());
    Open(flash_);
    ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
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
  std::unique_ptr<CopiaTCSTPT> window_;
  std::unique_ptr<Demo::WindowDriver> driver_;
};

}  // namespace Ui
