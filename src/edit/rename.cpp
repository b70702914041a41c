#include "edit/rename.h"

#include "base/code_page.h"
#include "base/names.h"
#include "base/text.h"
#include "edit/cell_edit.h"
#include "model/cells.h"

#include <algorithm>
#include <array>

// GCC 12 takes parts of its own regular expressions for uninitialised where it builds for the sanitizers.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <regex>

namespace Edit {
namespace {

using Base::Error;
using Routines::ChannelRecord;

// Stands for a typed character that has no byte; no name has a zero of its own.
constexpr char Lacking = '\0';
// Rules that make names grow stop here, far beyond what fits.
constexpr std::size_t MostBytes = 255;

struct KindWord {
  RenameKind kind;
  std::string_view word;
  int texts;
};

constexpr std::array<KindWord, 11> Words = {{{RenameKind::Replace, "sostituisci", 2},
                                             {RenameKind::Pattern, "modello", 2},
                                             {RenameKind::TakeFront, "togli-davanti", 1},
                                             {RenameKind::TakeBehind, "togli-dietro", 1},
                                             {RenameKind::PutFront, "metti-davanti", 1},
                                             {RenameKind::PutBehind, "metti-dietro", 1},
                                             {RenameKind::Capitals, "iniziali", 0},
                                             {RenameKind::Upper, "maiuscole", 0},
                                             {RenameKind::Lower, "minuscole", 0},
                                             {RenameKind::Tidy, "spazi", 0},
                                             {RenameKind::FromSource, "nomi-a-destra", 0}}};

const KindWord& WordOf(RenameKind kind) {
  return *std::find_if(Words.begin(), Words.end(), [kind](const KindWord& one) { return one.kind == kind; });
}

// The bytes of a text, one for each character.
std::string BytesOf(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    std::size_t length = 1;
    while (length < utf8.size() && (static_cast<unsigned char>(utf8[length]) & 0xC0U) == 0x80) ++length;
    const auto byte = Base::FromUtf8(utf8.substr(0, length));
    bytes += byte ? *byte : std::string(1, Lacking);
    utf8.remove_prefix(length);
  }
  return bytes;
}

std::string Shown(std::string_view bytes) {
  constexpr std::string_view Replacement = "\xEF\xBF\xBD";
  if (bytes.find(Lacking) == std::string_view::npos) return Base::ToUtf8(bytes);
  std::string utf8;
  for (const char byte : bytes) utf8 += byte == Lacking ? std::string(Replacement) : Base::ToUtf8({&byte, 1});
  return utf8;
}

std::string Replaced(std::string_view name, std::string_view upper, std::string_view with) {
  const std::string folded = Base::UpperCase(name);
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = 0; (at = folded.find(upper, from)) != std::string::npos; from = at + upper.size())
    result.append(name.substr(from, at - from)).append(with);
  return result.append(name.substr(from));
}

bool BeginsWithWord(std::string_view name, std::string_view word) {
  return Base::UpperCase(name).starts_with(Base::UpperCase(word)) &&
         (name.size() == word.size() || name[word.size()] == ' ');
}

bool EndsWithWord(std::string_view name, std::string_view word) {
  return Base::UpperCase(name).ends_with(Base::UpperCase(word)) &&
         (name.size() == word.size() || name[name.size() - word.size() - 1] == ' ');
}

bool IsLetter(char c) {
  const std::string_view one(&c, 1);
  return Base::UpperCase(one) != Base::LowerCase(one);
}

// Words begin behind whatever is no letter and no digit. A lone letter behind an apostrophe goes with the word before.
bool BeginsWord(std::string_view name, std::size_t at) {
  if (at == 0) return true;
  const char before = name[at - 1];
  if (before == '\'') return at + 1 < name.size() && IsLetter(name[at + 1]);
  return !IsLetter(before) && !(before >= '0' && before <= '9');
}

std::string Capitalised(std::string_view name) {
  std::string result = Base::LowerCase(name);
  for (std::size_t i = 0; i < result.size(); ++i)
    if (BeginsWord(name, i)) result[i] = Base::UpperCase(name.substr(i, 1)).front();
  return result;
}

std::string Tidied(std::string_view name) {
  std::string result;
  for (const char c : Base::Trimmed(name))
    if (c != ' ' || result.back() != ' ') result += c;
  return result;
}

// A pattern may be such that trying all ways to match takes years. Where the library knows how to follow them all at
// once, at the price of references back, that cannot be.
#ifdef __GLIBCXX__
constexpr auto PatternSyntax =
    std::regex::ECMAScript | std::regex::icase | std::regex_constants::__polynomial;
#else
constexpr auto PatternSyntax = std::regex::ECMAScript | std::regex::icase;
#endif

// What a rule makes of a name; both in bytes.
using Change = std::function<std::string(std::string_view name, int slot)>;

Base::Result<Change> PatternChange(const std::string& pattern, const std::string& with) {
  if (pattern.find(Lacking) != std::string::npos)
    return Error{"Nel modello c'è un carattere che il ricevitore non conosce"};
  try {
    const std::regex expression(pattern, PatternSyntax);
    return Change([expression, with](std::string_view name, int) {
      return std::regex_replace(std::string(name), expression, with);
    });
  } catch (const std::regex_error&) {
    return Error{"Il modello non è un'espressione regolare valida"};
  }
}

