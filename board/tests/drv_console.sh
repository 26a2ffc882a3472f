#!/bin/sh
# board: K12M3
# /proc/rtl8304: every command once with its exact kernel-log output, then
# recognition edge cases (case, prefixes, port checks, long, empty and
# faulting writes).
. /lib/board.sh
klog() { klog_new | sed 's/^\[[^]]*\] //'; }
# run TEXT: write TEXT to the console, print what it logged
run() { klog_mark; printf '%s' "$1" >/proc/rtl8304; klog; }
# rows "command|expected log lines (\n between lines)", run in order
table() {
	while IFS='|' read -r cmd want; do
		check "'$cmd'" eq "$(printf '%b' "$want")" "$(run "$cmd")"
	done
}

board_load
board_link 0 up
sw dev RTL8304MB vlan 2 set vid 100 >/dev/null
sw dev RTL8304MB vlan 3 set vid 4095 >/dev/null

klog_mark
check "reading gives nothing" eq "" "$(cat /proc/rtl8304)"
check "reading logs the usage" eq "$(printf '%s\n' 'switch: RTL8304N' 'Usage: ' 'bridge mode' \
	'get phy status' 'get phy reg <addr>' 'set phy reg <port> <addr> <val>' 'switch reset' \
	'show all vlan' 'get vlanid info <vlanid>' \
	'set vlanid info <vlanid> <portmask> <untagmask>' 'get pvid <port>' \
	'set pvid <port> <pvid> <priority>' 'get cpu port' 'reset port <num>' '')" "$(klog)"

table <<'EOF'
show all vlan|vlanid  ----->  mbrmsk  untagmsk
bridge mode|
get pvid 0|===port = 0, pvid = 0x4d2, priority = 0
get pvid 8|===port = 8, pvid = 0x4d2, priority = 0
get vlanid info 1234|===vid = 1234, mbrmsk = 109, untagmsk = 109
get cpu port|The cpu port:8, tag enable
set vlanid info 100 9 9|===set vid 100 to portmask 9 untagmsk 9
get vlanid info 100|===vid = 100, mbrmsk = 9, untagmsk = 9
get vlanid info 4095|===vid = 4095, mbrmsk = 0, untagmsk = 0
SHOW ALL VLAN|vlanid  ----->  mbrmsk  untagmsk\n100      ----->  0x9    0x9
show all vlans now|vlanid  ----->  mbrmsk  untagmsk\n100      ----->  0x9    0x9
set pvid 3 100 2|===set port 3 pvid to 100
get pvid 3|===port = 3, pvid = 0x64, priority = 2
set pvid 1 5 0|port must be 0(wan), 3(lan), 8(cpu port)
get pvid 11|port must be 0(wan), 3(lan), 8(cpu port)
GET PHY STATUS|LAN2 port phy status: \nlink   = PORT_LINKUP\nspeed  = PORT_SPEED_100M\nduplex = PORT_FULL_DUPLEX\nLAN1/WAN port phy status: \nlink   = PORT_LINKDOWN\nspeed  = PORT_SPEED_10M\nduplex = PORT_HALF_DUPLEX
set phy reg 3 4 5e1|port 3 phy reg 4 set to 0x5e1
get phy reg 4|get phy reg 4, CPUPORT = 0x0, WANPOAT = 0x1e1, LANPORT = 0x5e1
set phy reg 8 0 1200|port 8 phy reg 0 set to 0x1200
set phy reg 4 0 1200|port must be 0(wan port), 3(lan port), 8(cpu port)
reset port 2|not such port as 2
set auth mac 3 7 1a2b3c 4d5e6f|set auth port: 3, fid: 0, mac1: 1a2b3c, mac2: 4d5e6f\nWill be set mac1: 1a, mac2: 2b, mac3: 3c, mac4: 4d, mac5: 5e, mac6: 6f
set auth mac 3 7 010203 040506|set auth port: 3, fid: 0, mac1: 10203, mac2: 40506\nWill be set mac1: 1, mac2: 2, mac3: 3, mac4: 4, mac5: 5, mac6: 6
del auth mac 3 1 1a2b3c 4d5e6f|del auth port: 3, fid: 0, mac1: 1a2b3c, mac2: 4d5e6f
Switch Reset Now|
GET CPU PORT|***commamd unknow!
Get pvid 3|***commamd unknow!
set pvid 3 100|***commamd unknow!
hello|***commamd unknow!
EOF
check "PHY 3 register 4 written" eq 0x05e1 "$(board_reg phy 3 0 4)"
check "802.1X MAC-based bits set" eq "2 8" "$(($(board_reg sw 0 15 16) & 2)) $(($(board_reg sw 3 3 16) & 8))"
check "reset line back high" eq hi "$(gpio_level $GPIO_RESET)"

# Counters ("bridge mode" cleared them): read, then "reset port 3".
echo "bytes 3 2 0x0005000500050005" >$BOARD_DBG/mib
echo "bytes 3 0 0x0007000700070007" >$BOARD_DBG/mib
echo "3 5 0x1234" >$BOARD_DBG/mib
table <<'EOF'
get mib 3 88|get mib port: 3, rxbyecnt\ncntVal[0]: 5, cntVal[1]: 5
get mib 3 99|get mib port: 3, txbyecnt\ncntVal[0]: 7, cntVal[1]: 7
get mib 3 5|get mib port: 3, val: 5\ncntVal[0]: 1234, cntVal[1]: 0
reset port 3|switch port 3 reset
get mib 3 5|get mib port: 3, val: 5\ncntVal[0]: 0, cntVal[1]: 0
EOF

# Writes of 1024 bytes and more: the first 1024 form the command.
pad() { printf "%-$2s" "$1"; }
pad 'get pvid 3' 1024 >/tmp/w1024
check "1024-byte write" eq "===port = 3, pvid = 0x64, priority = 2" \
	"$(klog_mark; dd if=/tmp/w1024 of=/proc/rtl8304 bs=1024 2>/dev/null; klog)"
{ pad 'get cpu port' 1024; printf 'x'; } >/tmp/w1025
check "1025-byte write: 1024 taken, the last byte is a command of its own" \
	eq "$(printf '%s\n' 'The cpu port:8, tag enable' '***commamd unknow!')" \
	"$(klog_mark; dd if=/tmp/w1025 of=/proc/rtl8304 bs=1025 2>/dev/null; klog)"

# The writes busybox cannot make: zero bytes, and a buffer that faults.
check "empty write: 0 returned, matches nothing" eq "$(printf '%s\n' 'write: 0' '***commamd unknow!')" \
	"$(klog_mark; procwrite /proc/rtl8304 empty; klog)"
check "faulting write: -14 returned, no command runs" eq "write: -14" \
	"$(klog_mark; procwrite /proc/rtl8304 fault 12; klog)"
finish
