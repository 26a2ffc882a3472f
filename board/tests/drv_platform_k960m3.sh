#!/bin/sh
# board: K960M3
# Board K960M3 is refused like J410.
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
