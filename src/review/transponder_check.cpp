#include "review/transponder_check.h"

#include "base/text.h"
#include "model/symbol_rates.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <tuple>

namespace Review {
namespace {

using namespace Routines;

constexpr std::uint32_t AutomaticFec = 5;

bool Receivable(const ListedTransponder& listed) {
  constexpr int Lowest = 10000, Highest = 13999;  // MHz
  const int megahertz = MegahertzOf(listed);
  return listed.delivery != Delivery::Other && megahertz >= Lowest && megahertz <= Highest &&
         (listed.polarisation == Polarisation::Horizontal || listed.polarisation == Polarisation::Vertical);
}

bool IsHorizontal(const ListedTransponder& listed) { return listed.polarisation == Polarisation::Horizontal; }

bool Same(const TransponderRecord& record, const ListedTransponder& listed) {
  return WithinThreeMHz(FrequencyMHz(record), listed.frequency / 1000.0) &&
         IsHorizontal(listed) == (Get(record, TransponderField::Horizontal) != 0);
}

bool Same(const ListedTransponder& one, const ListedTransponder& other) {
  return WithinThreeMHz(one.frequency / 1000.0, other.frequency / 1000.0) &&
         one.polarisation == other.polarisation;
}

class Checker {
 public:
  Checker(const State& state, const std::vector<ListedTransponder>& listed, int satellite)
      : state_(state), satellite_(satellite) {
    std::set<std::tuple<int, Polarisation, Delivery>> seen;
    for (const ListedTransponder& one : listed) {
      if (Receivable(one) && seen.insert({MegahertzOf(one), one.polarisation, one.delivery}).second)
        listed_.push_back(one);
    }
  }

  std::vector<TransponderFinding> Run(bool withDvbS2) {
    for (int slot = 1; slot <= state_.TransponderCount; ++slot) {
      const TransponderRecord& record = state_.Transponder(slot).record;
      const auto satellite = static_cast<int>(Get(record, TransponderField::Satellite));
      if (!IsFree(record) && satellite == satellite_) Check(slot, record);
    }
    for (const ListedTransponder& listed : listed_) {
      if (withDvbS2 || listed.delivery == Delivery::DvbS) LookFor(listed);
    }
    std::stable_sort(found_.begin(), found_.end(), [this](const auto& one, const auto& other) {
      return std::make_tuple(one.mark, Megahertz(one)) < std::make_tuple(other.mark, Megahertz(other));
    });
    return std::move(found_);
  }

 private:
  [[nodiscard]] int Megahertz(const TransponderFinding& finding) const {
    return finding.slot == 0 ? MegahertzOf(finding.listed)
                             : FrequencyMHz(state_.Transponder(finding.slot).record);
  }

  void Check(int slot, const TransponderRecord& record) {
    const auto first = std::find_if(own_.begin(), own_.end(), [&](int earlier) {
      return SameTransponder(state_.Transponder(earlier).record, record);
    });
    if (first != own_.end()) {
      found_.push_back({TransponderMark::Doubled, slot, *first, {}});
      return;
    }
    own_.push_back(slot);
    const ListedTransponder* listed = NearestTo(record);
    if (listed == nullptr) {
      found_.push_back({TransponderMark::Gone, slot, 0, {}});
    } else if (Differs(record, *listed)) {
      found_.push_back({TransponderMark::Changed, slot, 0, *listed});
    }
  }

  [[nodiscard]] const ListedTransponder* NearestTo(const TransponderRecord& record) const {
    const auto distance = [&](const ListedTransponder& listed) {
      const int kilohertz = std::abs(listed.frequency - FrequencyMHz(record) * 1000);
      return std::make_tuple(!Same(record, listed), kilohertz, listed.delivery);
    };
    const auto nearest =
        std::min_element(listed_.begin(), listed_.end(),
                         [&](const auto& one, const auto& other) { return distance(one) < distance(other); });
    return nearest == listed_.end() || !Same(record, *nearest) ? nullptr : &*nearest;
  }

  [[nodiscard]] bool Differs(const TransponderRecord& record, const ListedTransponder& listed) const {
    const auto code = FecCodeOf(listed);
    const std::uint32_t own = Get(record, TransponderField::Fec);
    const bool otherFec = code && own < AutomaticFec && *code != own;
    const auto rate = SymbolRateText(state_.SymbolRateTable, Get(record, TransponderField::SymbolRate));
    return otherFec || (listed.symbolRate > 0 && !IsRate(rate, listed));
  }

  // A list may name one more than once, as for each of its streams.
  void LookFor(const ListedTransponder& listed) {
    const bool known = std::any_of(own_.begin(), own_.end(),
                                   [&](int slot) { return Same(state_.Transponder(slot).record, listed); });
    const bool told = std::any_of(found_.begin(), found_.end(), [&](const TransponderFinding& one) {
      return one.mark == TransponderMark::Missing && Same(one.listed, listed);
    });
    if (!known && !told) found_.push_back({TransponderMark::Missing, 0, 0, listed});
  }

  const State& state_;
  int satellite_;
  std::vector<ListedTransponder> listed_;  // a file may name as many as it likes: each MHz once
  std::vector<int> own_;                   // slots without the doubled ones
  std::vector<TransponderFinding> found_;
};

}  // namespace

std::vector<TransponderFinding> CheckTransponders(const State& state,
                                                  const std::vector<ListedTransponder>& listed, int satellite,
                                                  bool withDvbS2) {
  return Checker(state, listed, satellite).Run(withDvbS2);
}

int MegahertzOf(const ListedTransponder& listed) { return (listed.frequency + 500) / 1000; }

std::optional<std::uint32_t> FecCodeOf(const ListedTransponder& listed) {
  constexpr std::string_view Known[] = {"1/2", "2/3", "3/4", "5/6", "7/8"};
  const std::string_view fec = listed.fec;
  if (fec.empty()) return std::nullopt;
  const auto found = std::find(std::begin(Known), std::end(Known), fec) - std::begin(Known);
  return std::min(static_cast<std::uint32_t>(found), AutomaticFec);
}

bool IsRate(std::string_view rate, const ListedTransponder& listed) {
  constexpr int Tolerance = 10000;  // Bd
  const int kilobaud = Base::LeadingCount(rate, 99999);
  return kilobaud > 0 && std::abs(kilobaud * 1000 - listed.symbolRate) < Tolerance;
}

}  // namespace Review
