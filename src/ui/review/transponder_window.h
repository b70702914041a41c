// `FinestraControlloTransponder`: the list's transponders of a satellite beside those of a list of today, with what may be
// brought up to date. It follows the list.
#pragma once

#include "edit/update_transponders.h"
#include "formats/listed_service.h"
#include "ui/session/session.h"
#include "ui/session/tool_window.h"

#include <map>

class QCheckBox;
class QComboBox;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace Ui {

class ElidedLabel;

class TransponderWindow : public ToolWindow {
  Q_OBJECT

 public:
  TransponderWindow(Session& session, const QString& fileName, const Formats::TransponderList& list,
                    QMainWindow& window);

 private:
  using Findings = std::vector<Review::TransponderFinding>;

  QLayout* Choices();
  QComboBox* PositionBox();
  QComboBox* SatelliteBox();
  void ProposeSatellite();
  QLayout* KindBoxes();
  void SetUpTree();
  QLayout* Buttons();

  void Refresh();
  void Fill();
  QTreeWidgetItem* ItemOf(const Review::TransponderFinding& finding) const;
  [[nodiscard]] QString OtherText(const Review::TransponderFinding& finding) const;
  void ShowCounts();
  void ShowTicks();

  [[nodiscard]] int Satellite() const;  // -1 where none is chosen
  [[nodiscard]] Findings Ticked() const;
  void TickAll(bool on);
  void GoTo(QTreeWidgetItem* item);
  void SelectFound();
  void Apply();

  Session& session_;
  QString fileName_;
  int unreadable_;
  std::map<std::optional<int>, std::vector<Routines::ListedTransponder>> positions_;
  std::map<int, int> proposed_;  // satellites by position
  Findings found_;
  Findings shown_;  // by item
  std::array<QCheckBox*, Review::TransponderMarks> kinds_{};
  QComboBox* position_;
  QComboBox* satellite_;
  QCheckBox* withDvbS2_;
  QTreeWidget* tree_;
  QLabel* counts_;
  ElidedLabel* result_;
  QPushButton* goTo_ = nullptr;
  QPushButton* select_ = nullptr;
  QPushButton* apply_ = nullptr;
};

}  // namespace Ui
