#include "model/flash_copies.h"

#include "base/file.h"
#include "base/text.h"
#include "model/flash_image.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <vector>

namespace Routines {
namespace {

using std::filesystem::file_time_type;

constexpr std::size_t LongestName = 240;  // leaves room for the ending in any file system
constexpr std::size_t MostDigits = 6;
constexpr std::size_t NewestKept = 20;

struct Copy {
  std::filesystem::path path;
  int number;  // 1 for NAME.bak
  bool file;   // nothing else than a file
  std::uintmax_t size;
  file_time_type time;
};

std::string FirstName(const std::string& target) {
  return Base::FileName(target).substr(0, LongestName) + ".bak";
}

std::string NameOf(const std::string& target, int number) {
  return FirstName(target) + (number == 1 ? "" : std::to_string(number));
}

// 0 where `name` is not that of a copy.
int NumberIn(std::string_view name, std::string_view first) {
  if (!name.starts_with(first)) return 0;
  const std::string_view digits = name.substr(first.size());
  if (digits.empty()) return 1;
  const bool number = digits.size() <= MostDigits && digits.front() != '0' &&
                      digits.find_first_not_of("0123456789") == std::string_view::npos;
  return number && digits != "1" ? Base::LeadingCount(digits, 999999) : 0;
}

std::filesystem::path SystemPath(const std::string& path) { return std::u8string(path.begin(), path.end()); }

// All of that name in the folder; none where it cannot be listed.
std::vector<Copy> CopiesIn(const std::string& folder, const std::string& target) {
  const std::string first = FirstName(target);
  std::vector<Copy> copies;
  std::error_code error;
  std::filesystem::directory_iterator entry(SystemPath(folder), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const std::u8string name = entry->path().filename().u8string();
    const int number = NumberIn(std::string(name.begin(), name.end()), first);
    if (number == 0) continue;
    std::error_code unknown;
    const bool file = entry->symlink_status(unknown).type() == std::filesystem::file_type::regular;
    copies.push_back({entry->path(), number, file, file ? entry->file_size(unknown) : 0,
                      file ? entry->last_write_time(unknown) : file_time_type::min()});
  }
  return copies;
}

bool Holds(const std::string& path, Base::ByteView bytes) {
  const auto held = Base::ReadFile(path, bytes.size());
  return held && std::equal(held->begin(), held->end(), bytes.begin(), bytes.end());
}

}  // namespace

Base::Result<std::string> KeepCopy(const std::string& folder, const std::string& target,
                                   Base::ByteView bytes) {
  int highest = 0;
  bool firstTaken = false;
  for (const Copy& copy : CopiesIn(folder, target)) {
    highest = std::max(highest, copy.number);
    firstTaken = firstTaken || copy.number == 1;
    const std::string name = NameOf(target, copy.number);
    if (!copy.file || copy.size != bytes.size() || !Holds(Base::PathIn(folder, name), bytes)) continue;
    std::error_code error;
    std::filesystem::last_write_time(copy.path, file_time_type::clock::now(), error);
    return name;
  }
  // What could not be listed may be there all the same.
  for (int number = firstTaken ? highest + 1 : 1;; ++number) {
    const std::string name = NameOf(target, number);
    const auto taken = Base::FileSize(Base::PathIn(folder, name));
    if (taken || taken.error().systemCode == EISDIR || taken.error().systemCode == Base::NotAFile) continue;
    if (taken.error().systemCode != ENOENT) return taken.error();
    const auto kept = Base::ReplaceFile(Base::PathIn(folder, name), bytes, target);
    if (!kept) return kept.error();
    return name;
  }
}

int RemoveOldCopies(const std::string& folder, const std::string& target) {
  std::vector<Copy> copies = CopiesIn(folder, target);
  std::erase_if(copies,
                [](const Copy& copy) { return copy.number == 1 || !copy.file || copy.size != FlashSize; });
  std::sort(copies.begin(), copies.end(), [](const Copy& one, const Copy& other) {
    return std::pair(one.time, one.number) > std::pair(other.time, other.number);
  });
  int removed = 0;
  for (std::size_t i = NewestKept; i < copies.size(); ++i) {
    std::error_code error;
    if (std::filesystem::remove(copies[i].path, error)) ++removed;
  }
  return removed;
}

}  // namespace Routines
