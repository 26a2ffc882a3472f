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

tests=("$@")
[ ${#tests[@]} -gt 0 ] || tests=("$REPO"/board/tests/*.sh)

"$REPO/scripts/ensure-deps.sh" board || exit 1
"$REPO/board/build.sh" all || exit 1
export BOARD_NO_BUILD=1

logs=$OUT/test-logs/$(date +%Y%m%d-%H%M%S)-$$
mkdir -p "$logs"

run_one() {
	local t=$1 name start rc
	name=$(basename "$t" .sh)
	start=$SECONDS
	"$REPO/board/run.sh" "$t" >"$logs/$name.log" 2>&1
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
	name=$(basename "$t" .sh)
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
