#!/bin/sh
# board: K12M3 nofec
# Without the FEC node every probe of the chip's three addresses fails with
# -12 and leaves nothing behind; the MAC falls back to the generic driver.
. /lib/board.sh
insmod /modules/swconfig_test.ko
insmod /modules/rtl8304.ko
klog_mark
insmod /modules/rtl8304_board.ko
log=$(klog_new | sed 's/^\[[^]]*\] //')
check "message once per address" eq 3 "$(echo "$log" | grep -cxF '........failed to find <fsl,imx6ul-fec> node')"
check "probes fail with -12" eq 3 "$(echo "$log" | grep -c 'probe.* failed with error -12')"
check "MAC on the generic driver" klog_has "eth0 attached to rtl8304-board:08 (Generic PHY)"
check "no console" test ! -e /proc/rtl8304
board_unload
check "no leaks" board_leak_check
finish
