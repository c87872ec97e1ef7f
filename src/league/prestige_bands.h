// How a school's prestige reads on the set-up screens: a label, what the
// school expects of its coach, and that expectation as the number stored in
// HeadCoach.Expectations.
#pragma once

namespace courtmere {

struct PrestigeBand {
  const char* Label;
  const char* Expectation;
  int Expectations;  // 1 (the most demanding) to 7
};

// The band of a prestige, taken from the highest band down.
const PrestigeBand& BandOf(double prestige);

}  // namespace courtmere
