#!/usr/bin/env bash
# The command-line tool's save and load, run as a user would: a save and a
# load give the dynasty back, and a refused file, a wrong ending or a missing
# dynasty exit with status 2 and leave the store as it was.
#   cli_saved_games.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

home=$work/home
run 0 --home "$home" --seed 1 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" \
  --coach "D'Angelo O'Neil"

run 0 --home "$home" save spring
expect_err "Courtmere: Your game has been saved to $home/SaveGame/spring.CMR"
[[ -f $home/SaveGame/spring.CMR ]] || fail "no save written"
saved=$(sqlite3 "$home/mereball.dat" "SELECT count(*) FROM Player")

sqlite3 "$home/mereball.dat" "DELETE FROM Player WHERE Team = 'St. John''s'"
run 0 --home "$home" load spring.CMR
expect "loaded $home/SaveGame/spring.CMR"
expect "St. John's, Post Training, week 1, 2001"
[[ $(sqlite3 "$home/mereball.dat" "SELECT count(*) FROM Player") == "$saved" ]] ||
  fail "the load did not give the dynasty back"

# Refusals: status 2, the store as it was.
cp "$home/mereball.dat" "$work/before.dat"
head -c 20000 "$home/SaveGame/spring.CMR" >"$home/SaveGame/cut.CMR"
run 2 --home "$home" load cut.CMR
expect "Courtmere: This is not a valid SaveGame File"
cmp -s "$home/mereball.dat" "$work/before.dat" || fail "a refused load changed the store"
run 2 --home "$home" load "$home/SaveGame/spring.txt"
grep -q "ends in .CMR" "$work/stderr" || fail "a wrong ending is not explained"
cmp -s "$home/mereball.dat" "$work/before.dat" || fail "an ignored load changed the store"

run 0 --home "$work/blank" init
run 2 --home "$work/blank" save spring
expect "There is no dynasty in this program folder."
[[ ! -e $work/blank/SaveGame/spring.CMR ]] || fail "a save without a dynasty was written"
echo "cli saved games: all passed"
