#!/bin/sh
# board: K12M3
# timeout: 400
# The OpenWrt user's path: "swconfig dev switch0 load network" reads the UCI
# network configuration and sets the switch up from it.  Each configuration
# is checked on the chip's VLAN table, PVIDs and tag modes, which apply
# rebuilds from scratch: entry 0 holds VLAN 1 (all ports, FID 0) until a
# configured VID 1 takes it over, every other VID gets the lowest free entry
# with FID 1, framework ports 0..3 are chip ports 0, 3, 4, 8 (member bits
# 0x001, 0x008, 0x010, 0x100), an untagged member gets the slot's VID as
# PVID (the highest slot wins), and chip ports 0, 3, 4, 8 get tag mode 2.
. /lib/board.sh
board_load
mkdir -p /etc/config
ERR=/tmp/swconfig.err
V="accept 3 tag_aware 1 tag_mode 2"	# every port after apply's VLAN init

# expect CASE: one check per line on stdin: a line of the chip's VLAN dump,
# "free N" (entries with VID 0), or "COMMAND = ANSWER" through swconfig.
expect() {
	local line now
	now=$(chip_vlans)
	while read -r line; do
		case "$line" in
		free*) check "$1: $line" eq "${line#free }" \
			"$(echo "$now" | grep -c 'vid 0 fid 0 member 0x000 untag 0x000')" ;;
		*=*) check "$1: $line" eq "${line#*= }" "$(eval swconfig dev switch0 "${line% =*}")" ;;
		*) check "$1: $line" has_line "$now" "$line" ;;
		esac
	done
}

# load CASE FILE RC [STDERR [REFUSED]]: load FILE; its status, its stderr and
# the VLANs and PVIDs apply logs as refused by the chip, as given.
load() {
	local rc=0
	klog_mark
	swconfig dev switch0 load "$2" 2>$ERR || rc=$?
	check "$1: exit status $3" eq "$3" "$rc"
	check "$1: messages" eq "$4" "$(cat $ERR)"
	check "$1: refusals logged" eq "$5" "$(klog_new | sed -n 's/.*\(rtl8304: apply: \)/\1/p')"
}

# The command line passes through to the framework.
while IFS='|' read -r rc out err args; do
	eval "set -- $args"
	got=$(swconfig "$@" 2>$ERR)
	st=$?
	check "swconfig $args: status $rc" eq "$rc" "$st"
	check "swconfig $args: output" eq "$out" "$got"
	check "swconfig $args: messages" eq "$err" "$(cat $ERR)"
done <<'EOF'
0|Found: switch0 - RTL8304MB||list
0|||dev RTL8304MB vlan 5 set ports "0 1t 3t"
0|||dev switch0 vlan 5 set vid 500
0|0 1t 3t ||dev RTL8304MB vlan 5 get ports
1||Failed to set attribute: Invalid argument|dev RTL8304MB port 2 set pvid 4096
1||No switch "sw9" (see "list")|dev sw9 help
1||swconfig: cannot read /etc/config/none|dev switch0 load none
0|||dev switch0 set apply
EOF
expect cli <<EOF
entry 1 vid 500 fid 1 member 0x109 untag 0x001
port 0 pvid_index 1 pvid 500 $V
EOF

# (a) The board's usual layout, by the name the network scripts use: LAN on
# framework port 1, WAN on port 0, the CPU port tagged in both.  The reset
# that load does by default drops slot 5 from above.
cat >/etc/config/network <<'EOF'
config interface 'loopback'
	option device 'lo'
	option proto 'static'

config switch
	option name 'switch0'
	option reset '1'
	option enable_vlan '1'

config switch_vlan 'lan'
	option device 'switch0'
	option vlan '1'
	option ports '1 3t'
	option vid '1'

config switch_vlan
	option device "switch0"		# WAN
	option vlan 2
	list ports '0'
	list ports '3t'
	option vid '2'
