#include "ui/session.h"

namespace Ui {

QString Session::Losses(const std::vector<Edit::LostFavourite>& lost) const {
  const std::string text = Edit::LostFavouritesText(document.Tables().FavouritesBlock, lost);
  return text.empty() ? QString() : ", " + Text(text);
}

bool Session::NeedsFlash() {
  if (document.Tables().Loaded) return true;
  dialogs.Message("Si deve caricare prima una FLASH di input", {});
  return false;
}

std::optional<Routines::Settings> Session::NeedsSettings() {
  const Routines::Settings chosen = settings.Chosen();
  if (const auto complete = Routines::CheckSettings(chosen); !complete) {
    Message(complete.error());
    settings.PointOutMissing();
    return std::nullopt;
  }
  return chosen;
}

std::optional<Support::SymbolRates> Session::LoadSymbolRates() {
  const Routines::Settings chosen = settings.Chosen();
  const auto place = chosen.srDef ? chosen.Place() : Routines::Sr22000::Come2;
  auto rates = Support::CaricaTabelleSR(programFolder, place);
  if (!rates) {
    Message(rates.error());
    endProgram();
    return std::nullopt;
  }
  if (!rates->missing.empty()) {
    if (!srIniMissingTold) dialogs.Message(Text(rates->missing), {});
    srIniMissingTold = true;
    status.ShowResult(Text(rates->missing));
  }
  return *rates;
}

}  // namespace Ui
