// Which week's end the poll and the rating index stand for. Each run
// rewrites its table, so only the latest of each is kept.
//
// The poll runs when the season is set up and at the end of weeks 1 to 16,
// but not week 5, which releases the first rating index instead. The index
// then runs at the end of weeks 6 to 16. The postseason (weeks 17 to 20)
// releases neither.
#pragma once

namespace courtmere {

struct Config;

// Whether the end of `week` releases a poll.
bool PollAtEndOf(int week);

// The week whose poll Ranking holds: 0 for the poll of the season's start.
int LatestPollWeek(const Config& config);

// The week whose index CRIRank holds, 5 to 16; 0 while the season has
// released none (the rows, if any, are last season's).
int LatestCriWeek(const Config& config);

}  // namespace courtmere
