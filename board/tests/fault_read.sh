#!/bin/sh
# board: K12M3
# timeout: 150
# Every MDIO read fails (-EIO) while an apply runs.  A failed read leaves its
# error code as the register value (0xfffb), so the apply's first wait, for
# chip port 0's counter clear (bit 0 of (4, 17, 15)), never ends while the
# fault lasts.  Meanwhile eth0 goes down at once, a killed console writer
# returns, and the failed reads are logged with address, register and error,
# at most 10 lines per 5 s.  After the fault an apply gives the layout asked
# for and nothing more is logged.
. /lib/board.sh
S="dev RTL8304MB"
FAULT=10
klog() { klog_new | sed 's/^\[[^]]*\] //'; }

fault_apply "read -5 forever"
sleep 1
check "apply waits while reads fail" running $FAULT_APPLY
fault_others_go_on

left=$((FAULT - ($(date +%s) - FAULT_START)))
[ $left -gt 0 ] && sleep $left
echo "read off" >$BOARD_DBG/fault
elapsed=$(($(date +%s) - FAULT_START))
check "apply finishes once reads succeed" ended 5 $FAULT_APPLY

log=$(klog)
failed=$(echo "$log" | grep 'MDIO read failed')
n=$(echo "$failed" | grep -c .)
echo "       $n failed reads logged in $elapsed s"
check "every line names address, register and error" eq "" \
	"$(echo "$failed" | grep -vxE 'rtl8304: MDIO read failed: address [0-8] register ([0-9]|[12][0-9]|3[01]): -5')"
# Every switch register read starts by reading the page control (8, 31);
# the wait reads the clear bit (4, 17) again and again.
check "page control read logged" eq 1 \
	"$(echo "$failed" | grep -cxm1 'rtl8304: MDIO read failed: address 8 register 31: -5')"
check "counter clear poll logged" eq 1 \
	"$(echo "$failed" | grep -cxm1 'rtl8304: MDIO read failed: address 4 register 17: -5')"
check "a full first burst of 10" test "$n" -ge 10
check "at most 10 per 5 s" test "$n" -le $((10 * (elapsed / 5 + 2)))
check "suppressed reads counted" eq 1 "$(echo "$log" | grep -cm1 'callbacks suppressed$')"
check "no write failed" eq "" "$(echo "$log" | grep 'MDIO write failed')"
check "killed console command never ran" eq "" "$(echo "$log" | grep '===port')"

ip link set eth0 up
klog_mark
check "apply after the fault" sw $S set apply
check "chip holds exactly the applied layout" eq "$(fault_layout_dump)" "$(cat $BOARD_DBG/vlan)"
check "nothing logged once reads succeed" eq "" "$(klog | grep -E 'MDIO|suppressed')"

check "board and driver unload" board_unload
check "no leaks" board_leak_check
finish
