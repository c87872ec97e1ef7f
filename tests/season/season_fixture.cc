#include "season_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

#include "cpu/computer_roster.h"
#include "league/start_season.h"
#include "season/day_screen.h"
#include "season/day_step.h"
#include "season/season_session.h"
#include "store/menu_gate.h"

namespace courtmere::testing {

namespace {

// The started season's store, built at the first use.
const std::filesystem::path& StartedSeasonStore() {
  static TempFolder folder;
  static const std::filesystem::path file = [] {
    DynastyFixture dynasty;
    MenuGate(dynasty.session());
    Session& session = dynasty.session();
    if (StartSeason(session) != SeasonStart::kStarted) {
      throw std::runtime_error("the test season could not be started");
    }
    // The user's coaches' roles and depth chart, as he would set them
    // before the first day.
    SetCoachRoles(session, session.humanSchool);
    SetTeamLineup(session, session.humanSchool, 0);
    dynasty.session().store.reset();
    const std::filesystem::path copy = folder / "mereball.dat";
    std::filesystem::copy_file(dynasty.session().folder.Store(), copy);
    return copy;
  }();
  return file;
}

}  // namespace

SeasonFixture::SeasonFixture() {
  const std::filesystem::path& started = StartedSeasonStore();
  session_->store.reset();
  std::filesystem::copy_file(started, session_->folder.Store(),
                             std::filesystem::copy_options::overwrite_existing);
  session_->store = std::make_unique<Store>(session_->folder.Store());
  ResumeSeason(*session_);
  run_ = std::make_unique<SeasonRun>(*session_);
}

void SeasonFixture::GoTo(int week, const std::string& day) {
  store().Exec("UPDATE Config SET CurrWeek = ?, CurrDay = ? WHERE IdConfig = 0", week, day);
  session().config.CurrWeek = week;
  session().config.CurrDay = day;
}

void SeasonFixture::SimTo(int week, const std::string& day,
                          const std::function<void(int)>& weekEnded) {
  while (config().CurrWeek != week || config().CurrDay != day) {
    ASSERT_LT(config().CurrWeek, 21);
    const int pressedIn = config().CurrWeek;
    ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed)
        << "week " << pressedIn << ", " << config().CurrDay;
    SettleWeekFive(session());
    if (weekEnded && config().CurrWeek != pressedIn) weekEnded(pressedIn);
  }
}

}  // namespace courtmere::testing
