#!/usr/bin/env bash
# The history commands before any season has ended: empty books and
# histories say so, the reports open with their stages, and refusals exit
# with status 2, write no file and change nothing.
#   cli_history.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

run 0 --home "$work/a" --seed 1 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" \
  --coach "D'Angelo O'Neil"
cp "$work/a/mereball.dat" "$work/before.dat"

run 0 --home "$work/a" records --career --conference MVC
expect "No records have been set yet."
run 0 --home "$work/a" history
expect "St. John's history"
expect "No season has ended yet."
run 0 --home "$work/a" coach
expect "D'Angelo O'Neil, head coach of St. John's"
run 2 --home "$work/a" top-coaches
expect "The top coaches are named when the season ends."
run 2 --home "$work/a" history --school "Nowhere State"
expect "There is no school named Nowhere State in this dynasty."
run 2 --home "$work/a" player 999999
expect "There is no player with the Id 999999."

# The draft pools wait for the season's end; nothing is written.
run 2 --home "$work/a" export jsb
expect "The draft pool can be exported from the end of the season until the draft"
[[ ! -e $work/a/reports ]] || fail "a refused export made the reports folder"
# A reports folder that can't be made.
touch "$work/a/reports"
run 2 --home "$work/a" export roster
expect "The reports folder could not be made"
rm "$work/a/reports"
cmp -s "$work/before.dat" "$work/a/mereball.dat" || fail "a refused command changed the store"

# The roster is open before the season.
run 0 --home "$work/a" export roster
file=$(echo "$out" | tail -1)
[[ -f $file ]] || fail "export roster printed no file: $out"
grep -q "^2001 St. John's ROSTER$" "$file" || fail "the roster's first line: $(head -1 "$file")"
