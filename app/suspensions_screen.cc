#include "app/suspensions_screen.h"

#include <fmt/format.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/scope.h"
#include "screens/suspensions.h"
#include "store/session.h"

namespace courtmere::app {

SuspensionsScreen::SuspensionsScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      conferences_(ConferenceList(session, this)),
      grid_(new GridView(new GridModel({"Player", "School", "Year", "GPA", ""}, this), true, this)),
      notice_(new QLabel(this)) {
  setObjectName("frmLeaders");
  grid_->setObjectName("grdSuspensions");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(4, QHeaderView::Stretch);
  connect(grid_, &GridView::CellClicked, this, [this](int row, int column) {
    if (column == 0) host_.OpenPlayerCard(grid_->Model()->Key(row));
  });
  connect(conferences_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(conferences_);
  layout->addWidget(grid_, 1);
  layout->addWidget(notice_);
  resize(820, 440);
  Refresh();
}

void SuspensionsScreen::Refresh() {
  std::vector<GridRow> rows;
  std::vector<int> ids;
  const auto list = ShowSuspensions(session_.Db(), ToStdString(conferences_->currentText()));
  for (const SuspensionRow& r : list) {
    rows.push_back({GridCell::Text(r.Name), GridCell::Text(r.Team), GridCell::Text(r.PlayerYear),
                    GridCell::Number(r.GPA, fmt::format("{:.2f}", r.GPA)),
                    GridCell::Text(kSuspensionLine)});
    ids.push_back(r.PlayerId);
  }
  grid_->Model()->SetRows(std::move(rows), std::move(ids));
  notice_->setText(list.empty() ? "No player of this conference is suspended." : "");
}

}  // namespace courtmere::app
