#include "app/test_scores_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "recruiting/test_scores.h"

namespace courtmere::app {

TestScoresScreen::TestScoresScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      grid_(new GridView(new GridModel({"Name", "Score", "Pass/Fail"}, this), true, this)),
      notice_(new QLabel(this)) {
  setObjectName("frmTestScores");
  grid_->setObjectName("grdTestScores");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setStretchLastSection(true);
  auto* title = new QLabel(kTestScoresTitle, this);
  title->setStyleSheet("font-weight: bold;");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title);
  layout->addWidget(grid_, 1);
  layout->addWidget(notice_);
  resize(420, 480);
  Refresh();
}

void TestScoresScreen::Refresh() {
  std::vector<GridRow> rows;
  for (const TestScoreRow& r : RecruitTestScores(session_)) {
    rows.push_back({GridCell::Text(r.Name), GridCell::Whole(r.Score), GridCell::Text(r.Result)});
  }
  notice_->setText(rows.empty() ? "No recruit has taken the test yet." : "");
  grid_->Model()->SetRows(std::move(rows));
}

}  // namespace courtmere::app
