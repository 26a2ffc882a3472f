# Helpers for scripts that run on the virtual board: . /lib/board.sh
#
# Modules of this boot are in /modules: swconfig_test.ko (switch framework
# stand-in), rtl8304_board.ko (MDIO bus with the chip model, FEC stand-in),
# swconfig_dummy.ko (tiny switch for framework tests) and rtl8304.ko when
# the driver has been built.

BOARD_DBG=/sys/kernel/debug/rtl8304-board
SWCMD=/sys/kernel/debug/swconfig-test/cmd
SWTEXT=/sys/kernel/debug/swconfig-test/string
BOARD_FAILS=0

have_driver() { [ -f /modules/rtl8304.ko ]; }

# GPIO numbers of the PL061 lines in the fec node (switchnet-reset, led-gpio1,
# led-gpio2 are lines 0, 1, 2).  Linux 6.1 numbers the controller 504..511;
# from 6.2 on, chips without a fixed base are numbered from 512 up.
PL061_BASE=$(sed -n 's/^gpiochip[0-9]*: GPIOs \([0-9]*\)-.*pl061.*/\1/p' /sys/kernel/debug/gpio)
GPIO_RESET=$((PL061_BASE + 0))
GPIO_LED1=$((PL061_BASE + 1))
GPIO_LED2=$((PL061_BASE + 2))

# Switch framework, then the driver (its PHY fixup must exist before the bus
# is scanned), then the board.  A driver that refuses the platform is not an
# error here: tests of that case look at the kernel log.
board_load() {
	insmod /modules/swconfig_test.ko || return 1
	if have_driver; then
		insmod /modules/rtl8304.ko || echo "board: rtl8304.ko did not load"
	fi
	insmod /modules/rtl8304_board.ko
}

board_unload() {
	rmmod rtl8304_board || return 1
	if grep -q '^rtl8304 ' /proc/modules; then rmmod rtl8304 || return 1; fi
	rmmod swconfig_test
}

# sw WORDS...: one swconfig command through the framework stand-in
# ("dev RTL8304MB port 0 get link"); prints the answer as the tool prints it.
# A failed command's answer ends with a line "error -N" and sw fails.
sw() { sw_file "$SWCMD" "$@"; }

# sw_text WORDS...: "dev DEV [port N | vlan N] get KEY" through the stand-in's
# test-only path: the text the handler left in value.s (the driver's port
# "mask"), which the real framework never shows: it answers "mask" as a number.
sw_text() { sw_file "$SWTEXT" "$@"; }

# sw_line WORDS...: sw's answer on one line, its lines joined by ";", for
# tables of expected answers; SW_GET_EINVAL and SW_SET_EINVAL are a get and
# a set that the framework or the driver refused with -EINVAL.
sw_line() { sw "$@" | tr '\n' ';' | sed 's/;$//'; }
SW_GET_EINVAL="Failed to get attribute: Invalid argument;error -22"
SW_SET_EINVAL="Failed to set attribute: Invalid argument;error -22"

sw_file() {
	local f=$1 err ans rc=0
	shift
	# The answer tells why a command failed; the shell's own message
	# matters only when there is no answer.
	err=$(echo "$*" 2>&1 >"$f") || rc=1
	ans=$(cat "$f")
	if [ -n "$ans" ]; then
		echo "$ans"
	elif [ -n "$err" ]; then
		echo "$err" >&2
	fi
	return $rc
}

# board_link PHY up|down
board_link() { echo "$1 $2" >"$BOARD_DBG/link"; }

# board_reg sw|phy ADDR PAGE REG [VALUE]: read (prints 0xNNNN) or write a
# register of the chip model directly, without bus traffic.
board_reg() {
	echo "$*" >"$BOARD_DBG/reg" || return 1
	[ $# -eq 4 ] && cat "$BOARD_DBG/reg"
	return 0
}

# gpio_level N: "hi" or "lo" of a requested GPIO line as gpiolib shows it.
gpio_level() {
	grep -E "gpio-$1 " /sys/kernel/debug/gpio | sed -E 's/.* (in|out) +(hi|lo).*/\2/'
}

# Kernel log marks: klog_mark, then klog_new prints what came after it.
klog_mark() { BOARD_KLOG_MARK=$(dmesg | wc -l); }
klog_new() { dmesg | tail -n +$((${BOARD_KLOG_MARK:-0} + 1)); }
klog_has() { dmesg | grep -qF -- "$1"; }

# klog_drain: read and clear the kernel log; fail, showing each problem
# report (/bin/klog-problems, the list board/run.sh uses) with the lines
# before it, if there is one.  For scripts that log more than the ring buffer
# holds: drain after each batch and no report is overwritten unread.  The
# log starts afresh, so take a new klog_mark after it.
klog_drain() {
	local rc=0
	dmesg -c >/tmp/klog.drain || return 1
	klog-problems -B 8 /tmp/klog.drain || rc=$?
	case $rc in
	0) echo "board: the kernel log shows a problem (above)"; return 1 ;;
	1) return 0 ;;
	*) echo "board: cannot scan the kernel log"; return 1 ;;
	esac
}

