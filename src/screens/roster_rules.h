// The user's roster rules: releasing, redshirting and activating players,
// switching positions, and submitting a depth chart and tactics. Each
// operation asks and tells through the session's Ui and changes the store
// only when every rule allows it; the roster screens only call these.
#pragma once

#include <array>
#include <string>

namespace courtmere {

struct Session;

// Release, redshirt and switch are open only while the stage is
// "Post Training".
bool RosterChangesOpen(Session& session);

// Each returns true when the player was changed. Release, redshirt and
// switch do nothing outside "Post Training"; activation is open all year,
// for a man who is redshirting this season only.
bool ReleasePlayer(Session& session, int playerId);
bool RedshirtPlayer(Session& session, int playerId);
bool ActivatePlayer(Session& session, int playerId);
bool SwitchPosition(Session& session, int playerId, int position);

// A chart as the screen shows it: PG1, SG1, SF1, PF1, C1, then the second and
// the third row in the same order, and the inactive player. 0 is an empty
// place.
struct DepthChart {
  std::array<int, 15> ids{};
  int inactive = 0;
};

// The first rule the chart breaks, as the text shown to the user; empty for
// a chart that passes.
std::string DepthChartProblem(const DepthChart& chart);

// Checks the chart and, when it passes, writes it to the school's row.
bool SubmitDepthChart(Session& session, const std::string& school, const DepthChart& chart);

struct TeamTactics {
  std::string Tempo;
  std::string OffenseType;
  std::string Defense;
  std::string Press;
};
void SaveTactics(Session& session, const std::string& school, const TeamTactics& tactics);

// After the user agrees, the computer builds his chart anew.
bool AutoSetLineup(Session& session, const std::string& school);

}  // namespace courtmere
