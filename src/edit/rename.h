// New names for many channels by rules that a user puts together: what they would become is known before anything changes.
#pragma once

#include "base/result.h"
#include "model/routines.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Edit {

enum class RenameKind {
  Replace,     // `text` wherever it stands, in any case, by `with`
  Pattern,     // what the regular expression `text` finds by `with`, where $1 is its first group
  TakeFront,   // the word `text` off the front, in any case, with the blanks behind it
  TakeBehind,  // the same at the end
  PutFront,    // the word `text` and a blank in front, unless the name begins with it
  PutBehind,   // the same at the end
  Capitals,    // "Rai Uno"
  Upper,
  Lower,
  Tidy,       // no blanks at the ends, one between words
  FromSource  // the name that the list on the right has for the channel
};

// A rule's texts are UTF-8; what its kind does not need is empty.
struct RenameRule {
  RenameKind kind = RenameKind::Replace;
  std::string text = {};
  std::string with = {};

  bool operator==(const RenameRule&) const = default;
};

// A rule as one line of text: a word for its kind, and its texts each behind a mark that is in neither of them, as in
// "sostituisci/HD/" or "maiuscole".
std::string TextOf(const RenameRule& rule);
Base::Result<RenameRule> RenameRuleOf(std::string_view line);

struct NewName {
  int slot = 0;
  std::string before;  // UTF-8
  std::string after;   // UTF-8
  int bytes = 0;       // of `after` in a record; those that the receiver lacks count as one
  std::string fault;   // why the channel cannot have it; empty where it can
};

// The name (bytes of the code page) that the list on the right has for the channel in a slot, if any.
using SourceName = std::function<std::optional<std::string>(int slot)>;

// The channels of `slots` whose name the rules change, one after the other. An error says which rule makes no sense.
Base::Result<std::vector<NewName>> NewNames(const Routines::State& state, const std::vector<int>& slots,
                                            const std::vector<RenameRule>& rules, const SourceName& source);

// Gives the channels their new names but for those with a fault. Returns how many were renamed.
int RenameChannels(Routines::State& state, const std::vector<NewName>& names);

}  // namespace Edit
