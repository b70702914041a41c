#include "formats/foreign_text.h"

#include "base/code_page.h"

#include <algorithm>

namespace Formats {
namespace {

// What a look at the front of a file decides by.
constexpr std::size_t Sample = 65536;

std::string Decoded(std::string_view bytes, std::string_view& encoding) {
  constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
  const bool lowFirst = bytes.starts_with("\xFF\xFE");
  if (lowFirst || bytes.starts_with("\xFE\xFF")) {
    encoding = "UTF-16";
    return Base::FromUtf16Lossy(bytes.substr(2), !lowFirst);
  }
  if (bytes.starts_with(Utf8Mark)) bytes.remove_prefix(Utf8Mark.size());
  if (Base::IsUtf8(bytes)) {
    encoding = "UTF-8";
    return Base::FromUtf8Lossy(bytes);
  }
  encoding = "Windows-1252";
  return std::string(bytes);
}

// A text has no zero bytes and hardly any other control characters.
bool LooksBinary(std::string_view text) {
  const std::string_view front = text.substr(0, Sample);
  const auto isControl = [](char c) { return c >= 0 && c < ' ' && c != '\t' && c != '\r' && c != '\n'; };
  return front.find('\0') != std::string_view::npos ||
         std::count_if(front.begin(), front.end(), isControl) * 20 >
             static_cast<std::ptrdiff_t>(front.size());
}

void EndLinesAlike(std::string& text) {
  if (text.find('\n') == std::string::npos) {
    std::replace(text.begin(), text.end(), '\r', '\n');
  } else {
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  }
}

}  // namespace

Base::Result<ForeignText> DecodeForeign(std::string_view bytes, const std::string& name) {
  ForeignText result;
  result.text = Decoded(bytes, result.encoding);
  if (LooksBinary(result.text)) return Base::Error{name + " non è un file di testo"};
  EndLinesAlike(result.text);
  if (result.text.find_first_not_of(" \t\n\x1A") == std::string::npos) return Base::Error{name + " è vuoto"};
  result.lines = static_cast<int>(std::count(result.text.begin(), result.text.end(), '\n'));
  if (!result.text.ends_with('\n')) ++result.lines;
  return result;
}

}  // namespace Formats
