// The order in which the poll and the rating index rank their schools: a
// selection sort, best first.
//
// For each position from the top, the record with the largest key among the
// rest is found by a scan that only a strictly larger key can win, and it is
// swapped into that position. An equal key never displaces the record already
// held, but the swaps move the records behind it, so equal keys keep no
// guaranteed order beyond that rule. The ranks of tied schools follow from
// it, which is why both rankings use this sort and not a library one.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace courtmere {

template <class Record, class Key>
void SelectionSortDescending(std::vector<Record>& records, Key key) {
  const size_t n = records.size();
  for (size_t i = 0; i < n; ++i) {
    size_t best = i;
    for (size_t j = i + 1; j < n; ++j) {
      if (key(records[j]) > key(records[best])) best = j;
    }
    if (best != i) std::swap(records[i], records[best]);
  }
}

}  // namespace courtmere
