#include "screens/live_sub_patterns.h"

#include <fmt/format.h>

#include "people/player.h"
#include "screens/stat_lines.h"
#include "store/session.h"

namespace courtmere {

std::string Per40(double perGame, double minutesPerGame) {
  if (minutesPerGame <= 0) return "0.0";
  return fmt::format("{:.1f}", perGame / minutesPerGame * 40);
}

std::vector<SubPatternRow> SubPatternRows(Session& session, const std::string& school) {
  std::vector<SubPatternRow> rows;
  for (Rows r = session.Db().Query(
           "SELECT Id, Name, PlayerPosition, SubPattern FROM Player WHERE Team = ? ORDER BY Id",
           school);
       r.Next();) {
    SubPatternRow row;
    row.id = r.Int(0);
    const StatLine s = SeasonLine(session, row.id, school).value_or(StatLine{});
    row.cells = {r.Text(1),           PositionName(r.Int(2)), Per40(s.PPG, s.MPG),
                 Per40(s.APG, s.MPG), Per40(s.RPG, s.MPG),    Per40(s.BPG, s.MPG),
                 Per40(s.SPG, s.MPG), Per40(s.TOPG, s.MPG)};
    row.pattern = r.Text(3).empty() ? "Normal" : r.Text(3);
    rows.push_back(std::move(row));
  }
  return rows;
}

void SaveSubPatterns(Session& session, const std::vector<SubPatternRow>& rows) {
  for (const SubPatternRow& row : rows) {
    session.Db().Exec("UPDATE Player SET SubPattern = ? WHERE Id = ?", row.pattern, row.id);
  }
}

bool SubmitSubPatterns(Session& session, const std::vector<SubPatternRow>& rows) {
  if (!session.ui.Ask("Are you sure you want to change your subsititution patterns?")) return false;
  SaveSubPatterns(session, rows);
  session.ui.Message("Your substitution patterns have been saved.");
  return true;
}

}  // namespace courtmere
