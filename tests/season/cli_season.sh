#!/usr/bin/env bash
# The season commands of the command-line tool, run as a user would: sim
# refuses before the season with status 2 and the store unchanged, a fixed
# seed replays the same days to the same store, the week lines and the
# inbox, the box score of the user's game and, once the option is on, its
# log, the auto-sim to week 15, a season played to "Season Over", and the
# NCT champion's schedule to the final.
#   cli_season.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

# The WCC fields 8 teams: its tournament starts on Friday.
new=(new --conferences "MVC;WCC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil")

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
expect "courtmere-cli options --play-by-play on"
run 2 --home "$work/a" box 999999
expect "There is no game 999999 in this season."
run 2 --home "$work/a" inbox --week 0
expect "There is no week 0 in a season."

# With View Play-By-Play on, the user's next games keep their logs. Week 5
# has no games and no poll, only the first rating index.
run 0 --home "$work/a" options --play-by-play on
expect_err "Your Settings have been updated!"
expect_line "^ *View Play-By-Play +on$"
expect_line "^ *Set Score Ticker Speed \(5=Normal\) +5$"
run 0 --home "$work/a" sim --to-week 6
expect_line "^Week  4: +[0-9]+ games; poll: 1\. "
expect_line "^Week  5: +0 games; no poll$"
run 0 --home "$work/a" schedule --school "St. John's" --week 4
game=$(awk '$1 == 4 && $NF ~ /^[0-9]+-[0-9]+$/ { print $3; exit }' <<<"$out")
[[ -n $game ]] || fail "St. John's played no game in week 4:
$out"
run 0 --home "$work/a" log "$game"
expect "St. John's"
run 0 --home "$work/a" options --play-by-play off
run 0 --home "$work/a" cri
expect_line ": week 5, "

run 0 --home "$work/a" autosim
expect "now week 15, Thursday"
run 2 --home "$work/a" autosim
expect "The auto sim runs only until week 15."

run 0 --home "$work/a" sim --season
expect_line "^Week 16: +[0-9]+ games; poll: 1\. "
expect_line "^Week 17: +[0-9]+ games; no poll$"
expect_line "^Week 20: +[0-9]+ games; no poll$"
expect "now week 21, Monday"
expect "stage Season Over"
champion=$(sed -n 's/^NCT champion: //p' <<<"$out")
[[ -n $champion ]] || fail "sim --season named no NCT champion:
$out"
# The champion's schedule runs to the final: six NCT wins after its season.
run 0 --home "$work/a" schedule --school "$champion"
expect "$champion Schedule"
expect_line "^ *17 +(Thursday|Friday) +[0-9]+ +Neutral +.* +(East|West|South|Midwest) +W [0-9]+-[0-9]+$"
expect_line "^ *20 +Monday +[0-9]+ +Neutral +.* +Finals +W [0-9]+-[0-9]+$"
[[ $(grep -Ec '^ *(17|18|19|20) .* W [0-9]+-[0-9]+$' <<<"$out") == 6 ]] ||
  fail "the champion's schedule does not list six NCT wins:
$out"
run 0 --home "$work/a" cri
expect_line ": week 16, "

# The legend "* your school" stands under a list only when a row is marked.
legend_only_with_marks() {
  if grep -v '^\* your school$' <<<"$out" | grep -q '^\*'; then
    expect "* your school"
  else
    [[ $out != *"* your school"* ]] || fail "a legend under no marked row:
$out"
  fi
}
for week in 1 2 3 4; do
  run 0 --home "$work/a" awards --week "$week"
  legend_only_with_marks
done
run 0 --home "$work/a" awards --season --conference MVC
legend_only_with_marks
run 0 --home "$work/a" bracket nct
expect "Champion: $champion"
run 0 --home "$work/a" bracket act
expect "Champion: "
run 0 --home "$work/a" bracket conf
expect "Big East Conference Tournament"
expect "First round (Thursday, week 16)"
expect "Second round (Friday, week 16)"
expect "Champion: "
run 0 --home "$work/a" bracket conf WCC
expect "First round (Friday, week 16)"
[[ $out != *"Second round"* ]] || fail "a field of 8 has a second round:
$out"
run 2 --home "$work/a" sim
expect "the dynasty stands in Season Over"
echo "cli_season passed"
