// The main window's entries of the coach's career: his review, the job
// openings after the draft, and the staff screens in view and hire mode.
#include "app/coach_review_screen.h"
#include "app/jobs_screen.h"
#include "app/main_window.h"
#include "app/staff_post_screen.h"
#include "app/staff_screen.h"
#include "career/job_list.h"
#include "store/session.h"

namespace courtmere::app {

void MainWindow::RegisterCareerCommands() {
  On("mnuManagementPerformance", [this] { Show<CoachReviewScreen>(); });
  On("mnuProgressJobs", [this] {
    // The gate opens the entry after the draft; a coach who has moved this
    // year is told so.
    if (const auto closed = JobListClosed(session_)) {
      session_.ui.Message(*closed);
      return;
    }
    Show<JobsScreen>();
  });
  // The hire screens belong to the offseason; the gate closes their entries
  // with the season, and a hire screen asked for out of its stage says why.
  const auto hiring = [this](const std::function<void()>& show) {
    if (const auto closed = HiringClosed(session_)) {
      session_.ui.Message(*closed);
      return;
    }
    show();
  };
  On("mnuStaffHireCoaches", [this, hiring] { hiring([this] { Show<StaffScreen>(true); }); });
  On("mnuStaffViewScout", [this] { Show<StaffPostScreen>(Post::kScout, false); });
  On("mnuStaffHireScout",
     [this, hiring] { hiring([this] { Show<StaffPostScreen>(Post::kScout, true); }); });
  On("mnuStaffViewTrainer", [this] { Show<StaffPostScreen>(Post::kTrainer, false); });
  On("mnuStaffHireTrainer",
     [this, hiring] { hiring([this] { Show<StaffPostScreen>(Post::kTrainer, true); }); });
}

}  // namespace courtmere::app
