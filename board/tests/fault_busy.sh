#!/bin/sh
# board: K12M3
# timeout: 200
# The chip never finishes clearing a port's counters, apply's first step:
# the apply waits for it without bound, and only the apply.  Meanwhile eth0
# goes down at once, a console writer waiting for the chip dies when killed
# and leaves nothing behind, and the kernel reports no soft lockup, RCU stall
# or hung task.  Once the chip recovers the apply finishes with exactly the
# layout asked for and the LEDs follow the copper ports again.
. /lib/board.sh
S="dev RTL8304MB"
STUCK=50
leds() { [ "$(gpio_level $GPIO_LED1) $(gpio_level $GPIO_LED2)" = "$1" ]; }
running() { ! gone "$1"; }

board_load
fault_layout_set
klog_mark

# Clearing chip port 0's counters: bit 0 of (4, 17, 15), self-clearing.
echo "busy sw 4 15 17 0x0001 forever" >$BOARD_DBG/fault
start=$(date +%s)
sw $S set apply >/tmp/apply.out &
apply=$!
sleep 2
check "apply waits for the counter clear" running $apply
check "clear bit still set" eq 0x0001 "$(board_reg sw 4 15 17)"
check "VLAN table not yet touched" grep -qx "entry  0 vid    0 fid 0 member 0x000 untag 0x000" \
	$BOARD_DBG/vlan

echo "get pvid 3" >/proc/rtl8304 &
writer=$!
sleep 1
check "console writer waits for the chip" running $writer
kill -9 $writer
check "killed console writer gone within 1 s" wait_until 1 gone $writer

# Status polls go on beside the stuck apply, then the MAC stops them.
sleep 3
ip link set eth0 down &
down=$!
check "ip link set eth0 down returns within 2 s" ended 2 $down

left=$((STUCK - ($(date +%s) - start)))
[ $left -gt 0 ] && sleep $left
check "apply still waiting after $STUCK s" running $apply
check "no soft lockup, RCU stall or hung task report" eq "" "$(stall_reports)"

echo "busy off" >$BOARD_DBG/fault
check "apply finishes once the chip recovers" ended 5 $apply
check "apply answers nothing" eq "" "$(cat /tmp/apply.out)"
check "chip holds exactly the applied layout" eq "$(fault_layout_dump)" "$(cat $BOARD_DBG/vlan)"
check "killed console command never ran" eq "" "$(klog_new | grep '===port')"

ip link set eth0 up
board_link 0 up
check "port 0 up lights LED 2 within 3 s" wait_until 3 leds "hi lo"
board_link 3 up
check "port 3 up lights LED 1 within 3 s" wait_until 3 leds "lo lo"
board_link 0 down
check "port 0 down darkens LED 2 within 3 s" wait_until 3 leds "lo hi"
board_link 3 down
check "port 3 down darkens LED 1 within 3 s" wait_until 3 leds "hi hi"

check "board and driver unload" board_unload
check "no leaks" board_leak_check
finish
