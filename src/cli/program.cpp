#include "cli/program.h"

#include "base/file.h"
#include "support/bouquets_txt.h"
#include "support/sr_ini.h"

#include <array>

namespace Cli {
namespace {

// A new user's folder is not made for a command that only reads: what would fill it is read where it lies.
std::string FolderOf(const Options& options, const Support::ProgramFolder& found) {
  if (!options.support.empty()) return options.support;
  return found.shipped.empty() || Support::HasSupportFiles(found.folder) ? found.folder : found.shipped;
}

bool LoadSupport(Work& work) {
  const auto place = work.options.rate22000 == 0 ? Routines::Sr22000::Come0 : Routines::Sr22000::Come2;
  const auto rates = Support::CaricaTabelleSR(work.folder, place);
  if (!rates)
    return work.console.Fail(Exit::Unreadable, Base::PathIn(work.folder, "SR.INI"), rates.error().message);
  work.rates = rates->table;
  work.missingRates = !rates->missing.empty();
  if (work.missingRates) work.console.Note(rates->missing);
  auto bouquets = Support::LoadBouquets(work.folder);
  work.bouquets = std::move(bouquets.tables);
  for (const std::string& error : bouquets.errors)
    work.console.Note(Base::PathIn(work.folder, "Bouquets.txt"), error);
  return true;
}

}  // namespace

void Run(const std::vector<std::string>& arguments, const Support::ProgramPlaces& places, Console& console) {
  const Parsed parsed = Parse(arguments);
  if (!parsed.options) {
    if (parsed.asked) {
      console.out = parsed.text;
    } else {
      console.Fail(Exit::Usage, parsed.text + " (\"trovalis-cli --help\" dice come si usa)");
    }
    return;
  }
  const Support::ProgramFolder found = Support::FindProgramFolder(places);
  Work work{*parsed.options, console, FolderOf(*parsed.options, found), found.folder, {}, false, {}};
  if (!LoadSupport(work)) return;
  constexpr std::array<void (*)(Work&), 11> Commands = {Info,  List,  Check, Diff, Sdx,   Convert,
                                                        Write, Apply, Order, Sort, Rename};
  Commands[static_cast<std::size_t>(parsed.options->command)](work);
}

}  // namespace Cli
