#include "formats/drop_report.h"

#include <numeric>

namespace Formats {

int DropReport::Total() const { return std::accumulate(counts_.begin(), counts_.end(), 0); }

std::vector<std::pair<std::string_view, int>> DropReport::Counts() const {
  // In the order of Drop.
  constexpr std::array<std::string_view, std::tuple_size_v<decltype(counts_)>> Reasons = {
      "senza PID",
      "tipo",
      "non MPG2",
      "symbol rate",
      "codifica",
      "filtri",
      "senza nome",
      "senza frequenza",
      "frequenza non valida",
      "polarizzazione non valida",
      "numero non valido",
      "senza transponder",
      "non da satellite",
      "DVB-S2",
      "altre modulazioni",
      "H.264/HEVC",
      "polarizzazione circolare",
      "satellite non scelto",
      "fuori banda",
      "righe non valide"};
  std::vector<std::pair<std::string_view, int>> counts;
  for (std::size_t i = 0; i < counts_.size(); ++i)
    if (counts_[i] != 0) counts.emplace_back(Reasons[i], counts_[i]);
  return counts;
}

std::string DropReport::Text() const {
  std::string text;
  for (const auto& [reason, count] : Counts())
    text.append(text.empty() ? "" : ", ").append(reason).append(" ").append(std::to_string(count));
  return text;
}

}  // namespace Formats
