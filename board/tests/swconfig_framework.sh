#!/bin/sh
# board: K12M3
# The switch-framework stand-in behaves as OpenWrt's framework and swconfig
# tool do, seen through the dummy switch (4 ports, 4 VLANs, CPU port 3):
# atoi numbers, index checks before any handler, missing handlers, default
# attributes after the driver's own, port lists, link words, error texts.
. /lib/board.sh
D="dev dummy"
# ask EXPECTED COMMAND...: the answer to one command, as sw_line prints it
ask() { want=$1; shift; eq "$want" "$(sw_line $D "$@")"; }

insmod /modules/swconfig_test.ko
check "registration without alias refused" sh -c "! insmod /modules/swconfig_dummy.ko fault=noalias"
check "... and says why" klog_has "swconfig-test: switch dummy has no alias (the framework needs one)"
check "registration without ops refused" sh -c "! insmod /modules/swconfig_dummy.ko fault=noops"
check "... and says why" klog_has "swconfig-test: switch dummy has no ops"
check "dummy switch registers" insmod /modules/swconfig_dummy.ko

check "help: driver's attributes, then the defaults; a link's type is unknown" \
	eq "$(printf '%s\n' 'switch0: dummy(dummy), ports: 4 (cpu @ 3), vlans: 4' '     --switch' \
	'	Attribute 1 (int): enable_vlan (Enable VLAN mode)' \
	'	Attribute 2 (none): apply (Activate changes in the hardware)' \
	'	Attribute 3 (none): reset (Reset the switch)' '     --vlan' \
	'	Attribute 1 (ports): ports (VLAN port mapping)' '     --port' \
	'	Attribute 1 (string): name (Port name)' \
	'	Attribute 2 (int): pvid (Primary VLAN ID)' \
	'	Attribute 3 (unknown): link (Get port link information)')" "$(sw $D help)"

# Rows run in order: "expected answer|command".
while IFS='|' read -r want cmd; do
	check "$cmd -> $want" ask "$want" $cmd
done <<EOF
|set enable_vlan 12abc
12|get enable_vlan
|set enable_vlan 0x10
0|get enable_vlan
|set enable_vlan "  -3"
-3|get enable_vlan
|port 0x1 set pvid 7
7|port 0 get pvid
0|port 1 get pvid
$SW_GET_EINVAL|port 4 get pvid
$SW_GET_EINVAL|port -1 get pvid
$SW_GET_EINVAL|vlan 4 get ports
|vlan abc get ports
$SW_SET_EINVAL|vlan 0 set ports "1"
$SW_SET_EINVAL|port 0 set name port9
$SW_GET_EINVAL|get apply
Unknown attribute "nosuch";error -22|get nosuch
Attribute "pvid" needs a value;error -22|port 0 set pvid
|vlan 1 set ports "0t 1"
0t 1 |vlan 1 get ports
7|port 0 get pvid
1|port 1 get pvid
Too many ports for switch0: it has 4;error -22|vlan 2 set ports "0 1 2 3 0"
Invalid port "2x": a number, t for tagged;error -22|vlan 2 set ports "0 2x"
|vlan 2 get ports
|vlan 2 set ports "1 2 3 0"
1 2 3 0 |vlan 2 get ports
Ignoring duplex "fulll": full or half|port 1 set link "speed 10 duplex fulll"
port:1 link:up speed:10baseT half-duplex |port 1 get link
Ignoring unknown link word "fast"|port 2 set link "speed 100 fast duplex full autoneg on"
port:2 link:up speed:100baseT full-duplex auto|port 2 get link
Failed to set attribute: Operation not supported;error -95|port 3 set link "speed 0x64"
port:3 link:down|port 3 get link
port2|port 2 get name
Port 0:;	name: port0;	pvid: 2;	link: port:0 link:up speed:100baseT full-duplex auto|port 0 show
EOF

check "device by its name" eq 2 "$(sw dev switch0 port 1 get pvid)"
check "unknown device" eq 'No switch "nosuch" (see "list");error -19' "$(sw_line dev nosuch help)"
check "failed command fails the write" sh -c ". /lib/board.sh; ! sw $D get nosuch >/dev/null"
sw $D set enable_vlan 5 >/dev/null
klog_mark
sw $D set apply 0 >/dev/null
check "'set apply 0' does nothing" eq "" "$(klog_new | grep 'swconfig_dummy: apply')"
sw $D set apply >/dev/null
check "'set apply' reaches the driver" eq "swconfig_dummy: apply, enable_vlan 5" \
	"$(klog_new | grep -o 'swconfig_dummy: apply.*')"

check "test-only path: a string handler's text" eq "port3" "$(sw_text $D port 3 get name)"
check "test-only path: an integer answer is no text" \
	eq "$(printf "Failed to get attribute: Bad address\nerror -14")" "$(sw_text $D get enable_vlan)"

check "dummy unloads" rmmod swconfig_dummy
check "framework stand-in unloads" rmmod swconfig_test
check "no leaks" board_leak_check
finish
