#!/usr/bin/env bash
# The dynasty is never lost, run as a user would: a second command on a busy
# program folder is refused and the running season finishes whole; a damaged
# store is kept under a dated name; an exhibition leaves the dynasty's store
# as it was; a full or read-only disk is told apart from a bad save; and a
# season plays the same from the dynasty's seed however it is cut into runs,
# killed and resumed.
#   cli_store_safety.sh <courtmere-cli> <scratch folder>
source "$(dirname "${BASH_SOURCE[0]}")/../cli_steps.sh" "$@"

# The season's results: every schedule row, every team's and player's figures.
results() {
  local db=$1/mereball.dat table
  {
    for table in NonConfSchedule League{1..9}Schedule; do
      sqlite3 "$db" "SELECT GameNo, HomeTeam, AwayTeam, HomeScore, AwayScore FROM $table
                     ORDER BY GameNo"
    done
    sqlite3 "$db" "SELECT * FROM TeamStats ORDER BY SchoolName"
    sqlite3 "$db" "SELECT * FROM PlayerStats ORDER BY Id"
  } | md5sum
}

# A dynasty whose season has started, copied for each case.
base=$work/base
run 0 --home "$base" --seed 11 new --conferences "MVC;WAC;Atlantic 10" --school "St. John's"
run 0 --home "$base" start-season
copy() { cp -a "$base" "$work/$1" && echo "$work/$1"; }

# The reference: one uninterrupted season.
a=$(copy a)
run 0 --home "$a" sim --season
expect "NCT champion:"
reference=$(results "$a")

# The same season in three runs.
b=$(copy b)
run 0 --home "$b" sim --days 10
run 0 --home "$b" sim --days 7
run 0 --home "$b" sim --season
[[ $(results "$b") == "$reference" ]] || fail "a season split into runs plays otherwise"

# Killed five times, then resumed.
c=$(copy c)
for pause in 0.3 0.5 0.7 0.9 1.1; do
  "$cli" --home "$c" sim --season >/dev/null 2>&1 &
  sleep $pause
  kill -9 $! 2>/dev/null
  wait $! 2>/dev/null
done
# (On a fast machine the killed runs may have finished the season already.)
stage=$(sqlite3 "$c/mereball.dat" "SELECT Stage FROM Config")
[[ $stage == "Season Over" ]] || run 0 --home "$c" sim --season
[[ $(results "$c") == "$reference" ]] || fail "a season killed and resumed plays otherwise"

# Two commands on a folder whose season is being played: both refused at
# once, the running season finishes as if they had not been tried.
d=$(copy d)
"$cli" --home "$d" sim --season >"$work/season.out" 2>&1 &
season=$!
# The running program holds the folder's lock from its first moment; the
# kernel's list of locks shows when it has it (without taking it).
lock=$(stat -c %i "$d/courtmere.lock")
until grep -Eq "FLOCK .*:$lock " /proc/locks; do
  kill -0 $season 2>/dev/null || fail "the season ended before its lock was seen"
  sleep 0.01
done
run 2 --home "$d" standings
expect "Courtmere: Another Courtmere is using this program folder: $d"
run 2 --home "$d" sim --days 3
expect "Another Courtmere is using this program folder"
kill -0 $season 2>/dev/null || fail "the season was over before both commands were refused"
wait $season || fail "the running season failed: $(cat "$work/season.out")"
[[ $(results "$d") == "$reference" ]] || fail "the refused commands changed the season"

# A damaged store (cut short, garbage) is kept under a dated name, and the
# blank store takes its place.
for damage in cut garbage; do
  e=$(copy "damaged-$damage")
  if [[ $damage == cut ]]; then
    head -c $(($(stat -c %s "$e/mereball.dat") / 2)) "$a/mereball.dat" >"$e/mereball.dat"
  else
    head -c 100000 /dev/urandom >"$e/mereball.dat"
  fi
  cp "$e/mereball.dat" "$work/damaged.dat"
  run 0 --home "$e" init
  kept=("$e"/mereball-damaged-*.dat)
  [[ -f ${kept[0]} ]] || fail "the damaged store ($damage) was not kept"
  cmp -s "${kept[0]}" "$work/damaged.dat" || fail "the kept store ($damage) is not the damaged one"
  expect_err "is kept as ${kept[0]}"
  cmp -s "$e/mereball.dat" "$e/mereball.bak" || fail "the blank store did not take its place"
done

# Exhibitions play in a copy: the dynasty's store stays byte for byte.
x=$(copy exhibition)
cp "$x/mereball.dat" "$work/before.dat"
run 0 --home "$x" --seed 3 exhibition "St. John's" Drake --games 2
cmp -s "$x/mereball.dat" "$work/before.dat" || fail "an exhibition changed the dynasty"
run 2 --home "$x" exhibition "St. John's" "St. John's"
expect "Courtmere: St. John's can't play itself."
run 2 --home "$work/fresh" exhibition Duke Duke
expect "Duke can't play itself."
run 2 --home "$x" exhibition --games 0
expect "Courtmere: The number of games must be at least 1."
run 2 --home "$x" sim --days many
cmp -s "$x/mereball.dat" "$work/before.dat" || fail "a refusal changed the dynasty"

# A good save loaded into a full or a read-only program folder: the disk is
# named, the save is not called invalid. These need a small file system of
# their own, mounted in a private namespace; without the right to do so
# (an unprivileged run) they are skipped.
run 0 --home "$base" save good
save=$base/SaveGame/good.CMR
if unshare -m true 2>/dev/null; then
  disk() {
    # disk <full|readonly>: loads the save into a copy of the dynasty on a
    # small file system that is full or read-only.
    unshare -m bash -c '
      set -e
      cli=$1 base=$2 mnt=$3 save=$4 kind=$5
      mkdir -p "$mnt"
      size=$(( $(du -sk "$base" | cut -f1) + 1024 ))
      mount -t tmpfs -o size=${size}k tmpfs "$mnt"
      cp -a "$base/." "$mnt/"
      rm -rf "$mnt/SaveGame"
      if [[ $kind == full ]]; then
        dd if=/dev/zero of="$mnt/filler" bs=64k 2>/dev/null || true
      else
        mount -o remount,ro "$mnt"
      fi
      set +e
      "$cli" --home "$mnt" load "$save"
    ' disk "$cli" "$base" "$work/mnt-$1" "$save" "$1"
  }
  out=$(disk full 2>&1)
  [[ $? == 2 ]] || fail "a load onto a full disk did not end with status 2: $out"
  [[ $out == *"is full"* && $out != *"not a valid SaveGame"* ]] || fail "full disk: $out"
  out=$(disk readonly 2>&1)
  [[ $? == 2 ]] || fail "a load into a read-only folder did not end with status 2: $out"
  [[ $out == *"can't be written"* && $out != *"not a valid SaveGame"* ]] ||
    fail "read-only folder: $out"
else
  echo "skipped: the full and read-only disk cases need a private mount namespace"
fi

# A 2 GB file is refused from its size, unread: the tool runs in a tenth of
# the memory reading it would take.
head -c 64 "$save" >"$work/huge.CMR"
truncate -s 2G "$work/huge.CMR"
out=$( (ulimit -v 400000 && "$cli" --home "$base" load "$work/huge.CMR") 2>&1)
[[ $? == 2 && $out == *"This is not a valid SaveGame File"* ]] || fail "a 2 GB file: $out"
echo "cli store safety: all passed"
