#!/usr/bin/env bash
# A recruiting year with every school in it, through the command-line tool:
# the user lists five recruits, the computer teams bid from week 2, the
# scouts' letters reach the inbox in their weeks, the academic test is
# given, and End Season signs the recruits, never past a school's
# scholarships and the same way again from the same store.
#   cli_signing.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"
cli_options=(--home "$work/a")
db="$work/a/mereball.dat"
sql() { sqlite3 "$db" "$1"; }

run 0 --seed 5 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil"
run 0 --seed 5 start-season
run 0 classes
expect "Recruiting classes"
[[ $(sql "SELECT count(*) FROM Team WHERE ClassRank > 0") == 10 ]] || fail "ten ranked classes"

run 0 recruits --interested
mapfile -t ids < <(awk '$1 ~ /^[0-9]+$/ && $1 > 99 { print $1 }' <<<"$out" | head -5)
((${#ids[@]} == 5)) || fail "fewer than five recruits like St. John's"
for id in "${ids[@]}"; do run 0 recruit add "$id"; done
run 2 end-season
expect "The season can only be ended in the stage Season Over"

run 0 sim --to-week 4
idle=$(sql "SELECT count(*) FROM Team WHERE Owner = 'Computer' AND NOT EXISTS (SELECT 1 FROM \
RecruitDecision WHERE Team = SchoolName AND RecruitPoints > 0)")
[[ $idle == 0 ]] || fail "$idle computer schools have no bids after week 2"
run 0 inbox --week 3
expect "Head Scout"
expect "Recruit Interest"

run 0 sim --season
letters=$(for w in $(seq 1 21); do "$cli" --home "$work/a" inbox --week "$w" 2>/dev/null; done)
for subject in "Recruit Interest" "Recruit Test Scores" "Compliance Dir"; do
  [[ $letters == *"$subject"* ]] || fail "no letter \"$subject\" in the season's inbox"
done
[[ $letters == *"Diamond in the Rough"* || $letters == *"Little Interest"* ]] ||
  fail "no backup-recruit letter"
[[ $(sql "SELECT count(*) FROM Messages WHERE Type = 'Recruits'") -ge 5 ]] ||
  fail "the recruiting letters are not kept in Messages"
run 0 test-scores
expect "College Testing Scores for Non-GPA qualifiers"
untested=$(sql "SELECT count(*) FROM Recruit JOIN Player ON Player.Id = Recruit.Id WHERE \
Recruit.GPA < 2 AND NBAFlag = 0 AND PlayerYear = 'Recruit' AND Intelligence > 0 AND TestScore = 0")
[[ $untested == 0 ]] || fail "$untested low-GPA recruits were not tested"

cp "$db" "$work/over.dat"
run 0 end-season
expect_err "Recruits Choosing Schools"
run 0 signings
expect "National recruit signings"
first=$out
over=$(sql "SELECT count(*) FROM Team WHERE (SELECT count(*) FROM Recruit WHERE TeamChoice = \
SchoolName) > Scholarships")
[[ $over == 0 ]] || fail "$over schools signed past their scholarships"
signed=$(sql "SELECT Id FROM Recruit WHERE TeamChoice = 'St. John''s' LIMIT 1")
if [[ -n $signed ]]; then
  run 0 recruit card "$signed"
  expect "Signed with: St. John's"
  expect "He has signed with St. John's."
  run 0 signings --school "St. John's"
  expect "St. John's"
fi
run 2 end-season
expect "The season can only be ended in the stage Season Over"

# The same store ends the same way.
cp "$work/over.dat" "$db"
run 0 end-season
run 0 signings
[[ $out == "$first" ]] || fail "a second End Season from the same store signed differently"
