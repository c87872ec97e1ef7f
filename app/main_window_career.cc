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
  On("mnuStaffHireCoaches", [this] { Show<StaffScreen>(true); });
  On("mnuStaffViewScout", [this] { Show<StaffPostScreen>(Post::kScout, false); });
  On("mnuStaffHireScout", [this] { Show<StaffPostScreen>(Post::kScout, true); });
  On("mnuStaffViewTrainer", [this] { Show<StaffPostScreen>(Post::kTrainer, false); });
  On("mnuStaffHireTrainer", [this] { Show<StaffPostScreen>(Post::kTrainer, true); });
}

}  // namespace courtmere::app
