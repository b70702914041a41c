#include "demo_sdx.h"

#include "base/code_page.h"
#include "base/columns.h"
#include "base/text.h"
#include "demo_list.h"

namespace Samples {
namespace {

constexpr int Absent = 65535;

std::string CodeOf(int flags) {
  switch (flags & 0xF0) {
    case 0x20:
      return "MGCW";
    case 0x40:
      return "NAGV";
    case 0x60:
      return "BCRT";
    case 0x80:
      return "IRDT";
    case 0xA0:
      return "VICS";
    default:
      return "____";
  }
}

std::string Line(const DemoChannel& channel, const DemoTransponder& transponder) {
  constexpr const char* FecDigits[] = {"1", "2", "3", "5", "7", "_"};
  const std::string name = Base::FromUtf8Lossy(channel.name);
  const bool video = channel.vpid != Absent && channel.vpid != 0;
  const bool audio = channel.apid != Absent && channel.apid != 0;
  const auto pid = [](int value) { return Base::ZeroPadded(value == Absent ? 0 : value, 4); };
  std::string line(127, '_');
  Base::Put(line, {1, 10}, "SATCODX103");
  Base::Put(line, {11, 18}, "HOT BIRD 13E");
  Base::Put(line, {29, 5}, video ? "TMPG2" : audio ? "RMPG2" : "D    ");
  Base::Put(line, {34, 9}, Base::ZeroPadded(transponder.frequencyMHz, 6) + "000");
  Base::Put(line, {43, 1}, transponder.horizontal ? "H" : "V");
  Base::Put(line, {44, 8}, name);
  Base::Put(line, {52, 4}, "0130");
  Base::Put(line, {70, 6}, Base::ZeroPadded(transponder.symbolRate, 5) + FecDigits[transponder.fecCode]);
  Base::Put(line, {76, 12}, pid(channel.vpid) + pid(channel.apid) + pid(channel.pcr));
  Base::Put(line, {88, 15},
            Base::ZeroPadded(channel.sid, 5) + Base::ZeroPadded(transponder.nid, 5) +
                Base::ZeroPadded(transponder.tid, 5));
  Base::Put(line, {112, 4}, CodeOf(channel.flags));
  Base::Put(line, {116, 12}, name.size() > 8 ? name.substr(8) : "");
  return line + "\r\n";
}

}  // namespace

std::string DemoSdx() {
  std::string text;
  int number = 0;
  for (const auto& channel : DemoChannels()) {
    if (!channel) continue;
    const DemoTransponder& transponder =
        DemoTransponders()[static_cast<std::size_t>(channel->transponder - 1)];
    if (transponder.satellite != 0 || ++number % 9 == 0) continue;
    text += Line(*channel, transponder);
    if (number % 6 != 0) continue;
    DemoChannel fresh = *channel;
    fresh.name = "Nuova Rete " + std::to_string(number / 6);
    fresh.sid += 400;
    text += Line(fresh, transponder);
  }
  return text;
}

}  // namespace Samples
