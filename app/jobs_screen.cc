#include "app/jobs_screen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "career/take_job.h"
#include "store/session.h"

namespace courtmere::app {

JobsScreen::JobsScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      grid_(new GridView(new GridModel({"School", "Win %", "Prestige", "Expectations"}, this),
                         false, this)) {
  setObjectName("frmCoach");
  grid_->setObjectName("grdJobs");
  grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid_->setSelectionMode(QAbstractItemView::SingleSelection);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(AddButton("cmdApply", "Apply", [this] { Apply(); }));
  buttons->addWidget(AddButton("cmdExit", "Exit", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Schools interested in you as their head coach:", this));
  layout->addWidget(grid_, 1);
  layout->addLayout(buttons);
  resize(560, 380);
  Refresh();
}

QString JobsScreen::Caption() const {
  return "Job Openings";
}

void JobsScreen::Refresh() {
  offers_ = LoadJobList(session_.Db());
  std::vector<GridRow> rows;
  for (const JobOffer& o : offers_) {
    rows.push_back({GridCell::Text(o.School), GridCell::Text(o.WinPct), GridCell::Text(o.Prestige),
                    GridCell::Text(o.Expectation)});
  }
  grid_->Model()->SetRows(std::move(rows));
}

void JobsScreen::Apply() {
  const int row = grid_->SelectedRow();
  if (row < 0 || row >= static_cast<int>(offers_.size())) return;
  if (!TakeJob(session_, offers_[static_cast<size_t>(row)])) return;
  // The job command stops for the year; the window goes with it.
  host_.StoreChanged();
  CloseWindow();
}

}  // namespace courtmere::app
