// One session of the real window, from the first choice to a saved list and unsaved work that comes back. Every step is
// printed with what came of it and leaves a picture of the screen; the guide's pictures are taken on the way.
#pragma once

#include "ui/list/document.h"
#include "window_driver.h"

#include <QString>

#include <functional>
#include <memory>

class QPixmap;
class QWidget;

namespace Demo {

class Session {
 public:
  // `flash` is the demo flash with its SatcoDX list beside it, `support` the folder of the support files, `output` one
  // that is emptied first and gets everything.
  Session(const QString& flash, const QString& support, const QString& output);

  // 0 where every step came out as it should, else 1.
  int Run();

 private:
  // session.cpp
  [[nodiscard]] QString ProgramFolder() const { return output_ + "/programma"; }
  [[nodiscard]] const Routines::State& List() const { return window_->List().Tables(); }
  bool Start();
  void CheckBoxes();
  void Step(const char* name, bool good, const QString& seen);
  void Picture(const QString& name);
  void PictureBoxes(const QString& name);
  void KeepForGuide(const char* name, const QPixmap& picture) const;
  void Guide(const char* name);
  void GuideBox(const char* name, QWidget& box);
  void GuideOver(const char* name, QWidget& box);
  void Undo(int steps = 1);
  [[nodiscard]] QString Said() const { return driver_->TextOf("UltimoRisultato"); }

  // look_scenes.cpp
  void ChooseSettings();
  void OpenFlash();
  void LookAtTransponders();
  void LookAtOverview();
  void BrowseTrees();
  void TurnDark();
  void SortView();

  // edit_scenes.cpp
  void MoveRows();
  void WorkOnFound();
  void EditCells();
  void RenameMany();
  void SetMany();
  void SortChannels();
  void GroupRadio();
  void ArrangeFavourites();
  QWidget* CellEditor();
  void EditCell(int row, int column, const QString& typed);

  // review_scenes.cpp
  void CompareWithDisk();
  void CompareWithSpreadsheet();
  void OrderAsFavourites();
  void CheckTransponders();
  void RemoveDuplicates();

  // source_scenes.cpp
  void TakeFromSdx();
  void ShowAdditionalFlash();
  void ImportForeignList();
  void TakeFromListOfToday();
  [[nodiscard]] QString WriteListOfToday() const;

  // file_scenes.cpp
  void PrintList();
  void ShowAbout();
  void Convert();
  void SaveCopy();
  void SaveNewCopy();
  void OpenCopyAgain();
  void EndWithUnsavedWork();

  QString flash_;
  QString output_;
  QString copy_;
  QString foreign_;
  std::unique_ptr<Ui::MainWindow> window_;
  std::unique_ptr<WindowDriver> driver_;
  int steps_ = 0;
  int failed_ = 0;
  int pictures_ = 0;
};

}  // namespace Demo