Change WordChange(RenameKind kind, const std::string& word) {
  const std::size_t length = word.size();
  switch (kind) {
    case RenameKind::TakeFront:
      return [word, length](std::string_view name, int) {
        return std::string(BeginsWithWord(name, word) ? Base::TrimmedLeft(name.substr(length)) : name);
      };
    case RenameKind::TakeBehind:
      return [word, length](std::string_view name, int) {
        return std::string(EndsWithWord(name, word) ? Base::TrimmedRight(name.substr(0, name.size() - length))
                                                    : name);
      };
    case RenameKind::PutFront:
      return [word](std::string_view name, int) {
        return BeginsWithWord(name, word) ? std::string(name) : (word + " ").append(name);
      };
    default:
      return [word](std::string_view name, int) {
        return EndsWithWord(name, word) ? std::string(name) : std::string(name).append(" ").append(word);
      };
  }
}

// The rules without texts.
Change PlainChange(RenameKind kind, const SourceName& source) {
  switch (kind) {
    case RenameKind::Capitals:
      return [](std::string_view name, int) { return Capitalised(name); };
    case RenameKind::Upper:
      return [](std::string_view name, int) { return Base::UpperCase(name); };
    case RenameKind::Lower:
      return [](std::string_view name, int) { return Base::LowerCase(name); };
    case RenameKind::Tidy:
      return [](std::string_view name, int) { return Tidied(name); };
    default:
      return [source](std::string_view name, int slot) { return source(slot).value_or(std::string(name)); };
  }
}

Base::Result<Change> ChangeOf(const RenameRule& rule, const SourceName& source) {
  const std::string text = BytesOf(rule.text);
  if (WordOf(rule.kind).texts > 0 && text.empty()) return Error{"Manca il testo della regola"};
  if (rule.kind == RenameKind::Pattern) return PatternChange(text, BytesOf(rule.with));
  if (rule.kind == RenameKind::FromSource && !source) return Error{"Non c'è una lista a destra"};
  if (rule.kind != RenameKind::Replace)
    return WordOf(rule.kind).texts > 0 ? WordChange(rule.kind, text) : PlainChange(rule.kind, source);
  return Change([upper = Base::UpperCase(text), with = BytesOf(rule.with)](std::string_view name, int) {
    return Replaced(name, upper, with);
  });
}

std::string FaultOf(const std::string& after) {
  const auto name = Base::NameBytes(after, ChannelRecord::NameSize);
  if (!name) return name.error().message;
  return name->empty() ? "Un canale senza nome sarebbe un posto vuoto" : "";
}

std::string Changed(int slot, std::string_view before, const std::vector<Change>& changes) {
  std::string name(before);
  for (const Change& change : changes) name = change(name, slot).substr(0, MostBytes);
  name.resize(Base::TrimmedRight(name).size());
  return name;
}

NewName Renamed(int slot, std::string_view before, const std::string& name) {
  const std::string after = Shown(name);
  return {slot, Base::ToUtf8(before), after, static_cast<int>(name.size()), FaultOf(after)};
}

}  // namespace

std::string TextOf(const RenameRule& rule) {
  const KindWord& kind = WordOf(rule.kind);
  constexpr std::string_view Marks = "/|#;,~^\t";
  const std::string texts = rule.text + rule.with;
  const auto mark =
      std::find_if(Marks.begin(), Marks.end(), [&](char c) { return texts.find(c) == std::string::npos; });
  const char between = mark == Marks.end() ? '\n' : *mark;
  std::string line(kind.word);
  if (kind.texts > 0) line.append(1, between).append(rule.text).append(1, between);
  if (kind.texts > 1) line.append(rule.with).append(1, between);
  return line;
}

Base::Result<RenameRule> RenameRuleOf(std::string_view line) {
  const auto kind = std::find_if(Words.begin(), Words.end(), [line](const KindWord& one) {
    const std::string_view rest = line.substr(std::min(one.word.size(), line.size()));
    return line.starts_with(one.word) && rest.empty() == (one.texts == 0) && !rest.starts_with('-');
  });
  const Error unknown{"Regola sconosciuta: " + std::string(line)};
  if (kind == Words.end()) return unknown;
  RenameRule rule{kind->kind};
  if (kind->texts == 0) return rule;
  line.remove_prefix(kind->word.size());
  const char mark = line.front();
  line.remove_prefix(1);
  for (std::string* text : {&rule.text, &rule.with}) {
    const std::size_t end = std::min(line.find(mark), line.size());
    *text = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    if (kind->texts == 1) break;
  }
  return line.empty() ? Base::Result(rule) : Base::Result<RenameRule>(unknown);
}

Base::Result<std::vector<NewName>> NewNames(const Routines::State& state, const std::vector<int>& slots,
                                            const std::vector<RenameRule>& rules, const SourceName& source) {
  std::vector<Change> changes;
  for (const RenameRule& rule : rules) {
    auto change = ChangeOf(rule, source);
    if (!change) return change.error();
    changes.push_back(std::move(*change));
  }
  std::vector<NewName> names;
  for (const int slot : slots) {
    const ChannelRecord& channel = state.Channel(slot);
    if (channel.Empty()) continue;
    const std::string_view before = Base::TrimmedRight(channel.Name());
    const std::string name = Changed(slot, before, changes);
    if (name != before) names.push_back(Renamed(slot, before, name));
  }
  return names;
}

int RenameChannels(Routines::State& state, const std::vector<NewName>& names) {
  int renamed = 0;
  for (const NewName& name : names) {
    if (name.fault.empty() && EditChannel(state, name.slot, Routines::ChannelColumn::Name, name.after))
      ++renamed;
  }
  return renamed;
}

}  // namespace Edit
