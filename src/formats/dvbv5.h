// Blocks "[name]" of lines "KEY = value", as scanning programs for the fifth DVB interface write them: of services, and
// without names and PIDs of transponders. And the one-line form that came before: name:MHz:h:switch:kBd:VPID:APID:SID
#pragma once

#include "formats/listed_service.h"

namespace Formats {

bool IsDvbV5(std::string_view text);           // with services
bool IsDvbV5ScanTable(std::string_view text);  // with transponders alone

class DvbV5Reader final : public ServiceReader {
 public:
  // `text` must stay as long as the reader does.
  explicit DvbV5Reader(std::string_view text) : text_(text) {}

  bool Next() override;
  void TakeStreams() override;
  void TakeIdentity() override;
  [[nodiscard]] SdxFields Lacking() const override { return {SdxField::Pcr, SdxField::Coding}; }

 private:
  std::string_view text_;
  std::string_view name_;
};

// The transponder of each block. The position is in the file's name alone.
TransponderList ReadDvbV5Transponders(std::string_view text);

bool IsZap(std::string_view text);

class ZapReader final : public ServiceReader {
 public:
  explicit ZapReader(std::string_view text) : text_(text) {}

  bool Next() override;
  void TakeStreams() override;
  void TakeIdentity() override;
  [[nodiscard]] SdxFields Lacking() const override {
    return {SdxField::Fec, SdxField::Pcr, SdxField::Tid, SdxField::Nid, SdxField::Coding};
  }

 private:
  bool ReadTransponder(std::string_view line);

  std::string_view text_;
  std::string_view name_;
  std::string_view rest_;
  int number_ = 0;
};

}  // namespace Formats