EOF
load usual network 0
expect usual <<EOF
entry 0 vid 1 fid 1 member 0x108 untag 0x008
entry 1 vid 2 fid 1 member 0x101 untag 0x001
free 14
port 0 pvid_index 1 pvid 2 $V
port 3 pvid_index 0 pvid 1 $V
port 4 pvid_index 0 pvid 1 $V
port 8 pvid_index 0 pvid 1 $V
vlan 5 get vid = 0
port 0 get pvid = 2
get enable_vlan = 1
EOF
check "usual: ingress filter on" eval "chip_vlans | grep -q 'enable 1 ingress_filter 1$'"
USUAL=$(chip_vlans)

# Without reset the earlier slots stay and are applied again.
cat >/tmp/noreset.conf <<'EOF'
config switch
	option name 'RTL8304MB'
	option reset '0'
	option enable_vlan '0'
config switch_vlan
	option device 'RTL8304MB'
	option vlan '3'
	option vid '30'
	option ports '1t 3t'
EOF
load noreset /tmp/noreset.conf 0
expect noreset <<EOF
entry 0 vid 1 fid 1 member 0x108 untag 0x008
entry 1 vid 2 fid 1 member 0x101 untag 0x001
entry 2 vid 30 fid 1 member 0x108 untag 0x000
free 13
port 3 pvid_index 0 pvid 1 $V
get enable_vlan = 0
EOF

# (b) Port-based slots stay out of the 802.1Q table, but their untagged
# members still take the slot's VID as PVID: slot 5 is the highest for port
# 1, and VID 50 is in no entry, so the chip refuses that PVID.
cat >/tmp/portbased.conf <<'EOF'
config switch
	option name 'switch0'
config switch_vlan
	option device 'switch0'
	option vlan '1'
	option ports '0 1 3'
	option port_based '1'
config switch_vlan
	option device 'switch0'
	option vlan '2'
	option vid '20'
	option ports '0 3t'
config switch_vlan
	option device 'switch0'
	option vlan '5'
	option vid '50'
	option ports '1'
	option port_based '1'
EOF
load portbased /tmp/portbased.conf 0 "" "rtl8304: apply: PVID 50 of port 1 refused: no such VLAN"
expect portbased <<EOF
entry 0 vid 1 fid 0 member 0x1ff untag 0x000
entry 1 vid 20 fid 1 member 0x101 untag 0x001
free 14
port 0 pvid_index 1 pvid 20 $V
port 3 pvid_index 0 pvid 1 $V
port 8 pvid_index 0 pvid 1 $V
vlan 1 get vid = 1
port 1 get pvid = 50
EOF

# (c) Sixteen VLANs: entry 0 keeps VLAN 1, VIDs 101..115 fill entries 1..15
# and VID 116 finds none; neither can port 0 take PVID 116.
{
	printf 'config switch\n\toption name switch0\n'
	for i in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16; do
		case $i in 1) p="1 3t" ;; 16) p="0 3t" ;; *) p="3t" ;; esac
		printf "config switch_vlan\n\toption device switch0\n\toption vlan %s\n" $i
		printf "\toption vid %s\n\toption ports '%s'\n" $((100 + i)) "$p"
	done
} >/tmp/sixteen.conf
load sixteen /tmp/sixteen.conf 0 "" "$(printf '%s\n' \
	"rtl8304: apply: VLAN 116 (slot 16) refused: VLAN table full" \
	"rtl8304: apply: PVID 116 of port 0 refused: no such VLAN")"
{
	echo "entry 0 vid 1 fid 0 member 0x1ff untag 0x000"
	echo "entry 1 vid 101 fid 1 member 0x108 untag 0x008"
	for i in 2 3 4 5 6 7 8 9 10 11 12 13 14 15; do
		echo "entry $i vid $((100 + i)) fid 1 member 0x100 untag 0x000"
	done
	echo "port 0 pvid_index 0 pvid 1 $V"
	echo "port 3 pvid_index 1 pvid 101 $V"
	echo "free 0"
} | expect sixteen

