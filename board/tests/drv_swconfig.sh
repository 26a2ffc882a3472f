#!/bin/sh
# board: K12M3
# The swconfig device: its attributes as swconfig lists them, soft
# configuration, port links, apply and reset as the chip's VLAN block shows
# them.
. /lib/board.sh
S="dev RTL8304MB"
# ask EXPECTED COMMAND...: the answer to one command, as sw_line prints it
ask() { want=$1; shift; eq "$want" "$(sw_line $S "$@")"; }
is_int() { echo "$1" | grep -qxE -- '-?[0-9]+'; }
vlan_has() { grep -qx "$1" $BOARD_DBG/vlan; }
last_bmcr() { grep "^W addr $1 reg  0 " $BOARD_DBG/log | tail -1 | sed 's/.*value //'; }

board_load
check "attributes as swconfig lists them" eq "$(printf '%s\n' \
	'switch0: RTL8304MB(RTL8304MB), ports: 4 (cpu @ 8), vlans: 17' '     --switch' \
	'	Attribute 1 (int): enable_vlan (Enable 802.1q VLAN support)' \
	'	Attribute 2 (none): apply (Activate changes in the hardware)' \
	'	Attribute 3 (none): reset (Reset the switch)' '     --vlan' \
	'	Attribute 1 (int): port_based (Use port-based (non-802.1q) VLAN only)' \
	'	Attribute 2 (int): vid (Get/set VLAN ID (1-4095))' \
	'	Attribute 3 (ports): ports (VLAN port mapping)' '     --port' \
	'	Attribute 1 (int): mask (Port-based VLAN mask)' \
	'	Attribute 2 (int): pvid (Primary VLAN ID)' \
	'	Attribute 3 (unknown): link (Get port link information)')" "$(sw $S help)"

# "mask" is declared an integer: the framework answers value.i, a number
# made of the text's pointer, never the text.  The text is read through the
# stand-in's test-only path.
for p in 0 1; do
	check "mask of port $p through the framework is a number" is_int "$(sw $S port $p get mask)"
done
check "mask text of port 0" eq "0x000e: (0) 1 2 3 " "$(sw_text $S port 0 get mask)"
check "mask text of port 1" eq "0x000d: 0 (1) 2 3 " "$(sw_text $S port 1 get mask)"

while IFS='|' read -r want cmd; do
	check "$cmd -> $want" ask "$want" $cmd
done <<EOF
|vlan 5 set ports "0 1t 3t"
0 1t 3t |vlan 5 get ports
5|vlan 5 get vid
5|port 0 get pvid
0|port 1 get pvid
|vlan 5 set ports ""
|vlan 5 get ports
|port 2 set pvid 4095
4095|port 2 get pvid
$SW_SET_EINVAL|port 2 set pvid 4096
$SW_GET_EINVAL|vlan 0 get vid
$SW_GET_EINVAL|vlan abc get vid
$SW_SET_EINVAL|vlan 0 set ports "0"
$SW_GET_EINVAL|vlan 17 get vid
|port 0x1 set pvid 9
9|port 0 get pvid
0|port 1 get pvid
0|vlan 16 get vid
|vlan 7 set vid 70000
4464|vlan 7 get vid
|vlan 7 set port_based 2
0|vlan 7 get port_based
|vlan 7 set port_based 1
1|vlan 7 get port_based
|set enable_vlan 7
7|get enable_vlan
port:0 link:down|port 0 get link
Failed to set attribute: Unknown error;error -524|port 1 set link "speed 1000 duplex full"
EOF

board_link 0 up
board_reg sw 0 0 22 0x0040
board_reg sw 8 0 22 0
check "copper link with autoneg bit" ask "port:0 link:up speed:100baseT full-duplex auto" port 0 get link
check "CPU port fixed at 100/full" ask "port:3 link:up speed:100baseT full-duplex " port 3 get link
while IFS='|' read -r bmcr args; do
	sw $S port 1 set link "$args" >/dev/null
	check "link '$args' writes $bmcr to PHY 3" eq "$bmcr" "$(last_bmcr 3)"
done <<'EOF'
0x0100|speed 10 duplex full
0xa000|speed 100 duplex half
0x0900|speed 0 duplex full
0x8000|autoneg on speed 1000
0xa000|speed 100 duplex fulll
0x0800|speed 0x64
EOF

# Framework port 1 (chip 3) untagged in VID 100, tagged in 200 with the CPU
# port; slot 4 is port-based (never programmed); slot 6 has no members.
sw $S set reset >/dev/null
for c in "vlan 2 set vid 100" "vlan 2 set ports 1" "vlan 3 set vid 200" \
	 "vlan 3 set ports '1t 3t'" "vlan 4 set ports '0 2'" "vlan 4 set port_based 1" \
	 "vlan 6 set vid 600" "set apply"; do
	eval sw $S $c >/dev/null
done
check "default VLAN 1 kept" vlan_has "entry  0 vid    1 fid 0 member 0x1ff untag 0x000"
check "VID 100: chip port 3 untagged" vlan_has "entry  1 vid  100 fid 1 member 0x008 untag 0x008"
check "VID 200: chip ports 3, 8 tagged" vlan_has "entry  2 vid  200 fid 1 member 0x108 untag 0x000"
check "nothing else programmed" eq 13 "$(grep -c 'vid    0 fid 0 member 0x000' $BOARD_DBG/vlan)"
check "PVID of chip port 3" grep -q "^port 3 pvid_index  1 pvid  100 " $BOARD_DBG/vlan
check "port-based slot gives no PVID" grep -q "^port 0 pvid_index  0 pvid    1 " $BOARD_DBG/vlan
check "tag mode 2 on chip ports 0, 3, 4, 8" eq 4 "$(grep -c 'tag_mode 2$' $BOARD_DBG/vlan)"
check "ingress filter on" grep -q "ingress_filter 1" $BOARD_DBG/vlan
check "apply derives PVIDs" ask 100 port 1 get pvid
check "port-based slot's VID as soft PVID" ask 4 port 0 get pvid

sw $S set reset >/dev/null
check "reset: chip holds VLAN 1 only" eq 15 "$(grep -c 'vid    0 fid 0 member 0x000' $BOARD_DBG/vlan)"
check "reset: soft VLANs cleared" ask 0 vlan 2 get vid
check "reset: soft PVIDs cleared" ask 0 port 1 get pvid
check "reset: enable_vlan cleared" ask 0 get enable_vlan
finish
