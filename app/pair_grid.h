// A grid of label and value pairs without headings (a school's snapshot, a
// team's information).
#pragma once

#include <string>
#include <utility>
#include <vector>

class QWidget;

namespace courtmere::app {

class GridView;

using LabelValues = std::vector<std::pair<std::string, std::string>>;

GridView* NewPairGrid(QWidget* parent);
void ShowPairs(GridView* grid, const LabelValues& pairs);

}  // namespace courtmere::app
