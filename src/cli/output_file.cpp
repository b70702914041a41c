#include "cli/output_file.h"

#include "base/code_page.h"
#include "base/file.h"
#include "base/system_file.h"
#include "base/text.h"
#include "cli/json.h"
#include "model/flash_copies.h"
#include "model/flash_file.h"
#include "model/flash_writer.h"

#include <cerrno>
#include <filesystem>

namespace Cli {

using Routines::State;

namespace {

// What cannot be looked at counts as there.
bool Exists(const std::string& path) { return Base::StatusOf(path).code != ENOENT; }

bool MayWrite(Work& work, const std::string& path) {
  return path == "-" || work.options.force || !Exists(path) ||
         work.console.Fail(Exit::NotWritten, path, "c'è già: serve --force");
}

// The type that has room for as many channels, where none is asked for.
Routines::Settings SettingsOf(const Options& options) {
  Routines::Settings settings;
  for (std::size_t i = 0; i < Routines::QuantiCanali.size(); ++i)
    if (Routines::QuantiCanali[i].channels == *options.capacity) settings.quantiCanali = i;
  for (std::size_t i = 0; i < Routines::FlashScrittura.size(); ++i)
    if (Routines::FlashScrittura[i].channels == *options.capacity) settings.flashScrittura = i;
  if (options.type) settings.flashScrittura = static_cast<std::size_t>(*options.type - 1);
  settings.srDef = options.rate22000 == 0 ? 1 : 0;
  return settings;
}

// Copies go to the program's folder where an image's own takes none; a new user has none yet.
void MakeKeeping(const Work& work, const std::string& path) {
  if (Base::WriteRefusal(Base::FolderOf(Base::ResolvedPath(path))) == 0) return;
  std::error_code error;
  std::filesystem::create_directories(work.keeping, error);
}

// Puts the image where it is wanted, or finds that it could be put there. False where it is not.
bool Put(Work& work, const std::string& path, Base::ByteView original, Base::ByteView after,
         Routines::Saved& saved) {
  const Options& options = work.options;
  if (options.dryRun || options.output == "-") {
    if (!Routines::DiffersOnlyInSections(original, after))
      return work.console.Fail(Exit::NotWritten, path, "la modifica esce dalle sezioni conosciute");
    if (!options.dryRun) work.console.out.assign(Base::AsText(after));
    return true;
  }
  MakeKeeping(work, options.inPlace ? path : options.output);
  Routines::Backups backups{work.keeping, {}};
  auto put = options.inPlace ? Routines::SaveFlash(path, original, after, backups)
                             : Routines::SaveFlashCopy(options.output, original, after, backups);
  if (!put)
    return work.console.Fail(Exit::NotWritten, options.inPlace ? path : options.output, put.error().message);
  saved = *put;
  return true;
}

// Results go where the image does not.
void Tell(Work& work, const std::vector<std::string>& lines, const Json& json) {
  if (work.options.output == "-") {
    for (const std::string& line : lines) work.console.Note(line);
  } else if (work.options.json) {
    Print(work.console, json);
  } else {
    for (const std::string& line : lines) work.console.out += line + "\n";
  }
}

// What came of writing an image.
struct Written {
  const State& state;
  const Routines::PatchedFlash& patched;
  const Routines::Unwritten& unwritten;
  const Routines::Saved& saved;
  std::string target;
  bool same;  // as the image was before
};

std::vector<std::string> LinesOf(const Work& work, const Made& made, const Written& written) {
  std::vector<std::string> lines = made.done;
  if (written.same) {
    lines.push_back(written.target + ": era già così");
    return lines;
  }
  const std::string name = written.target == "-" ? "uscita standard" : written.target;
  lines.push_back((work.options.dryRun ? "Prova, non scritta " : "Scritta ") + name +
                  Routines::TextOf(written.patched, written.unwritten) +
                  Routines::TextOf(written.saved, Base::FileName(name)));
  const std::string summary = Routines::WriteSummary(written.state, written.patched);
  for (const std::string_view line : Base::Lines(summary)) lines.emplace_back(line);
  return lines;
}

}  // namespace

bool KnowsOutput(Work& work, const std::string& image) {
  const Options& options = work.options;
  if (!options.inPlace && options.output.empty())
    return work.console.Fail(Exit::Usage, "serve -o con il file da scrivere, o --in-place");
  if (options.inPlace && image == "-")
    return work.console.Fail(Exit::Usage, "--in-place vuole il nome di un file");
  if (options.first == "-" && options.second == "-")
    return work.console.Fail(Exit::Usage, "l'ingresso standard può stare per un file solo");
  if (options.json && options.output == "-") return work.console.Fail(Exit::Usage, "--json non va con -o -");
  return work.NeedsRates() && (options.inPlace || MayWrite(work, options.output));
}

void WriteImage(Work& work, const State& state, const std::string& path, Base::ByteView original,
                const Made& made) {
  const Options& options = work.options;
  const Routines::WritePlan plan = Routines::PlanWrite(state, SettingsOf(options));
  if (!plan.warning.empty()) work.console.Note(plan.warning);
  const Routines::PatchedFlash patched = Routines::PatchFlash(state, original, plan);
  const auto unwritten = Routines::FindUnwritten(state, patched.image, plan);
  const std::string target = options.inPlace ? path : options.output;
  const bool same = options.inPlace && Base::AsText(patched.image) == Base::AsText(original);
  Routines::Saved saved;
  if (!same && !Put(work, path, original, patched.image, saved)) return;
  if (!made.whole || !unwritten.Nothing()) work.console.exit = Exit::Found;
  const std::vector<std::string> lines =
      LinesOf(work, made, {state, patched, unwritten, saved, target, same});
  Tell(work, lines,
       {{"output", target},
        {"written", !options.dryRun && !same},
        {"copy", saved.copy},
        {"complete", made.whole && unwritten.Nothing()},
        {"unwrittenChannels", unwritten.channels},
        {"done", lines}});
}

bool WriteFile(Work& work, const std::string& path, Base::ByteView bytes) {
  if (!MayWrite(work, path)) return false;
  if (work.options.dryRun) return true;
  if (path == "-") {
    work.console.out.assign(Base::AsText(bytes));
    return true;
  }
  const std::string target = Base::ResolvedPath(path);
  if (Exists(path)) {
    const auto old = Base::ReadFile(target, LargestInput);
    if (!old) return work.console.Fail(Exit::NotWritten, path, old.error().message);
    const auto kept = Routines::KeepCopy(Base::FolderOf(target), target, *old);
    if (!kept) return work.console.Fail(Exit::NotWritten, path, kept.error().message);
  }
  const auto written = Base::ReplaceFile(target, bytes);
  return written ? true : work.console.Fail(Exit::NotWritten, path, written.error().message);
}

}  // namespace Cli
