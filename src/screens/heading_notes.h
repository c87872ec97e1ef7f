// What the short headings of the program's tables mean: the ten scouted
// grades of a roster (Ath, Sco, Sht, ...), the columns of a box score and of
// the season's figures. The windows show them as tooltips.
#pragma once

#include <string_view>

namespace courtmere {

// The note of a heading; empty for a heading that explains itself.
std::string_view HeadingNote(std::string_view heading);

}  // namespace courtmere
