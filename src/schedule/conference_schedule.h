// One conference's regular season from its template: its schools are put on
// the template's slots in an order drawn at random, their open dates go to
// the open-date table, and the template's games go to the conference's table.
#pragma once

#include "schedule/league_rows.h"

namespace courtmere {

class Store;
class Rng;
struct GameCounter;
struct OpenDates;

// Throws ScheduleError when the conference's schedule type is unknown or its
// schools do not fill the template's slots exactly. A league row without a
// schedule type has no conference schedule.
void BuildConferenceSchedule(Store& store, Rng& rng, const LeagueRow& league, GameCounter& counter,
                             OpenDates& openDates);

}  // namespace courtmere
