// The recovery file with tables that stay as they are, so that an input is what lies behind them.
#pragma once

#include "base/checksum.h"
#include "edit/recovery.h"
#include "fuzz_support.h"

namespace Fuzz {

// The magic line, the length and the checksum; then every record of both tables, and the names and codes of bouquets.
inline constexpr std::size_t RecoveryHeader = 29;
inline constexpr std::size_t RecoveryTables =
    (Routines::LastChannelSlot + 1) * Routines::ChannelRecord::Size +
    (Routines::LastTransponderSlot + 1) *
        (Routines::TransponderRecord::Size + Routines::TransponderRow::BouquetNameSize +
         Routines::TransponderRow::BouquetCodeSize);

// The header and the tables of a list.
inline Base::Bytes RecoveryFront(const Routines::State& state) {
  Base::Bytes front = Edit::EncodeRecovery(state, {}, {});
  front.resize(RecoveryHeader + RecoveryTables);
  return front;
}

// The tables and what lies behind them, under a header that fits.
inline Base::Bytes RecoveryFile(const Base::Bytes& front, std::string_view behind) {
  Base::Bytes file = front;
  file.insert(file.end(), behind.begin(), behind.end());
  const Base::ByteView contents = Base::ByteView(file).subspan(RecoveryHeader);
  std::size_t at = RecoveryHeader - 8;
  for (const std::size_t number : {contents.size(), std::size_t{Base::Crc32(contents)}}) {
    for (const unsigned shift : {24U, 16U, 8U, 0U}) file[at++] = static_cast<Base::Byte>(number >> shift);
  }
  return file;
}

}  // namespace Fuzz
