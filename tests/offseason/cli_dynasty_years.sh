#!/usr/bin/env bash
# Whole years headless, as a user runs them: a fresh dynasty, then one year
# at a time with `dynasty --years 1`, the store checked after each year; the
# offseason commands refused out of their stage; a year command by command
# with the signings joining their schools; two runs of the same years ending
# in the same store.
#   cli_dynasty_years.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

new=(new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil")
run 0 --home "$work/a" --seed 5 "${new[@]}"
db="$work/a/mereball.dat"
q() { sqlite3 "$db" "$1"; }

# Out of stage: status 2 with the reason, nothing changed.
cp "$db" "$work/before.dat"
run 2 --home "$work/a" draft
expect "The draft can only be run in the stage End Season; the dynasty stands in Post Training."
run 2 --home "$work/a" begin-offseason
expect "Begin Offseason can only be run in the stage NBA Draft"
run 2 --home "$work/a" train
run 2 --home "$work/a" training --set 1 Threes=10
cmp -s "$work/before.dat" "$db" || fail "a refused command changed the store"

check_year() {
  local year=$1 seniors=$2
  [[ $(q "SELECT CurrYear || ' ' || Stage || ' ' || CurrWeek FROM Config") == "$year Season 1" ]] ||
    fail "after a year: $(q 'SELECT CurrYear, Stage, CurrWeek FROM Config'), not $year Season 1"
  local bad
  bad=$(q "SELECT SchoolName, (SELECT count(*) FROM Player WHERE Team = SchoolName) AS n FROM Team
           WHERE n < 11 OR n > 13")
  [[ -z $bad ]] || fail "$year: schools without 11 to 13 players: $bad"
  bad=$(q "SELECT Id FROM Player WHERE Team NOT IN (SELECT SchoolName FROM Team)
           AND Team NOT IN ('West', 'Midwest', 'East', 'South')")
  [[ -z $bad ]] || fail "$year: players without a school: $bad"
  bad=$(q "SELECT Id FROM Player WHERE Team IN (SELECT SchoolName FROM Team)
           AND Id NOT IN (SELECT Id FROM PlayerStats)")
  [[ -z $bad ]] || fail "$year: players without a statistics row: $bad"
  bad=$(q "SELECT Id FROM Player WHERE Id IN (SELECT Id FROM ScrubPlayer)")
  [[ -z $bad ]] || fail "$year: ids used twice: $bad"
  bad=$(q "SELECT Id FROM PlayerStats WHERE Games < 0 OR Points < 0 OR Minutes < 0
           UNION SELECT Id FROM Player WHERE Overall < 0 OR Intelligence < 0
           UNION SELECT SchoolName FROM ScrubTeam WHERE Wins < 0 OR Losses < 0")
  [[ -z $bad ]] || fail "$year: negative counts: $bad"
  bad=$(q "SELECT Id FROM Player WHERE Id IN ($seniors)")
  [[ -z $bad ]] || fail "$year: last year's seniors still here: $bad"
  [[ $(q "SELECT count(*) FROM CoachHistory") == $((year - 2000)) ]] ||
    fail "$year: $(q 'SELECT count(*) FROM CoachHistory') coach history rows"
}

# One year command by command, the user's own recruits listed by nobody:
# the signings of End Season join their schools after training.
run 0 --home "$work/a" start-season
seniors=$(q "SELECT group_concat(Id) FROM Player WHERE NBAFlag = 1
             AND Team IN (SELECT SchoolName FROM Team)")
run 0 --home "$work/a" sim --season
run 0 --home "$work/a" end-season
signed=$(q "SELECT group_concat(Player.Id || ' ' || TeamChoice || ' ' ||
              CASE PlayerYear WHEN 'Recruit' THEN 'Freshman' ELSE 'Junior' END, '|')
            FROM Recruit JOIN Player ON Player.Id = Recruit.Id
            WHERE TeamChoice IN (SELECT SchoolName FROM Team) AND Player.NBAFlag = 0")
[[ -n $signed ]] || fail "nobody signed at the end of the season"
run 0 --home "$work/a" draft
expect_line "^ +1 "
run 0 --home "$work/a" begin-offseason
player=$(q "SELECT min(Id) FROM Player WHERE Team = 'St. John''s'")
run 2 --home "$work/a" training --set "$player" Threes=10
expect "You have used too many training points for this player."
run 0 --home "$work/a" training --set "$player" Threes=10 endurance=0
expect "TRAINING POINTS REMAINING: 0"
run 0 --home "$work/a" train
run 0 --home "$work/a" development
expect "Player Development Report: St. John's"
run 0 --home "$work/a" start-season
check_year 2002 "$seniors"
[[ $(q "SELECT group_concat(Id || ' ' || Team || ' ' || PlayerYear, '|') FROM Player
        WHERE Id IN ($(tr '|' '\n' <<<"$signed" | cut -d' ' -f1 | paste -sd,))
        ORDER BY Id") == "$(tr '|' '\n' <<<"$signed" | sort -n | paste -sd'|')" ]] ||
  fail "last year's signings are not on their schools in their class"
cp -r "$work/a" "$work/b"

for year in 2003 2004; do
  seniors=$(q "SELECT group_concat(Id) FROM Player WHERE NBAFlag = 1
               AND Team IN (SELECT SchoolName FROM Team)")
  [[ -n $seniors ]] || fail "no leavers marked before $year"
  run 0 --home "$work/a" dynasty --years 1
  expect_line "^$year: champion .+; St. John's [0-9]+-[0-9]+; class rank ([0-9]+|-)(; fired)?(; moves to .+)?$"
  check_year "$year" "$seniors"
done

run 2 --home "$work/a" dynasty --years 1 --coach-policy sideways
run 2 --home "$work/a" dynasty --years 1 --user-recruiting lots

# The draft and the development report of the last year.
run 0 --home "$work/a" draft --show
expect "2004 NBA Draft"
expect_line "^ *58 "
run 0 --home "$work/a" development
expect "Player Development Report: St. John's"

# The dynasty's seed replays the same years: the copy taken after the first
# year plays the next two in one command to the same store.
run 0 --home "$work/b" dynasty --years 2
diff <(sqlite3 "$work/a/mereball.dat" .dump) <(sqlite3 "$work/b/mereball.dat" .dump) >/dev/null ||
  fail "two runs of the same years ended in different stores"
echo "cli_dynasty_years passed"
