#include "offseason_command.h"

#include <fmt/format.h>

#include "offseason/career_steps.h"
#include "offseason/offseason_stage.h"
#include "screens/draft_list.h"
#include "text_table.h"

namespace courtmere::cli {

void RequireOffseasonStage(Session& session, const char* stage, const char* command) {
  if (!RequireStage(session, stage, command)) throw Refusal{};
}

std::string DraftTable(Store& store) {
  TextTable table;
  table.AddColumn("Pick(OVR)", "", TextTable::kRight);
  table.AddColumn("Team", "", TextTable::kLeft);
  table.AddColumn("Name", "", TextTable::kLeft);
  table.AddColumn("Ht.", "", TextTable::kLeft);
  table.AddColumn("Pos.", "", TextTable::kLeft);
  table.AddColumn("School", "", TextTable::kLeft);
  for (const char* average : {"PPG", "RPG", "APG"}) table.AddColumn(average, "", TextTable::kRight);
  for (const DraftPick& p : ShowDraft(store)) {
    table.AddRow({std::to_string(p.Pick), p.Team, p.Name, p.Height, p.Position, p.School,
                  fmt::format("{:.1f}", p.PPG), fmt::format("{:.1f}", p.RPG),
                  fmt::format("{:.1f}", p.APG)});
  }
  return table.Render();
}

}  // namespace courtmere::cli
