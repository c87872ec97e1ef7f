#!/usr/bin/env bash
# The command-line tool's dynasty commands, run as a user would: a fixed seed
# replays File > New to the same store, a newcomer's new, start-season and
# standings leave a season ready on Thursday of week 1, and refusals exit
# with status 2 and change nothing.
#   cli_dynasty.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

new=(new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil")

run 0 --home "$work/a" --seed 1 "${new[@]}"
expect_line "Your school +St. John's$"
expect_line "Head coach +D'Angelo O'Neil$"
expect_line "Prestige +High \(66\)$"
expect_line "Expectations +Vie for NCT Championship$"
expect_line "Stage +Post Training$"
run 0 --home "$work/b" --seed 1 "${new[@]}"
cmp -s "$work/a/mereball.dat" "$work/b/mereball.dat" ||
  fail "two runs of new with --seed 1 left different stores"

# Refusals: the program's message, status 2, the store as it was.
cp "$work/b/mereball.dat" "$work/before.dat"
run 2 --home "$work/b" new --conferences "MVC;Nowhere League;WAC" --school "Drake"
expect "Courtmere: League not found"
run 2 --home "$work/b" new --conferences "MVC;WAC" --school "Drake"
expect "Courtmere: Please enter three leagues before proceeding."
run 2 --home "$work/b" new --conferences "MVC;WAC;WCC;MAC" --school "Drake"
expect "Courtmere: You already have selected three leagues."
run 2 --home "$work/b" new --conferences "MVC;WAC;WCC" --school "Duke's Neighbour"
run 2 --home "$work/b" new --conferences "MVC;WAC;WCC" --school "Gonzaga" --coach ""
expect "Courtmere: Please enter the coach's name before proceeding."
run 2 --home "$work/b" standings --conference "Nowhere League"
cmp -s "$work/before.dat" "$work/b/mereball.dat" || fail "a refused command changed the store"

# A newcomer's season.
run 2 --home "$work/empty" start-season
run 0 --home "$work/a" start-season
expect "week 1, Thursday, stage Season"
# The standings open on the user's conference, as the screen does.
run 0 --home "$work/a" standings
expect "Big East Standings: week 1, Thursday, 2001, stage Season"
expect "* St. John's"
[[ $out != *"Drake"* ]] || fail "the user's conference standings list another conference's school"
run 0 --home "$work/a" standings --national
expect "National Standings: week 1, Thursday, 2001, stage Season"
expect "Drake"
run 0 --home "$work/a" standings --conference "MVC"
expect "MVC Standings"
run 0 --home "$work/a" teams --conference "Big East"
expect "Human"
run 2 --home "$work/a" start-season
expect "the dynasty stands in Season."
echo "cli_dynasty passed"
