#!/usr/bin/env bash
# The season commands of the command-line tool, run as a user would: sim
# refuses before the season with status 2 and the store unchanged, a fixed
# seed replays the same days to the same store, the week lines and the
# inbox, the box score of the user's game, the auto-sim to week 15, and a
# season played to "Season Over".
#   cli_season.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

new=(new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil")

# The same commands with the same seeds, run twice in the same program
# folder (the stored file paths name it), leave the same store.
play_first_weeks() {
  rm -rf "$work/a"
  run 0 --home "$work/a" --seed 3 "${new[@]}"
  run 0 --home "$work/a" --seed 3 start-season
  run 0 --home "$work/a" --seed 5 sim
  expect "Week 1, 2001, Thursday"
  expect "1 day(s) played; now week 1, Friday"
  run 0 --home "$work/a" --seed 6 sim --to-week 4
}

# Before Start Season there is nothing to play.
run 0 --home "$work/a" --seed 3 "${new[@]}"
cp "$work/a/mereball.dat" "$work/before.dat"
run 2 --home "$work/a" sim
expect "Courtmere: Games can only be played in the stage Season; the dynasty stands in Post Training"
cmp -s "$work/before.dat" "$work/a/mereball.dat" || fail "a refused sim changed the store"

play_first_weeks
cp "$work/a/mereball.dat" "$work/first.dat"
play_first_weeks
cmp -s "$work/first.dat" "$work/a/mereball.dat" ||
  fail "two runs of sim with the same seeds left different stores"
expect "Week  3:"
expect "now week 4, Thursday"

run 2 --home "$work/a" sim --to-week 2
expect "The week to reach must lie after week 4"

run 0 --home "$work/a" inbox --week 1
expect "Assistant Coach Season Instructions"
run 0 --home "$work/a" inbox
expect "Inbox, week 3"
expect "Compliance Dir Academic Update"

# The user's first game keeps its box score; no log without the play-by-play.
game=$("$cli" --home "$work/a" schedule --school "St. John's" --week 1 | awk '$1 == 1 { print $3; exit }')
[[ -n $game ]] || fail "no game of St. John's in week 1"
run 0 --home "$work/a" box "$game"
expect "St. John's"
run 2 --home "$work/a" log "$game"
expect "No play-by-play log was kept for game $game"
run 2 --home "$work/a" box 999999
expect "There is no game 999999 in this season."

run 0 --home "$work/a" autosim
expect "now week 15, Thursday"
run 2 --home "$work/a" autosim
expect "The auto sim runs only until week 15."

run 0 --home "$work/a" sim --season
expect "Week 20:"
expect "now week 21, Monday"
expect "stage Season Over"
champion=$(sed -n 's/^NCT champion: //p' <<<"$out")
[[ -n $champion ]] || fail "sim --season named no NCT champion:
$out"
run 0 --home "$work/a" bracket nct
expect "Champion: $champion"
run 0 --home "$work/a" bracket act
expect "Champion: "
run 0 --home "$work/a" bracket conf
expect "Big East Conference Tournament"
expect "Champion: "
run 2 --home "$work/a" sim
expect "the dynasty stands in Season Over"
echo "cli_season passed"
