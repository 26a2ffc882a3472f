#!/bin/sh
# board: K12M3 noreset noled1
# Without "switchnet-reset" and "led-gpio1": the reset is reported invalid
# (also from the console) and only the "lan2" LED (chip port 0) is driven.
. /lib/board.sh
G=/sys/kernel/debug/gpio
klog() { klog_new | sed 's/^\[[^]]*\] //'; }

insmod /modules/swconfig_test.ko
insmod /modules/rtl8304.ko
klog_mark
insmod /modules/rtl8304_board.ko
check "invalid reset line reported, probe goes on" eq "$(printf '%s\n' \
	'switch reset gpio -2 is invalid.' '....Registering RTL8304MB switch...')" \
	"$(klog | grep -E '^switch reset|Registering')"
led() { [ "$(gpio_level "$1")" = "$2" ]; }
check "only the lan2 LED requested, dark" eq "1 1" \
	"$(grep -cE 'rtl8304|switchnet' $G) $(grep -cE "gpio-$GPIO_LED2 .*rtl8304 lan2.* out hi" $G)"
board_link 0 up
check "port 0 lights it" wait_until 5 led $GPIO_LED2 lo
klog_mark
echo "switch reset" >/proc/rtl8304
check "console reset reports it too" eq "switch reset gpio -2 is invalid." "$(klog)"
board_unload
finish
