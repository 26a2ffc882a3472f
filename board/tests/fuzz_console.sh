#!/bin/sh
# board: K12M3
# timeout: 240
# /proc/rtl8304 under hostile input: 20000 writes in 10 batches from
# procfuzz (random bytes with NULs and high bytes, every console command but
# "switch reset" with bad numbers and mangled text, buffers that fault).
# Every write returns what the console promises (the length up to 1024, or
# -EFAULT), the kernel log of each batch has no report, and afterwards the
# chip takes a known layout exactly, the console answers, the driver unloads
# without a leak.
# Replay: FUZZ_SEED=<seed> make board-run SCRIPT=board/tests/fuzz_console.sh;
# one case on the board: procfuzz show <seed> <case>.
. /lib/board.sh
BATCHES=10
PER_BATCH=2000
SEED=$(board_seed)
echo "seed $SEED"

board_load
board_link 0 up
klog_drain
batch() {
	check "batch $1: every write's result" procfuzz /proc/rtl8304 "$SEED" $(($1 * PER_BATCH)) $PER_BATCH
}
fuzz_batches $BATCHES batch
fuzz_end_checks
finish
