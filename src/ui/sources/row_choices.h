// What every import of services asks: which of them are wanted, and which satellite is theirs.
#pragma once

#include "formats/satcodx.h"
#include "model/bouquets.h"

#include <array>
#include <functional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QListWidget;
class QWidget;

namespace Ui {

struct Session;

inline constexpr const char* NoSatelliteChosen = "Si deve specificare il codice da assegnare al satellite";

// The satellites that rows can be assigned to, by name and letter, none of them chosen; and the one chosen, 0 for A.
void FillSatellites(QComboBox& box, const std::vector<Routines::Satellite>& satellites);
int SatelliteIn(const QComboBox& box);

// The services that the two switches leave out: those of Filtri.txt, and those of the loaded list.
struct RowFilters {
  std::set<std::pair<int, int>> filtered;
  std::set<std::array<int, 3>> known;
};
RowFilters FiltersOf(const Session& session);

// The controls for it in a dialog.
class RowChoices {
 public:
  // `codes` are those of the entries that the caller puts into the list, in this order.
  RowChoices(std::vector<std::string> codes, RowFilters filters, QWidget& dialog);

  [[nodiscard]] QListWidget& List() const { return *list_; }
  [[nodiscard]] const std::vector<std::string>& Codes() const { return codes_; }
  // Behind the codes: the entry that stands for all of them.
  void AddAllCodes();
  void AddTo(QFormLayout& form);
  void OnChange(const std::function<void()>& tell);

  // Takes the choices into the options, but for the satellite.
  void Take(Formats::SdxOptions& options) const;
  // What is wrong with the codes chosen; null where nothing is.
  [[nodiscard]] const char* Refusal() const;

 private:
  std::vector<std::string> codes_;
  RowFilters filters_;
  std::array<QCheckBox*, 3> types_{};
  QCheckBox* filterList_;
  QCheckBox* skipKnown_;
  QListWidget* list_;
};

}  // namespace Ui