# An unknown attribute is reported and skipped; a value the driver refuses
# is reported with its line and fails the load, and the rest is applied.
cat >/tmp/extra.conf <<'EOF'
config switch
	option name 'switch0'
	option colour 'blue'
config switch_vlan
	option device 'switch0'
	option vlan '4'
	option vid '40'
	option description 'guest'
	option ports '0 3t'
config switch_port
	option device 'switch0'
	option port '0'
	option speed '100'
EOF
load unknown /tmp/extra.conf 0 "$(printf '%s\n' \
	'swconfig: /tmp/extra.conf:3: unknown switch attribute "colour" of switch0, skipped' \
	'swconfig: /tmp/extra.conf:8: unknown VLAN attribute "description" of switch0, skipped' \
	'swconfig: /tmp/extra.conf:13: unknown port attribute "speed" of switch0, skipped')"
printf "config switch_port\n\toption device switch0\n\toption port 1\n\toption pvid 4096\n" >>/tmp/extra.conf
load refused /tmp/extra.conf 1 "$(printf '%s\n' \
	'swconfig: /tmp/extra.conf:3: unknown switch attribute "colour" of switch0, skipped' \
	'swconfig: /tmp/extra.conf:8: unknown VLAN attribute "description" of switch0, skipped' \
	'swconfig: /tmp/extra.conf:13: unknown port attribute "speed" of switch0, skipped' \
	'swconfig: /tmp/extra.conf:17: port 1 set pvid 4096: Failed to set attribute: Invalid argument')"
expect refused <<EOF
entry 0 vid 1 fid 0 member 0x1ff untag 0x000
entry 1 vid 40 fid 1 member 0x101 untag 0x001
port 0 pvid_index 1 pvid 40 $V
EOF

# A file the tool cannot use changes nothing: not the chip, not the soft
# configuration (no set reaches the framework).  @V stands for a valid
# switch and VLAN section (lines 1 to 6); the message follows the file name.
load usual network 0
OK="config switch\n\toption name switch0\nconfig switch_vlan\n\toption device switch0\n\toption vlan 3\n\toption ports '0 3t'\n"
while IFS='|' read -r msg text; do
	case "$text" in *@V*) text="${text%%@V*}$OK${text#*@V}" ;; esac
	printf '%b\n' "$text" >/tmp/bad.conf
	load "bad $msg" /tmp/bad.conf 1 "swconfig: /tmp/bad.conf$msg"
	check "bad $msg: chip unchanged" eq "$USUAL" "$(chip_vlans)"
	check "bad $msg: nothing set" eq "" "$(klog_new | grep 'swconfig-test: > .* set ')"
done <<'EOF'
:1: option before any config section|option name switch0\n@V
:7: unterminated quote (')|@V\toption vid '30
:7: unknown keyword 'optoin' (config, option, list, package)|@Voptoin vid 30
:7: option takes a name and one value (quote a value with spaces)|@V\toption vid 30 40
:7: config switch_vlan of switch0 without option vlan|@Vconfig switch_vlan\n\toption device switch0\n\toption ports '1'
:9: port '4': switch0 has ports 0..3|@Vconfig switch_port\n\toption device switch0\n\toption port 4
:7: vid 'ten' is not a number|@V\toption vid ten
:10: ports: '1x' is not a port 0..3, t for tagged|@Vconfig switch_vlan\n\toption device switch0\n\toption vlan 4\n\toption ports '0 1x'
:3: reset 'maybe' is not a boolean|config switch\n\toption name switch0\n\toption reset maybe
: no config switch section with option name 'switch0' or 'RTL8304MB'|config switch\n\toption name switch1\nconfig switch_vlan\n\toption device switch0\n\toption vlan 3\n\toption ports '0 3t'
EOF
finish
