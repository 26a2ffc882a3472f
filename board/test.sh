#!/bin/bash
# Run board tests: each script one boot of the virtual board (board/run.sh).
#
#   test.sh [SCRIPT...]     default: every board/tests/*.sh
#
# BOARD_JOBS boots in parallel (default: one per two CPUs).  A test's full
# output is printed when it fails and kept in $BOARD_BUILD/test-logs/.
set -uo pipefail

REPO=$(cd "$(dirname "$0")/.." && pwd)
OUT=${BOARD_BUILD:-$REPO/build/board}
case "$OUT" in /*) ;; *) OUT=$REPO/$OUT ;; esac
export BOARD_BUILD=$OUT
JOBS=${BOARD_JOBS:-$(( ($(nproc 2>/dev/null || echo 2) + 1) / 2 ))}

scripts=("$@")
[ ${#scripts[@]} -gt 0 ] || scripts=("$REPO"/board/tests/*.sh)

# A script with a line "# boards: A | B C | ..." runs once per board variant
# (it can read the words from /board/variant); any other script runs once.
# Each run is "script|words" ("script|" for the script's own choice).
tests=()
for s in "${scripts[@]}"; do
	variants=$(sed -n 's/^# boards: *//p' "$s" | head -1)
	if [ -z "$variants" ]; then
		tests+=("$s|")
		continue
	fi
	IFS='|' read -ra list <<<"$variants"
	for v in "${list[@]}"; do
		v=$(echo $v)	# trim
		tests+=("$s|$v")
	done
done

# Log name of a run: the script's name, plus its board words if it has several.
run_name() {
	local name
	name=$(basename "${1%%|*}" .sh)
	[ -z "${1#*|}" ] || name="$name[${1#*|}]"
	echo "${name// /_}"
}

"$REPO/scripts/ensure-deps.sh" board || exit 1
"$REPO/board/build.sh" all || exit 1
export BOARD_NO_BUILD=1

logs=$OUT/test-logs/$(date +%Y%m%d-%H%M%S)-$$
mkdir -p "$logs"

run_one() {
	local t=$1 words=${1#*|} name start rc
	name=$(run_name "$t")
	start=$SECONDS
	"$REPO/board/run.sh" ${words:+--board "$words"} "${t%%|*}" >"$logs/$name.log" 2>&1
	rc=$?
	echo "$rc $((SECONDS - start))" >"$logs/$name.result"
}

running=0
for t in "${tests[@]}"; do
	if [ "$running" -ge "$JOBS" ]; then
		wait -n
		running=$((running - 1))
	fi
	run_one "$t" &
	running=$((running + 1))
done
wait

passed=0
failed=0
for t in "${tests[@]}"; do
	name=$(run_name "$t")
	read -r rc secs <"$logs/$name.result" 2>/dev/null || { rc=1; secs=0; }
	if [ "$rc" = 0 ]; then
		passed=$((passed + 1))
		echo "PASS  $name (${secs} s)"
	else
		failed=$((failed + 1))
		echo "FAIL  $name (${secs} s, status $rc) ---- output:"
		sed 's/^/    /' "$logs/$name.log"
		echo "FAIL  $name ---- end of output"
	fi
done
echo "logs: ${logs#"$REPO"/}"
echo "board: $passed passed, $failed failed"
[ "$failed" = 0 ]
