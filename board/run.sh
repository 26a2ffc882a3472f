#!/bin/bash
# Boot the virtual board in QEMU and run one shell script in the guest.
#
#   run.sh [--board "WORDS"] [--timeout S] SCRIPT   run SCRIPT, print its output and
#                                                   the kernel log, exit with its status
#   run.sh [--board "WORDS"] --shell                interactive busybox shell
#
# The board variant comes from --board, else from a line
# "# board: WORDS" in the script, else the default K12M3 board; see
# build_dtb in board/build.sh for the words.  A line "# timeout: S" sets the
# script's time limit (default 120 s).  A script fails also when the kernel
# log shows a problem (a bug, KASAN or lockdep report, warning, oops, soft
# lockup, RCU stall, hung task, kmemleak find: board/guest/bin/klog-problems
# has the list), unless it has a line "# kernel-warnings: allowed".
#
# BOARD_KIND chooses the board (default arm64-6.1; board/build.sh kinds).
# In the guest: modules in /modules (rtl8304.ko when the driver has been
# built), helpers in /lib/board.sh, the script at /board/script.sh and the
# board words it runs on in /board/variant; FUZZ_SEED (a number) goes to
# /board/seed for the fuzz tests (board_seed).
set -euo pipefail

REPO=$(cd "$(dirname "$0")/.." && pwd)
KIND=${BOARD_KIND:-arm64-6.1}
settings=$(BOARD_KIND=$KIND "$REPO/board/build.sh" env) || { echo "$settings" >&2; exit 2; }
eval "$settings"
ROOT=${BOARD_BUILD:-$REPO/build/board}
case "$ROOT" in /*) ;; *) ROOT=$REPO/$ROOT ;; esac
export BOARD_BUILD=$ROOT BOARD_KIND=$KIND
OUT=$ROOT/$KIND

board=
limit=
shell=0
script=
while [ $# -gt 0 ]; do
	case "$1" in
	--board) board=$2; shift 2 ;;
	--timeout) limit=$2; shift 2 ;;
	--shell) shell=1; shift ;;
	-*) echo "usage: $0 [--board WORDS] [--timeout S] SCRIPT | --shell" >&2; exit 2 ;;
	*) script=$1; shift ;;
	esac
done
if [ $shell = 0 ] && [ ! -f "$script" ]; then
	echo "board: no script '$script' (usage: make board-run SCRIPT=path [BOARD=words])" >&2
	exit 2
fi

# The driver: $RTL8304_KO (none: without it), else the newest build of it
# for this kind's machine (ELF e_machine): the module build's output for the
# kind, or a Kbuild run at the repository root.  A module given by name must
# exist and be built for this machine: never another one in its place.
is_elf() { [ -f "$1" ] && [ "$(od -An -c -N4 "$1" | tr -d ' ')" = '177ELF' ]; }
elf_machine() { od -An -tu2 -j18 -N2 "$1" | tr -d ' '; }
is_kind_ko() { is_elf "$1" && [ "$(elf_machine "$1")" = "$KIND_ELF_MACHINE" ]; }
ko=${RTL8304_KO:-}
case "$ko" in
""|none) ;;
*)
	if [ ! -f "$ko" ]; then
		echo "board: RTL8304_KO=$ko: no such file" >&2
		exit 2
	elif ! is_elf "$ko"; then
		echo "board: RTL8304_KO=$ko is not an ELF file" >&2
		exit 2
	elif ! is_kind_ko "$ko"; then
		echo "board: RTL8304_KO=$ko is built for ELF machine $(elf_machine "$ko"), $KIND needs $KIND_ELF_MACHINE" >&2
		exit 2
	fi
	;;
esac
case "${FUZZ_SEED:-0}" in
*[!0-9]*) echo "board: FUZZ_SEED=$FUZZ_SEED is not a number" >&2; exit 2 ;;
esac

header() { [ -z "$script" ] || sed -n "s/^# $1: *//p" "$script" | head -1; }
[ -n "$board" ] || board=$(header board)
[ -n "$limit" ] || limit=$(header timeout)
[ -n "$limit" ] || limit=120

