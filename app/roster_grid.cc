#include "app/roster_grid.h"

#include "app/screen.h"

namespace courtmere::app {
namespace {

QString StatusOf(const RosterRow& row) {
  QStringList marks;
  if (row.Redshirt == 1) marks << "Redshirt";
  if (row.Redshirt == 2) marks << "RS used";
  if (row.Inactive) marks << "Inactive";
  return marks.join(", ");
}

// Height as "6-3" sorts by inches.
GridCell HeightCell(const std::string& height) {
  GridCell cell = GridCell::Text(height);
  const auto dash = height.find('-');
  if (dash != std::string::npos) {
    cell.sortKey = std::atoi(height.c_str()) * 12 + std::atoi(height.c_str() + dash + 1);
  }
  return cell;
}

}  // namespace

QStringList RosterHeadings() {
  QStringList headings = {"Name", "Pos", "Year", "Ht", "Ovr", "Health", "Status"};
  for (std::string_view label : kGradeLabels) headings << ToQString(label);
  return headings;
}

std::vector<GridRow> RosterGridRows(const std::vector<RosterRow>& roster) {
  std::vector<GridRow> rows;
  for (const RosterRow& p : roster) {
    GridCell position = GridCell::Text(p.PositionName);
    position.sortKey = p.Position;
    GridRow row = {GridCell::Text(p.Name),      position,
                   GridCell::Text(p.Year),      HeightCell(p.Height),
                   GridCell::Whole(p.Overall),  GridCell::Text(p.Health),
                   {StatusOf(p), {}, false, {}}};
    for (const std::string& grade : p.Grades) row.push_back(GridCell::Text(grade));
    rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<int> RosterIds(const std::vector<RosterRow>& roster) {
  std::vector<int> ids;
  for (const RosterRow& p : roster) ids.push_back(p.Id);
  return ids;
}

QString ChartName(const RosterRow& row) {
  return ToQString(row.Name) + " (" + ToQString(row.PositionName) + ")";
}

}  // namespace courtmere::app
