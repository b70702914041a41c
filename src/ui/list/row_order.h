// In which order a view shows the rows of a list that is sorted by what a column says: numbers as numbers, letters
// whatever their case and accents; rows that hold nothing there come last either way.
#pragma once

#include "ui/list/table_model.h"

#include <string>
#include <tuple>
#include <vector>

namespace Ui {

class RowOrder {
 public:
  RowOrder(const TableModel& list, int column, bool descending);

  [[nodiscard]] int Column() const { return column_; }
  [[nodiscard]] bool Descending() const { return descending_; }
  // The rows, from 0. Equal ones stay as they are in the list.
  [[nodiscard]] std::vector<int> Rows() const;

  // Takes in what the list says now; whether more than one row says something else. A single one that has just been
  // edited need not go away from under the hand that edits it.
  bool ReadAgain();

 private:
  enum class Kind { Number, Word, Blank };
  struct Key {
    Kind kind = Kind::Blank;
    unsigned long long number = 0;
    std::string word;

    friend bool operator==(const Key&, const Key&) = default;
    friend bool operator<(const Key& one, const Key& other) {
      return std::tie(one.kind, one.number, one.word) < std::tie(other.kind, other.number, other.word);
    }
  };

  [[nodiscard]] std::vector<Key> Read() const;

  const TableModel& list_;
  int column_;
  bool descending_;
  std::vector<Key> keys_;
};

}  // namespace Ui
