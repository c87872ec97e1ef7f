// frmCoach, Progress > Check Job Openings: the schools that would have the
// user as their coach, with Apply to take the chosen one.
#pragma once

#include <vector>

#include "app/screen.h"
#include "career/job_list.h"

class QPushButton;

namespace courtmere::app {

class GridView;

class JobsScreen : public Screen {
  Q_OBJECT

 public:
  JobsScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override;
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  // cmdApply: takes the job of the chosen school, after its question.
  void Apply();

 private:
  GridView* grid_;
  std::vector<JobOffer> offers_;
};

}  // namespace courtmere::app
