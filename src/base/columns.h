// Fixed columns of text lines, counted from 1. A line may end anywhere: what lies past its end is empty.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace Base {

struct Column {
  std::size_t first;
  std::size_t width;
};

// A column that runs to the end of its line.
inline constexpr std::size_t ToLineEnd = std::string_view::npos;

inline std::string_view Cut(std::string_view line, const Column& column) {
  return line.substr(std::min(column.first - 1, line.size()), column.width);
}

// Puts `text` into its column, cut or filled up with blanks to the width; the line grows as far as it must.
inline void Put(std::string& line, const Column& column, std::string_view text) {
  const std::size_t width = column.width == ToLineEnd ? text.size() : column.width;
  if (line.size() < column.first - 1 + width) line.resize(column.first - 1 + width, ' ');
  std::string field(text.substr(0, width));
  field.resize(width, ' ');
  line.replace(column.first - 1, width, field);
}

}  // namespace Base
