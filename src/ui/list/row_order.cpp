#include "ui/list/row_order.h"

#include "base/code_page.h"
#include "base/names.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace Ui {
namespace {

constexpr std::size_t MostDigits = 18;

bool IsNumber(const std::string& text) {
  return text.size() <= MostDigits && text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

RowOrder::RowOrder(const TableModel& list, int column, bool descending)
    : list_(list), column_(column), descending_(descending), keys_(Read()) {}

// A column of codes has some that look like numbers.
std::vector<RowOrder::Key> RowOrder::Read() const {
  std::vector<Key> keys(static_cast<std::size_t>(list_.rowCount()));
  bool numbers = true;
  for (int row = 0; row < list_.rowCount(); ++row) {
    Key& key = keys[static_cast<std::size_t>(row)];
    if (!list_.Used(row + 1)) continue;
    key.word = list_.index(row, column_).data(Qt::DisplayRole).toString().trimmed().toStdString();
    if (key.word.empty()) continue;
    key.kind = Kind::Word;
    numbers = numbers && IsNumber(key.word);
  }
  for (Key& key : keys) {
    if (key.kind != Kind::Word) continue;
    if (numbers) {
      key = {Kind::Number, std::stoull(key.word), {}};
    } else {
      key.word = Base::Folded(Base::FromUtf8Lossy(key.word));
    }
  }
  return keys;
}

std::vector<int> RowOrder::Rows() const {
  std::vector<int> rows(keys_.size());
  std::iota(rows.begin(), rows.end(), 0);
  std::stable_sort(rows.begin(), rows.end(), [this](int one, int other) {
    const Key& here = keys_[static_cast<std::size_t>(one)];
    const Key& there = keys_[static_cast<std::size_t>(other)];
    const bool blanks = here.kind == Kind::Blank || there.kind == Kind::Blank;
    return descending_ && !blanks ? there < here : here < there;
  });
  return rows;
}

bool RowOrder::ReadAgain() {
  const std::vector<Key> before = std::exchange(keys_, Read());
  if (before.size() != keys_.size()) return true;
  int others = 0;
  for (std::size_t row = 0; row < keys_.size() && others < 2; ++row)
    others += keys_[row] == before[row] ? 0 : 1;
  return others > 1;
}

}  // namespace Ui
