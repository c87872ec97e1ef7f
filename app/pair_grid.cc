#include "app/pair_grid.h"

#include <QHeaderView>

#include "app/grid_model.h"

namespace courtmere::app {

GridView* NewPairGrid(QWidget* parent) {
  auto* grid = new GridView(new GridModel({"", ""}, parent), false, parent);
  grid->horizontalHeader()->hide();
  grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  grid->horizontalHeader()->setStretchLastSection(true);
  grid->setSelectionMode(QAbstractItemView::NoSelection);
  return grid;
}

void ShowPairs(GridView* grid, const LabelValues& pairs) {
  std::vector<GridRow> rows;
  for (const auto& [label, value] : pairs) {
    rows.push_back({GridCell::Text(label), GridCell::Text(value)});
  }
  grid->Model()->SetRows(std::move(rows));
}

}  // namespace courtmere::app
