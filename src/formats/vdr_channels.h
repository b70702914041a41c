// channels.conf of a video disk recorder: a channel a line, thirteen fields divided by colons.
#pragma once

#include "formats/listed_service.h"

namespace Formats {

bool IsVdrChannels(std::string_view text);

class VdrReader final : public ServiceReader {
 public:
  // `text` must stay as long as the reader does.
  explicit VdrReader(std::string_view text) : text_(text) {}

  bool Next() override;
  void TakeStreams() override;
  void TakeIdentity() override;

 private:
  bool ReadTransponder();
  void TakeGroup(std::string_view line);

  std::string_view text_;
  // Of the channel that Next went to: its name, and its fields behind the symbol rate.
  std::string_view name_;
  std::string_view rest_;
  std::string_view tuning_;  // the fields that gave the transponder at hand
  int number_ = 0;
};

}  // namespace Formats
