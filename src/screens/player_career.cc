#include "screens/player_career.h"

#include "people/player.h"
#include "store/store.h"

namespace courtmere {

std::optional<PlayerCareer> ReadPlayerCareer(Store& store, int id) {
  Rows p = store.Query(
      "SELECT Name, Team, PlayerYear, PlayerPosition, Height, Overall FROM Player WHERE Id = ?",
      id);
  if (!p.Next()) return std::nullopt;
  PlayerCareer c{id,        p.Text(0),   p.Text(1), p.Text(2),   PositionName(p.Int(3)),
                 p.Text(4), p.Double(5), {},        std::nullopt};
  for (Rows r = store.Query(
           "SELECT Year, PPG, RPG, APG, SPG, BPG, TOPG, MPG, PlusMinus, FGPercent, ThreePercent, "
           "FTPercent, Overall, Jumpshot, InScoring, Handling, Passing, PerrDefense FROM "
           "PlayerYearStats WHERE PlayerId = ? ORDER BY Year ASC",
           id);
       r.Next();) {
    c.years.push_back({r.Int(0), r.Double(1), r.Double(2), r.Double(3), r.Double(4), r.Double(5),
                       r.Double(6), r.Double(7), r.Double(8), r.Double(9), r.Double(10),
                       r.Double(11), r.Double(12), r.Int(13), r.Int(14), r.Int(15), r.Int(16),
                       r.Int(17)});
  }
  Rows t = store.Query(
      "SELECT Games, Minutes, Points, OffRebounds + DefRebounds, Assists, Steals, ShotBlocks, "
      "Turnovers, Shots, ShotsMade, Threes, ThreesMade, FreeThrows, FTMade, PPG, RPG, APG, "
      "FGPercent, ThreePercent, FTPercent FROM CareerPlayerStats WHERE Id = ?",
      id);
  if (t.Next()) {
    c.career = CareerTotals{t.Int(0),     t.Int(1),     t.Int(2),     t.Int(3),     t.Int(4),
                            t.Int(5),     t.Int(6),     t.Int(7),     t.Int(8),     t.Int(9),
                            t.Int(10),    t.Int(11),    t.Int(12),    t.Int(13),    t.Double(14),
                            t.Double(15), t.Double(16), t.Double(17), t.Double(18), t.Double(19)};
  }
  return c;
}

}  // namespace courtmere
