// lamedb 4 and 5, the service lists of Linux receivers: transponders first, then services that name theirs by namespace,
// transport stream and network. PIDs are there only of services that were once watched.
#pragma once

#include "formats/listed_service.h"

#include <unordered_map>

namespace Formats {

bool IsLamedb(std::string_view text);

class LamedbReader final : public ServiceReader {
 public:
  // Reads the transponders. `text` must stay as long as the reader does.
  explicit LamedbReader(std::string_view text);

  // A service whose transponder is not in the list has the position that its namespace gives, and no frequency.
  bool Next() override;
  void TakeStreams() override;
  void TakeIdentity() override;

  // In the order of the file. Those that could not be read count as unreadable from the start.
  [[nodiscard]] const std::vector<ListedTransponder>& Transponders() const { return transponders_; }

 private:
  void ReadTransponders();
  void ReadTransponderLines();
  void AddTransponder(std::string_view ids, std::string_view tuning);
  bool TakeApart(std::string_view line);
  bool FindTransponder();

  std::string_view text_;
  bool oneLine_;  // as in 5
  std::vector<ListedTransponder> transponders_;
  std::unordered_map<std::uint64_t, std::size_t> places_;
  // Of the service that Next went to: its numbers, and later those behind the transponder's; its name and all the rest.
  std::string_view ids_, name_, data_, provider_;
  int sid_ = NotSaid;
  std::string_view key_;  // the fields that gave the transponder at hand
};

TransponderList ReadLamedbTransponders(std::string_view text);

// The position that the upper half of a namespace gives; nothing where it is no satellite's.
std::optional<int> PositionOfNamespace(std::uint32_t names);

}  // namespace Formats
