// What every command of the window works with, for as long as the program runs.
#pragma once

#include "edit/recovery.h"
#include "formats/satcodx.h"
#include "model/flash_file.h"
#include "support/bouquets_txt.h"
#include "support/pos_ini.h"
#include "support/sr_ini.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"
#include "ui/list/document.h"
#include "ui/list/list_view.h"
#include "ui/session/settings_panel.h"
#include "ui/session/status_line.h"

#include <functional>
#include <optional>

namespace Ui {

using Support::FolderKind;

// No list of channels that anybody has is larger, in bytes: a SatcoDX list of a million lines is some 130 MB.
inline constexpr std::size_t LargestList = 256U << 20U;

// What Patiently() does with a file, to be read on its box.
QString ReadingOf(const std::string& path);
QString WritingOf(const std::string& path);

// Routines::ReadFlash, which may be given up.
Base::Result<Base::Bytes> ReadFlashPatiently(const std::string& path, const char* title);

// Base::ReplaceFile for a file that the user has chosen; it can be given up until its last step.
Base::Outcome ReplaceFilePatiently(const std::string& path, Base::ByteView bytes);

struct Session {
  std::string programFolder;
  Support::BouquetDefinitions bouquets;
  Routines::Backups backups;
  Dialogs& dialogs;
  Document& document;
  SettingsPanel& settings;
  ListView& view;
  StatusLine& status;
  std::function<void()> endProgram;
  const Edit::Clipboard& clipboard = document.Copied();
  Formats::SdxTable sdx = {};
  QString sdxName = {};  // of its file, or of the satellite that this names
  bool srIniMissingTold = false;
  // What commands are enabled with, beside the list itself; ShowList() tells of a change.
  bool sdxShown = false;          // the pane of the list on the right
  bool sdxShownSinceFls = false;  // since the list came from a file of raw records
  bool favouritesAtHand = false;  // the receiver chosen, or the list imported, has favourites
  std::vector<std::function<void()>> onChange = {};
  // Asked before another list takes the place of the loaded one; false where the user would rather keep it.
  std::function<bool()> mayReplaceList = [] { return true; };

  // Whatever changed the list or the clipboard ends here: the status bar's figures, and who else wants to know.
  void ShowList() {
    status.ShowList(document.Tables(), document.Unsaved(), clipboard.Count());
    for (const auto& tell : onChange) tell();
  }

  // In a box; what the user has given up is told in the result line.
  void Message(const Base::Error& error);

  // ", tolti 3 preferiti (Cinema 2, Sport 1)" to stand behind a result; empty where nothing was lost.
  [[nodiscard]] QString Losses(const std::vector<Edit::LostFavourite>& lost) const;

  // Window geometry, recent files and the like.
  [[nodiscard]] QString SettingsFile() const { return PathText(programFolder + "/trovalis.ini"); }

  // What is being typed in a cell, or as a name, counts from now on.
  void FinishTyping();

  // The selected slots; says so where there are none.
  Edit::Slots SelectedChannels();

  // Shows a channel of the list and tells which it is.
  void GoToChannel(int slot);
  void TellChannel(int slot) const;

  // The file that the user chooses, asked for in the folder remembered for its kind; empty where the user gives up.
  [[nodiscard]] std::string AskOpen(const QString& title, const QString& filters, FolderKind kind) const;
  // The folder that such a question begins in. Where no folder for outputs has been chosen yet (the program's own is
  // none: earlier versions began with it) it is the one of the flash that was opened.
  [[nodiscard]] QString FolderFor(FolderKind kind) const;
  // Does so for a file to write, which the flash of the list must not be: the status bar says that and, in `refusal`,
  // what has not been done.
  [[nodiscard]] std::string AskSave(const QString& title, const QString& filters, FolderKind kind,
                                    const char* refusal) const;
  // What a chosen file holds, in no more than `largest` bytes; where it cannot be read a box says why.
  [[nodiscard]] std::optional<Base::Bytes> Read(const std::string& path, std::size_t largest = LargestList);
  // Makes the folder of a chosen file the one for its kind.
  void RememberFolder(FolderKind kind, const std::string& path) const;

  // "0012 Rai Uno", a line for each slot.
  [[nodiscard]] QString ChannelLines(const std::vector<int>& slots) const;

  // Why nothing but a save may write a file: it is the opened flash, the one of the output, or as large as any
  // receiver's. Null where it may be written.
  [[nodiscard]] const char* WhyOnlySaved(const std::string& path) const;

  // The symbol rates of SR.INI as `SRDef` now places them. Where the file is missing it says so, in a box
  // once and in the status bar after that. A malformed file ends the program: nothing comes back then.
  std::optional<Support::SymbolRates> LoadSymbolRates() { return LoadSymbolRates(settings.Chosen()); }
  std::optional<Support::SymbolRates> LoadSymbolRates(const Routines::Settings& chosen);

  // The same for a command that cannot go on without the file: each time it is missing there is the box, and nothing
  // comes back.
  std::optional<Support::SymbolRates> NeedsSymbolRates();
};

}  // namespace Ui
