#include "support/program_folder.h"

#include "base/file.h"
#include "base/system_file.h"
#include "support/pos_ini.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <vector>

namespace Support {
namespace {

constexpr std::array<const char*, 3> SupportFiles = {"Bouquets.txt", "SR.INI", "SDX.INI"};
constexpr const char* Demo = "demo.dat";
constexpr std::array<const char*, 3> Demos = {Demo, "demo.sdx", "demo.csv"};
constexpr std::size_t LargestShipped = 16U << 20U;

std::filesystem::path SystemPath(const std::string& path) { return std::u8string(path.begin(), path.end()); }

bool Exists(const std::string& path) { return Base::StatusOf(path).code == 0; }

// Whether the file is in `to` now, if there is one; an older one there is left alone and counts as not copied.
bool Copy(const std::string& from, const std::string& to) {
  if (Exists(to)) return false;
  const auto bytes = Base::ReadFile(from, LargestShipped);
  return bytes && Base::ReplaceFile(to, *bytes);
}

}  // namespace

ProgramFolder FindProgramFolder(const ProgramPlaces& places) {
  // Each of the two programs may be installed alone.
  const std::string both =
      Base::PathIn(Base::PathIn(Base::PathIn(places.executable, ".."), "share"), "trovalis");
  const std::string shipped = Exists(both) ? both : both + "-cli";
  const bool installed = Exists(shipped);
  if (!installed && places.writable) return {places.executable, {}};
  return {Base::PathIn(places.data, "trovalis"), installed ? shipped : places.executable};
}

bool HasSupportFiles(const std::string& folder) {
  return std::any_of(SupportFiles.begin(), SupportFiles.end(),
                     [&folder](const char* name) { return Exists(Base::PathIn(folder, name)); });
}

void FillProgramFolder(const std::string& shipped, const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(SystemPath(folder), error);
  if (HasSupportFiles(folder)) return;
  std::vector<std::string> names(SupportFiles.begin(), SupportFiles.end());
  names.insert(names.end(), Demos.begin(), Demos.end());
  std::vector<std::string> copied;
  for (const std::string& name : names) {
    const std::string from = Base::PathIn(shipped, name);
    if (!Exists(from)) continue;
    if (!Copy(from, Base::PathIn(folder, name))) {
      // On a full disk nothing is better than a part, which the next start would take for what the user wants.
      for (const std::string& part : copied)
        std::filesystem::remove(SystemPath(Base::PathIn(folder, part)), error);
      return;
    }
    copied.push_back(name);
  }
  if (std::find(copied.begin(), copied.end(), Demo) == copied.end()) return;
  for (const auto kind : {FolderKind::Input, FolderKind::Foreign})
    SaveFolderOf(folder, kind, Base::PathIn(folder, Demo));
}

}  // namespace Support
