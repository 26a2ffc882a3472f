#!/bin/bash
# Run board tests: each script one boot of the virtual board (board/run.sh).
#
#   test.sh [--kind KIND]... [SCRIPT...]
#
# Default kind: $BOARD_KIND (arm64-6.1); with several --kind options every
# script runs on every kind and the result lines name the kind.  Default
# scripts: every board/tests/*.sh.  BOARD_JOBS boots in parallel (default:
# one per two CPUs).  A test's full output is printed when it fails and kept
# in $BOARD_BUILD/test-logs/.
set -uo pipefail

REPO=$(cd "$(dirname "$0")/.." && pwd)
ROOT=${BOARD_BUILD:-$REPO/build/board}
case "$ROOT" in /*) ;; *) ROOT=$REPO/$ROOT ;; esac
export BOARD_BUILD=$ROOT
JOBS=${BOARD_JOBS:-$((($(nproc) + 1) / 2))}

kinds=()
scripts=()
while [ $# -gt 0 ]; do
	case "$1" in
	--kind) kinds+=("$2"); shift 2 ;;
	-*) echo "usage: $0 [--kind KIND]... [SCRIPT...]" >&2; exit 2 ;;
	*) scripts+=("$1"); shift ;;
	esac
done
[ ${#kinds[@]} -gt 0 ] || kinds=("${BOARD_KIND:-arm64-6.1}")
[ ${#scripts[@]} -gt 0 ] || scripts=("$REPO"/board/tests/*.sh)
for k in "${kinds[@]}"; do
	msg=$(BOARD_KIND=$k "$REPO/board/build.sh" env) || { echo "$msg" >&2; exit 2; }
done

# A script with a line "# boards: A | B C | ..." runs once per board variant
# (it can read the words from /board/variant); any other script runs once.
# Each run is "kind|script|words" ("kind|script|" for the script's own choice).
tests=()
for s in "${scripts[@]}"; do
	variants=$(sed -n 's/^# boards: *//p' "$s" | head -1)
	if [ -z "$variants" ]; then
		list=("")
	else
		IFS='|' read -ra list <<<"$variants"
	fi
	for k in "${kinds[@]}"; do
		for v in "${list[@]}"; do
			tests+=("$k|$s|$(echo $v)")	# words trimmed
		done
	done
done

# Log name of a run: the script's name, plus its board words if it has several.
run_name() {
	local rest=${1#*|} name
	name=$(basename "${rest%%|*}" .sh)
	[ -z "${rest#*|}" ] || name="$name[${rest#*|}]"
	echo "${name// /_}"
}

# The default kind alone reports as it always has; otherwise name the kind.
label() {
	if [ ${#kinds[@]} = 1 ] && [ "${kinds[0]}" = arm64-6.1 ]; then
		run_name "$1"
	else
		echo "[${1%%|*}] $(run_name "$1")"
	fi
}

"$REPO/scripts/ensure-deps.sh" board || exit 1
for k in "${kinds[@]}"; do
	BOARD_KIND=$k "$REPO/board/build.sh" all || exit 1
done
export BOARD_NO_BUILD=1

logs=$ROOT/test-logs/$(date +%Y%m%d-%H%M%S)-$$
for k in "${kinds[@]}"; do
	mkdir -p "$logs/$k"
done

log_of() { echo "$logs/${1%%|*}/$(run_name "$1")"; }

run_one() {
	local t=$1 kind=${1%%|*} rest=${1#*|} log start rc
	local script=${rest%%|*} words=${rest#*|}
	log=$(log_of "$t")
	start=$SECONDS
	BOARD_KIND=$kind "$REPO/board/run.sh" ${words:+--board "$words"} "$script" >"$log.log" 2>&1
	rc=$?
	echo "$rc $((SECONDS - start))" >"$log.result"
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
	log=$(log_of "$t")
	name=$(label "$t")
	rc=1 secs=0
	[ -f "$log.result" ] && read -r rc secs <"$log.result"
	if [ "$rc" = 0 ]; then
		passed=$((passed + 1))
		echo "PASS  $name (${secs} s)"
	else
		failed=$((failed + 1))
		echo "FAIL  $name (${secs} s, status $rc) ---- output:"
		sed 's/^/    /' "$log.log"
		echo "FAIL  $name ---- end of output"
	fi
done
echo "logs: ${logs#"$REPO"/}"
echo "board: $passed passed, $failed failed"
[ "$failed" = 0 ]
