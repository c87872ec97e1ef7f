#include "app/play_steps.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QPushButton>

#include "app/coach_roles_screen.h"
#include "app/options_dialog.h"
#include "app/roster_screen.h"
#include "app/sim_games_screen.h"
#include "app/staff_screen.h"
#include "platform/scripted_ui.h"
#include "season/day_guards.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

bool Trigger(MainWindow& window, const char* entry) {
  QAction* action = window.Entry(entry);
  if (!action || !action->isEnabled()) return false;
  action->trigger();
  SettleEvents();
  return true;
}

// The refusal of the depth chart that an injury or a suspension brings.
bool ChartRefused(ScriptedUi& ui, size_t messagesBefore) {
  return ui.Messages().size() > messagesBefore &&
         ui.Messages().back().rfind("You have a redshirt, suspended, injured", 0) == 0;
}

}  // namespace

void SettleEvents() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

bool LetComputerSetLineup(MainWindow& window, ScriptedUi& ui) {
  if (!Trigger(window, "mnuManagementRoster")) return false;
  auto* roster = FindScreen<RosterScreen>(window);
  if (!roster) return false;
  ui.QueueAnswer(true);
  roster->findChild<QPushButton*>("cmdAuto")->click();
  return true;
}

bool AssignCoachRoles(MainWindow& window, size_t offence, size_t defence) {
  if (!Trigger(window, "mnuStaffViewCoaches")) return false;
  auto* staff = FindScreen<StaffScreen>(window);
  if (!staff) return false;
  staff->RolesButton()->click();
  SettleEvents();
  auto* roles = FindScreen<CoachRolesScreen>(window);
  if (!roles || offence >= roles->Lines() || defence >= roles->Lines()) return false;
  roles->Offence(offence)->setCurrentIndex(1);
  roles->Defence(defence)->setCurrentIndex(1);
  roles->findChild<QPushButton*>("cmdSubmit")->click();
  SettleEvents();
  return FindScreen<CoachRolesScreen>(window) == nullptr;
}

void ChooseQuickestTicker(Session& session, MainWindow& window) {
  OptionsDialog options(session, &window);
  auto* speed = options.findChild<QComboBox*>("cmbSpeed");
  int quickest = 0;
  for (int i = 1; i < speed->count(); ++i) {
    if (speed->itemData(i).toInt() < speed->itemData(quickest).toInt()) quickest = i;
  }
  speed->setCurrentIndex(quickest);
  options.Submit();
}

bool SimDayAsUser(MainWindow& window, ScriptedUi& ui, SimGamesScreen& games) {
  const size_t before = ui.Messages().size();
  games.SimButton()->click();
  if (!games.SimButton()->isEnabled()) return true;
  if (!ChartRefused(ui, before) || !LetComputerSetLineup(window, ui)) return false;
  games.SimButton()->click();
  return !games.SimButton()->isEnabled();
}

}  // namespace courtmere::app