if [ -z "${BOARD_NO_BUILD:-}" ]; then
	"$REPO/scripts/ensure-deps.sh" board
	"$REPO/board/build.sh" all
fi
# shellcheck disable=SC2086 # board words are words
dtb=$("$REPO/board/build.sh" dtb $board)

run=$(mktemp -d "$OUT/run.XXXXXX")
trap 'rm -rf "$run"' EXIT
mkdir -p "$run/root/board" "$run/root/modules"
# Under the module build's lock, so that no half-written module is taken.
flock -s "$OUT/.modules.lock" cp "$OUT"/kmod/*.ko "$run/root/modules/"
if [ "$ko" = none ]; then
	ko=
elif [ -z "$ko" ]; then
	for f in "$(dirname "$ROOT")/kmod/$KIND/rtl8304.ko" "$REPO/rtl8304.ko"; do
		is_kind_ko "$f" && { [ -z "$ko" ] || [ "$f" -nt "$ko" ]; } && ko=$f
	done
fi
if [ -n "$ko" ]; then
	cp "$ko" "$run/root/modules/rtl8304.ko"
	echo "board: driver ${ko#"$REPO"/}"
fi
[ -z "${FUZZ_SEED:-}" ] || echo "$FUZZ_SEED" >"$run/root/board/seed"
if [ $shell = 1 ]; then
	touch "$run/root/board/shell"
else
	cp "$script" "$run/root/board/script.sh"
	echo "$limit" >"$run/root/board/timeout"
	echo "${board:-K12M3}" >"$run/root/board/variant"
fi
# The kernel unpacks concatenated archives one after the other.
(cd "$run/root" && find . | cpio -o -H newc --owner=0:0 --quiet) | gzip -n >"$run/run.cpio.gz"
cat "$OUT/rootfs.cpio.gz" "$run/run.cpio.gz" >"$run/initrd.gz"

# log_buf_len: room for the log of a fuzz batch (thousands of lines, see
# klog_drain in board/guest/board.sh) between two reads, so that no report
# is overwritten before anything reads it; the default holds 128 KiB.
qemu=("$KIND_QEMU" -M virt -cpu "$KIND_CPU" -smp 2 -m 512 -nographic -no-reboot
      -nic none -kernel "$OUT/linux/$KIND_IMAGE" -initrd "$run/initrd.gz"
      -dtb "$dtb" -append "console=ttyAMA0 rdinit=/init loglevel=1 panic=-1 log_buf_len=4M")

echo "board: booting $KIND [${board:-K12M3}]${script:+ with $script}"
if [ $shell = 1 ]; then
	"${qemu[@]}"
	exit 0
fi

status=0
timeout $((limit + 60)) "${qemu[@]}" </dev/null >"$run/console.raw" 2>&1 || status=$?
tr -d '\r' <"$run/console.raw" >"$run/console.log"

section() { sed -n "/@@BOARD-$1@@/,/@@BOARD-$2/p" "$run/console.log" | sed '1d;$d'; }

if ! grep -q '@@BOARD-LOG-END@@' "$run/console.log"; then
	cat "$run/console.log"
	[ $status = 124 ] && echo "board: QEMU killed after $((limit + 60)) s"
	echo "board: the guest did not finish (QEMU status $status)"
	exit 1
fi
rc=$(sed -n 's/.*@@BOARD-SCRIPT-END rc=\([0-9]*\)@@.*/\1/p' "$run/console.log")
echo "==== script output ===="
section SCRIPT-BEGIN SCRIPT-END
echo "==== kernel log ===="
section LOG-BEGIN LOG-END | tee "$run/klog"
echo "===================="

# One list of kernel problems for this runner and the guest's own scans.
problems=$("$REPO/board/guest/bin/klog-problems" "$run/klog") || {
	[ $? = 1 ] || { echo "board: cannot scan the kernel log"; exit 1; }
}
if [ -n "$problems" ] && [ "$(header kernel-warnings)" != allowed ]; then
	echo "$problems"
	echo "board: the kernel log shows a problem (above)"
	[ "$rc" = 0 ] && rc=1
fi
echo "board: script exited with $rc"
exit "$rc"
