// What every command of the window works with, for as long as the program runs.
#pragma once

#include "edit/recovery.h"
#include "formats/satcodx.h"
#include "model/flash_file.h"
#include "support/bouquets_txt.h"
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

// Why nothing but a save goes into a file that IsFlashOfList knows.
inline constexpr const char* FlashOfListChosen = "il file scelto è la flash aperta o quella di output";

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
  Edit::Clipboard clipboard = {};
  Formats::SdxTable sdx = {};
  bool srIniMissingTold = false;
  // What commands are enabled with, beside the list itself; ShowList() tells of a change.
  bool sdxShown = false;          // the pane of the list on the right
  bool sdxShownSinceFls = false;  // since the list came from a file of raw records
  bool favouritesAtHand = false;  // the receiver chosen, or the list imported, has favourites
  std::vector<std::function<void()>> onChange = {};

  // Whatever changed the list or the clipboard ends here: the status bar's figures, and who else wants to know.
  void ShowList() {
    status.ShowList(document.Tables(), document.Unsaved(), clipboard.Count());
    for (const auto& tell : onChange) tell();
  }

  void Message(const Base::Error& error) { dialogs.Message(Text(error.message), Text(error.title)); }

  // ", tolti 3 preferiti (Cinema 2, Sport 1)" to stand behind a result; empty where nothing was lost.
  [[nodiscard]] QString Losses(const std::vector<Edit::LostFavourite>& lost) const;

  // Window geometry, recent files and the like.
  [[nodiscard]] QString SettingsFile() const { return PathText(programFolder + "/trovalis.ini"); }

  // Whether a file about to be written is the opened flash or the one of the output, which only a save may write.
  [[nodiscard]] bool IsFlashOfList(const std::string& path) const;

  // The symbol rates of SR.INI as `SRDef` now places them. Where the file is missing it says so, in a box
  // once and in the status bar after that. A malformed file ends the program: nothing comes back then.
  std::optional<Support::SymbolRates> LoadSymbolRates();
};

}  // namespace Ui
