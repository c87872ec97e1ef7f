#include "screens/prestige_word.h"

namespace courtmere {

std::string_view PrestigeWord(double prestige) {
  if (prestige > 74) return "Elite";
  if (prestige > 64) return "High";
  if (prestige > 59) return "Above Average";
  if (prestige > 49) return "Average";
  if (prestige > 39) return "Below Average";
  if (prestige > 29) return "Low";
  return "Very Low";
}

}  // namespace courtmere
