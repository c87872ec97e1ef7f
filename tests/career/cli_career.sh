#!/usr/bin/env bash
# The career commands of the command-line tool on a new dynasty: the review,
# the job list closed before the draft, and the staff market's hire and fire
# with their refusals (status 2, the store unchanged), closed once the
# season has started.
#   cli_career.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

cli_options=(--home "$work/a")
run 0 --seed 3 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil"

run 0 review
expect "St. John's Head Coach Review"
expect_line "^ *Coach Rating: +F$"
expect_line "^ *Job Performance: +Satisfied with your performance$"

run 2 jobs
expect "Job openings can only be checked between the NBA draft and the start of the offseason"
run 2 take-job Drake
expect "Job openings can only be checked"

run 0 staff
staff_ids() { awk -v part="$1" '/^Candidates/ { n++ } /^$/ { exit } n == part && $1 ~ /^[0-9]+$/ { print $1 }' <<<"$out"; }
mapfile -t coaches < <(staff_ids 0)
mapfile -t candidates < <(staff_ids 1)
((${#coaches[@]} == 3 && ${#candidates[@]} == 2)) || fail "expected three coaches and two candidates in:
$out"

cp "$work/a/mereball.dat" "$work/before.dat"
run 2 staff hire "${candidates[0]}"
expect "You already have three coaches. You need to fire one before hiring another."
run 2 staff fire "${candidates[0]}"
expect "is not on the staff of St. John's."
cmp -s "$work/before.dat" "$work/a/mereball.dat" || fail "a refused staff command changed the store"

for i in 0 1; do
  run 0 staff fire "${coaches[$i]}"
  run 0 staff hire "${candidates[$i]}"
  expect "Please change your coaching Roles"
done
cp "$work/a/mereball.dat" "$work/before.dat"
run 2 staff fire "${coaches[2]}"
expect "You have no coaches interested in your team to replace this coach."
cmp -s "$work/before.dat" "$work/a/mereball.dat" || fail "a refused fire changed the store"
run 0 staff
expect_line "^ *${candidates[1]} .* 0 +0 +2$"

run 0 staff roles --offence "${candidates[0]}" --defence "${candidates[1]}"
run 0 --seed 3 start-season
run 2 staff fire "${coaches[2]}"
expect "Staff can only be hired or fired in the stage Post Training; the dynasty stands in Season."
