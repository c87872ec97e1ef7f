// What the scouts tell of a recruit: the sentences of the running scouting
// report and the estimated high-school statistics line.
#pragma once

#include <string>

#include "people/player.h"
#include "people/player_writer.h"

namespace courtmere {

class Rng;

// The n-th report sentence on this recruit: a topic chosen by his position,
// n and his id, judged too kind or too harsh against its grade. Empty for a
// position outside 1 to 5.
std::string RecruitReport(Rng& rng, const Player& player, int n);

// Fills PPG, APG, RPG, TOs, SPG and GPA of the recruit from his ratings.
void RecruitStats(Rng& rng, const Player& player, Recruit& recruit);

}  // namespace courtmere
