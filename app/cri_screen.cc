#include "app/cri_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/cri_list.h"
#include "store/session.h"

namespace courtmere::app {

CriScreen::CriScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      title_(new QLabel(this)),
      grid_(new GridView(new GridModel({"Rank", "Team", "Record", "CRI", "Win Pct.",
                                        "Sched. Strength", "Sched. Rank"},
                                       this),
                         true, this)) {
  setObjectName("frmCRI");
  grid_->setObjectName("grdCRI");
  title_->setStyleSheet("font-size: 14pt; font-weight: bold;");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  connect(grid_, &GridView::CellClicked, this, [this](int row, int column) {
    if (column == 1) host_.OpenTeam(ToStdString(grid_->Model()->Cell(row, 1).text));
  });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title_);
  layout->addWidget(grid_, 1);
  resize(720, 720);
  Refresh();
}

void CriScreen::Refresh() {
  const CriList index = ShowCRI(session_.Db(), session_.humanSchool);
  title_->setText(ToQString(index.Title));
  std::vector<GridRow> rows;
  for (const CriListRow& r : index.Rows) {
    GridRow row = {GridCell::Whole(r.Rank),
                   GridCell::Text(r.Team),
                   GridCell::Text(r.Record),
                   GridCell::Number(r.CRIValue, FormatIndex(r.CRIValue)),
                   GridCell::Number(r.WinPer, FormatIndex(r.WinPer)),
                   GridCell::Number(r.SchedStrength, FormatIndex(r.SchedStrength)),
                   GridCell::Whole(r.SchedRank)};
    if (r.User) {
      for (GridCell& cell : row) cell.color = kUserBlue;
    }
    rows.push_back(std::move(row));
  }
  grid_->Model()->SetRows(std::move(rows));
}

}  // namespace courtmere::app
