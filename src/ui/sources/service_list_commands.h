// Lists of today (VDR, DVBv5, Enigma2) that come into the SDX table.
#pragma once

#include "ui/sources/sdx_commands.h"

namespace Ui {

class ServiceListCommands {
 public:
  ServiceListCommands(Session& session, SdxCommands& sdx, QWidget& window)
      : session_(session), sdx_(sdx), window_(window) {}

  void Connect(Actions& actions);

  // Menu command ImportaElenco; asks for the list unless its path is given.
  void Open(std::string path = {});

  // Whether the file is a list that it can import, or one of that family that it can say something of.
  [[nodiscard]] static bool Knows(const std::string& path);

 private:
  void Import(const std::string& path, Base::Bytes bytes);

  Session& session_;
  SdxCommands& sdx_;
  QWidget& window_;
};

}  // namespace Ui
