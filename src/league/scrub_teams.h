// The background field: up to 110 schools of the low conferences the user did
// not choose, drawn anew every year, each with a 13-man roster in ScrubPlayer
// that carries over while the school stays in the field.
//
// Every other low conference sends one team drawn at random (Winner = 1: it
// stands for its conference's automatic place in the NCT); the strongest
// schools left fill the field up, with better coaches than the qualifiers.
#pragma once

#include <functional>

namespace courtmere {

struct PlayerBatch;
struct Session;

// The most background teams the field holds.
inline constexpr int kMostScrubTeams = 110;

// Draws the field into an empty ScrubTeam table.
void CreateScrubTeams(Session& session);

// The yearly development of one background player, given his id: the
// offseason supplies it. A new dynasty has no returning players to develop.
using DevelopScrubPlayer = std::function<void(Session&, int id)>;

// Brings every background roster to 13: seniors leave, last season's points
// are cleared, a new team draws a whole roster, a returning one is developed
// and gets Freshmen for the places left; players of schools no longer in the
// field are removed.
void RefreshScrubRosters(Session& session, PlayerBatch& batch, const DevelopScrubPlayer& develop);

}  // namespace courtmere
