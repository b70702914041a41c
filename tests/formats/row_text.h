// A row of the SDX table as a line of text.
#pragma once

#include "formats/sdx_table.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace Formats {

// "Uno TA 011766V+ 27500 3", then the PIDs, SID, NID, TID and the coding.
inline std::string RowText(const SdxRow& row) {
  std::string text = std::string(row.name) + " " + row.type + static_cast<char>('A' + row.satellite) + " ";
  text.append(row.frequency).append(row.horizontal ? "H" : "V").append(row.highBand ? "+" : "-");
  for (const std::string_view field :
       {std::string_view(row.symbolRate), std::string_view(row.fec), std::string_view(row.vpid),
        std::string_view(row.apid), std::string_view(row.pcr), std::string_view(row.sid),
        std::string_view(row.nid), std::string_view(row.tid)})
    text.append(" ").append(field);
  return text + " " + std::to_string(row.codifica);
}

inline std::vector<std::string> Texts(const std::vector<SdxRow>& rows) {
  std::vector<std::string> texts;
  for (const SdxRow& row : rows) texts.push_back(RowText(row));
  return texts;
}

}  // namespace Formats
