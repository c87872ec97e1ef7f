#include "screens/heading_notes.h"

#include <array>
#include <utility>

namespace courtmere {
namespace {

using Note = std::pair<std::string_view, std::string_view>;

constexpr std::array kNotes = {
    // The scouted grades, A to F, as the team's scout sees the player.
    Note{"Ath", "Athletic: strength, quickness, jumping and endurance"},
    Note{"Sco", "Scoring inside"},
    Note{"Sht", "Shooting: the mid-range jump shot"},
    Note{"Out", "Outside shooting: three-pointers and range"},
    Note{"Reb", "Rebounding, offensive and defensive"},
    Note{"PD", "Perimeter defence"},
    Note{"PoD", "Post defence"},
    Note{"Han", "Ball handling"},
    Note{"Pas", "Passing"},
    Note{"Pot", "Potential: how far he can still develop"},
    Note{"Ovr", "Overall rating, as the head scout sees him"},
    Note{"Ht", "Height in feet and inches"},
    Note{"Pos",
         "Position: PG point guard, SG shooting guard, SF small forward, "
         "PF power forward, C center"},
    // A game's and a season's figures.
    Note{"G", "Games played"},
    Note{"Min", "Minutes played"},
    Note{"MPG", "Minutes per game"},
    Note{"FG", "Field goals made and attempted"},
    Note{"FG%", "Field-goal percentage"},
    Note{"3PT", "Three-pointers made and attempted"},
    Note{"3P%", "Three-point percentage"},
    Note{"FT", "Free throws made and attempted"},
    Note{"FT%", "Free-throw percentage"},
    Note{"Off", "Offensive rebounds"},
    Note{"Def", "Defensive rebounds"},
    Note{"Ast", "Assists"},
    Note{"TO", "Turnovers"},
    Note{"Stl", "Steals"},
    Note{"Blk", "Blocked shots"},
    Note{"PF", "Personal fouls"},
    Note{"+/-", "Points scored minus points allowed while he was on the floor"},
    Note{"Pts", "Points"},
    Note{"PPG", "Points per game"},
    Note{"RPG", "Rebounds per game"},
    Note{"APG", "Assists per game"},
    Note{"SPG", "Steals per game"},
    Note{"BPG", "Blocked shots per game"},
    Note{"TOPG", "Turnovers per game"},
    Note{"CRI", "College Rating Index: winning percentage weighed with the strength of schedule"},
};

}  // namespace

std::string_view HeadingNote(std::string_view heading) {
  for (const auto& [name, note] : kNotes) {
    if (name == heading) return note;
  }
  return {};
}

}  // namespace courtmere
