#!/bin/sh
# board: K12M3
# timeout: 240
# Console, swconfig and link changes at the same time, 30 rounds each: every
# answer stays whole and the chip ends with exactly the applied layout and
# no access through a wrong page.
. /lib/board.sh
S="dev RTL8304MB"
R=30
klog() { klog_new | sed 's/^\[[^]]*\] //'; }

board_load
sw $S vlan 2 set vid 100 >/dev/null
sw $S vlan 2 set ports "1" >/dev/null
sw $S vlan 3 set vid 200 >/dev/null
sw $S vlan 3 set ports "'1t 3t'" >/dev/null
sw $S set apply >/dev/null
echo clear >$BOARD_DBG/stats
klog_mark

i=0
while [ $i -lt $R ]; do
	for c in "get pvid 3" "show all vlan" "set phy reg 3 4 de1" "get phy status"; do
		echo "$c" >/proc/rtl8304
	done
	i=$((i + 1))
done &
console=$!
i=0
while [ $i -lt $R ]; do
	sw $S vlan 2 set ports "1" >/dev/null
	sw $S set apply >/dev/null
	sw $S port 1 get link >/dev/null
	i=$((i + 1))
done &
framework=$!
i=0
while [ $i -lt $R ]; do
	board_link 0 up; board_link 3 down; usleep 20000
	board_link 0 down; board_link 3 up; usleep 20000
	i=$((i + 1))
done
check "console writer finishes" wait $console
check "framework writer finishes" wait $framework

log=$(klog)
count() { echo "$log" | grep -cxF -- "$1"; }
check "every 'get pvid 3' answer whole" eq "$R $R" \
	"$(count '===port = 3, pvid = 0x64, priority = 0') $(echo "$log" | grep -c '^===port')"
check "every VLAN listing whole" eq "$R $R $R" "$(count 'vlanid  ----->  mbrmsk  untagmsk') \
$(count '100      ----->  0x8    0x8') $(count '200      ----->  0x108    0x0')"
check "every status report whole" eq "$R $((2 * R))" "$(count 'LAN2 port phy status: ') \
$(echo "$log" | grep -c '^link   = ')"
check "no access through a wrong page" grep -qx "bad_page_accesses 0" $BOARD_DBG/stats
check "VID 100 as applied" grep -qx "entry  1 vid  100 fid 1 member 0x008 untag 0x008" \
	$BOARD_DBG/vlan
check "VID 200 as applied" grep -qx "entry  2 vid  200 fid 1 member 0x108 untag 0x000" \
	$BOARD_DBG/vlan
check "no other VLAN" eq 13 "$(grep -c 'vid    0 fid 0 member 0x000' $BOARD_DBG/vlan)"
check "PVID of chip port 3" grep -q "^port 3 pvid_index  1 pvid  100 " $BOARD_DBG/vlan
check "PHY 3 register 4" eq 0x0de1 "$(board_reg phy 3 0 4)"
finish
