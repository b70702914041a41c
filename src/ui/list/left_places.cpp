#include "ui/list/left_places.h"

namespace Ui {
namespace {

constexpr std::size_t Most = 20;

}  // namespace

void LeftPlaces::SetFile(int list, const std::string& path) {
  lists_[list].path = path;
  if (lists_.size() > Most) lists_.erase(lists_.begin());
}

std::string LeftPlaces::FileOf(int list) const {
  const auto found = lists_.find(list);
  return found == lists_.end() ? std::string() : found->second.path;
}

void LeftPlaces::Keep(int list, View view, GridPlace place) { lists_[list].places[view] = std::move(place); }

std::optional<GridPlace> LeftPlaces::Of(int list, View view) const {
  const std::string path = FileOf(list);
  std::optional<GridPlace> last;
  for (const auto& [number, left] : lists_) {
    const auto found = left.places.find(view);
    if (found == left.places.end()) continue;
    if (number == list) return found->second;
    if (!path.empty() && left.path == path) last = found->second;
  }
  return last;
}

}  // namespace Ui
