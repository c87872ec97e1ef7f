#!/usr/bin/env bash
# The staff and lineup commands of the command-line tool, played as a new
# coach plays his first days: Sim Day refuses without a depth chart and
# without coaching roles, the roles command refuses one coach for both roles
# and a coach of another staff with status 2 and the store unchanged, and
# once the chart and the roles are set the user's own lineup plays week 1.
#   cli_staff.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

cli_options=(--home "$work/a")
run 0 --seed 3 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil"
run 0 --seed 3 start-season

run 0 staff
expect "St. John's Coaching Staff"
expect "St. John's Head Scout"
mapfile -t coaches < <(awk '/^(Candidates)?$/ { exit } $1 ~ /^[0-9]+$/ { print $1 }' <<<"$out")
((${#coaches[@]} == 3)) || fail "expected three coaches in:
$out"

run 2 sim --own-lineup --days 4
expect "Please set the depth chart for St. John's before trying to sim this day."
run 0 lineup --auto
expect_line "^ *PG +[^(]"
run 2 sim --own-lineup --days 4
expect "Please assign an offensive coach for St. John's before trying to sim this day."

cp "$work/a/mereball.dat" "$work/before.dat"
run 2 staff roles --offence "${coaches[0]}" --defence "${coaches[0]}"
expect "The same coach cannot be both the offensive specialist and defensive specialist."
run 2 staff roles --offence 999999
expect "Coach 999999 is not on the staff of St. John's."
run 2 staff roles --recruiting "${coaches[0]}"
expect "You can only have one offensive specialist and one defensive specialist."
cmp -s "$work/before.dat" "$work/a/mereball.dat" || fail "a refused roles command changed the store"

run 0 staff roles --offence "${coaches[1]}" --defence "${coaches[2]}"
expect_line "^ *${coaches[0]} .* Recruiting$"
expect_line "^ *${coaches[1]} .* Offense$"
expect_line "^ *${coaches[2]} .* Defense$"
run 0 --seed 5 sim --own-lineup --days 4
expect "now week 2, Thursday"
run 0 staff
expect_line "^ *${coaches[1]} .* 1 +0 +1$"
expect_line "^ *${coaches[0]} .* 0 +0 +2$"
