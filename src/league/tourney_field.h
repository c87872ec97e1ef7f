// Choosing a national tournament's field: candidates from the top of the
// poll, scored by the rating index and the poll together.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace courtmere {

class Store;

struct Entrant {
  std::string school;
  double teamPoints = 0;  // the poll's score
  double score = 0;       // the selection score
  std::string region;
  std::string conference;
};

// Walks Ranking from rank 1 down and lists the schools `passOver` does not
// reject, with their TeamPoints, until `count` are listed.
std::vector<Entrant> PollCandidates(Store& store, int count,
                                    const std::function<bool(const std::string&)>& passOver);

// The poll's TeamPoints of a school; 0 without a Ranking row.
double PollPoints(Store& store, const std::string& school);

// Gives each entrant its selection score, CRIValue * 100 + TeamPoints (the
// TeamPoints alone for a school without a CRIRank row), and sorts them by
// it, highest first. Equal scores keep their order.
void ScoreAndSort(Store& store, std::vector<Entrant>& entrants);

// Fills region and conference from Team, or from ScrubTeam for a
// background school.
void ReadHomes(Store& store, std::vector<Entrant>& entrants);

}  // namespace courtmere
