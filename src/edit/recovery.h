// The work of a session that no flash image has yet, as the bytes of one file, so that neither closing nor a crash
// loses it:
//   "TROVALIS RECUPERO 1" CR LF
//   length of the contents, 4 bytes, high byte first
//   their CRC-32, 4 bytes, high byte first
//   the contents: every member of the state, the clipboard and the options, one behind the other
#pragma once

#include "base/result.h"
#include "edit/clipboard.h"
#include "model/write_settings.h"

namespace Edit {

struct Recovery {
  State state;
  Clipboard clipboard;
  Routines::Settings settings;
};

Base::Bytes EncodeRecovery(const State& state, const Clipboard& clipboard,
                           const Routines::Settings& settings);

// An error for anything but the whole of such a file. Whatever it says, counts stay within their tables and numbers
// of options within their groups.
Base::Result<Recovery> DecodeRecovery(Base::ByteView file);

// Whether work would be lost with the clipboard: channels that a cut took out and that are nowhere in the list.
bool HoldsCutChannels(const Clipboard& clipboard, const State& state);

}  // namespace Edit
