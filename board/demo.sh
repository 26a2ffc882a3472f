#!/bin/sh
# board: K12M3
# timeout: 180
# What a board engineer does with a fresh board: load the switch framework,
# the driver and the board, look at the bus and the GPIOs, set up VLANs
# through swconfig, ask the maintenance console, and pull a cable.
# Driver steps are skipped while rtl8304.ko has not been built.
. /lib/board.sh

step() { echo; echo "=== $*"; }
show() { echo "# $*"; "$@" 2>&1 | sed 's/^/  /'; }
klog() { klog_new | grep -vE 'swconfig-test: [a-z]*> ' | sed 's/^/  kernel: /'; klog_mark; }
swc() {
	local a line="# swconfig"
	for a in "$@"; do
		case "$a" in *" "*) line="$line \"$a\"" ;; *) line="$line $a" ;; esac
	done
	echo "$line"
	swconfig "$@" 2>&1 | sed 's/^/  /'
}
console() { echo "# echo \"$1\" > /proc/rtl8304"; echo "$1" >/proc/rtl8304; klog; }
leds() {
	echo "# LED lines in /sys/kernel/debug/gpio (raw 0 = lit, 1 = dark)"
	grep -E 'rtl8304|switchnet' /sys/kernel/debug/gpio | sed 's/^/  /'
}

klog_mark
step "Switch framework (test stand-in for OpenWrt's swconfig)"
show insmod /modules/swconfig_test.ko
if have_driver; then
	step "Driver: insmod rtl8304.ko (board check, PHY fixup, PHY driver)"
	show insmod /modules/rtl8304.ko
else
	step "Driver: rtl8304.ko not built yet, showing the board alone"
fi
klog

step "Board: MDIO bus with the chip model; the FEC attaches to address 8"
show insmod /modules/rtl8304_board.ko
klog

step "PHY devices the bus scan found"
for d in /sys/bus/mdio_bus/devices/*; do
	drv=$(readlink "$d/driver" 2>/dev/null || echo none)
	echo "  $(basename "$d"): phy_id $(cat "$d/phy_id"), driver ${drv##*/}"
done

step "GPIO lines"
show cat /sys/kernel/debug/gpio

if ! have_driver || ! sw list | grep -q RTL8304MB; then
	step "Board controls (driver steps skipped: no RTL8304MB switch device)"
	show board_link 0 up
	show cat "$BOARD_DBG/link"
	show cat "$BOARD_DBG/stats"
	echo
	echo "Demo done (board only)."
	exit 0
fi

step "Switch device"
swc list
swc dev RTL8304MB help

step "VLANs as OpenWrt sets them up: LAN port (1) in VLAN 1, WAN port (0) in VLAN 2, CPU port (3) tagged in both"
mkdir -p /etc/config
cat >/etc/config/network <<'EOF'
config switch
	option name 'switch0'
	option reset '1'
	option enable_vlan '1'

config switch_vlan
	option device 'switch0'
	option vlan '1'
	option ports '1 3t'
	option vid '1'

config switch_vlan
	option device 'switch0'
	option vlan '2'
	option ports '0 3t'
	option vid '2'
EOF
show cat /etc/config/network
swc dev switch0 load network
swc dev RTL8304MB vlan 2 get ports
klog

step "The chip's VLAN table as the board sees it (chip ports 0..8)"
grep -vE 'vid +0 ' "$BOARD_DBG/vlan" | sed 's/^/  /'
swc dev RTL8304MB port 1 show

step "Port mask: declared an integer, so swconfig shows a number (bits of a kernel address)"
swc dev RTL8304MB port 0 get mask
echo "# the driver's text, through the stand-in's test-only path (no swconfig equivalent)"
sw_text dev RTL8304MB port 0 get mask | sed 's/^/  /'

step "Maintenance console"
console "show all vlan"

step "Cables into both copper ports (chip ports 0 and 3)"
board_link 0 up
board_link 3 up
sleep 3
console "get phy status"
swc dev RTL8304MB port 0 get link
leds

step "Cable out of chip port 0: its LED (led-gpio2) goes dark"
board_link 0 down
sleep 3
console "get phy status"
swc dev RTL8304MB port 0 get link
leds

step "Unload: board first (it holds the PHY), then the driver and the framework"
show rmmod rtl8304_board
show rmmod rtl8304
show rmmod swconfig_test
klog
echo
echo "Demo done."
