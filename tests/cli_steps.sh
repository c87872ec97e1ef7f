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
# output in $out and its error stream in $err. A refusal (status 2) must say
# why on the error stream, and for it $out holds that stream: its message is
# what a test expects to find.
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
  err=$(cat "$work/stderr")
  [[ $status == "$expected" ]] || fail "courtmere-cli $*: status $status, not $expected
$out
$err"
  if [[ $status == 2 ]] && ((!merge_stderr)); then
    [[ -n $err ]] || fail "courtmere-cli $*: refused without a word on standard error"
    out=$err
  fi
}

expect() { [[ $out == *"$1"* ]] || fail "expected \"$1\" in:
$out"; }
# A message of the program's on the error stream.
expect_err() { [[ $err == *"$1"* ]] || fail "expected \"$1\" on standard error:
$err"; }
# A line matching this extended pattern.
expect_line() { grep -Eq "$1" <<<"$out" || fail "expected a line like \"$1\" in:
$out"; }
