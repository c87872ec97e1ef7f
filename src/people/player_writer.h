// Writing players and their side rows to the store.
#pragma once

#include <string>

#include "people/player.h"

namespace courtmere {

class Store;

// What a recruit carries beside his Player row.
struct Recruit {
  int Id = 0;
  std::string Region;
  std::string Area;
  std::string RecruitType;
  std::string ScoutingReport;
  std::string Team1;
  std::string Team2;
  std::string Team3;
  double PPG = 0;
  double APG = 0;
  double RPG = 0;
  double TOs = 0;
  double SPG = 0;
  double GPA = 0;
};

// Adds a Player row with every field of the record.
void AddPlayer(Store& store, const Player& player);

// Adds a ScrubPlayer row with the fields that table has.
void AddScrubPlayer(Store& store, const Player& player);

// Adds a PlayerStats row holding only the id, unless one exists.
void AddPlayerStats(Store& store, int id);

// Writes the recruit's row, editing the one with his id or adding it.
void SaveRecruit(Store& store, const Recruit& recruit);

// Reads the Player row with this id into a record; false when there is none.
bool LoadPlayer(Store& store, int id, Player& player);

}  // namespace courtmere
