// The roster as the two roster screens list it.
#pragma once

#include <QStringList>
#include <vector>

#include "app/grid_model.h"
#include "screens/roster_view.h"

namespace courtmere::app {

QStringList RosterHeadings();
std::vector<GridRow> RosterGridRows(const std::vector<RosterRow>& roster);
std::vector<int> RosterIds(const std::vector<RosterRow>& roster);

// "Name (POS)", as the depth chart's lists show a player.
QString ChartName(const RosterRow& row);

}  // namespace courtmere::app
