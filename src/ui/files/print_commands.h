// Printing of the list shown and of the SatcoDX table, by way of a preview.
#pragma once

#include "ui/files/print_report.h"
#include "ui/session/actions.h"
#include "ui/session/session.h"
#include "ui/sources/sdx_pane.h"

class QPagedPaintDevice;

namespace Ui {

class PrintCommands {
 public:
  PrintCommands(Session& session, const SdxPane& pane, QWidget& window)
      : session_(session), pane_(pane), window_(window) {}

  void Connect(Actions& actions);

 private:
  void StampaGriglia();
  void StampaSDX();
  void StampaPreferiti();
  // The rows up to `lastRow`, or those selected; nothing where the user gives up or there are none.
  std::optional<Edit::Slots> AskRows(const Grid& grid, int lastRow);
  // With a compact report the user may choose between the two.
  void Preview(const PrintReport& whole, const PrintReport* compact = nullptr);
  QString Save(const PrintReport& report, const std::string& path, const QPagedPaintDevice& like);

  Session& session_;
  const SdxPane& pane_;
  QWidget& window_;
};

}  // namespace Ui
