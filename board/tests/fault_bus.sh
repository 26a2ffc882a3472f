#!/bin/sh
# board: K12M3
# timeout: 300
# Other users of the MDIO bus during 30 applies: MII ioctls on eth0 (what
# mii-tool and phytool send) and the board's own mdio control read the
# chip's page control (8, 31) in loops.  Between two register sequences its
# bit 15 is clear; it is set only inside one (PHY mode, between a page
# selection and its access), so a reader that sees it set got in between.
# None may, the chip ends with exactly the applied layout and no access
# went through a bad page.
. /lib/board.sh
S="dev RTL8304MB"
R=30

board_load
fault_layout_set
sw $S set apply

# The FEC stand-in's MII ioctls, as the FEC answers them.
check "SIOCGMIIPHY: the MAC's PHY is at address 8" eq 8 "$(miireg eth0 phy)"
check "SIOCGMIIREG: nobody at address 9, the bus floats high" eq 0xffff \
	"$(miireg eth0 read 9 0)"
echo clear >$BOARD_DBG/stats
# 0x7fff is where every PHY access leaves the page control: nothing moves.
check "SIOCSMIIREG accepted" eq ok "$(miireg eth0 write 8 31 0x7fff)"
check "SIOCSMIIREG reaches the bus" grep -qx "W addr 8 reg 31 unrouted value 0x7fff" \
	$BOARD_DBG/log
ip link set eth0 down
check "MII ioctls refused while eth0 is down" eq "error -22" "$(miireg eth0 read 8 31)"
ip link set eth0 up

echo clear >$BOARD_DBG/stats
stop=/tmp/fault_bus.stop
while [ ! -e $stop ]; do
	miireg eth0 loop 500 8 31 0x8000 0
done >/tmp/ioctl.out &
ioctl=$!
{
	n=0 wrong=0
	while [ ! -e $stop ]; do
		echo "8 31" >$BOARD_DBG/mdio
		v=$(cat $BOARD_DBG/mdio)
		n=$((n + 1))
		case "$v" in 0x*) [ $((v & 0x8000)) -eq 0 ] ;; *) false ;; esac ||
			wrong=$((wrong + 1))
	done
	echo "reads $n wrong $wrong"
} >/tmp/mdio.out &
mdio=$!

failed=0
i=0
while [ $i -lt $R ]; do
	out=$(sw $S set apply) || { echo "apply $i: $out"; failed=$((failed + 1)); }
	i=$((i + 1))
done
touch $stop
check "ioctl reader ends" wait $ioctl
check "mdio reader ends" wait $mdio

check "$R applies succeed" eq 0 $failed
ioctl_sum=$(awk '{ r += $2; w += $4; e += $6 } END { print r + 0, w + 0, e + 0 }' /tmp/ioctl.out)
echo "       ioctl: reads, wrong, errors: $ioctl_sum; mdio control: $(cat /tmp/mdio.out)"
check "ioctl reads ran alongside" test "${ioctl_sum%% *}" -ge 500
check "no ioctl read inside a driver sequence" eq "0 0" "${ioctl_sum#* }"
check "mdio control reads ran alongside" test "$(awk '{ print $2 }' /tmp/mdio.out)" -gt 0
check "no mdio control read inside a driver sequence" eq 0 "$(awk '{ print $4 }' /tmp/mdio.out)"
check "chip holds exactly the applied layout" eq "$(fault_layout_dump)" "$(cat $BOARD_DBG/vlan)"
check "no access through a bad page" grep -qx "bad_page_accesses 0" $BOARD_DBG/stats

check "board and driver unload" board_unload
check "no leaks" board_leak_check
finish
