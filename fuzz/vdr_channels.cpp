// Reading the channels.conf of a video disk recorder.
#include "formats/vdr_channels.h"

#include "listed.h"

using namespace Fuzz;
using namespace Formats;

// Options, then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  Input choices(data, size);
  input.Run(5);
  const std::string_view text = input.Text();
  static_cast<void>(IsVdrChannels(text));
  CheckServices(choices, [&] { return std::make_unique<VdrReader>(text); });
  return 0;
}
