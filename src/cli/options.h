// What a command line asks for.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Cli {

enum class Command { Info, List, Check, Diff, Sdx, Convert, Write, Apply, Order, Sort, Rename };

enum class ListForm { Lines, Csv, Text, Vdr };

struct Options {
  Command command = Command::Info;
  std::string first;   // the file, or the one that is looked at first
  std::string second;  // the other one; empty where the command has only one

  bool json = false;
  bool dryRun = false;
  std::string support;  // folder of the support files; empty for the program's own
  std::optional<int> capacity;
  std::vector<std::string> satellites;  // "A=S13.0E", or "A" for rows that say nothing of their position
  bool keepHd = false;
  bool data = false;

  ListForm form = ListForm::Lines;
  std::string filter;
  std::string target;  // of a conversion: text, fls, csv or vdr; empty to go by the name

  std::string output;  // "-" for the standard output
  bool inPlace = false;
  bool force = false;
  std::optional<int> type;  // 1 to 3
  int rate22000 = 2;        // "come 2" or "come 0"

  std::vector<std::string> only;   // kinds of differences to take over
  std::string place = "behind";    // of channels that are new
  std::vector<std::string> keys;   // to sort by
  int from = 1;                    // first channel to sort
  int multiple = 0;                // that each group begins at
  bool listed = false;             // an order's own numbers are kept
  std::vector<std::string> rules;  // for names
};

// What came of reading a command line.
struct Parsed {
  std::optional<Options> options;
  // Without options: what to say, and whether it was asked for (help, version) or is a refusal.
  std::string text;
  bool asked = false;
};

// `arguments` are those behind the program's name, as the system gives them.
Parsed Parse(const std::vector<std::string>& arguments);

}  // namespace Cli
