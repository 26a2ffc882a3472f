#!/bin/sh
# board: J410
# Board J410 has no RTL8304MB: the module loads idle and says so at load and unload.
. /lib/board.sh
want=$(printf '%s\n'  "...The platform not support rtl8304!")
insmod /modules/swconfig_test.ko
for step in "insmod /modules/rtl8304.ko" "rmmod rtl8304"; do
	klog_mark
	check "$step" $step
	check "$step: log" eq "$want" "$(klog_new | sed 's/^\[[^]]*\] //')"
	check "$step: no PHY driver" test ! -e "/sys/bus/mdio_bus/drivers/Realtek RTL8304MB"
done
finish
