#!/bin/sh
# board: K12M3
# The virtual board on its own (no driver): MDIO bus with the chip model, PHY
# devices, MAC attached to address 8, GPIO lines, board controls, and the
# switch-framework stand-in with the dummy switch loaded (its behaviour is
# swconfig_framework.sh's).
. /lib/board.sh

dev=/sys/bus/mdio_bus/devices/rtl8304-board

check "framework stand-in loads" insmod /modules/swconfig_test.ko
check "board module loads" insmod /modules/rtl8304_board.ko

ids=$(for a in 0 1 2 3 4 5 6 7 8; do cat $dev:0$a/phy_id; done | tr '\n' ' ')
check "PHY devices 0..8 carry the model's identifiers" \
	eq "$(printf '0x001cc852 %.0s' 1 2 3 4 5 6 7 8 9)" "$ids"
check "nothing else on the bus" eq 9 "$(ls -d $dev:* | wc -l)"
check "MAC attached to address 8" klog_has "eth0 attached to rtl8304-board:08 (Generic PHY)"
check "PL061 lines exist" grep -q "GPIOs $PL061_BASE-$((PL061_BASE + 7))" /sys/kernel/debug/gpio

check "link control" board_link 3 up
check "link state reads back" eq "phy 3 up" "$(grep 'phy 3' $BOARD_DBG/link)"
check "backdoor read of PHY id" eq 0x001c "$(board_reg phy 5 0 2)"
board_reg sw 4 15 20 0xbeef
check "backdoor write reads back" eq 0xbeef "$(board_reg sw 4 15 20)"
check "bad register refused" sh -c "! echo sw 9 0 0 2>/dev/null >$BOARD_DBG/reg"
check "VLAN dump has 16 entries, 9 ports" eq 25 "$(grep -cE '^(entry|port) ' $BOARD_DBG/vlan)"
check "bus transactions counted" grep -qE '^reads [1-9]' $BOARD_DBG/stats
mdio() { echo "$*" >$BOARD_DBG/mdio && cat $BOARD_DBG/mdio; }
check "read through the bus" eq 0xc852 "$(mdio 7 3)"
check "eth0 down stops the PHY polls" ip link set eth0 down
echo "read -5 2" >$BOARD_DBG/fault
check "read fault armed" eq "read -5 2" "$(grep read $BOARD_DBG/fault)"
check "faulted bus read" eq "error -5 error -5 0x001c " \
	"$( (mdio 7 2; mdio 7 2; mdio 7 2) | tr '\n' ' ')"
check "fault used up" eq "read off" "$(grep read $BOARD_DBG/fault)"
check "failed reads logged" eq 2 "$(grep -c 'error -5' $BOARD_DBG/log)"
check "eth0 up again" ip link set eth0 up

check "dummy switch registers" insmod /modules/swconfig_dummy.ko
check "list" eq "Found: switch0 - dummy" "$(sw list)"
check "dummy answers through the stand-in" eq 0 "$(sw dev dummy get enable_vlan)"
check "dummy unloads" rmmod swconfig_dummy
check "board unloads" rmmod rtl8304_board
check "board loads again" insmod /modules/rtl8304_board.ko
check "board unloads again" rmmod rtl8304_board
check "framework stand-in unloads" rmmod swconfig_test
check "no leaks" board_leak_check
finish