# board_seed: the seed of a fuzz test: FUZZ_SEED given to board/run.sh (a
# replay), else a fresh one (0 .. 2^31-1).
board_seed() {
	if [ -s /board/seed ]; then
		cat /board/seed
	else
		echo $(($(od -An -N4 -tu4 /dev/urandom) & 0x7fffffff))
	fi
}

# wait_until SECONDS COMMAND...: poll a condition every 0.2 s.
wait_until() {
	local n=$(($1 * 5))
	shift
	while [ $n -gt 0 ]; do
		"$@" && return 0
		usleep 200000
		n=$((n - 1))
	done
	return 1
}

# gone PID: the process has ended (a zombie not yet reaped counts as ended).
# A stat file that cannot be read is a process already reaped: the answer,
# so cat's message is kept in st, not shown.
gone() {
	local st
	st=$(cat "/proc/$1/stat" 2>&1) || return 0
	case "${st##*) }" in Z*) return 0 ;; esac
	return 1
}

running() { ! gone "$1"; }

# ended SECONDS PID: the child PID ends within SECONDS; its exit status then,
# else 1 at once (no waiting on a child that hangs).
ended() { wait_until "$1" gone "$2" && wait "$2"; }

# Soft lockup, RCU stall and hung task reports in the kernel log.
stall_reports() {
	dmesg | grep -E 'soft lockup|rcu.*(stall|detected stalls)|blocked for more than'
}

# The layout of the fault tests, set in the soft configuration only: VID 100
# untagged on port 0, VID 200 untagged on port 1, the CPU port (3) tagged in
# both.
fault_layout_set() {
	local S="dev RTL8304MB"
	sw $S vlan 2 set vid 100 && sw $S vlan 2 set ports "'0 3t'" &&
		sw $S vlan 3 set vid 200 && sw $S vlan 3 set ports "'1 3t'"
}

# fault_apply FAULT: load the board, set that layout, arm FAULT (a command
# for $BOARD_DBG/fault) and start an apply in the background: its pid in
# FAULT_APPLY, its start (date +%s) in FAULT_START, its answer in
# /tmp/apply.out.  The kernel log is marked just before.
fault_apply() {
	board_load
	fault_layout_set
	klog_mark
	echo "$1" >$BOARD_DBG/fault
	FAULT_START=$(date +%s)
	sw dev RTL8304MB set apply >/tmp/apply.out &
	FAULT_APPLY=$!
}

# fault_others_go_on: while an apply holds the chip, a console writer waiting
# for it dies within 1 s of SIGKILL, the status polls run on for 3 s, and
# "ip link set eth0 down" returns within 2 s.
fault_others_go_on() {
	local writer
	echo "get pvid 3" >/proc/rtl8304 &
	writer=$!
	sleep 1
	check "console writer waits for the chip" running $writer
	kill -9 $writer
	check "killed console writer gone within 1 s" wait_until 1 gone $writer
	sleep 3
	ip link set eth0 down &
	check "ip link set eth0 down returns within 2 s" ended 2 $!
}

# The chip's VLAN block ($BOARD_DBG/vlan) after an apply of that layout:
# the default VLAN 1 with every port (entry 0), then the two VLANs in the
# lowest free entries with FID 1 and the CPU port (chip port 8, mask 0x100)
# tagged; ingress filter on; PVIDs of chip ports 0 and 3 from their untagged
# VLAN, the others left on entry 0; tag mode 2 on the four board ports.
fault_layout_dump() {
	local i
	echo "control 0x0001 enable 1 ingress_filter 1"
	echo "entry  0 vid    1 fid 0 member 0x1ff untag 0x000"
	echo "entry  1 vid  100 fid 1 member 0x101 untag 0x001"
	echo "entry  2 vid  200 fid 1 member 0x108 untag 0x008"
	for i in 3 4 5 6 7 8 9 10 11 12 13 14 15; do
		printf 'entry %2d vid    0 fid 0 member 0x000 untag 0x000\n' $i
	done
	for i in 0 1 2 3 4 5 6 7 8; do
		case $i in
		0) echo "port 0 pvid_index  1 pvid  100 accept 3 tag_aware 1 tag_mode 2" ;;
		3) echo "port 3 pvid_index  2 pvid  200 accept 3 tag_aware 1 tag_mode 2" ;;
		4|8) echo "port $i pvid_index  0 pvid    1 accept 3 tag_aware 1 tag_mode 2" ;;
		*) echo "port $i pvid_index  0 pvid    1 accept 3 tag_aware 1 tag_mode 0" ;;
		esac
	done
}

