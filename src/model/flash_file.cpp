#include "model/flash_file.h"

#include "base/file.h"
#include "base/system_file.h"
#include "base/text.h"
#include "model/flash_copies.h"
#include "model/flash_image.h"
#include "model/flash_writer.h"

#include <cerrno>

namespace Routines {
namespace {

constexpr std::size_t LargestCopy = 16U << 20U;  // of what another program has put in an image's place

struct Kept {
  std::string folder;
  std::string name;
};

Base::Result<Kept> BackUp(const std::string& target, Base::ByteView bytes, const Backups& backups) {
  std::string folder = Base::FolderOf(target);
  auto name = KeepCopy(folder, target, bytes);
  if (!name && Base::FolderRefuses(name.error())) {
    folder = backups.programFolder;
    name = KeepCopy(folder, target, bytes);
  }
  if (!name) return name.error();
  return Kept{folder, *name};
}

// In one step, or where the image lies when its folder takes no new file. Up to the last moment another program may
// save there too: what it leaves is kept. `before` is empty where there is no file yet.
Base::Outcome Overwrite(const std::string& target, Base::ByteView before, Base::ByteView after,
                        const Backups& backups, Saved& saved, const Base::LastLook& lastLook) {
  Base::Bytes last(before.begin(), before.end());
  const auto keepOthers = [&]() -> Base::Outcome {
    auto now = Base::ReadFile(target, LargestCopy);
    if (!now && now.error().systemCode == ENOENT) return Base::Done{};
    if (!now) return now.error();
    if (*now == last) return Base::Done{};
    const auto kept = BackUp(target, *now, backups);
    if (!kept) return kept.error();
    saved.othersCopy = kept->name;
    last = std::move(*now);
    return Base::Done{};
  };
  const auto lookAgain = [&] {
    auto kept = keepOthers();
    return kept && lastLook ? lastLook() : kept;
  };
  auto replaced = Base::ReplaceFile(target, after, {}, lookAgain);
  if (replaced || before.empty() || !Base::FolderRefuses(replaced.error())) return replaced;
  if (auto looked = lookAgain(); !looked) return looked;
  return Base::OverwriteInPlace(target, last, after);
}

// Keeps `before`, which the file at `target` holds, unless this program has written it, and replaces it.
Base::Result<Saved> PutInPlace(const std::string& target, Base::ByteView before, Base::ByteView after,
                               Backups& backups, const Base::LastLook& lastLook) {
  const auto last = backups.written.find(target);
  Saved saved;
  std::string folder;
  if (last == backups.written.end() || Base::AsText(last->second) != Base::AsText(before)) {
    const auto kept = BackUp(target, before, backups);
    if (!kept) return kept.error();
    folder = kept->folder;
    saved.copy = folder == Base::FolderOf(target) ? kept->name : Base::PathIn(folder, kept->name);
  }
  const auto written = Overwrite(target, before, after, backups, saved, lastLook);
  // A failed attempt does not count: the file may hold something else by the next one.
  if (!written) return written.error();
  backups.written[target].assign(after.begin(), after.end());
  if (!folder.empty()) saved.removedCopies = RemoveOldCopies(folder, target);
  return saved;
}

Base::Error LeavesSections(const std::string& path) {
  return {"Impossibile scrivere " + Base::FileName(path) + ": la modifica esce dalle sezioni conosciute"};
}

}  // namespace

Base::Error WrongFlashSize(std::uint64_t size, const std::string& title) {
  return {"Dimensione FLASH selezionata errata " + std::to_string(size), title};
}

Base::Outcome LooksLikeFlash(const std::string& path, const std::string& title) {
  const auto size = Base::FileSize(path);
  if (!size) return Base::Error{size.error().message, title, size.error().systemCode};
  if (*size != FlashSize) return WrongFlashSize(*size, title);
  return Base::Done{};
}

Base::Result<Base::Bytes> ReadFlash(const std::string& path, const std::string& title) {
  if (const auto looks = LooksLikeFlash(path, title); !looks) return looks.error();
  auto bytes = Base::ReadFile(path, FlashSize);
  if (!bytes) return Base::Error{bytes.error().message, title, bytes.error().systemCode};
  if (bytes->size() != FlashSize) return WrongFlashSize(bytes->size(), title);
  return bytes;
}

std::string TextOf(const Saved& saved, const std::string& name) {
  std::string text;
  if (!saved.copy.empty()) text += " - com'era prima resta in " + saved.copy;
  if (!saved.othersCopy.empty())
    text += " - quello che un altro programma vi ha salvato intanto resta come " + saved.othersCopy;
  if (saved.removedCopies > 0) {
    text += (saved.removedCopies == 1 ? " - tolta " : " - tolte ") +
            Base::Counted(saved.removedCopies, "copia di sicurezza", "copie di sicurezza") +
            " di troppo: restano " + name + ".bak e le 20 più recenti";
  }
  return text;
}

Base::Result<Saved> SaveFlash(const std::string& path, Base::ByteView before, Base::ByteView after,
                              Backups& backups, const Base::LastLook& lastLook) {
  if (!DiffersOnlyInSections(before, after)) return LeavesSections(path);
  return PutInPlace(Base::ResolvedPath(path), before, after, backups, lastLook);
}

Base::Result<Saved> SaveFlashCopy(const std::string& path, Base::ByteView original, Base::ByteView after,
                                  Backups& backups, const Base::LastLook& lastLook) {
  if (!DiffersOnlyInSections(original, after)) return LeavesSections(path);
  const std::string target = Base::ResolvedPath(path);
  const auto before = Base::ReadFile(target, LargestCopy);
  if (before) return PutInPlace(target, *before, after, backups, lastLook);
  if (before.error().systemCode != ENOENT) return before.error();
  Saved saved;
  const auto written = Overwrite(target, {}, after, backups, saved, lastLook);
  if (!written) return written.error();
  backups.written[target].assign(after.begin(), after.end());
  return saved;
}

Base::Result<Saved> SaveNewFlash(const std::string& path, Base::ByteView original, Base::ByteView after,
                                 Backups& backups, const Base::LastLook& lastLook) {
  if (Base::StatusOf(path).code != ENOENT)
    return Base::Error{"Impossibile scrivere " + Base::FileName(path) + ": esiste già", "", EEXIST};
  return SaveFlashCopy(path, original, after, backups, lastLook);
}

}  // namespace Routines
