// Whole files in, whole files out. A file is replaced altogether or left as it was.
#pragma once

#include "base/bytes.h"
#include "base/result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace Base {

// The system's reason in Italian ("spazio su disco esaurito").
std::string SystemReason(int systemCode);

// The reason of an error where something else than a file was found.
inline constexpr int NotAFile = -1;

// The part of a path behind its last slash, and the folder before it.
std::string FileName(std::string_view path);
std::string FolderOf(std::string_view path);

// The path of `name` in `folder`, which may end with a separator; the one put between them is the system's, as paths are shown.
std::string PathIn(std::string_view folder, std::string_view name);

// Where writing to `path` really goes: symbolic links are followed. `path` itself where nothing can be
// resolved.
std::string ResolvedPath(const std::string& path);

// Size in bytes of a regular file; anything else is an error.
Result<std::uint64_t> FileSize(const std::string& path);

// The whole of a regular file of at most `limit` bytes.
Result<Bytes> ReadFile(const std::string& path, std::size_t limit);

// Writes a file beside `path`, flushes it, reads it back, and puts it in the place of `path` in one step. Follows
// a symbolic link and keeps the permissions of an existing file, its access list too; a new one takes those of the file
// `like`, if it is given. After an error the old file is as it was. What a save that was killed has left in the folder goes away.
// `lastLook` runs when all that is left to do is the step itself; its error is one of the whole.
using LastLook = std::function<Outcome()>;
Outcome ReplaceFile(const std::string& path, ByteView bytes, const std::string& like = {},
                    const LastLook& lastLook = {});

// For a folder that takes no new file: overwrites an existing file of the same size where it lies, flushes it
// and reads it back. `before` is what it holds now; after an error those bytes are written again.
Outcome OverwriteInPlace(const std::string& path, ByteView before, ByteView bytes);

// Whether an error of ReplaceFile means that only the folder refuses, so that a file in it may yet be
// written.
bool FolderRefuses(const Error& error);

}  // namespace Base
