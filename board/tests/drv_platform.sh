#!/bin/sh
# boards: J410 | K24M3 | K480M3 | K960M3 | X410 | noplatform
# Boards without an RTL8304MB: the module loads idle and says why at load and
# again at unload.  A four-byte model other than J410 fails the five-byte read;
# without the fsl,tw-platform node the check fails before any read.
. /lib/board.sh
case $(cat /board/variant) in
X410) why="file:drivers/net/phy/rtl8304, line:1080, get num property failed!" ;;
noplatform) why="file:drivers/net/phy/rtl8304, line:1061, get device node failed!" ;;
*) why= ;;
esac
want=$(printf '%s\n' ${why:+"$why"} "...The platform not support rtl8304!")
insmod /modules/swconfig_test.ko
for step in "insmod /modules/rtl8304.ko" "rmmod rtl8304"; do
	klog_mark
	check "$step" $step
	check "$step: log" eq "$want" "$(klog_new | sed 's/^\[[^]]*\] //')"
	check "$step: no PHY driver" test ! -e "/sys/bus/mdio_bus/drivers/Realtek RTL8304MB"
done
finish
