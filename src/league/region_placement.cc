#include "league/region_placement.h"

#include <span>
#include <string>
#include <utility>

#include "league/bracket_slots.h"

namespace courtmere {

namespace {

constexpr size_t kMostConflicts = 16;

struct Conflict {
  int seed = 0;
  std::string conference;
  bool topHalf = true;
};

// The conflicts of one region: for each pair of seeds a before b in a
// half's order whose schools share a conference, an entry for b.
std::vector<Conflict> ListConflicts(const std::vector<Entrant>& region) {
  std::vector<Conflict> list;
  for (const std::array<int, 8>* half : {&kTopHalf, &kBottomHalf}) {
    for (size_t a = 0; a < half->size(); ++a) {
      for (size_t b = a + 1; b < half->size(); ++b) {
        const std::string& conference = region[static_cast<size_t>((*half)[b])].conference;
        if (region[static_cast<size_t>((*half)[a])].conference != conference) continue;
        if (list.size() < kMostConflicts) {
          list.push_back({(*half)[b], conference, half == &kTopHalf});
        }
      }
    }
  }
  return list;
}

bool AnyOfConference(const std::vector<Entrant>& region, std::span<const int> seeds,
                     const std::string& conference) {
  for (int seed : seeds) {
    if (region[static_cast<size_t>(seed)].conference == conference) return true;
  }
  return false;
}

// Whether region `other` can take the conflict's school: in the first pass
// no school of the conflict's half there has its conference, in the second
// none of the seeds it would meet early.
bool Takes(int pass, const std::vector<Entrant>& other, const Conflict& conflict) {
  if (pass == 1) {
    const std::span<const int> half =
        conflict.topHalf ? std::span<const int>(kTopHalf) : std::span<const int>(kBottomHalf);
    return !AnyOfConference(other, half, conflict.conference);
  }
  return !AnyOfConference(other, SecondPassNeighbours(conflict.seed), conflict.conference);
}

// One region's turn: its conflicts are listed once, then worked through in
// order, each tried against the other regions in rotation.
void TakeTurn(RegionBrackets& brackets, int pass, size_t region) {
  for (const Conflict& conflict : ListConflicts(brackets[region])) {
    for (size_t step = 1; step < brackets.size(); ++step) {
      std::vector<Entrant>& other = brackets[(region + step) % brackets.size()];
      if (!Takes(pass, other, conflict)) continue;
      const size_t seed = static_cast<size_t>(conflict.seed);
      std::swap(other[seed], brackets[region][seed]);
      break;
    }
  }
}

}  // namespace

RegionBrackets PlaceSeedLines(const std::vector<Entrant>& field, int seeds) {
  RegionBrackets brackets;
  for (std::vector<Entrant>& region : brackets) region.resize(static_cast<size_t>(seeds) + 1);
  for (int seed = 1; seed <= seeds; ++seed) {
    const size_t line = static_cast<size_t>(seed - 1) * brackets.size();
    std::array<bool, 4> taken{};  // region places of this line already filled
    std::array<bool, 4> placed{};
    for (size_t i = 0; i < brackets.size(); ++i) {
      const int home = RegionIndex(field[line + i].region);
      if (home < 0 || taken[static_cast<size_t>(home)]) continue;
      brackets[static_cast<size_t>(home)][static_cast<size_t>(seed)] = field[line + i];
      taken[static_cast<size_t>(home)] = placed[i] = true;
    }
    for (size_t i = 0; i < brackets.size(); ++i) {
      if (placed[i]) continue;
      size_t free = 0;
      while (taken[free]) ++free;
      brackets[free][static_cast<size_t>(seed)] = field[line + i];
      taken[free] = true;
    }
  }
  return brackets;
}

void SeparateConferences(RegionBrackets& brackets) {
  for (int pass = 1; pass <= 2; ++pass) {
    for (size_t region = 0; region < brackets.size(); ++region) {
      TakeTurn(brackets, pass, region);
    }
  }
}

}  // namespace courtmere
