// One's own list beside an order that it is to have.
#pragma once

#include "model/order.h"
#include "review/compare.h"

namespace Review {

// What becomes of the numbers that an order leaves out: of entries that are not found, and between those that it numbers.
enum class Numbering {
  Together,  // the channels found come one after the other, from 1 on; all others behind them
  AsListed   // each gets the number that its list gives it
};

struct OrderMatch {
  // The entries as a list: those found by the numbers that their channels are to have, behind them those that are not.
  OtherList list;
  // Moved are the channels found that have another number now, only here those that the order does not name, only there
  // the entries not found.
  Comparison found;
};

// Entries are found by NID, TID and SID, or the latter two where they do not say the first, else by name, accents and
// case folded. Each finds the first channel that no earlier one has; one with a number that the list does not reach
// counts as not found.
OrderMatch MatchOrder(const State& state, const Routines::Order& order, Numbering numbering);

// The channels that an order names, as it has them.
std::vector<int> SlotsInOrder(const OrderMatch& match);

}  // namespace Review
