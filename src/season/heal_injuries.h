// The weekly healing of injured players.
//
// Every Player row that is not healthy gets one draw against his team's
// trainer: a good trainer makes nearly every week count towards the
// recovery, a poor one lets some weeks pass without healing. Background
// players do not heal here.
#pragma once

namespace courtmere {

struct Session;

// The draw (1 to 100) must be above this for the week to count: 2 for a
// trainer of Ability above 85, else (90 - Ability) / 2 rounded half to even.
int HealingThreshold(int trainerAbility);

// One week of healing for every Player row whose Health is not "Good", in
// one transaction. A week that counts takes one from TimeInjured; at 0 he is
// healthy again ("Good", TimeInjured 0).
void HealInjuries(Session& session);

}  // namespace courtmere
