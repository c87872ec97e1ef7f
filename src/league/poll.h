// The media poll: every school, first-division and background alike, ranked
// from 1 downward in the table Ranking.
//
// A first-division team's score rests on its record, its prestige and rating,
// and its schedule: the season's ScheduleStrength up to week 4, the rating
// index's SchedStrength after it. Background teams have no schedule of their
// own; from week 3 on each poll gives them two unseen results, so their record
// moves with their rank.
#pragma once

namespace courtmere {

struct Session;

// Rewrites Ranking for the week in session.config (TeamRanking, Previous,
// TeamPoints; CoachRank is dropped) and, from week 3 on, the Wins and Losses
// of every background team. A school without a Ranking row is not polled.
// From week 5 on the rating index must have run this week: a school without a
// CRIRank row counts a SchedStrength of 0.
void UpdatePoll(Session& session);

// A background team's two unseen results of a poll: each roll of 1 to 100
// wins when it is above its threshold. The team's old rank sets them.
struct DriftThresholds {
  int first;
  int second;
};
DriftThresholds BackgroundDriftThresholds(int oldRank);

}  // namespace courtmere
