// The commands that carry whole lists out of the program and back: the text format and the file of raw records.
#pragma once

#include "formats/import_report.h"
#include "ui/session/actions.h"
#include "ui/session/session.h"

namespace Ui {

class ExchangeCommands {
 public:
  explicit ExchangeCommands(Session& session) : session_(session) {}

  void Connect(Actions& actions);

  // Both ask for the file unless its path is given, as by a file dropped on the window.
  void DaEsportatoTesto(std::string path = {});
  void DaEsportato(std::string path = {});

 private:
  void FormatoTesto();
  void FormatoFLASH();
  void FormatoCSV();

  // What an import needs before a file is asked for.
  struct Preparation {
    Routines::WritePlan plan;
    std::string symbolRates;
  };

  std::optional<Preparation> Prepare();
  std::string AskExport(const QString& filters);
  // Asks for `path` where it is empty.
  std::optional<Base::Bytes> ReadImport(const QString& title, const QString& filters, std::string& path);
  // `lost` says what the file does not give back, if anything.
  void Export(const std::string& path, Base::ByteView bytes, const std::string& lost = {});
  template <class Read>
  void Import(const std::string& path, const Preparation& preparation, Read read);
  void TellImported(const std::string& path, const Formats::ImportReport& report);

  Session& session_;
};

}  // namespace Ui
