// What a command says and how it ends. Nothing is printed before it has ended.
#pragma once

#include "base/bytes.h"
#include "base/result.h"

#include <functional>
#include <string>
#include <string_view>

namespace Cli {

// No list is larger.
inline constexpr std::size_t LargestInput = 64U << 20U;

enum class Exit { Done = 0, Found = 1, Usage = 2, Unreadable = 3, NotWritten = 4 };

struct Console {
  // The whole standard input, asked for at most once.
  std::function<Base::Result<Base::Bytes>()> readInput;

  std::string out = {};  // results; UTF-8, or bytes of a file
  std::string err = {};  // the rest, UTF-8 but for names of files
  Exit exit = Exit::Done;

  // A line of what is worth knowing and no result.
  void Note(std::string_view text) { err.append("trovalis-cli: ").append(text).append("\n"); }
  // The same about a file, whose name is put in front where the text has it not.
  void Note(const std::string& path, const std::string& text);

  // Notes what found no place, which is not told by the exit of a command that did all.
  void Miss(std::string_view text) {
    Note(text);
    exit = Exit::Found;
  }

  // Notes why the command stops. False, for those who return it.
  bool Fail(Exit how, std::string_view why) {
    Note(why);
    exit = how;
    return false;
  }
  bool Fail(Exit how, const std::string& path, const std::string& why) {
    Note(path, why);
    exit = how;
    return false;
  }
};

// The name to show of a file that may be a standard stream.
std::string ShownName(const std::string& path);

}  // namespace Cli
