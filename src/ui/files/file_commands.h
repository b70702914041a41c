// The commands that read and write flash images, and the symbol-rate conversion that goes with them.
#pragma once

#include "model/flash_file.h"
#include "model/flash_writer.h"
#include "ui/session/actions.h"
#include "ui/session/session.h"

namespace Ui {

class FileCommands {
 public:
  explicit FileCommands(Session& session) : session_(session) {}

  void Connect(Actions& actions);

  // Tells the window that a flash has been opened, and that the list has been written.
  std::function<void(const std::string&)> onOpened;
  std::function<void()> onWritten;

  // Asks for the image unless its path is given, as by a file dropped on the window. `settings` are those that the file
  // was used with before: they take the place of what is chosen once it has been loaded, but not where it is appended.
  void ApriFlashInput(std::string path = {}, std::optional<Routines::Settings> settings = {});

 private:
  void Salva();
  void ApriFlashOutput();
  void SalvaCopiaNuova();
  void ConvertiSR();

  // What a write needs before anything is asked for.
  struct Preparation {
    Routines::WritePlan plan;
    bool ratesMoved = false;  // SRDef no longer says what the list's codes were read with
  };

  std::optional<int> AskAppendStart();
  void Load(const std::string& path, const Base::Bytes& image, int appendStart,
            const Routines::Settings& settings);
  [[nodiscard]] bool RatesMoved(const Support::SymbolRates& rates) const;
  std::optional<Preparation> Prepare();
  void AskAndWrite(const Preparation& preparation);
  using Save = decltype(&Routines::SaveFlash);
  void Write(const std::string& path, const Base::Bytes& original, const Preparation& preparation, Save save);
  // Those that a save left out, for the window that names them.
  [[nodiscard]] QString LostChannels(const Routines::Unwritten& unwritten) const;
  // `replaced` is what the file held before; null where there was none.
  void TellWritten(const std::string& path, const Routines::PatchedFlash& patched,
                   const Preparation& preparation, const Routines::Saved& saved, const Base::Bytes* replaced);

  Session& session_;
};

}  // namespace Ui