# check DESCRIPTION COMMAND...: one test case; prints ok/FAIL and counts.
check() {
	local what=$1
	shift
	if "$@"; then
		echo "ok   - $what"
	else
		echo "FAIL - $what"
		BOARD_FAILS=$((BOARD_FAILS + 1))
	fi
}

# eq EXPECTED ACTUAL: for check.
eq() {
	[ "$1" = "$2" ] && return 0
	echo "       expected '$1'"
	echo "       got      '$2'"
	return 1
}

# Leak scan (kmemleak): prints suspected leaks, fails if there are any.
# kmemleak reports only objects older than 5 s, hence the wait.
board_leak_check() {
	local f=/sys/kernel/debug/kmemleak
	sleep 5
	echo scan >$f
	sleep 1
	echo scan >$f
	[ -z "$(cat $f)" ] && return 0
	cat $f
	return 1
}

# fuzz_batches N FUNCTION: FUNCTION 0 .. FUNCTION N-1, each batch followed by
# a drain and scan of the kernel log; prints how long the batches took.
fuzz_batches() {
	local n=$1 b=0 start
	start=$(cut -d. -f1 /proc/uptime)
	while [ "$b" -lt "$n" ]; do
		"$2" "$b"
		check "batch $b: kernel log clean" klog_drain
		b=$((b + 1))
	done
	echo "fuzzing took $(($(cut -d. -f1 /proc/uptime) - start)) s"
}

# fuzz_end_checks: the end of a fuzz test.  A known layout applied through
# swconfig leaves exactly that VLAN block (VID 100: framework ports 0 and 3
# tagged; VID 200: 1, 2 and 3 tagged), the console reads it back, the kernel
# log is clean, the driver unloads and nothing leaked.
fuzz_end_checks() {
	local c
	for c in "set reset" "vlan 2 set vid 100" "vlan 2 set ports '0 3t'" \
		 "vlan 3 set vid 200" "vlan 3 set ports '1 2 3t'" "set apply"; do
		eval sw dev RTL8304MB "$c" >/tmp/fuzz_end.sw || cat /tmp/fuzz_end.sw
	done
	check "known layout applied exactly" eq "$(printf '%s\n' \
		'entry  0 vid    1 fid 0 member 0x1ff untag 0x000' \
		'entry  1 vid  100 fid 1 member 0x101 untag 0x001' \
		'entry  2 vid  200 fid 1 member 0x118 untag 0x018' \
		'port 0 pvid_index  1 pvid  100 accept 3 tag_aware 1 tag_mode 2' \
		'port 3 pvid_index  2 pvid  200 accept 3 tag_aware 1 tag_mode 2' \
		'port 4 pvid_index  2 pvid  200 accept 3 tag_aware 1 tag_mode 2' \
		'port 8 pvid_index  0 pvid    1 accept 3 tag_aware 1 tag_mode 2')" \
		"$(grep -E '^entry +[0-9]+ vid +[1-9]|^port [0348] ' $BOARD_DBG/vlan)"
	check "no other VLAN" eq 13 "$(grep -c 'vid    0 fid 0 member 0x000 untag 0x000' $BOARD_DBG/vlan)"
	klog_mark
	for c in "get cpu port" "get vlanid info 100" "get pvid 3"; do
		echo "$c" >/proc/rtl8304
	done
	check "console reads it back" eq "$(printf '%s\n' 'The cpu port:8, tag enable' \
		'===vid = 100, mbrmsk = 101, untagmsk = 1' '===port = 3, pvid = 0xc8, priority = 0')" \
		"$(klog_new | sed 's/^\[[^]]*\] //')"
	check "kernel log clean" klog_drain
	check "driver unloads" board_unload
	check "no leaks" board_leak_check
}

finish() {
	[ "$BOARD_FAILS" -eq 0 ] && echo "all checks passed" || echo "$BOARD_FAILS check(s) failed"
	exit "$BOARD_FAILS"
}

# The chip's VLAN table, PVIDs and tag modes (board control "vlan") with runs
# of spaces squeezed: "entry 1 vid 100 fid 1 member 0x008 untag 0x008",
# "port 3 pvid_index 1 pvid 100 accept 3 tag_aware 1 tag_mode 2".
chip_vlans() { tr -s ' ' <"$BOARD_DBG/vlan"; }

# has_line TEXT LINE: for check; TEXT has LINE as one of its lines, or
# TEXT's line that begins with LINE's first two words is shown.
has_line() {
	printf '%s\n' "$1" | grep -qxF -- "$2" && return 0
	echo "       expected '$2'"
	echo "       got      '$(printf '%s\n' "$1" | grep "^$(echo "$2" | cut -d' ' -f1-2) ")'"
	return 1
}
