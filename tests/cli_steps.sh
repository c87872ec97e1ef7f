# The steps every command-line test script shares: it is sourced with the
# tool's path and a scratch folder, which it empties now and removes at exit.
#   source cli_steps.sh <courtmere-cli> <scratch folder>
set -uo pipefail
cli=$1
work=$2
rm -rf "$work" && mkdir -p "$work"
trap 'rm -rf "$work"' EXIT

# Options put before every command's own (e.g. a program folder).
cli_options=()
# 1 keeps the tool's error stream in $out with its output.
merge_stderr=0

fail() { echo "FAILED: $*" >&2; exit 1; }

# run <status> <args...>: runs the tool, checks its exit status, keeps its
# output in $out.
run() {
  local expected=$1
  shift
  local status
  if ((merge_stderr)); then
    out=$("$cli" "${cli_options[@]}" "$@" 2>&1)
    status=$?
    : >"$work/stderr"
  else
    out=$("$cli" "${cli_options[@]}" "$@" 2>"$work/stderr")
    status=$?
  fi
  [[ $status == "$expected" ]] || fail "courtmere-cli $*: status $status, not $expected
$out
$(cat "$work/stderr")"
}

expect() { [[ $out == *"$1"* ]] || fail "expected \"$1\" in:
$out"; }
# A line matching this extended pattern.
expect_line() { grep -Eq "$1" <<<"$out" || fail "expected a line like \"$1\" in:
$out"; }
