// A channel as the receiver keeps it: 30 bytes, of which an empty slot has a first byte of 0.
#pragma once

#include "model/record.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

namespace Routines {

struct ChannelRecord {
  static constexpr std::size_t Size = 30;
  static constexpr std::size_t NameSize = 16;

  std::array<Base::Byte, Size> bytes{};

  [[nodiscard]] constexpr bool Empty() const { return bytes[0] == 0; }

  // Bytes of the code page up to the first zero byte, padding blanks included.
  [[nodiscard]] std::string_view Name() const {
    const std::string_view field = Base::AsText(bytes).substr(0, NameSize);
    return field.substr(0, field.find('\0'));
  }

  friend bool operator==(const ChannelRecord&, const ChannelRecord&) = default;
};
static_assert(sizeof(ChannelRecord) == ChannelRecord::Size && alignof(ChannelRecord) == 1);
static_assert(std::is_trivially_copyable_v<ChannelRecord>);

namespace ChannelField {
inline constexpr Field<ChannelRecord> Flags{16};
inline constexpr Field<ChannelRecord> Active{.offset = 16, .shift = 2, .width = 1};
inline constexpr Field<ChannelRecord> Transponder{17};
inline constexpr Field<ChannelRecord> Sid{.offset = 18, .size = 2, .width = 16};
inline constexpr Field<ChannelRecord> Vpid{.offset = 20, .size = 2, .width = 16};
inline constexpr Field<ChannelRecord> Apid{.offset = 22, .size = 2, .width = 16};
inline constexpr Field<ChannelRecord> Aecm{.offset = 24, .size = 2, .width = 16};
inline constexpr Field<ChannelRecord> Vecm{.offset = 26, .size = 2, .width = 16};
inline constexpr Field<ChannelRecord> Pcr{.offset = 28, .size = 2, .width = 16};
}  // namespace ChannelField

// A PID of 0 or 65535 is no stream.
inline constexpr std::uint32_t AbsentPid = 65535;
constexpr bool HasStream(std::uint32_t pid) { return pid != 0 && pid != AbsentPid; }

enum class ChannelKind { Empty, Tv, Radio, Service };

constexpr ChannelKind KindOf(const ChannelRecord& channel) {
  if (channel.Empty()) return ChannelKind::Empty;
  if (HasStream(Get(channel, ChannelField::Vpid))) return ChannelKind::Tv;
  return HasStream(Get(channel, ChannelField::Apid)) ? ChannelKind::Radio : ChannelKind::Service;
}

}  // namespace Routines
