// Lists as files of any kind that can be read, each known by what is in it.
#pragma once

#include "cli/program.h"
#include "formats/sdx_table.h"
#include "model/flash_loader.h"
#include "model/other_list.h"
#include "model/routines.h"

#include <memory>
#include <optional>

namespace Cli {

// Rows are a list of services, be it SatcoDX or another program's.
enum class FileKind { Flash, Text, Fls, Csv, Rows };

struct ListFile {
  std::string path;
  Base::Bytes bytes;
  FileKind kind = FileKind::Flash;
};

// What follows says to the console why there is nothing.

// The bytes of a file, or of the standard input.
std::optional<Base::Bytes> ReadBytes(Work& work, const std::string& path);
// An image, which has to be one.
std::optional<Base::Bytes> ReadImage(Work& work, const std::string& path);
std::optional<ListFile> ReadList(Work& work, const std::string& path);

// An image as a list, with what loading it has to tell among the notes. How much of it was read is told too, by the exit
// as well, unless `report` is wanted.
std::unique_ptr<Routines::State> Loaded(Work& work, const std::string& path, Base::ByteView image,
                                        Routines::LoadReport* report = nullptr);
// The image has channels that were not read.
inline bool IsPart(const Routines::LoadReport& report) {
  return report.channelsInImage > report.channelsRead;
}
void TellPart(Work& work, const std::string& path, const Routines::LoadReport& report, int transponders);

// A list by itself. Rows have the numbers of their slots, and their satellites are those that they have in the list `like`, if
// there is one; `said` becomes what they say.
std::unique_ptr<Routines::State> StateOf(Work& work, const ListFile& file,
                                         const Routines::State* like = nullptr,
                                         Routines::OtherList* said = nullptr);
// The other side of a comparison with one's own list.
std::optional<Routines::OtherList> OtherOf(Work& work, const ListFile& file, const Routines::State& mine);
// The rows of a list of services. The satellites of its positions are those that are asked for, else those that they have in
// one's own list, else, where there is none, the letters in the order of their size, which is noted.
std::optional<Formats::SdxTable> RowsOf(Work& work, const ListFile& file, const Routines::State* mine);

}  // namespace Cli
