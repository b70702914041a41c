#include "support/sr_ini.h"

#include "base/file.h"
#include "base/text.h"

#include <cerrno>

namespace Support {
namespace {

constexpr std::size_t SizeLimit = 1U << 20U;

enum class Section { None, Input, Output };

// One data line of the input section; false when it is malformed. Codes are compared as text, so "1 " and
// "0:" lie between "00" and "15" and count for the digits they begin with.
bool TakeRate(std::string_view line, std::string& table) {
  const std::string_view code = line.substr(0, 2);
  if (line.size() < 3 || code < "00" || code > "15" || line[2] != '=') return false;
  const std::string_view rate = Base::TrimmedLeft(line.substr(3));
  if (Base::LeadingDigits(rate).find_first_not_of('0') == std::string_view::npos) return true;
  Routines::SetSymbolRate(table, static_cast<std::size_t>(Base::LeadingNumber(code)), rate);
  return true;
}

}  // namespace

Base::Result<std::string> SymbolRatesOf(std::string_view text, Routines::Sr22000 place) {
  std::string table = Routines::EmptySymbolRateTable();
  Section section = Section::None;
  for (const std::string_view raw : Base::Lines(text)) {
    const std::string_view line = Base::Trimmed(raw);
    if (line.find("INPUT") != std::string_view::npos) {
      section = Section::Input;
    } else if (line.find("OUTPUT") != std::string_view::npos) {
      section = Section::Output;
    } else if (section == Section::Input && !line.empty() && !TakeRate(line, table)) {
      return Base::Error{"Formato invalido del file SR.INI - Correggere e rilanciare"};
    }
  }
  Routines::PlaceUsualRates(table, place);
  return table;
}

Base::Result<SymbolRates> CaricaTabelleSR(const std::string& folder, Routines::Sr22000 place) {
  const std::string path = Base::PathIn(folder, "SR.INI");
  const auto bytes = Base::ReadFile(path, SizeLimit);
  const auto table = SymbolRatesOf(bytes ? Base::AsText(*bytes) : std::string_view{}, place);
  if (!table) return table.error();
  if (bytes) return SymbolRates{*table, {}};
  const bool absent = bytes.error().systemCode == ENOENT;
  return SymbolRates{*table, absent ? "File SR.INI non trovato: " + path : bytes.error().message};
}

}  // namespace Support
