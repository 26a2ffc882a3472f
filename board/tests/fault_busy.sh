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
STUCK=50
leds() { [ "$(gpio_level $GPIO_LED1) $(gpio_level $GPIO_LED2)" = "$1" ]; }

# Clearing chip port 0's counters: bit 0 of (4, 17, 15), self-clearing.
fault_apply "busy sw 4 15 17 0x0001 forever"
sleep 2
check "apply waits for the counter clear" running $FAULT_APPLY
check "clear bit still set" eq 0x0001 "$(board_reg sw 4 15 17)"
check "VLAN table not yet touched" grep -qx "entry  0 vid    0 fid 0 member 0x000 untag 0x000" \
	$BOARD_DBG/vlan
fault_others_go_on

left=$((STUCK - ($(date +%s) - FAULT_START)))
[ $left -gt 0 ] && sleep $left
check "apply still waiting after $STUCK s" running $FAULT_APPLY
check "no soft lockup, RCU stall or hung task report" eq "" "$(stall_reports)"

echo "busy off" >$BOARD_DBG/fault
check "apply finishes once the chip recovers" ended 5 $FAULT_APPLY
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
