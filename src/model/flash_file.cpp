#include "model/flash_file.h"

#include "base/file.h"
#include "model/flash_image.h"

#include <algorithm>
#include <cerrno>

namespace Routines {
namespace {

constexpr int MostBackups = 999;

// Keeps `bytes` in `folder` as NAME.bak or the first free name after it, unless one of those holds them
// already.
Base::Outcome KeepCopy(const std::string& folder, const std::string& name, Base::ByteView bytes) {
  for (int number = 1; number <= MostBackups; ++number) {
    const std::string copy = folder + "/" + name + ".bak" + (number == 1 ? "" : std::to_string(number));
    const auto existing = Base::ReadFile(copy, FlashSize);
    if (existing && std::equal(existing->begin(), existing->end(), bytes.begin(), bytes.end()))
      return Base::Done{};
    if (!existing && existing.error().systemCode == ENOENT) return Base::ReplaceFile(copy, bytes);
  }
  return Base::Error{"Troppe copie di sicurezza di " + name};
}

Base::Outcome BackUp(const std::string& target, Base::ByteView before, const Backups& backups) {
  const std::string name = Base::FileName(target);
  const std::string folder = target.substr(0, target.size() - name.size());
  const auto beside = KeepCopy(folder.empty() ? "." : folder, name, before);
  if (beside || !Base::FolderRefuses(beside.error())) return beside;
  return KeepCopy(backups.programFolder, name, before);
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
  const std::string target = Base::ResolvedPath(path);
  if (!backups.taken.contains(target)) {
    const auto kept = BackUp(target, before, backups);
    if (!kept) return kept;
    backups.taken.insert(target);
  }
  const auto replaced = Base::ReplaceFile(target, after);
  if (replaced || !Base::FolderRefuses(replaced.error())) return replaced;
  return Base::OverwriteInPlace(target, before, after);
}

}  // namespace Routines
