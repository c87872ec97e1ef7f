#!/usr/bin/env bash
# The user's recruiting through the command-line tool, as a user plays it:
# the pool's lists at week 1, a list of five with the sixth refused, bids in
# the Contact period of week 2 with the week's limit refused and nothing
# written, the budget falling by each bid and set anew (not added to) at the
# week's end, and a season played to "Season Over" with the decisions kept.
#   cli_recruiting.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"
cli_options=(--home "$work/a")

points() { sed -n 's/^Points left this week: //p' <<<"$out"; }

run 0 --seed 3 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's" --coach "D'Angelo O'Neil"
run 0 recruiting
expect "OffSeason Period"
run 2 recruit add 1
expect "Recruits can only be worked on in the stage Season"
run 0 --seed 3 start-season

run 0 recruits --region East
expect "East Region Recruits"
mapfile -t ids < <(awk '$1 ~ /^[0-9]+$/ { print $1 }' <<<"$out" | head -6)
((${#ids[@]} == 6)) || fail "fewer than six recruits in the East:
$out"
run 2 recruits --region North
expect "The region must be one of East, Midwest, South or West."
run 0 recruits --position PG
expect "Point Guard Recruits in the Nation"
run 0 recruits --interested
expect "Recruits Listing St. John's As Team1"
run 0 recruit card "${ids[0]}"
expect "High School:"

for id in "${ids[@]:0:5}"; do
  run 0 recruit add "$id"
  expect_err "has been added to your list of recruits."
done
cp "$work/a/mereball.dat" "$work/five.dat"
run 2 recruit add "${ids[5]}"
expect "You have already chosen the maximum of five recruits this season. You may not chose another."
run 2 recruit add "${ids[0]}"
expect "has already been added to your list of recruits. Please choose another recruit."
run 2 recruit add 99999999
expect "There is no recruit with the id 99999999."
cmp -s "$work/five.dat" "$work/a/mereball.dat" || fail "a refused add changed the store"

# Week 1 is a Dead period: nothing to bid.
run 2 recruit bid "${ids[0]}" Call 5
expect "\"Call\" is not offered in the Dead period."
run 0 recruit rank "${ids[0]}" 1
run 2 recruit rank "${ids[1]}" 1
expect "Please use a different ranking for each player."
run 2 recruit rank "${ids[1]}" 6
expect "A rank must be a number from 1 to 5."

run 0 --seed 4 sim --to-week 2
run 0 recruiting
expect "week 2: Contact Period"
budget=$(points)
((budget >= 40)) || fail "a week-2 budget of $budget"
run 0 recruit bid "${ids[0]}" Visit 30
expect_err "Visit for"
run 0 recruiting
(($(points) == budget - 30)) || fail "the budget did not fall by the Visit's 30 points"
cp "$work/a/mereball.dat" "$work/bid.dat"
run 2 recruit bid "${ids[1]}" Visit 30
expect "You have already made the decision to use your allotted number of Player Visits this week. Make another selection."
run 2 recruit bid "${ids[0]}" Call 5
expect "You have already made your decision on this recruit this week."
run 2 recruit bid "${ids[1]}" Call 11
expect "A bid for Call is a number of points from 0 to 10."
run 2 recruit bid "${ids[1]}" Call -1
run 2 recruit bid "${ids[1]}" Shout 5
cmp -s "$work/bid.dat" "$work/a/mereball.dat" || fail "a refused bid changed the store"
run 0 recruit bid "${ids[1]}" Call 10
run 0 recruiting
(($(points) == budget - 40)) || fail "the budget did not fall by the Call's 10 points"
run 0 recruit clear "${ids[1]}"
expect_err "has been cleared"
run 0 recruiting
(($(points) == budget - 30)) || fail "clearing did not give back the Call's 10 points"
run 0 recruit bid "${ids[1]}" Assistant 20
run 0 recruit offer "${ids[0]}"
expect_err "has been offered a scholarship."
run 0 recruit remove "${ids[4]}"
expect_err "has been removed from your list of recruits."
run 2 recruit remove "${ids[4]}"
expect "That recruit is not on your list of recruits."

# The week's end sets the new week's budget: unspent points are not kept.
run 0 --seed 5 sim --to-week 3
run 0 recruiting
expect "week 3: Contact Period"
after=$(points)
((after >= 10 && after <= 300)) || fail "a week-3 budget of $after"
expect_line "Scholarships: 1 offered of [0-5]"
expect_line "^ *${ids[0]} .* Visit|^ *${ids[0]} .*none +30 "

run 0 --seed 6 sim --season
expect "stage Season Over"
run 0 recruiting
expect_line "^ *${ids[0]} +.* 30 +"
expect_line "^ *${ids[1]} +.* 20 +"
run 2 recruit bid "${ids[0]}" Call 5
echo "cli_recruiting passed"
