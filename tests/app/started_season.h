// The shared test dynasty as the window tests begin it: the season started
// from the offseason and the user's coaches given their roles.
#pragma once

#include <memory>
#include <stdexcept>

#include "cpu/computer_roster.h"
#include "league/dynasty_fixture.h"
#include "league/start_season.h"
#include "store/menu_gate.h"
#include "store/session.h"

namespace courtmere::testing {

inline std::unique_ptr<DynastyFixture> StartedSeason() {
  auto dynasty = std::make_unique<DynastyFixture>();
  Session& session = dynasty->session();
  MenuGate(session);
  if (StartSeason(session) != SeasonStart::kStarted) {
    throw std::runtime_error("Start Season was refused");
  }
  SetCoachRoles(session, session.humanSchool);
  return dynasty;
}

}  // namespace courtmere::testing
