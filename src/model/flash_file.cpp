#include "model/flash_file.h"

#include "base/file.h"
#include "model/flash_image.h"
#include "model/flash_writer.h"

#include <algorithm>
#include <cerrno>

namespace Routines {
namespace {

constexpr int MostBackups = 999;
constexpr std::size_t LongestName = 240;  // leaves room for the ending in any file system

// Whether a name is taken by something that is no copy of an image.
bool TakenByAnother(int systemCode) {
  return systemCode == EFBIG || systemCode == EISDIR || systemCode == Base::NotAFile;
}

// Keeps `bytes`, the image at `target`, in `folder` as NAME.bak or the first free name after it, unless one of those
// holds them already.
Base::Outcome KeepCopy(const std::string& folder, const std::string& target, Base::ByteView bytes) {
  const std::string first = folder + "/" + Base::FileName(target).substr(0, LongestName) + ".bak";
  for (int number = 1; number <= MostBackups; ++number) {
    const std::string copy = number == 1 ? first : first + std::to_string(number);
    const auto existing = Base::ReadFile(copy, FlashSize);
    if (existing && std::equal(existing->begin(), existing->end(), bytes.begin(), bytes.end()))
      return Base::Done{};
    if (existing || TakenByAnother(existing.error().systemCode)) continue;
    if (existing.error().systemCode == ENOENT) return Base::ReplaceFile(copy, bytes, target);
    return existing.error();
  }
  return Base::Error{"Troppe copie di sicurezza di " + Base::FileName(target)};
}

Base::Outcome BackUp(const std::string& target, Base::ByteView before, const Backups& backups) {
  auto beside = KeepCopy(Base::FolderOf(target), target, before);
  if (beside || !Base::FolderRefuses(beside.error())) return beside;
  return KeepCopy(backups.programFolder, target, before);
}

// In one step, or where the image lies when its folder takes no new file.
Base::Outcome Overwrite(const std::string& target, Base::ByteView before, Base::ByteView after) {
  auto replaced = Base::ReplaceFile(target, after);
  if (replaced || !Base::FolderRefuses(replaced.error())) return replaced;
  return Base::OverwriteInPlace(target, before, after);
}

}  // namespace

Base::Error WrongFlashSize(std::uint64_t size, const std::string& title) {
  return {"Dimensione FLASH selezionata errata " + std::to_string(size), title};
}

Base::Result<Base::Bytes> ReadFlash(const std::string& path, const std::string& title) {
  const auto size = Base::FileSize(path);
  if (size && *size != FlashSize) return WrongFlashSize(*size, title);
  auto bytes = Base::ReadFile(path, FlashSize);
  if (!bytes) return Base::Error{bytes.error().message, title, bytes.error().systemCode};
  if (bytes->size() != FlashSize) return WrongFlashSize(bytes->size(), title);
  return bytes;
}

Base::Outcome SaveFlash(const std::string& path, Base::ByteView before, Base::ByteView after,
                        Backups& backups) {
  if (!DiffersOnlyInSections(before, after))
    return Base::Error{"Impossibile scrivere " + Base::FileName(path) +
                       ": la modifica esce dalle sezioni conosciute"};
  const std::string target = Base::ResolvedPath(path);
  const auto last = backups.written.find(target);
  if (last == backups.written.end() || Base::AsText(last->second) != Base::AsText(before)) {
    auto kept = BackUp(target, before, backups);
    if (!kept) return kept;
  }
  auto written = Overwrite(target, before, after);
  // A failed attempt does not count: the file may hold something else by the next one.
  if (written) backups.written[target].assign(after.begin(), after.end());
  return written;
}

}  // namespace Routines
