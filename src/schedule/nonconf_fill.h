// The automatic non-conference fill: every open date of the open-date table
// gets a game, against a school of another conference where the slot allows
// it, else against a background team.
//
// Slots 1, 2, 5 and 6 hold only games against background teams. Elsewhere
// the schools of a slot are paired by random draws between two different
// conferences, so conference mates never meet here, and the ones left over
// play background teams. A first-division school is at home, except in slot
// 2, where the background team hosts. A school for which no background team
// is free in 200 looks stays without a game on that day.
#pragma once

namespace courtmere {

class Store;
class Rng;
struct GameCounter;
struct OpenDates;

void FillNonConference(Store& store, Rng& rng, GameCounter& counter, const OpenDates& openDates);

}  // namespace courtmere
