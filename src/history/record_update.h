// The yearly update of the record books, once PlayerStats and
// CareerPlayerStats are final: every school's book from its players, every
// conference's from its schools' players, then the national book as the
// best of all books. A mark changes hands only when it is beaten; an equal
// mark leaves the holder.
#pragma once

#include <array>
#include <string>

#include "history/record_groups.h"

namespace courtmere {

class Store;

struct RecordMark {
  double value = 0;
  std::string player;
  std::string team;
  int year = 0;
};

struct RecordBook {
  std::string type;  // a school, a conference or "National"
  std::array<RecordMark, kRecordGroups> marks{};
};

// The book of `type` as stored; empty marks for a missing book.
RecordBook ReadRecordBook(Store& store, const std::string& type);

// Rewrites the book's row: every mark above 0 with its four columns.
void WriteRecordBook(Store& store, const RecordBook& book);

// `year` is the risen CurrYear, the year the marks of this season carry.
void UpdateRecords(Store& store, int year);

}  // namespace courtmere
