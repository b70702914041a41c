#include "formats/list_summary.h"

#include "formats/scan_table.h"
#include "formats/service_rows.h"

#include <algorithm>
#include <array>

namespace Formats {
namespace {

using namespace Routines;

constexpr std::size_t Satellites = 32;
constexpr int Telling = 5;  // transponders of a part of a satellite's that no other one has by chance

bool Matches(const TransponderRecord& record, const ListedTransponder& transponder) {
  const bool horizontal = transponder.polarisation == Polarisation::Horizontal;
  return WithinThreeMHz(FrequencyMHz(record), transponder.frequency / 1000.0) &&
         horizontal == (Get(record, TransponderField::Horizontal) != 0);
}

bool Has(const std::vector<ListedTransponder>& listed, const TransponderRecord& record) {
  return std::any_of(listed.begin(), listed.end(),
                     [&](const ListedTransponder& one) { return Matches(record, one); });
}

struct Overlap {
  std::array<int, Satellites> all{};                       // transponders of each satellite of the list
  std::map<int, std::array<int, Satellites>> ofPositions;  // and those that a position has too
};

Overlap OverlapOf(const State& state, const std::vector<ListedTransponder>& transponders) {
  Overlap overlap;
  std::map<int, std::vector<ListedTransponder>> positions;
  for (const ListedTransponder& transponder : transponders) {
    if (transponder.position && transponder.frequency != NotSaid)
      positions[*transponder.position].push_back(transponder);
  }
  for (int number = 1; number <= state.TransponderCount; ++number) {
    const TransponderRecord& record = state.Transponder(number).record;
    if (IsFree(record)) continue;
    const std::size_t satellite = Get(record, TransponderField::Satellite);
    ++overlap.all[satellite];
    for (const auto& [position, listed] : positions)
      overlap.ofPositions[position][satellite] += Has(listed, record) ? 1 : 0;
  }
  return overlap;
}

}  // namespace

ListSummary SummaryOf(ServiceReader& reader) {
  ListSummary summary;
  DistinctTransponders distinct;
  while (reader.Read()) {
    const ListedService& service = reader.Service();
    const ListedTransponder& transponder = service.transponder;
    if (transponder.delivery == Delivery::Other) continue;
    ++summary.services;
    ++summary.codings[CodificaOf(service)];
    if (transponder.position) ++summary.positions[*transponder.position];
    if (!transponder.position) ++summary.withoutPosition;
    distinct.Add(transponder);
  }
  summary.transponders = std::move(distinct.list);
  return summary;
}

std::map<int, int> ProposedSatellites(const State& state,
                                      const std::vector<ListedTransponder>& transponders) {
  const Overlap overlap = OverlapOf(state, transponders);
  std::map<int, int> listed;
  for (const ListedTransponder& transponder : transponders) {
    if (transponder.position) ++listed[*transponder.position];
  }
  std::map<int, int> proposed;
  for (const auto& one : overlap.ofPositions) {
    const auto* const best = std::max_element(one.second.begin(), one.second.end());
    const auto satellite = static_cast<std::size_t>(best - one.second.begin());
    const bool most =
        *best * 2 > overlap.all[satellite] || (*best >= Telling && *best * 2 > listed[one.first]);
    const bool rivalled = std::any_of(
        overlap.ofPositions.begin(), overlap.ofPositions.end(),
        [&](const auto& other) { return other.first != one.first && other.second[satellite] >= *best; });
    const bool alone = std::count(one.second.begin(), one.second.end(), *best) == 1;
    if (most && alone && !rivalled) proposed[one.first] = static_cast<int>(satellite);
  }
  return proposed;
}

bool LooksLikeAnother(const State& state, const std::vector<ListedTransponder>& transponders, int satellite) {
  int all = 0, both = 0;
  for (int number = 1; number <= state.TransponderCount; ++number) {
    const TransponderRecord& record = state.Transponder(number).record;
    if (IsFree(record) || static_cast<int>(Get(record, TransponderField::Satellite)) != satellite) continue;
    ++all;
    both += Has(transponders, record) ? 1 : 0;
  }
  return all >= Telling && both * 2 <= all && both * 2 <= static_cast<int>(transponders.size());
}

}  // namespace Formats
