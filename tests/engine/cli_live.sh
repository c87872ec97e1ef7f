#!/usr/bin/env bash
# courtmere-cli live, run as a user would: a refusal for a game that is not
# his today, a live game killed in the middle that leaves the day unplayed,
# then the same game coached from a script (a timeout, a change of defence,
# a command the console does not know, exit to the computer), recorded once
# with its box score, and not playable again.
#   cli_live.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

cli_options=(--home "$work/a")
run 0 --seed 3 new --conferences "MVC;WCC;Atlantic 10" --school "St. John's" --coach "Pat O'Neil"
run 0 --seed 3 start-season

# The refusal names the user's game of the day; a day without one is
# simmed until he plays.
game=""
for _ in 1 2 3 4 5 6; do
  run 2 live 999999
  if [[ $out =~ yours\ is\ game\ ([0-9]+) ]]; then
    game=${BASH_REMATCH[1]}
    break
  fi
  expect "Your team has no game to play today"
  run 0 sim
done
[[ -n $game ]] || fail "no game of the user's within six days"

# Killed in the middle of the game: the day is not stored.
(timeout -s KILL 4 "$cli" "${cli_options[@]}" --seed 9 live "$game" --speed 10 </dev/null \
  >/dev/null 2>&1; true) 2>/dev/null
run 2 live 999999
expect "yours is game $game"

cat >"$work/script" <<'END'
# The first half as it comes, then the user's say.
at 1 12:00
timeout
defence Matchup Zone
fly away
at 2 10:00
exit
END
run 0 --seed 9 live "$game" --speed 0 --script "$work/script"
expect "Commands: timeout"
expect "> Your team will call timeout at the next opportunity"
expect "***St. John's TIMEOUT***"
expect "> Unknown command: fly away"
expect_line "^Game $game: .* [0-9]+, .* [0-9]+$"
# Nothing of the play-by-play after exit in the second half's tenth minute.
grep -Eq "^2 0[0-9]:" <<<"$out" && fail "lines were shown after exit"
grep -q "^Final:" <<<"$out" && fail "the final screen was shown after exit"

run 0 box "$game"
expect "St. John's"
run 2 live "$game"
[[ $out == *"cannot be coached now"* || $out == *"is not your team's game today"* ]] ||
  fail "game $game was offered again: $out"
echo "cli_live: all passed"
