#!/bin/sh
# board: K12M3
# timeout: 240
# Eight load/unload cycles of driver and board: the same messages each
# time, /proc/rtl8304 gone after each unload, nothing leaked (kmemleak sees
# a leak of one cycle as well as of twenty; each cycle costs a reset pulse
# and two module loads on a KASAN kernel).
. /lib/board.sh
klog() { klog_new | sed 's/^\[[^]]*\] //' | grep -v -e 'Link is' -e 'taints kernel'; }

first=
n=0
while [ $n -lt 8 ]; do
	n=$((n + 1))
	klog_mark
	board_load
	cat /proc/rtl8304
	board_unload
	log=$(klog)
	[ -n "$first" ] || first=$log
	check "cycle $n: same messages" eq "$first" "$log"
	check "cycle $n: /proc/rtl8304 gone" sh -c '! cat /proc/rtl8304 2>/dev/null'
done
check "each cycle registers the switch" eq 1 \
	"$(echo "$first" | grep -cxF '....Registering RTL8304MB switch...')"
check "no leaks" board_leak_check
finish
