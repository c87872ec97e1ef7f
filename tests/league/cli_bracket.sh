#!/usr/bin/env bash
# courtmere-cli bracket, run as a user would: the preseason brackets of a new
# season, and the refusals (status 2, the store unchanged) of a bracket not
# drawn yet, an unknown conference and an unknown tournament.
#   cli_bracket.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"
merge_stderr=1

home=(--home "$work/a")
run 2 "${home[@]}" bracket nct
expect "There is no dynasty in this program folder."
run 0 "${home[@]}" --seed 1 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" \
  --coach "D'Angelo O'Neil"

run 0 "${home[@]}" bracket pre "Hawaii Classic"
expect "Hawaii Classic Preseason Tournament"
expect "First round (Thursday, week 1)"
expect_line "^ +1 .* +8 "
expect "winner of 1-8"
expect "winner of 2-3"
[[ $out != *"Champion:"* ]] || fail "a champion before the tournament is played"

cp "$work/a/mereball.dat" "$work/before.dat"
run 2 "${home[@]}" bracket conf
expect "Courtmere: The Big East Conference Tournament has not been set up yet"
run 2 "${home[@]}" bracket conf "Nowhere League"
expect "Courtmere: League not found"
run 2 "${home[@]}" bracket nct
expect "Courtmere: The NCT field has not been selected yet"
run 2 "${home[@]}" bracket act
expect "Courtmere: The ACT field has not been selected yet"
run 2 "${home[@]}" bracket pre "Nowhere Cup"
expect "Courtmere: There is no preseason tournament named Nowhere Cup."
cmp -s "$work/before.dat" "$work/a/mereball.dat" || fail "a refused bracket changed the store"
echo "cli_bracket passed"
