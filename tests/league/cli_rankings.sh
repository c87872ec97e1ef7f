#!/usr/bin/env bash
# The command-line tool's poll, cri, awards and bracket, run as a user would:
# the preseason brackets of a new dynasty, the preseason poll of a started
# season, and the refusals (status 2, the program's message, nothing
# changed) for what has not been released or drawn, or does not exist.
#   cli_rankings.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"
cli_options=(--home "$work/d")
unchanged() { cmp -s "$work/before.dat" "$work/d/mereball.dat" || fail "$1 changed the store"; }

for command in poll "bracket nct"; do
  run 2 $command
  expect "Courtmere: There is no dynasty in this program folder."
done

run 0 --seed 1 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil"
run 0 bracket pre "Hawaii Classic"
expect "Hawaii Classic Preseason Tournament"
expect "First round (Thursday, week 1)"
expect_line "^ +1 .* +8 "
expect "winner of 1-8"
expect "winner of 2-3"
[[ $out != *"Champion:"* ]] || fail "a champion before the tournament is played"

cp "$work/d/mereball.dat" "$work/before.dat"
run 2 poll
expect "Courtmere: No poll has been released yet."
run 2 bracket conf
expect "Courtmere: The Big East Conference Tournament has not been set up yet"
run 2 bracket conf "Nowhere League"
expect "Courtmere: League not found"
run 2 bracket nct
expect "Courtmere: The NCT field has not been selected yet"
run 2 bracket act
expect "Courtmere: The ACT field has not been selected yet"
run 2 bracket pre "Nowhere Cup"
expect "Courtmere: There is no preseason tournament named Nowhere Cup."
unchanged "a refused poll or bracket"

run 0 start-season
cp "$work/d/mereball.dat" "$work/before.dat"
run 0 poll
expect "TOP 25 Media Poll: Preseason, 2001"
expect_line "^ +Rank +Team +Record +Points +Previous$"
expect_line "^ +1 +[A-Z].* +0-0 +[0-9]+ +1$"
expect_line "^ +25 +[A-Z].* +0-0 +[0-9]+ +25$"
[[ $(grep -Ec '^[ *] +[0-9]+ ' <<<"$out") == 25 ]] || fail "the poll does not show 25 rows:
$out"
expect "Others receiving votes: "
run 0 poll --week 0
unchanged "poll"

run 2 poll --week 3
expect "Courtmere: Only the latest poll is kept: Preseason (--week 0)."
run 2 cri
expect "Courtmere: The College Rating Index is released at the end of week 5."
run 2 awards
expect "Courtmere: No Player of the Week has been named yet."
run 2 awards --week 2
expect "Courtmere: No Player of the Week was named in week 2."
run 2 awards --season
expect "Courtmere: The season's honours are named at the end of week 15."
run 2 awards --season --conference "Nowhere League"
expect "Courtmere: League not found"
unchanged "a refused command"
echo "cli_rankings passed"
